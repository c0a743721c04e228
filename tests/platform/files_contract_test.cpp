// What every file system promises, the one on disk and the one in memory that other tests use.
#include <gmock/gmock.h>

#include <memory>

#include "base/files.h"
#include "platform/native.h"
#include "support/memory_files.h"
#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;
using testing::ElementsAre;
using testing::IsEmpty;

/// A file system with a folder to work in.
class Setting {
  public:
    virtual ~Setting() = default;
    virtual Files& files() = 0;
    /// The path of a name, with '/' between components, in the folder.
    virtual std::string path(const std::string& name) const = 0;
};

class MemorySetting : public Setting {
  public:
    MemorySetting() { files_.addFolder("/work"); }
    Files& files() override { return files_; }
    std::string path(const std::string& name) const override { return "/work/" + name; }

  private:
    test::MemoryFiles files_;
};

class DiskSetting : public Setting {
  public:
    Files& files() override { return files_; }
    std::string path(const std::string& name) const override { return folder_.path(name); }

  private:
    test::TempFolder folder_;
    NativeFiles files_{folder_.path()};
};

using MakeSetting = std::unique_ptr<Setting> (*)();

class FilesContract : public testing::TestWithParam<MakeSetting> {
  protected:
    std::string path(const std::string& name) const { return setting_->path(name); }
    void write(const std::string& name, const std::string& bytes) {
        files.open(path(name), OpenMode::Create)->write(bytes);
    }
    std::string read(const std::string& name) {
        const std::unique_ptr<File> file = files.open(path(name), OpenMode::Read);
        std::string bytes(file->size(), '\0');
        EXPECT_EQ(file->read(bytes.data(), bytes.size()), bytes.size());
        return bytes;
    }
    int openError(const std::string& name, OpenMode mode) {
        return errorOf([&] { files.open(path(name), mode); });
    }
    std::vector<std::string> list(const std::string& folder) {
        std::vector<std::string> names;
        files.listFiles(folder, ShortNames::Omit,
                        [&](const FolderEntry& entry) { names.push_back(entry.name); });
        return names;
    }

  private:
    std::unique_ptr<Setting> setting_ = GetParam()();

  protected:
    Files& files = setting_->files();
};

TEST_P(FilesContract, WhatIsWrittenIsRead) {
    write("Memo.txt", "some bytes");
    EXPECT_EQ(read("Memo.txt"), "some bytes");
    EXPECT_EQ(files.fileSize(path("Memo.txt")), 10U);
}

TEST_P(FilesContract, LettersMatchWithoutRegardToCase) {
    write("Memo.txt", "x");
    EXPECT_TRUE(files.fileExists(path("MEMO.TXT")));
    EXPECT_EQ(files.storedPath(path("mEMO.TXT")), path("Memo.txt"));
    EXPECT_EQ(read("memo.txt"), "x");
    files.deleteFile(path("MEMO.txt"));
    EXPECT_FALSE(files.fileExists(path("Memo.txt")));
}

TEST_P(FilesContract, ANewNameNeverMakesASecondFileThatDiffersOnlyByCase) {
    write("Memo.txt", "old and long");
    write("MEMO.TXT", "new");
    EXPECT_EQ(read("Memo.txt"), "new");
    EXPECT_THAT(list(path("")), ElementsAre("Memo.txt"));
    EXPECT_EQ(openError("memo.TXT", OpenMode::CreateNew), 58);
}

TEST_P(FilesContract, AMissingFileKeepsItsPathAsWritten) {
    EXPECT_FALSE(files.fileExists(path("NoSuch.txt")));
    EXPECT_EQ(files.storedPath(path("NoSuch.txt")), path("NoSuch.txt"));
}

TEST_P(FilesContract, FoldersAreNotFiles) {
    files.createFolder(path("Sub"));
    EXPECT_TRUE(files.folderExists(path("SUB")));
    EXPECT_FALSE(files.fileExists(path("Sub")));
    EXPECT_EQ(openError("Sub", OpenMode::Read), 75);
    EXPECT_EQ(openError("Sub", OpenMode::Create), 75);
    write("Memo", "");
    EXPECT_FALSE(files.folderExists(path("Memo")));
}

