// What reading and writing profile files promises, by our own code and, where there are any, by the functions
// of Windows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <tuple>

#include "support/profile_rig.h"
#include "support/run_time_errors.h"
#ifdef _WIN32
#include "support/win32_profile_rig.h"
#endif

namespace velmora {
namespace {

using test::errorOf;
using test::FileCall;
using ::testing::IsEmpty;

struct Implementation {
    const char* name;
    std::unique_ptr<test::ProfileRig> (*make)();
};

template <typename Rig>
std::unique_ptr<test::ProfileRig> make() {
    return std::make_unique<Rig>();
}

const Implementation kImplementations[] = {
    {"Text", make<test::TextProfileRig>},
#ifdef _WIN32
    {"Win32", make<test::Win32ProfileRig>},
#endif
};

/// An implementation, with the file that it is tried on.
class OnProfile {
  protected:
    explicit OnProfile(const Implementation& implementation) : rig(implementation.make()) {}

    void given(const std::string& contents) { rig->given(contents); }
    std::string text(const std::string& section, const std::string& key, const std::string& otherwise = "DEF",
                     std::size_t buffer = 255) {
        return profiles.getString(section, key, otherwise, buffer, rig->file());
    }
    std::int32_t number(const std::string& key) { return profiles.getInt("S", key, 42, rig->file()); }
    std::string path(const std::string& key) { return profiles.getPath("S", key, "none ", rig->file()); }
    std::vector<std::string> entries(const std::string& section) {
        return profiles.getSection(section, rig->file());
    }
    void put(const std::string& section, const std::string& key, const std::string& value) {
        profiles.writeString(section, key, value, rig->file());
    }

