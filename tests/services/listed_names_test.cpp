// What listings are for: every name in one opens the file that it stands for, whatever files are called.
#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "base/byte_text.h"
#include "platform/native.h"
#include "platform/short_names.h"
#include "platform/windows_paths.h"
#include "services/folder_listing.h"
#include "services/tools.h"
#include "support/memory_files.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using testing::IsEmpty;

/// Names, in the encoding of their system, that one of its folders can hold all together.
using Names = std::vector<std::string>;

Names both(Names names, const Names& more) {
    names.insert(names.end(), more.begin(), more.end());
    return names;
}

/// Names of a few characters that mean something to the Organiser, to patterns or to short names.
Names randomNames(const Names& characters, std::size_t count) {
    std::mt19937 random(1987);
    std::uniform_int_distribution<std::size_t> length(1, 12);
    std::uniform_int_distribution<std::size_t> character(0, characters.size() - 1);
    Names names;
    while (names.size() < count) {
        std::string name;
        for (std::size_t left = length(random); left > 0; --left) {
            name += characters[character(random)];
        }
        names.push_back(name);
    }
    return names;
}

/// Without those of nothing but dots and blanks, and those that `same` takes for an earlier one.
Names distinct(const Names& names, std::string (*same)(std::string_view)) {
    std::set<std::string> seen;
    Names kept;
    for (const std::string& name : names) {
        if (name.find_first_not_of(". ") != std::string::npos && seen.insert(same(name)).second) {
            kept.push_back(name);
        }
    }
    return kept;
}

/// No file system of any kind has trouble with these.
const Names kOrdinaryNames = {
    "Memo.odb", "memo2.odb",    "MEMO3.ODB",        "Longer name.odb", "LONGER WORD.ODB", "per_cent",
    "per%cent", "100%.txt",     " blank before",    "~tilde",          "LONGER~5",        "longer~7",
    ".profile", "LONGNA~1.TXT", "Longname one.txt", ".PROFILE2",       "archive.tar.gz",  "A.b.TXT"};

/// A folder whose files hold their own names, listed and opened by what was listed.
class ListedFolder {
  public:
    ListedFolder(Files& files, const PathRules& rules, const std::string& folder)
        : files_(files), rules_(rules), settings_{folder, 0} {}

    Names listing(ListedNames kind) const {
        test::MemoryFiles listings;
        writeFolderListing(files_, rules_, rules_.join(settings_.DownloadPath, "*"), kind,
                           *listings.open("/tmp/listing", OpenMode::Create));
        Names lines;
        std::istringstream text(listings.content("/tmp/listing"));
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line.substr(0, line.size() - 1));
        }
        return lines;
    }

    std::string contentUnder(const std::string& line) const {
        const std::string path = tools_.map_FileName(line, true, false);
        const std::string replaced = tools_.map_FileName(line, false, false);
        EXPECT_EQ(files_.storedPath(replaced), path) << "replaced by the same name: " << line;
        return files_.fileExists(path) ? contentOf(path) : "no file for " + line;
    }

    /// Every file of these names must be opened by one of the listed names, and by one only.
    void expectEachOpened(ListedNames kind, Names names) const {
        Names met = opened(kind);
        std::sort(met.begin(), met.end());
        std::sort(names.begin(), names.end());
        EXPECT_THAT(without(names, met), IsEmpty()) << "cannot be reached";
        EXPECT_THAT(without(met, names), IsEmpty()) << "opened in the place of others";
    }

  private:
    /// The names of `sorted` less those of `others`, sorted too.
    static Names without(const Names& sorted, const Names& others) {
        Names rest;
        std::set_difference(sorted.begin(), sorted.end(), others.begin(), others.end(),
                            std::back_inserter(rest));
        return rest;
    }
    /// The contents of the files that the listed names open.
    Names opened(ListedNames kind) const {
        Names contents;
        for (const std::string& line : listing(kind)) {
            contents.push_back(contentUnder(line));
        }
        return contents;
    }
    std::string contentOf(const std::string& path) const {
        const std::unique_ptr<File> file = files_.open(path, OpenMode::Read);
        std::string bytes(file->size(), '\0');
        file->read(bytes.data(), bytes.size());
        return bytes;
    }

    Files& files_;
    const PathRules& rules_;
    TransferSettings settings_;
    Tools tools_{files_, rules_, settings_};
};

class ListedNamesTest : public testing::TestWithParam<ListedNames> {};
INSTANTIATE_TEST_SUITE_P(, ListedNamesTest, testing::Values(ListedNames::Short, ListedNames::Long),
                         [](const auto& kind) {
                             return kind.param == ListedNames::Short ? "Short" : "Long";
                         });

/// With the short names that a folder gets where the file system keeps none.
TEST_P(ListedNamesTest, OpenTheirFilesByTheRulesOfWindows) {
    Names names = distinct(
        both(kOrdinaryNames, randomNames({"a", "B", "%", "_", "~", ".", " ", "\xC4", "\xE4", "["}, 300)),
        upperCase);
    std::sort(names.begin(), names.end());
    test::MemoryFiles files('\\');
    const WindowsPaths rules("C:\\");
    for (const std::string& name : names) {
        files.addFile("C:\\Psion\\" + name, name);
    }
    const Names shorts = shortNames(names);
    for (std::size_t i = 0; i < names.size(); ++i) {
        files.setShortName("C:\\Psion\\" + names[i], shorts[i]);
    }
    ListedFolder(files, rules, "C:\\Psion").expectEachOpened(GetParam(), names);
}