TEST_P(FilesContract, CreateFolderMakesTheWayAndTakesWhatExists) {
    files.createFolder(path("a/b/c"));
    files.createFolder(path("A/B/D"));
    EXPECT_TRUE(files.folderExists(path("a/b/c")));
    EXPECT_TRUE(files.folderExists(path("a/b/D")));
    write("a/file", "");
    EXPECT_EQ(errorOf([&] { files.createFolder(path("a/file")); }), 75);
}

TEST_P(FilesContract, MissingFilesAndMissingFoldersAreToldApart) {
    EXPECT_EQ(openError("none", OpenMode::Read), 53);
    EXPECT_EQ(openError("none", OpenMode::ReadWrite), 53);
    EXPECT_EQ(openError("none/none", OpenMode::Read), 76);
    EXPECT_EQ(openError("none/none", OpenMode::Create), 76);
    EXPECT_EQ(errorOf([&] { files.fileSize(path("none")); }), 53);
    EXPECT_EQ(errorOf([&] { files.deleteFile(path("none")); }), 53);
    EXPECT_EQ(errorOf([&] { files.deleteFile(path("none/none")); }), 76);
    EXPECT_EQ(errorOf([&] { list(path("none")); }), 76);
}

TEST_P(FilesContract, CreateEmptiesAndReadWriteKeeps) {
    write("Memo", "0123456789");
    files.open(path("Memo"), OpenMode::ReadWrite)->write("ab");
    EXPECT_EQ(read("Memo"), "ab23456789");
    write("Memo", "x");
    EXPECT_EQ(read("Memo"), "x");
}

TEST_P(FilesContract, FilesAreReadAndWrittenAtTheirPosition) {
    const std::unique_ptr<File> file = files.open(path("Memo"), OpenMode::CreateNew);
    file->write("0123456789");
    EXPECT_EQ(file->position(), 10U);
    file->seek(4);
    char bytes[16];
    EXPECT_EQ(file->read(bytes, 3), 3U);
    EXPECT_EQ(std::string(bytes, 3), "456");
    EXPECT_EQ(file->read(bytes, 16), 3U) << "only at the end of the file fewer are read";
    EXPECT_EQ(file->read(bytes, 16), 0U);
    EXPECT_EQ(file->position(), 10U);
}

TEST_P(FilesContract, APositionBeyondTheEndFillsWithZeroBytes) {
    const std::unique_ptr<File> file = files.open(path("Memo"), OpenMode::Create);
    file->seek(3);
    EXPECT_EQ(file->size(), 0U);
    char byte = 0;
    EXPECT_EQ(file->read(&byte, 1), 0U);
    EXPECT_EQ(file->position(), 3U);
    file->write("x");
    EXPECT_EQ(file->size(), 4U);
    file->close();
    EXPECT_EQ(read("Memo"), std::string("\0\0\0x", 4));
}

TEST_P(FilesContract, AFileOpenForReadingIsNotWritten) {
    write("Memo", "x");
    const std::unique_ptr<File> file = files.open(path("Memo"), OpenMode::Read);
    EXPECT_EQ(errorOf([&] { file->write("y"); }), 75);
}

TEST_P(FilesContract, AClosedFileIsClosedAgainButNotUsed) {
    const std::unique_ptr<File> file = files.open(path("Memo"), OpenMode::Create);
    file->close();
    file->close();
    char byte = 0;
    EXPECT_EQ(errorOf([&] { file->read(&byte, 1); }), 52);
    EXPECT_EQ(errorOf([&] { file->write("x"); }), 52);
    EXPECT_EQ(errorOf([&] { file->size(); }), 52);
    EXPECT_EQ(errorOf([&] { file->flush(); }), 52);
}

TEST_P(FilesContract, AnOpenFileIsTheOneOfItsName) {
    write("Memo", "x");
    const std::unique_ptr<File> file = files.open(path("MEMO"), OpenMode::ReadWrite);
    EXPECT_TRUE(file->isInPlace());
}

