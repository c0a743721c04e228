// Short names on the disk of this machine. Names that are their own short names agree on every system. The
// others are compared by what short names are for, not by their letters: the numbers behind "~" depend on the
// volume, and what stands in for Windows in tests makes other ones than Windows does.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "platform/native.h"
#include "platform/short_names.h"
#include "support/short_name_cases.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

class StoredShortNames : public testing::Test {
  protected:
    StoredShortNames() {
        for (const test::ShortNameCase& row : test::shortNameCases()) {
            // Each file holds its own name, to tell which one was opened.
            files.open(pathOf(row), OpenMode::CreateNew)->write(row.name);
        }
        files.listFiles(folder.path(), ShortNames::Include,
                        [&](const FolderEntry& entry) { listed[entry.name] = entry.shortName; });
    }
    std::string nameOf(const test::ShortNameCase& row) const { return rules.fromOrganiser(row.name).value(); }
    std::string pathOf(const test::ShortNameCase& row) const {
        return rules.join(folder.path(), nameOf(row));
    }
    std::string contentOf(const std::string& name) {
        const auto file = files.open(rules.join(folder.path(), name), OpenMode::Read);
        std::string bytes(file->size(), '\0');
        file->read(bytes.data(), bytes.size());
        return bytes;
    }

    test::TempFolder folder;
    NativePaths rules{currentFolder()};
    NativeFiles files{folder.path()};
    std::map<std::string, std::string> listed;
};

TEST_F(StoredShortNames, EveryFileIsListedUnderItsName) {
    EXPECT_EQ(listed.size(), test::shortNameCases().size());
    for (const test::ShortNameCase& row : test::shortNameCases()) {
        EXPECT_EQ(listed.count(nameOf(row)), 1U) << row.name;
    }
}

TEST_F(StoredShortNames, NamesThatAreTheirOwnAreGivenInCapitals) {
    for (const test::ShortNameCase& row : test::shortNameCases()) {
        if (!row.ownShortName.empty()) {
            EXPECT_EQ(listed[nameOf(row)], row.ownShortName);
        }
    }
}

TEST_F(StoredShortNames, EveryOtherNameGetsAValidOne) {
    for (const auto& [name, shortName] : listed) {
        EXPECT_EQ(ownShortName(shortName), shortName) << name;
    }
}

TEST_F(StoredShortNames, NoTwoAreEqual) {
    std::set<std::string> distinct;
    for (const auto& [name, shortName] : listed) {
        EXPECT_TRUE(distinct.insert(shortName).second) << name << ' ' << shortName;
    }
}

TEST_F(StoredShortNames, EachOpensItsFile) {
    for (const test::ShortNameCase& row : test::shortNameCases()) {
        const std::string shortName = listed[nameOf(row)];
        EXPECT_EQ(contentOf(shortName), row.name) << shortName;
        EXPECT_EQ(files.storedPath(rules.join(folder.path(), shortName)), pathOf(row)) << shortName;
    }
}

TEST_F(StoredShortNames, AreFoundInSmallLettersToo) {
    EXPECT_EQ(contentOf("memo.txt"), "Memo.txt");
    std::string shortName = listed["Longer file name.txt"];
    for (char& c : shortName) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 0x20) : c;
    }
    EXPECT_EQ(contentOf(shortName), "Longer file name.txt");
}

}  // namespace
}  // namespace velmora
