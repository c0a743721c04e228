#include "platform/posix/folder_entries.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "support/temp_folder.h"

namespace velmora {
namespace {

using testing::ElementsAre;

class FolderEntriesTest : public testing::Test {
  protected:
    test::TempFolder folder;
};

TEST_F(FolderEntriesTest, AreInTheOrderOfTheirBytes) {
    for (const char* name : {"b", "B", "a", "\xC3\xA4"}) {
        folder.write(name);
    }
    EXPECT_THAT(namesOf(sortedEntries(folder.path())), ElementsAre("B", "a", "b", "\xC3\xA4"));
}

TEST_F(FolderEntriesTest, TellFilesAndLinksToThemFromTheRest) {
    folder.makeFolder("1 folder");
    folder.write("2 file");
    std::filesystem::create_symlink("2 file", folder.path("3 link"));
    std::filesystem::create_symlink("1 folder", folder.path("4 link to a folder"));
    std::filesystem::create_symlink("nowhere", folder.path("5 dangling link"));
    std::vector<bool> files;
    for (const ListedEntry& entry : sortedEntries(folder.path())) {
        files.push_back(entry.isFile);
    }
    EXPECT_THAT(files, ElementsAre(false, true, true, false, false));
}

TEST_F(FolderEntriesTest, KnowWhichDifferOnlyByCase) {
    folder.makeFolder("MEMO");
    for (const char* name : {"Memo", "memo", "other", "\xC3\x84", "\xC3\xA4"}) {
        folder.write(name);
    }
    std::vector<std::string> twins;
    for (const ListedEntry& entry : sortedEntries(folder.path())) {
        if (entry.hasTwin) {
            twins.push_back(entry.name);
        }
    }
    EXPECT_THAT(twins, ElementsAre("MEMO", "Memo", "memo", "\xC3\x84", "\xC3\xA4"));
}

}  // namespace
}  // namespace velmora
