#include "platform/posix/folder_reader.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>

#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using testing::Pair;
using testing::UnorderedElementsAre;

TEST(FolderReader, TellsFilesFromTheRest) {
    const test::TempFolder folder;
    folder.write("file");
    folder.makeFolder("folder");
    std::filesystem::create_symlink("file", folder.path("link"));
    std::map<std::string, EntryKind> seen;
    readFolder(folder.path(), [&](std::string_view name, EntryKind kind) {
        seen[std::string(name)] = kind;
        return true;
    });
    EXPECT_EQ(seen.size(), 3U);
    EXPECT_NE(seen["file"], EntryKind::Other);
    EXPECT_NE(seen["folder"], EntryKind::File);
    EXPECT_EQ(seen["link"], EntryKind::Unknown);
}

TEST(FolderReader, StopsWhenTold) {
    const test::TempFolder folder;
    folder.write("a");
    folder.write("b");
    int visits = 0;
    readFolder(folder.path(), [&](std::string_view, EntryKind) {
        ++visits;
        return false;
    });
    EXPECT_EQ(visits, 1);
}

TEST(FolderReader, NamesWhatIsWrong) {
    const test::TempFolder folder;
    const auto readError = [](const std::string& path) {
        return test::errorOf([&] { readFolder(path, [](std::string_view, EntryKind) { return true; }); });
    };
    EXPECT_EQ(readError(folder.path("none")), 76);
    EXPECT_EQ(readError(folder.write("file")), 76);
}

}  // namespace
}  // namespace velmora
