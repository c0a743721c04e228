// Names of files for tests of their short names, the same for every system.
#pragma once

#include <string>
#include <vector>

namespace velmora::test {

/// A name in Windows-1252 and its short name. Those that are not their own short names have none here: which
/// one they get is the system's choice, Windows keeps its own and they are made up elsewhere.
struct ShortNameCase {
    std::string name;
    std::string ownShortName;
};

/// They can all lie in one folder.
inline const std::vector<ShortNameCase>& shortNameCases() {
    static const std::vector<ShortNameCase> cases = {
        {"Memo.txt", "MEMO.TXT"},
        {"A", "A"},
        {"NOTES", "NOTES"},
        {"12345678.123", "12345678.123"},
        {"a!#$&'()", "A!#$&'()"},
        {"-@^_`{}~", "-@^_`{}~"},
        {"longer~1.txt", "LONGER~1.TXT"},
        {"Longer file name.txt", ""},
        {"Longer file notes.txt", ""},
        {"Longer file name.odb", ""},
        {"Memo.text", ""},
        {"123456789", ""},
        {"a b.txt", ""},
        {"archive.tar.gz", ""},
        {"a+b,c;d=e[f].txt", ""},
        {".profile", ""},
        {"100%.txt", ""},
        {"100% of it.txt", ""},
        {"Gr\xF6\xDF"
         "e.txt",
         ""},
        {"\xC4rger mit Umlauten.txt", ""},
    };
    return cases;
}

}  // namespace velmora::test
