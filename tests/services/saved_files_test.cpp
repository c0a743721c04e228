// Files on disk that other programs touch while the Organiser saves them.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "platform/native.h"
#include "services/service_fixture.h"
#include "support/disk_calls.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using namespace test;
namespace fs = std::filesystem;

/// A folder on disk, there before the services that use it.
struct Disk {
    TempFolder folder;
    NativeFiles onDisk{folder.path()};
};

class SavedFilesTest : protected Disk, public ServiceFixture {
  protected:
    SavedFilesTest() : ServiceFixture(&onDisk, folder.path()) {}

    /// Another program writes at the end of a file.
    void appendAs(const std::string& name, const std::string& bytes) {
        std::ofstream(folder.path(name), std::ios::binary | std::ios::app) << bytes;
    }
};

/// Opens a file for writing by a service's own request.
struct Saving {
    const char* name;
    const char* service;
    int kind;
    const char* file;
    const char* stored;
};

class TouchedFileTest : public SavedFilesTest, public testing::WithParamInterface<Saving> {
  protected:
    void SetUp() override {
        openService(GetParam().service);
        openRequest(1, GetParam().kind, GetParam().file);
        write("one");
        sender.frames.clear();
    }
    /// The close request is refused as not possible, and nothing counts as received.
    void expectNotSaved() {
        closeRequest();
        expectRefused(kCodeNotPossible);
        EXPECT_EQ(window.stats[StatsFilesReceived], 0);
    }
};

TEST_P(TouchedFileTest, IsSavedWhenNobodyTouchesIt) {
    closeRequest();
    expectReply("");
}

TEST_P(TouchedFileTest, IsOnTheDiskBeforeItIsToldToBeSaved) {
    diskCalls() = {};
    closeRequest();
    EXPECT_THAT(diskCalls().made,
                testing::ElementsAre("flush " + folder.path(GetParam().stored), "flush " + folder.path()));
}

TEST_P(TouchedFileTest, IsNotSavedUnderANameThatIsGone) {
    fs::remove(folder.path(GetParam().stored));
    write("two");
    expectReply("");
    expectNotSaved();
}

TEST_P(TouchedFileTest, IsNotSavedUnderANameThatIsAnothersFile) {
    folder.write("other", "other");
    fs::rename(folder.path("other"), folder.path(GetParam().stored));
    expectNotSaved();
    EXPECT_EQ(folder.read(GetParam().stored), "other");
}

TEST_P(TouchedFileTest, IsNotSavedWhenItWasMovedAway) {
    fs::rename(folder.path(GetParam().stored), folder.path("elsewhere"));
    expectNotSaved();
}

TEST_P(TouchedFileTest, IsNotSavedInAFolderThatIsGone) {
    fs::remove_all(folder.path());
    expectNotSaved();
}

INSTANTIATE_TEST_SUITE_P(Services, TouchedFileTest,
                         testing::Values(Saving{"FtranData", "FTRAN", 0, "MEMO", "Memo.odb"},
                                         Saving{"FtranBlock", "FTRAN", 3, "PIC", "Pic.ob3"},
                                         Saving{"FileText", "FILE", kKindText, "MEMO", "Memo"},
                                         Saving{"FileBinary", "FILE", kKindBinary, "MEMO", "Memo"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(SavedFilesTest, WhatAnotherProgramAppendsMeanwhileStays) {
    openService("FTRAN");
    openRequest(1, 0, "MEMO");
    write("one");
    appendAs("Memo.odb", "theirs\r\n");
    write("two");
    EXPECT_EQ(folder.read("Memo.odb"), "one\r\ntheirs\r\ntwo\r\n");
}

TEST_F(SavedFilesTest, ARecordBeginsALineBehindWhatAnotherProgramLeftWithoutAnEnd) {
    openService("FTRAN");
    openRequest(1, 0, "MEMO");
    write("one");
    appendAs("Memo.odb", "theirs");
    write("two");
    EXPECT_EQ(folder.read("Memo.odb"), "one\r\ntheirs\r\ntwo\r\n");
}

TEST_F(SavedFilesTest, TextGoesOnAtTheEndOfAFileThatWasCutMeanwhile) {
    openService("FTRAN");
    openRequest(1, 0, "MEMO");
    write("one");
    write("two");
    fs::resize_file(folder.path("Memo.odb"), 5);
    write("three");
    EXPECT_EQ(folder.read("Memo.odb"), "one\r\nthree\r\n");
}

}  // namespace
}  // namespace velmora
