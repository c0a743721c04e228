#include "platform/posix/posix_files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;
using testing::ElementsAre;
using testing::Pair;

class PosixFilesTest : public testing::Test {
  protected:
    int openError(const std::string& name, OpenMode mode = OpenMode::Read) {
        return errorOf([&] { files.open(folder.path(name), mode); });
    }
    /// Long and short names of a folder.
    std::vector<std::pair<std::string, std::string>> listShort() const {
        std::vector<std::pair<std::string, std::string>> names;
        files.listFiles(folder.path(), ShortNames::Include,
                        [&](const FolderEntry& entry) { names.emplace_back(entry.name, entry.shortName); });
        return names;
    }

    test::TempFolder folder;
    PosixFiles files{folder.path()};
};

/// Lets a test be an ordinary user, for whom access rights count; an ordinary user already is one.
class AsOrdinaryUser {
  public:
    AsOrdinaryUser() : changed_(geteuid() == 0 && seteuid(65'534) == 0) {}
    ~AsOrdinaryUser() {
        if (changed_ && seteuid(0) != 0) {
            std::abort();
        }
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;

  private:
    bool changed_;
};

// Names.

TEST_F(PosixFilesTest, AnExactNameWinsOverOneThatDiffersByCase) {
    folder.write("MEMO", "capitals");
    folder.write("memo", "small");
    EXPECT_EQ(files.fileSize(folder.path("memo")), 5U);
    EXPECT_EQ(files.fileSize(folder.path("MEMO")), 8U);
    EXPECT_EQ(files.storedPath(folder.path("Memo")), folder.path("MEMO")) << "the first in byte order";
}

TEST_F(PosixFilesTest, CaseIsIgnoredInEveryComponent) {
    folder.makeFolder("Sub/Deeper");
    folder.write("Sub/Deeper/File");
    EXPECT_EQ(files.storedPath(folder.path("SUB/DEEPER/FILE")), folder.path("Sub/Deeper/File"));
    EXPECT_TRUE(files.folderExists(folder.path("sub/deeper/")));
    files.open(folder.path("SUB/DEEPER/New"), OpenMode::CreateNew);
    EXPECT_TRUE(std::filesystem::exists(folder.path("Sub/Deeper/New")));
}

TEST_F(PosixFilesTest, AccentedLettersHaveACaseToo) {
    folder.write("\xC3\x84rger.txt");
    EXPECT_TRUE(files.fileExists(folder.path("\xC3\xA4RGER.TXT")));
    EXPECT_FALSE(files.fileExists(folder.path("Arger.txt")));
}

TEST_F(PosixFilesTest, AFileIsFoundByItsShortName) {
    folder.write("Longer file name.txt", "12345");
    EXPECT_EQ(files.fileSize(folder.path("LONGER~1.TXT")), 5U);
    EXPECT_EQ(files.storedPath(folder.path("longer~1.txt")), folder.path("Longer file name.txt"));
    EXPECT_FALSE(files.fileExists(folder.path("LONGER~2.TXT")));
}

TEST_F(PosixFilesTest, AFolderIsFoundByItsShortName) {
    folder.makeFolder("Folder with blanks");
    folder.write("Folder with blanks/x");
    EXPECT_TRUE(files.fileExists(folder.path("FOLDER~1/X")));
}

TEST_F(PosixFilesTest, EveryListedShortNameOpensItsFile) {
    for (const char* name : {"Longer one.txt", "Longer two.txt", "LONGER~1.TXT", "MEMO", "Memo", "100%.csv",
                             "Gr\xC3\xB6\xC3\x9F"
                             "e.odb",
                             "\xE4\xB8\xAD.txt", ".hidden", "back\\slash"}) {
        folder.write(name);
    }
    folder.makeFolder("Longer folder.txt");
    const auto names = listShort();
    EXPECT_EQ(names.size(), 10U);
    for (const auto& [name, shortName] : names) {
        EXPECT_EQ(files.storedPath(folder.path(shortName)), folder.path(name)) << shortName;
    }
}

TEST_F(PosixFilesTest, FoldersTakePartInTheNumberingOfShortNames) {
    folder.makeFolder("Longer a.txt");
    folder.write("Longer b.txt");
    EXPECT_THAT(listShort(), ElementsAre(Pair("Longer b.txt", "LONGER~2.TXT")));
}

TEST_F(PosixFilesTest, NamesThatCannotBeAreRefused) {
    EXPECT_EQ(openError(std::string(256, 'x'), OpenMode::Create), 64);
    EXPECT_EQ(openError(std::string("a\0b", 3), OpenMode::Create), 64);
    EXPECT_EQ(errorOf([&] { files.open("", OpenMode::Read); }), 64);
    EXPECT_FALSE(files.fileExists(""));
    EXPECT_FALSE(files.fileExists(folder.path(std::string("a\0b", 3))));
    EXPECT_EQ(files.storedPath(""), "");
    EXPECT_THAT(folder.names(), ElementsAre());
}

TEST_F(PosixFilesTest, AFileOnTheWayIsAMissingFolder) {
    folder.write("file");
    EXPECT_EQ(openError("file/x"), 76);
    EXPECT_EQ(openError("file/x", OpenMode::Create), 76);
    EXPECT_FALSE(files.fileExists(folder.path("file/")));
}

// What is no file.

TEST_F(PosixFilesTest, PipesAreNeitherFilesNorWaitedFor) {
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(files.fileExists(folder.path("PIPE")));
    for (const OpenMode mode : {OpenMode::Read, OpenMode::ReadWrite, OpenMode::Create}) {
        EXPECT_EQ(openError("pipe", mode), 75);
    }
    EXPECT_EQ(errorOf([&] { files.deleteFile(folder.path("pipe")); }), 75);
    EXPECT_EQ(errorOf([&] { files.fileSize(folder.path("pipe")); }), 75);
    EXPECT_TRUE(listShort().empty());
}

TEST_F(PosixFilesTest, DevicesAreNotOpened) {
    EXPECT_FALSE(files.fileExists("/dev/null"));
    EXPECT_EQ(errorOf([&] { files.open("/dev/null", OpenMode::ReadWrite); }), 75);
}

TEST_F(PosixFilesTest, LinksAreWhatTheyLeadTo) {
    folder.write("target", "12345");
    folder.makeFolder("sub");
    std::filesystem::create_symlink("target", folder.path("link"));
    std::filesystem::create_symlink("sub", folder.path("folderlink"));
    std::filesystem::create_symlink("nowhere", folder.path("dangling"));
    EXPECT_EQ(files.fileSize(folder.path("LINK")), 5U);
    EXPECT_TRUE(files.folderExists(folder.path("FolderLink")));
    EXPECT_FALSE(files.fileExists(folder.path("dangling")));
    EXPECT_EQ(openError("dangling"), 53);
    EXPECT_THAT(listShort(), ElementsAre(Pair("link", "LINK"), Pair("target", "TARGET")));
}

TEST_F(PosixFilesTest, ALoopOfLinksIsABadName) {
    std::filesystem::create_symlink("loop", folder.path("loop"));
    EXPECT_EQ(openError("loop"), 64);
    EXPECT_FALSE(files.fileExists(folder.path("loop")));
}

TEST_F(PosixFilesTest, FoldersAreNotDeletedOrReplaced) {
    folder.makeFolder("sub");
    folder.write("file");
    EXPECT_EQ(errorOf([&] { files.deleteFile(folder.path("sub")); }), 75);
    EXPECT_EQ(errorOf([&] { files.replaceFile(folder.path("file"), folder.path("sub")); }), 75);
    EXPECT_EQ(errorOf([&] { files.replaceFile(folder.path("sub"), folder.path("file")); }), 75);
    EXPECT_THAT(folder.names(), ElementsAre("file", "sub"));
}

// Failures of the system.

TEST_F(PosixFilesTest, WithoutAccessIsAPathAccessError) {
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    const std::string file = folder.write("secret", "x");
    std::filesystem::permissions(file, std::filesystem::perms::none);
    const std::string closed = folder.makeFolder("closed");
    std::filesystem::permissions(closed, std::filesystem::perms(0555));
    const AsOrdinaryUser user;
    EXPECT_EQ(openError("secret"), 75);
    EXPECT_EQ(openError("closed/new", OpenMode::Create), 75);
    EXPECT_EQ(errorOf([&] { files.createFolder(folder.path("closed/new")); }), 75);
}

TEST_F(PosixFilesTest, AFolderForItsOwnerAloneHidesTheWayToIt) {
    files.createFolder(folder.path("data/own"), FolderRights::OwnerOnly);
    for (const char* made : {"data", "data/own"}) {
        EXPECT_EQ(std::filesystem::status(folder.path(made)).permissions(), std::filesystem::perms(0700))
            << made;
    }
    std::filesystem::permissions(folder.path("data"), std::filesystem::perms(0755));
    files.createFolder(folder.path("data/own"), FolderRights::OwnerOnly);
    EXPECT_EQ(std::filesystem::status(folder.path("data")).permissions(), std::filesystem::perms(0755));
}

TEST_F(PosixFilesTest, AFolderThatMayBeSearchedButNotReadStillOpensExactNames) {
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    const std::string dark = folder.makeFolder("dark");
    std::filesystem::permissions(folder.write("dark/file", "x"), std::filesystem::perms(0644));
    std::filesystem::permissions(dark, std::filesystem::perms(0711));
    const AsOrdinaryUser user;
    EXPECT_TRUE(files.fileExists(folder.path("dark/file")));
    EXPECT_FALSE(files.fileExists(folder.path("dark/FILE")));
    EXPECT_EQ(openError("dark/FILE"), 53);
    EXPECT_EQ(errorOf([&] { files.listFiles(dark, ShortNames::Omit, [](const FolderEntry&) {}); }), 75);
}

/// Another program's lock: an open file description of its own.
class ForeignLock {
  public:
    ForeignLock(const std::string& path, int kind) : descriptor_(::open(path.c_str(), O_RDWR | O_CLOEXEC)) {
        EXPECT_EQ(flock(descriptor_, kind | LOCK_NB), 0);
    }
    ForeignLock(const ForeignLock&) = delete;
    ForeignLock& operator=(const ForeignLock&) = delete;
    ~ForeignLock() { ::close(descriptor_); }

  private:
    int descriptor_;
};

TEST_F(PosixFilesTest, AFileHeldByAnotherProgramIsDeniedAndKept) {
    const ForeignLock lock(folder.write("held", "content"), LOCK_EX);
    EXPECT_EQ(openError("held", OpenMode::Read), 70);
    EXPECT_EQ(openError("held", OpenMode::ReadWrite), 70);
    EXPECT_EQ(openError("held", OpenMode::Create), 70);
    EXPECT_EQ(folder.read("held"), "content");
}

TEST_F(PosixFilesTest, AFileThatAnotherProgramReadsCanBeReadToo) {
    const ForeignLock lock(folder.write("held", "content"), LOCK_SH);
    EXPECT_EQ(openError("held", OpenMode::Read), 0);
    EXPECT_EQ(openError("held", OpenMode::ReadWrite), 70);
}

TEST_F(PosixFilesTest, AnOpenFileWhoseNameLeadsElsewhereIsNotInPlace) {
    folder.write("real", "x");
    folder.write("other", "x");
    std::filesystem::create_symlink("real", folder.path("link"));
    const auto file = files.open(folder.path("link"), OpenMode::ReadWrite);
    EXPECT_TRUE(file->isInPlace()) << "it is where the link leads";
    std::filesystem::remove(folder.path("link"));
    EXPECT_FALSE(file->isInPlace());
    std::filesystem::create_symlink("other", folder.path("link"));
    EXPECT_FALSE(file->isInPlace());
    std::filesystem::remove(folder.path("link"));
    std::filesystem::create_hard_link(folder.path("real"), folder.path("link"));
    EXPECT_TRUE(file->isInPlace());
}

TEST_F(PosixFilesTest, TooManyOpenFilesIsSaidSo) {
    folder.write("file");
    // A rehearsal: sanitizers take a descriptor to look at each type for the first time.
    EXPECT_EQ(openError("file"), 0);
    EXPECT_EQ(openError("none"), 53);
    EXPECT_TRUE(files.fileExists(folder.path("FILE")));
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &old), 0);
    const rlimit none{0, old.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    const int exact = openError("file");
    const int byCase = openError("FILE", OpenMode::Create);
    const bool found = files.fileExists(folder.path("FILE"));
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &old), 0);
    EXPECT_EQ(exact, 67);
    EXPECT_EQ(byCase, 67);
    EXPECT_FALSE(found);
}