class StoredListedNames : public ListedNamesTest {
  protected:
    void add(const Names& names) {
        for (const std::string& name : names) {
            folder.write(name, name);
        }
    }
    void expectAllOpened(const Names& names) {
        add(names);
        listed.expectEachOpened(GetParam(), names);
    }
    /// What each line of a listing opens now.
    std::map<std::string, std::string> contents(const Names& lines) const {
        std::map<std::string, std::string> all;
        for (const std::string& line : lines) {
            all[line] = listed.contentUnder(line);
        }
        return all;
    }

    test::TempFolder folder;
    NativeFiles files{folder.path()};
    NativePaths rules{folder.path()};
    ListedFolder listed{files, rules, folder.path()};
};
INSTANTIATE_TEST_SUITE_P(, StoredListedNames, testing::Values(ListedNames::Short, ListedNames::Long),
                         [](const auto& kind) {
                             return kind.param == ListedNames::Short ? "Short" : "Long";
                         });

TEST_P(StoredListedNames, OpenTheirFilesOnThisDisk) {
    expectAllOpened(kOrdinaryNames);
}

TEST_P(StoredListedNames, OpenTheirFilesWhenOthersHaveComeAndGone) {
    const Names first = {"Longname beta.txt", "Longname gamma.txt", "Longname omega.txt"};
    add(first);
    const Names before = listed.listing(GetParam());
    const auto meant = contents(before);
    const Names later = {"Longname alpha.txt", "Longname delta.txt", "LONGNA~9.TXT"};
    add(later);
    EXPECT_EQ(contents(before), meant);
    listed.expectEachOpened(GetParam(), both(first, later));
    EXPECT_EQ(contents(before), meant) << "after another listing";
}

TEST_P(StoredListedNames, OpenNoOtherFileWhenTheirOwnIsGone) {
    add({"Longname beta.txt", "Longname gamma.txt"});
    const Names before = listed.listing(GetParam());
    files.deleteFile(folder.path("Longname beta.txt"));
    add({"Longname alpha.txt"});
    listed.expectEachOpened(GetParam(), {"Longname alpha.txt", "Longname gamma.txt"});
    for (const auto& [line, content] : contents(before)) {
        EXPECT_NE(content, "Longname alpha.txt") << line;
    }
    add({"Longname beta.txt"});
    const auto again = contents(before);
    EXPECT_TRUE(std::any_of(again.begin(), again.end(), [](const auto& line) {
        return line.second == "Longname beta.txt";
    })) << "when it comes back";
}

#ifndef _WIN32

TEST_P(StoredListedNames, OpenTheirFilesWhenOthersComeThatAreCalledLikeThem) {
    const Names first = {"Longname beta.txt", "Longname gamma.txt"};
    add(first);
    const Names before = listed.listing(GetParam());
    const auto meant = contents(before);
    const Names later = {"LONGNA~1.TXT", "Longna~1.txt", "longna~1.txt", "Longna~2.txt"};
    add(later);
    EXPECT_EQ(contents(before), meant);
    listed.expectEachOpened(GetParam(), both(first, later));
}

TEST_P(StoredListedNames, OpenTheirFilesWhenOneIsCalledAsAnotherWasListed) {
    add({"Longname beta.txt"});
    ASSERT_EQ(listed.listing(ListedNames::Short), Names{"LONGNA>1.TXT"});
    add({"Longna~1.txt"});
    listed.expectEachOpened(GetParam(), {"Longname beta.txt", "Longna~1.txt"});
    EXPECT_EQ(listed.contentUnder("LONGNA>1.TXT"), "Longname beta.txt");
}

TEST_P(StoredListedNames, OpenTheirFilesAmongRandomOnesThatComeLater) {
    const Names names = distinct(randomNames({"a", "B", "~", "1", "2", ".", " ", "%", "\xC3\xA4"}, 160),
                                 [](std::string_view name) { return std::string(name); });
    Names present;
    std::map<std::string, std::string> meant;
    for (std::size_t i = 0; i < names.size(); ++i) {
        add({names[i]});
        present.push_back(names[i]);
        if (i % 20 != 19) {
            continue;
        }
        listed.expectEachOpened(GetParam(), present);
        for (const auto& [line, content] : meant) {
            EXPECT_EQ(listed.contentUnder(line), content) << line;
        }
        for (const std::string& line : listed.listing(GetParam())) {
            if (line.find_first_of("~>") != std::string::npos) {
                meant[line] = listed.contentUnder(line);
            }
        }
    }
}

TEST_P(StoredListedNames, OpenTheirFilesWhateverCharactersTheyHold) {
    const Names characters = {"a", "B", "%",  "_",  ">",  "~",    "*",    "?",           ".",
                              " ", ":", "\\", "\n", "\"", "\xC4", "\xFF", "\xC3\xA4",    "\xC3\x84",
                              "[", "!", "<",  "C:", "0",  "\x81", "\x1B", "\xE6\x97\xA5"};
    expectAllOpened(distinct(both(kOrdinaryNames, randomNames(characters, 200)),
                             [](std::string_view name) { return std::string(name); }));
}

TEST_P(StoredListedNames, OpenTheirFilesAmongThoseThatDifferByCase) {
    expectAllOpened({"MEMO.TXT", "MeMo.TXT", "Memo.txt", "memo.TXT", "memo.txt", "LIST", "list",
                     "LONGER WORDS", "Longer words", "longer words", "\xC3\x84RGER", "\xC3\xA4rger"});
}

TEST_P(StoredListedNames, OpenTheirFilesBesideFoldersThatDifferByCase) {
    folder.makeFolder("Memo.txt");
    folder.makeFolder("Longer words");
    expectAllOpened({"MEMO.TXT", "LONGER WORDS"});
}

TEST_P(StoredListedNames, OpenTheirFilesWithBlanksAtAnEnd) {
    expectAllOpened({"memo", "memo ", " memo", "MEMO  ", "  "});
}

#endif

}  // namespace
}  // namespace velmora