TEST_P(FilesContract, ReplaceLeavesOneFileUnderTheStoredName) {
    write("Old.ini", "old");
    write("new", "new");
    files.replaceFile(path("new"), path("OLD.INI"));
    EXPECT_EQ(read("Old.ini"), "new");
    EXPECT_THAT(list(path("")), ElementsAre("Old.ini"));
}

TEST_P(FilesContract, ReplaceWorksWithoutAnOldFile) {
    write("new", "new");
    files.replaceFile(path("new"), path("Old.ini"));
    EXPECT_EQ(read("Old.ini"), "new");
    EXPECT_EQ(errorOf([&] { files.replaceFile(path("new"), path("Old.ini")); }), 53);
    EXPECT_EQ(read("Old.ini"), "new");
}

TEST_P(FilesContract, TemporaryFilesAreNewAndEmpty) {
    files.createFolder(path("Sub"));
    const std::string one = files.createTemporaryFile(path("Sub"));
    const std::string two = files.createTemporaryFile(path("Sub"));
    EXPECT_NE(one, two);
    EXPECT_EQ(files.fileSize(one), 0U);
    EXPECT_THAT(list(path("Sub")), IsEmpty()) << "they are not the user's";
    files.deleteFile(one);
    files.deleteFile(two);
    const std::string elsewhere = files.createTemporaryFile();
    EXPECT_TRUE(files.fileExists(elsewhere));
    files.deleteFile(elsewhere);
}

TEST_P(FilesContract, LeftoversAreRemovedAndNothingElse) {
    const std::string left = files.createTemporaryFile(path(""));
    write(".velmora-notes.tmp", "mine");
    write("velmora-aaaaaa.tmp", "mine");
    files.createFolder(path("Sub"));
    const std::string elsewhere = files.createTemporaryFile(path("Sub"));
    files.removeLeftovers(path(""));
    EXPECT_FALSE(files.fileExists(left));
    EXPECT_TRUE(files.fileExists(elsewhere));
    EXPECT_THAT(list(path("")), ElementsAre(".velmora-notes.tmp", "velmora-aaaaaa.tmp"));
    EXPECT_EQ(errorOf([&] { files.removeLeftovers(path("none")); }), 0);
}

TEST_P(FilesContract, ListingsAreInTheOrderOfNamesAndWithoutFolders) {
    files.createFolder(path("Folder"));
    for (const char* name : {"b", "C", "a", "c1"}) {
        write(name, "");
    }
    write("Folder/inside", "");
    EXPECT_THAT(list(path("")), ElementsAre("C", "a", "b", "c1"));
    EXPECT_THAT(list(path("FOLDER")), ElementsAre("inside"));
    files.deleteFile(path("Folder/inside"));
    EXPECT_THAT(list(path("Folder")), IsEmpty());
}

TEST_P(FilesContract, AnExceptionEndsAListing) {
    write("a", "");
    write("b", "");
    int visits = 0;
    EXPECT_EQ(errorOf([&] {
                  files.listFiles(path(""), ShortNames::Omit, [&](const FolderEntry&) {
                      ++visits;
                      throw RunTimeError(ErrorNumber::DiskFull);
                  });
              }),
              61);
    EXPECT_EQ(visits, 1);
}

TEST_P(FilesContract, ShortNamesAreOnlyGivenWhenAskedFor) {
    write("Memo.txt", "");
    std::vector<std::string> names;
    const auto visit = [&](const FolderEntry& entry) { names.push_back(entry.shortName); };
    files.listFiles(path(""), ShortNames::Omit, visit);
    files.listFiles(path(""), ShortNames::Include, visit);
    EXPECT_THAT(names, ElementsAre("", "MEMO.TXT"));
}

template <typename Kind>
std::unique_ptr<Setting> make() {
    return std::make_unique<Kind>();
}

INSTANTIATE_TEST_SUITE_P(Memory, FilesContract, testing::Values(&make<MemorySetting>));
INSTANTIATE_TEST_SUITE_P(Disk, FilesContract, testing::Values(&make<DiskSetting>));

}  // namespace
}  // namespace velmora
