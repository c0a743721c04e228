#include "spreadsheet/whole_file.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/slash_path_rules.h"

namespace velmora {
namespace {

using test::FileCall;

class WholeFileTest : public ::testing::Test {
  protected:
    WholeFileTest() {
        memory.addFolder("/folder");
        memory.addFile("/folder/Old.wks", "old");
    }
    void write(const std::string& path) { writeWholeFile(files, rules, path, "new content"); }
    void expectOnlyTheOldFile() {
        EXPECT_EQ(memory.paths(), std::vector<std::string>{"/folder/Old.wks"});
        EXPECT_EQ(memory.content("/folder/Old.wks"), "old");
        EXPECT_EQ(memory.openFiles(), 0);
    }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    test::SlashPathRules rules;
};

TEST_F(WholeFileTest, TakesThePlaceOfTheOldFile) {
    write("/folder/Old.wks");
    EXPECT_EQ(memory.paths(), std::vector<std::string>{"/folder/Old.wks"});
    EXPECT_EQ(memory.content("/folder/Old.wks"), "new content");
}

TEST_F(WholeFileTest, KeepsTheStoredLettersOfAnExistingName) {
    write("/folder/OLD.WKS");
    EXPECT_EQ(memory.paths(), std::vector<std::string>{"/folder/Old.wks"});
    EXPECT_EQ(memory.content("/folder/Old.wks"), "new content");
}

TEST_F(WholeFileTest, MakesANewFile) {
    write("/folder/New.wks");
    EXPECT_EQ(memory.content("/folder/New.wks"), "new content");
    EXPECT_EQ(memory.openFiles(), 0);
}

TEST_F(WholeFileTest, AnyFailureLeavesTheOldFile) {
    for (const FileCall call :
         {FileCall::CreateTemporary, FileCall::Open, FileCall::Write, FileCall::Close, FileCall::Replace}) {
        files.failAtCall(call, 1, ErrorNumber::DiskFull);
        EXPECT_THROW(write("/folder/Old.wks"), RunTimeError);
        expectOnlyTheOldFile();
    }
}

TEST_F(WholeFileTest, AFailureToCleanUpIsNotTheOneReported) {
    files.failAtCall(FileCall::Write, 1, ErrorNumber::DiskFull);
    files.failAtCall(FileCall::Delete, 1, ErrorNumber::PermissionDenied);
    try {
        write("/folder/Old.wks");
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 61);
    }
}

TEST_F(WholeFileTest, ARefusedNameIsABadFileName) {
    EXPECT_THROW(write(""), RunTimeError);
    EXPECT_THROW(checkWritable(files, rules, ""), RunTimeError);
    expectOnlyTheOldFile();
}

TEST_F(WholeFileTest, CheckingChangesNothing) {
    checkWritable(files, rules, "/folder/Old.wks");
    checkWritable(files, rules, "/folder/New.wks");
    expectOnlyTheOldFile();
}

TEST_F(WholeFileTest, WhatIsNoFileCannotBeWrittenRatherThanExisting) {
    files.failAtCall(FileCall::Open, 1, ErrorNumber::FileAlreadyExists);
    try {
        checkWritable(files, rules, "/folder/a pipe");
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 75);
    }
    expectOnlyTheOldFile();
}

TEST_F(WholeFileTest, CheckingFindsWhatWritingWouldMeet) {
    EXPECT_THROW(checkWritable(files, rules, "/missing/New.wks"), RunTimeError);
    EXPECT_THROW(checkWritable(files, rules, "/folder"), RunTimeError);
    files.failAtCall(FileCall::Open, 1, ErrorNumber::PathFileAccess);
    EXPECT_THROW(checkWritable(files, rules, "/folder/Old.wks"), RunTimeError);
    files.failAtCall(FileCall::CreateTemporary, 1, ErrorNumber::PathFileAccess);
    EXPECT_THROW(checkWritable(files, rules, "/folder/Old.wks"), RunTimeError);
    expectOnlyTheOldFile();
}

}  // namespace
}  // namespace velmora
