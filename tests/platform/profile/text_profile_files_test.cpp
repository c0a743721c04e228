#include "platform/profile/text_profile_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "base/run_time_error.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/plain_path_rules.h"
#include "support/profile_edits.h"

namespace velmora {
namespace {

using test::FileCall;
using ::testing::ElementsAre;

const std::string kTextFile = "/home/velmora.ini";

// What every implementation promises is in profile_files_contract_test.cpp.
class Profile : public ::testing::Test {
  protected:
    void given(const std::string& contents) { memory_.addFile(kTextFile, contents); }
    std::string contents() const { return memory_.content(kTextFile); }
    std::string text(const std::string& section, const std::string& key) {
        return profiles_.getString(section, key, "DEF", 255, kTextFile);
    }
    std::string path() { return profiles_.getPath("S", "Path", "none", kTextFile); }
    void put(const std::string& section, const std::string& key, const std::string& value) {
        profiles_.writeString(section, key, value, kTextFile);
    }
    void putPath(const std::string& value) { profiles_.writePath("S", "Path", value, kTextFile); }
    void expectError(ErrorNumber number, const std::function<void()>& action) {
        try {
            action();
            ADD_FAILURE() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.errorNumber(), number) << error.what();
        }
    }

    test::MemoryFiles memory_;
    test::FailingFiles files_{memory_};
    test::PlainPathRules rules_;
    TextProfileFiles profiles_{files_, rules_};
};

TEST_F(Profile, EntriesBeforeTheFirstSectionBelongToNone) {
    given("A=1\r\n[S]\r\n");
    EXPECT_EQ(text("", "A"), "DEF");
}

// --- Writing

class EditedProfile : public Profile, public ::testing::WithParamInterface<test::ProfileEdit> {};

TEST_P(EditedProfile, ChangesOneLineAndNoOther) {
    given(GetParam().before);
    profiles_.writeString("S", GetParam().key, GetParam().value, kTextFile);
    EXPECT_EQ(contents(), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(All, EditedProfile, ::testing::ValuesIn(test::profileEdits()),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Profile, ALineWithoutEqualsIsNoEntryToReplace) {
    given("[S]\r\nA\r\n");
    put("S", "A", "1");
    EXPECT_EQ(contents(), "[S]\r\nA\r\nA=1\r\n");
}

// --- Failures

TEST_F(Profile, AFullDiskIsAnErrorAndTheOldFileStands) {
    given("[S]\r\nA=1\r\n");
    files_.failAfterBytes(4, ErrorNumber::DiskFull);
    expectError(ErrorNumber::DiskFull, [&] { put("S", "A", "2"); });
    EXPECT_EQ(contents(), "[S]\r\nA=1\r\n");
    EXPECT_THAT(memory_.paths(), ElementsAre(kTextFile));
    EXPECT_EQ(memory_.openFiles(), 0);
}

TEST_F(Profile, TheFirstFailureIsReportedWhenTheTemporaryFileStaysToo) {
    given("[S]\r\nA=1\r\n");
    files_.failAfterBytes(4, ErrorNumber::DiskFull);
    files_.failAtCall(FileCall::Delete, 1, ErrorNumber::PermissionDenied);
    expectError(ErrorNumber::DiskFull, [&] { put("S", "A", "2"); });
}

TEST_F(Profile, AnUnreadableFileIsAnError) {
    given("[S]\r\nA=1\r\n");
    files_.failAtCall(FileCall::Open, 1, ErrorNumber::PathFileAccess);
    expectError(ErrorNumber::PathFileAccess, [&] { text("S", "A"); });
}

TEST_F(Profile, AFileAboveTheLimitIsRefused) {
    given(std::string(ProfileText::kLargest + 1, 'x'));
    expectError(ErrorNumber::OutOfMemory, [&] { text("S", "A"); });
}

// --- Encodings

TEST_F(Profile, BytesAboveAsciiAreWindows1252) {
    given("[S]\r\nA=caf\xE9 \x80\r\n");
    EXPECT_EQ(text("S", "A"), "caf\xE9 \x80");
}

TEST_F(Profile, OverlongFormsAndSurrogatesAreNotUtf8) {
    for (const std::string bytes : {"\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xC3"}) {
        given("[S]\r\nA=" + bytes + "\r\n");
        EXPECT_EQ(text("S", "A"), bytes);
    }
}

TEST_F(Profile, NamesAreMatchedInTheFilesEncoding) {
    given("[\xC3\x84]\r\nSchl\xC3\xBCssel=1\r\n");
    EXPECT_EQ(text("\xE4", "SCHL\xDCSSEL"), "1");
    put("\xE4", "schl\xFCssel", "2");
    EXPECT_EQ(contents(), "[\xC3\x84]\r\nSchl\xC3\xBCssel=2\r\n");
}

TEST_F(Profile, AnEditKeepsTheEncoding) {
    given("[S]\r\nA=\xC3\xA9\r\n");
    put("S", "B", "\xFC");
    EXPECT_EQ(contents(), "[S]\r\nA=\xC3\xA9\r\nB=\xC3\xBC\r\n");
    given("[S]\r\nA=\xE9\r\n");
    put("S", "B", "\xFC");
    EXPECT_EQ(contents(), "[S]\r\nA=\xE9\r\nB=\xFC\r\n");
}

TEST_F(Profile, APathKeepsEveryCharacter) {
    for (const std::string before : {"[S]\r\n", "[S]\r\nA=\xC3\xA9\r\n", "[S]\r\nA=\xE9\r\n"}) {
        given(before);
        const std::string otherText = text("S", "A");
        putPath("/home/\xE2\x98\x83/\xC3\xBC");
        EXPECT_EQ(path(), "/home/\xE2\x98\x83/\xC3\xBC");
        EXPECT_EQ(text("S", "A"), otherText);
    }
}

TEST_F(Profile, APathTypedInWindows1252IsFound) {
    given(
        "[S]\r\nPath=\"/home/b\xFC"
        "cher\"\r\n");
    EXPECT_EQ(path(),
              "/home/b\xC3\xBC"
              "cher");
}

TEST_F(Profile, APathThatIsNotUtf8IsRefused) {
    given("[S]\r\n");
    expectError(ErrorNumber::BadFileName, [&] { putPath("/home/\xE9"); });
    expectError(ErrorNumber::BadFileName, [&] { putPath("/home/a\nb"); });
    EXPECT_EQ(contents(), "[S]\r\n");
}

TEST_F(Profile, OnASystemWithWindows1252PathsAPathIsAText) {
    TextProfileFiles profiles(files_, rules_, PathEncoding::Windows1252);
    given("[S]\r\nA=\xC3\xA9\r\n");
    profiles.writePath("S", "Path", "C:\\\xFC", kTextFile);
    EXPECT_EQ(contents(), "[S]\r\nA=\xC3\xA9\r\nPath=C:\\\xC3\xBC\r\n");
    EXPECT_EQ(profiles.getPath("S", "Path", "", kTextFile), "C:\\\xFC");
}

// --- Files that are no profile files

std::string randomBytes(std::size_t count) {
    std::mt19937 random(7);
    std::string bytes(count, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random());
    }
    return bytes;
}

TEST_F(Profile, AStrangeFileIsReadAndAnEntryAddedWithoutDamage) {
    const std::string strange[] = {randomBytes(100'000),         std::string(10'000'000, '\n'),
                                   std::string(10'000'000, 'x'), std::string(1000, '['),
                                   std::string(1000, '\0'),      "[S\r\nA=1"};
    for (const std::string& bytes : strange) {
        given(bytes);
        EXPECT_EQ(text("Velmora", "A"), "DEF");
        put("Velmora", "A", "1");
        EXPECT_EQ(text("Velmora", "A"), "1");
        ASSERT_TRUE(contents().starts_with(bytes));
        profiles_.writeString("Velmora", std::nullopt, std::nullopt, kTextFile);
        ASSERT_TRUE(contents().starts_with(bytes));
        EXPECT_LE(contents().size(), bytes.size() + 2);
    }
}

TEST_F(Profile, AUtf16FileIsNotTakenForAnEmptyOne) {
    const std::string little("[\0S\0]\0", 6);
    const std::string big("\0[\0S\0]", 6);
    for (const std::string& bytes : {"\xFF\xFE" + little, "\xFE\xFF" + big, little, big}) {
        given(bytes);
        try {
            profiles_.getString("S", "Key", "", 255, kTextFile);
            ADD_FAILURE() << "it was read";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.errorNumber(), ErrorNumber::TypeMismatch);
            EXPECT_NE(std::string(error.what()).find("UTF-16"), std::string::npos) << error.what();
        }
    }
}

TEST_F(Profile, AFileThatIsNoTextIsNoUtf16) {
    given(std::string("\0\xEF\n[S]\r\nKey=value", 17));
    EXPECT_EQ(profiles_.getString("S", "Key", "", 255, kTextFile), "value");
}

TEST_F(Profile, AnEditDoesNotMakeAFileLookLikeUtf16) {
    given(std::string("\0", 1));
    profiles_.writeString("S", "Key", "value", kTextFile);
    EXPECT_EQ(profiles_.getString("S", "Key", "", 255, kTextFile), "value");
}

}  // namespace
}  // namespace velmora
