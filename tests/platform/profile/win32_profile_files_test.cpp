#include "platform/profile/win32_profile_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <functional>
#include <sstream>

#include "base/run_time_error.h"
#include "platform/known_folders.h"
#include "platform/profile/text_profile_files.h"
#include "platform/win32/win32_files.h"
#include "platform/windows_paths.h"
#include "support/profile_edits.h"
#include "support/temp_folder.h"
#include "support/win_ini_section.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kName = "velmora.ini";

/// The lines of a file without empty ones and without blanks at their ends and around "=".
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        const std::size_t equals = line.find('=');
        const auto trimmed = [](std::string part) {
            part.erase(0, part.find_first_not_of(" \r"));
            part.erase(part.find_last_not_of(" \r") + 1);
            return part;
        };
        line = equals == std::string::npos
                   ? trimmed(line)
                   : trimmed(line.substr(0, equals)) + '=' + trimmed(line.substr(equals + 1));
        if (!line.empty()) {
            lines.push_back(line);
        }
    }
    return lines;
}

// What every implementation promises is in profile_files_contract_test.cpp.
class Win32Profile : public ::testing::Test {
  protected:
    void given(const std::string& contents) { folder_.write(kName, contents); }
    std::string contents() const { return folder_.read(kName); }
    std::string text(const std::string& section, const std::string& key) {
        return profiles_.getString(section, key, "DEF", 255, file_);
    }
    std::int32_t number(const std::string& key) { return profiles_.getInt("S", key, 42, file_); }
    std::vector<std::string> entries(const std::string& section) {
        return profiles_.getSection(section, file_);
    }
    void put(const std::string& section, const std::string& key, const std::string& value) {
        profiles_.writeString(section, key, value, file_);
    }
    void expectError(ErrorNumber number, const std::function<void()>& action) {
        try {
            action();
            ADD_FAILURE() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.errorNumber(), number) << error.what();
        }
    }

    test::TempFolder folder_;
    std::string file_ = folder_.path(kName);
    Win32Files disk_{folder_.path()};
    WindowsPaths rules_{currentFolder()};
    Win32ProfileFiles profiles_{disk_, rules_};
    TextProfileFiles ours_{disk_, rules_, PathEncoding::Windows1252};
};

// --- Reading

TEST_F(Win32Profile, APathHasNoLimitAndComesBack) {
    const std::string path = "C:\\" + std::string(3000, 'x') + "\\\xFC";
    profiles_.writePath("S", "Path", path, file_);
    EXPECT_EQ(profiles_.getPath("S", "Path", "none", file_), path);
}

TEST_F(Win32Profile, AFileInWideCharactersIsRead) {
    given(std::string("\xFF\xFE[\0S\0]\0\r\0\n\0A\0=\0\xE9\0\r\0\n\0", 22));
    EXPECT_EQ(text("S", "A"), "\xE9");
    EXPECT_EQ(profiles_.text(file_), "[S]\r\nA=\xE9\r\n");
}

TEST_F(Win32Profile, ANumberOfAMarkedFileIsRead) {
    given("\xEF\xBB\xBF[S]\r\nA=-7\r\n");
    EXPECT_EQ(number("A"), -7);
    EXPECT_EQ(number("B"), 42);
}

TEST_F(Win32Profile, ATextThatLooksLikeUtf8IsTheSameToBothReaders) {
    put("S", "A", "\xC3\xA9");
    EXPECT_EQ(text("S", "A"), "\xC3\xA9");
    EXPECT_EQ(ours_.getString("S", "A", "", 255, file_), "\xC3\xA9");
}

TEST_F(Win32Profile, APathIsKeptInTheEncodingOfItsFile) {
    struct Row {
        std::string before;
        std::string path;
        std::string after;
    };
    const Row rows[] = {
        {"[S]\r\n", "C:\\\xFC", "[S]\r\nPath=C:\\\xFC\r\n"},
        {"[S]\r\nA=\xE9\r\n", "C:\\\xFC", "[S]\r\nA=\xE9\r\nPath=C:\\\xFC\r\n"},
        {"[S]\r\nA=\xC3\xA9\r\n", "C:\\\xFC", "[S]\r\nA=\xC3\xA9\r\nPath=C:\\\xC3\xBC\r\n"},
        {"\xEF\xBB\xBF[S]\r\n", "C:\\\xFC", "\xEF\xBB\xBF[S]\r\nPath=C:\\\xC3\xBC\r\n"},
        {"[S]\r\n", "C:\\\xC3\xA9", "[S]\r\nPath=C:\\\xC3\x83\xC2\xA9\r\n"},
    };
    for (const Row& row : rows) {
        given(row.before);
        profiles_.writePath("S", "Path", row.path, file_);
        EXPECT_EQ(contents(), row.after);
        EXPECT_EQ(profiles_.getPath("S", "Path", "none", file_), row.path) << row.before;
        EXPECT_EQ(profiles_.getPath("S", "Other", "\xE4", file_), "\xE4") << row.before;
    }
}