    std::unique_ptr<test::ProfileRig> rig;
    ProfileFiles& profiles = rig->profiles();
};

std::string nameOf(const Implementation& implementation) {
    return implementation.name;
}

class ProfileContract : public OnProfile, public ::testing::TestWithParam<Implementation> {
  protected:
    ProfileContract() : OnProfile(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(All, ProfileContract, ::testing::ValuesIn(kImplementations),
                         [](const auto& row) { return nameOf(row.param); });

template <typename Row>
class ProfileTable : public OnProfile, public ::testing::TestWithParam<std::tuple<Implementation, Row>> {
  protected:
    ProfileTable() : OnProfile(std::get<0>(this->GetParam())) {}
    const Row& row() const { return std::get<1>(this->GetParam()); }
};

constexpr auto kRowName = [](const auto& row) {
    return nameOf(std::get<0>(row.param)) + std::get<1>(row.param).name;
};

// --- Reading

using ProfileLine = ProfileTable<test::ProfileCase>;

TEST_P(ProfileLine, ReadsAsTheTableSays) {
    given("[S]\r\n" + row().lines);
    const bool holds = rig->holds(row().underWine);
    EXPECT_EQ(text("S", row().key) == row().text, holds) << text("S", row().key);
    EXPECT_EQ(number(row().key) == row().number, holds) << number(row().key);
    EXPECT_EQ(entries("S"), row().entries);
}
INSTANTIATE_TEST_SUITE_P(All, ProfileLine,
                         ::testing::Combine(::testing::ValuesIn(kImplementations),
                                            ::testing::ValuesIn(test::profileCases())),
                         kRowName);

using ProfileFile = ProfileTable<test::ProfileFileCase>;

TEST_P(ProfileFile, ReadsAsTheTableSays) {
    given(row().file);
    const bool holds = rig->holds(row().underWine);
    const std::string found = text(row().section, row().key);
    EXPECT_EQ(found == row().text, holds) << found;
    EXPECT_EQ(entries(row().section) == row().entries, holds)
        << ::testing::PrintToString(entries(row().section));
}
INSTANTIATE_TEST_SUITE_P(All, ProfileFile,
                         ::testing::Combine(::testing::ValuesIn(kImplementations),
                                            ::testing::ValuesIn(test::profileFileCases())),
                         kRowName);

TEST_P(ProfileContract, ADefaultLosesTrailingBlanksOnly) {
    EXPECT_EQ(text("S", "A", "  \"DEF\"  "), "  \"DEF\"");
}

TEST_P(ProfileContract, ADefaultIsCutToTheBufferToo) {
    EXPECT_EQ(text("S", "A", "12345", 4), "123");
}

TEST_P(ProfileContract, ABufferWithoutRoomGivesNothing) {
    given("[S]\r\nA=1\r\n");
    EXPECT_EQ(text("S", "A", "DEF", 1), "");
    EXPECT_EQ(text("S", "A", "DEF", 0), "");
}

TEST_P(ProfileContract, NumbersBeyondThirtyTwoBitsAreTheNearest) {
    given(
        "[S]\r\nA=99999999999999999999999\r\nB=-99999999999999999999999\r\nC=0xFFFFFFFFFFFFFFFFFFF\r\n"
        "D=4294968496\r\n");
    EXPECT_EQ(number("A"), 2'147'483'647);
    EXPECT_EQ(number("B"), -2'147'483'647 - 1);
    EXPECT_EQ(number("C"), 2'147'483'647);
    EXPECT_EQ(number("D"), 2'147'483'647);
}

TEST_P(ProfileContract, AMissingFileReadsAsEmpty) {
    EXPECT_EQ(text("S", "A"), "DEF");
    EXPECT_EQ(number("A"), 42);
    EXPECT_THAT(entries("S"), IsEmpty());
    EXPECT_EQ(profiles.text(rig->file()), "");
}

TEST_P(ProfileContract, ALongSectionIsReadWhole) {
    std::string lines = "[S]\r\n";
    for (int i = 0; i < 5000; ++i) {
        lines += "Key" + std::to_string(i) + "=value\r\n";
    }
    given(lines);
    const std::vector<std::string> all = entries("S");
    ASSERT_EQ(all.size(), 5000U);
    EXPECT_EQ(all.back(), "Key4999=value");
}

TEST_P(ProfileContract, AnEditByAnotherProgramIsSeenAtOnce) {
    given("[S]\r\nA=1\r\n");
    EXPECT_EQ(text("S", "A"), "1");
    given("[S]\r\nA=2\r\n");
    EXPECT_EQ(text("S", "A"), "2");
}

TEST_P(ProfileContract, TheWholeTextIsGivenWithoutItsMark) {
    given("\xEF\xBB\xBF[S] ; \xC3\xA9\r\n");
    EXPECT_EQ(profiles.text(rig->file()), "[S] ; \xE9\r\n");
}

TEST_P(ProfileContract, AMissingPathIsItsDefaultAndAnEmptyOneIsEmpty) {
    EXPECT_EQ(path("Path"), "none ");
    given("[S]\r\nPath=\r\n");
    EXPECT_EQ(path("Path"), "");
    EXPECT_EQ(path("Other"), "none ");
}

TEST_P(ProfileContract, APathHasNoLimit) {
    const std::string longest = "/" + std::string(3000, 'x');
    given("[S]\r\nPath=" + longest + "\r\n");
    EXPECT_EQ(path("Path"), longest);
}

// --- Writing

TEST_P(ProfileContract, WritingMakesAMissingFile) {
    put("S", "A", "1");
    EXPECT_EQ(text("S", "A"), "1");
    EXPECT_EQ(rig->filesThere(), 1U);
}

TEST_P(ProfileContract, WritingWhatIsThereTouchesNothing) {
    given("[S]\r\nA=1\r\n");
    put("S", "A", "1");
    EXPECT_EQ(rig->files().calls(FileCall::Replace), 0);
    EXPECT_EQ(rig->filesThere(), 1U);
}

TEST_P(ProfileContract, ATextThatLooksLikeUtf8ComesBack) {
    given("[S]\r\n");
    put("S", "A", "\xC3\xA9");
    EXPECT_EQ(text("S", "A"), "\xC3\xA9");
}

TEST_P(ProfileContract, WhatWouldNotBeFoundAgainIsRefusedAndTheFileStands) {
    using Words = std::array<std::string, 3>;
    given("[S]\r\nA=1\r\n");
    for (const Words& words :
         {Words{"S", "A", "1\r\n[T]"}, Words{"S", "A", std::string(1, '\0')}, Words{"S", "A=B", "1"},
          Words{"S", "", "1"}, Words{"S", ";A", "1"}, Words{"S", "[A", "1"}, Words{"S", " A", "1"},
          Words{"S", "A\t", "1"}, Words{"S]", "A", "1"}, Words{"S\n", "A", "1"}, Words{" S", "A", "1"},
          Words{"S ", "A", "1"}}) {
        EXPECT_EQ(errorOf([&] { put(words[0], words[1], words[2]); }), 5) << words[0] << words[1];
    }
    EXPECT_EQ(errorOf([&] { profiles.writePath("S", "Path", "/a\nb", rig->file()); }), 64);
    EXPECT_EQ(rig->contents(), "[S]\r\nA=1\r\n");
}

// --- Failures: the old file stands

struct FailedCall {
    const char* name;
    FileCall call;
};
using FailedWrite = ProfileTable<FailedCall>;

TEST_P(FailedWrite, IsAnErrorAndTheOldFileStands) {
    given("[S]\r\nA=1\r\n");
    const int call = row().call == FileCall::Open ? rig->openingOfTheNewFile() : 1;
    rig->files().failAtCall(row().call, call, ErrorNumber::DiskFull);
    EXPECT_EQ(errorOf([&] { put("S", "A", "2"); }), 61);
    EXPECT_EQ(rig->contents(), "[S]\r\nA=1\r\n");
    EXPECT_EQ(rig->filesThere(), 1U);
    put("S", "A", "3");
    EXPECT_EQ(text("S", "A"), "3");
}
INSTANTIATE_TEST_SUITE_P(All, FailedWrite,
                         ::testing::Combine(::testing::ValuesIn(kImplementations),
                                            ::testing::Values(FailedCall{"ReadOnlyFolder",
                                                                         FileCall::CreateTemporary},
                                                              FailedCall{"Open", FileCall::Open},
                                                              FailedCall{"Write", FileCall::Write},
                                                              FailedCall{"Close", FileCall::Close},
                                                              FailedCall{"Rename", FileCall::Replace})),
                         kRowName);

TEST_P(ProfileContract, AFolderInTheFilesPlaceIsAnError) {
    rig->giveFolder();
    EXPECT_EQ(errorOf([&] { text("S", "A"); }), 75);
    EXPECT_EQ(errorOf([&] { put("S", "A", "1"); }), 75);
}

TEST_P(ProfileContract, AMissingFolderIsAnErrorOfTheWriteOnly) {
    EXPECT_EQ(profiles.getString("S", "A", "DEF", 255, rig->fileInMissingFolder()), "DEF");
    EXPECT_EQ(errorOf([&] { profiles.writeString("S", "A", "1", rig->fileInMissingFolder()); }), 76);
}

}  // namespace
}  // namespace velmora