// Temporary files.

TEST_F(PosixFilesTest, TemporaryFilesAreNobodyElses) {
    const std::string path = files.createTemporaryFile();
    EXPECT_EQ(std::filesystem::path(path).parent_path(), folder.path());
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0600));
    EXPECT_EQ(errorOf([&] { files.createTemporaryFile(folder.path("none")); }), 76);
}

TEST_F(PosixFilesTest, ATemporaryFileInUseIsNoLeftover) {
    const std::string path = files.createTemporaryFile(folder.path());
    {
        const auto writing = files.open(path, OpenMode::ReadWrite);
        files.removeLeftovers(folder.path());
        EXPECT_TRUE(writing->isInPlace());
    }
    files.removeLeftovers(folder.path());
    EXPECT_FALSE(files.fileExists(path));
}

TEST_F(PosixFilesTest, WhatAKilledProgramWasWritingIsALeftover) {
    const pid_t program = fork();
    ASSERT_NE(program, -1);
    if (program == 0) {
        const auto writing = files.open(files.createTemporaryFile(folder.path()), OpenMode::ReadWrite);
        writing->write("half of it");
        raise(SIGKILL);
    }
    int status = 0;
    ASSERT_EQ(waitpid(program, &status, 0), program);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_EQ(folder.names().size(), 1U) << "nobody was left to delete it";
    EXPECT_TRUE(listShort().empty());
    files.removeLeftovers(folder.path());
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(PosixFilesTest, OnlyFilesAreLeftovers) {
    folder.write("real", "x");
    std::filesystem::create_symlink("real", folder.path(".velmora-aaaaaa.tmp"));
    folder.makeFolder(".velmora-bbbbbb.tmp");
    ASSERT_EQ(mkfifo(folder.path(".velmora-cccccc.tmp").c_str(), 0600), 0);
    files.removeLeftovers(folder.path());
    EXPECT_THAT(folder.names(),
                ElementsAre(".velmora-aaaaaa.tmp", ".velmora-bbbbbb.tmp", ".velmora-cccccc.tmp", "real"));
    EXPECT_EQ(folder.read("real"), "x");
}

TEST_F(PosixFilesTest, AFileDeletedWhileItIsListedDoesNoHarm) {
    folder.write("a");
    folder.write("b");
    std::vector<std::string> seen;
    files.listFiles(folder.path(), ShortNames::Include, [&](const FolderEntry& entry) {
        seen.push_back(entry.name);
        std::filesystem::remove(folder.path("b"));
        folder.write("c");
    });
    EXPECT_EQ(seen.front(), "a");
    EXPECT_LE(seen.size(), 2U);
}

// Size.

// How long it takes is a figure of the benchmark of files; a search that is quadratic would not end here.
TEST_F(PosixFilesTest, AHundredThousandFilesAreFoundAndListed) {
    constexpr int kCount = 100'000;
    for (int i = 0; i < kCount; ++i) {
        const int file = ::open(folder.path("Measurement " + std::to_string(i)).c_str(),
                                O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
        ASSERT_NE(file, -1);
        ::close(file);
    }
    EXPECT_FALSE(files.fileExists(folder.path("NO SUCH FILE")));
    EXPECT_TRUE(files.fileExists(folder.path("MEASUREMENT 77777")));
    EXPECT_TRUE(files.fileExists(folder.path("MEAS~999")));
    EXPECT_EQ(listShort().size(), static_cast<std::size_t>(kCount));
}

}  // namespace
}  // namespace velmora