TEST_F(Win32Profile, APathOutsideTheCodePageIsNeverASimilarOne) {
    given(
        "[S]\r\nPath=C:\\\xC5\x81"
        "uk\r\n");
    EXPECT_EQ(profiles_.getPath("S", "Path", "none", file_), "C:\\?uk");
}

// --- Writing: the table of our own writer

class Win32EditedProfile : public Win32Profile, public ::testing::WithParamInterface<test::ProfileEdit> {};

TEST_P(Win32EditedProfile, ReadsAsTheTableSaysByBothReaders) {
    const test::ProfileEdit& row = GetParam();
    given(row.before);
    profiles_.writeString("S", row.key, row.value, file_);
    const std::string expected = folder_.write("expected.ini", row.after);
    for (const char* section : {"R", "S", "T"}) {
        const std::vector<std::string> wanted = ours_.getSection(section, expected);
        EXPECT_EQ(profiles_.getSection(section, file_), wanted) << section;
        EXPECT_EQ(ours_.getSection(section, file_), wanted) << section;
    }
    if (row.sameLines) {
        EXPECT_EQ(linesOf(contents()), linesOf(row.after));
    }
}

INSTANTIATE_TEST_SUITE_P(All, Win32EditedProfile, ::testing::ValuesIn(test::profileEdits()),
                         [](const auto& row) { return std::string(row.param.name); });

// --- Failures

TEST_F(Win32Profile, AFileHeldByAnotherProgramIsAnErrorAndNoSetOfDefaults) {
    given("[S]\r\nA=1\r\n");
    const HANDLE other =
        CreateFileA(file_.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    expectError(ErrorNumber::PermissionDenied, [&] { text("S", "A"); });
    expectError(ErrorNumber::PermissionDenied, [&] { number("A"); });
    expectError(ErrorNumber::PermissionDenied, [&] { entries("S"); });
    expectError(ErrorNumber::PermissionDenied, [&] { put("S", "A", "2"); });
    CloseHandle(other);
    EXPECT_EQ(text("S", "A"), "1");
}

TEST_F(Win32Profile, ANameWithoutAFolderIsInTheCurrentFolder) {
    const WindowsPaths rules(folder_.path());
    Win32ProfileFiles profiles(disk_, rules);
    profiles.writeString("S", "A", "1", kName);
    EXPECT_EQ(text("S", "A"), "1");
    EXPECT_FALSE(disk_.fileExists(rules_.join(windowsFolder(), kName)));
}

TEST_F(Win32Profile, APathThatIsTooLongIsRefused) {
    const std::string file = folder_.path(std::string(240, 'x') + ".ini");
    ASSERT_GE(file.size(), std::size_t{MAX_PATH});
    expectError(ErrorNumber::BadFileName, [&] { profiles_.getString("S", "A", "DEF", 255, file); });
    expectError(ErrorNumber::BadFileName, [&] { profiles_.writeString("S", "A", "1", file); });
    expectError(ErrorNumber::BadFileName, [&] { profiles_.flush(file); });
}

TEST_F(Win32Profile, AFlushedFileReadsTheSame) {
    put("S", "A", "1");
    profiles_.flush(file_);
    EXPECT_EQ(text("S", "A"), "1");
}

// --- The system profile

class SystemProfile : public Win32Profile {
  protected:
    SystemProfile() { file_ = rules_.join(windowsFolder(), "WIN.INI"); }
    void SetUp() override {
        if (!winIni_.isWritable()) {
            GTEST_SKIP() << "win.ini cannot be written here";
        }
    }

    static constexpr const char* kSection = "VelmoraTestSection";
    test::WinIniSection winIni_{kSection};
};

TEST_F(SystemProfile, IsReadAndWritten) {
    put(kSection, "Text", "some text");
    put(kSection, "Number", "-7");
    put(kSection, "Path", "C:\\PSION");
    EXPECT_EQ(text(kSection, "Text"), "some text");
    EXPECT_EQ(profiles_.getInt(kSection, "Number", 42, file_), -7);
    EXPECT_EQ(profiles_.getPath(kSection, "Path", "none", file_), "C:\\PSION");
    EXPECT_THAT(entries(kSection), ElementsAre("Text=some text", "Number=-7", "Path=C:\\PSION"));
    std::array<char, 32> value{};
    GetProfileStringA(kSection, "Text", "", value.data(), static_cast<DWORD>(value.size()));
    EXPECT_STREQ(value.data(), "some text");
    profiles_.flush(file_);
    EXPECT_EQ(text(kSection, "Text"), "some text");
}

TEST_F(SystemProfile, LosesEntriesAndSections) {
    put(kSection, "A", "1");
    put(kSection, "B", "2");
    profiles_.writeString(kSection, "A", std::nullopt, file_);
    EXPECT_THAT(entries(kSection), ElementsAre("B=2"));
    profiles_.writeString(kSection, std::nullopt, std::nullopt, file_);
    EXPECT_THAT(entries(kSection), IsEmpty());
    EXPECT_EQ(text(kSection, "B"), "DEF");
}

}  // namespace
}  // namespace velmora
