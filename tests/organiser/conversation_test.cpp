#include "organiser/conversation.h"

#include <string>
#include <vector>

#include "conversation_fixture.h"

namespace velmora {
namespace {

using Kind = LinkFailure::Kind;

class ConversationTest : public test::ConversationFixture {
  protected:
    Attempts attempts(int most) {
        return Attempts(link(), most, [this](const std::string& text) { told.push_back(text); });
    }
    std::vector<std::string> told;
};

TEST_F(ConversationTest, ChunksHoldAtMostTwoHundredAndFiftyBytes) {
    const auto chunks = inChunks(std::string(501, 'x'));
    ASSERT_EQ(chunks.size(), 3U);
    EXPECT_EQ(chunks[0].size(), 250U);
    EXPECT_EQ(chunks[2], "x");
    EXPECT_TRUE(inChunks("").empty());
}

TEST_F(ConversationTest, OpeningBringsTheLinkUpAndReturnsTheAnswer) {
    test::ScriptedService time(test::reply("2010-03-28 14:05:09"));
    server.serve("TIME", time);
    EXPECT_EQ(openService(link(), "TIME"), "2010-03-28 14:05:09");
    EXPECT_TRUE(link().up());
}

TEST_F(ConversationTest, UnknownServiceIsRefusedWith190) {
    EXPECT_EQ(failureOf([&] { openService(link(), "TIMEX"); }).code(), 190);
    EXPECT_FALSE(link().up());
}

TEST_F(ConversationTest, AnotherReplyThanExpectedIsUnexpected) {
    openService(link(), "FTRAN");
    const auto failure = failureOf([&] { requestExpecting(link(), std::string(1, '\1'), "other"); });
    EXPECT_EQ(failure.kind(), Kind::Unexpected);
}

TEST_F(ConversationTest, ExpectedEndIsNoFailureOthersAre) {
    openService(link(), "FTRAN");
    EXPECT_EQ(requestUntil(link(), "\x09", 190), std::nullopt);
    openService(link(), "FTRAN");
    EXPECT_EQ(failureOf([&] { requestUntil(link(), "\x09", 238); }).code(), 190);
}

TEST_F(ConversationTest, ConversationThatSucceedsEndsItsLink) {
    attempts(3).run([&] { openService(link(), "FTRAN"); });
    EXPECT_FALSE(link().up());
    EXPECT_EQ(server.linksDropped, 1);
    EXPECT_TRUE(told.empty());
}

TEST_F(ConversationTest, LostLinkIsTriedAgainAndTold) {
    int tries = 0;
    attempts(3).run([&] {
        if (++tries < 3) {
            throw LinkFailure::lost();
        }
    });
    EXPECT_EQ(tries, 3);
    EXPECT_EQ(told, (std::vector<std::string>{"The link was lost. Trying again (2 of 3).",
                                              "The link was lost. Trying again (3 of 3)."}));
}

TEST_F(ConversationTest, TriesComeToAnEnd) {
    int tries = 0;
    const auto failure = failureOf([&] {
        attempts(2).run([&] {
            ++tries;
            throw LinkFailure::lost();
        });
    });
    EXPECT_EQ(failure.kind(), Kind::Lost);
    EXPECT_EQ(tries, 2);
}

TEST_F(ConversationTest, WhatCouldDoHarmTwiceIsNotTriedAgain) {
    int tries = 0;
    failureOf([&] {
        attempts(3).run(
            [&] {
                ++tries;
                throw LinkFailure::lost();
            },
            [] { return false; });
    });
    EXPECT_EQ(tries, 1);
    EXPECT_EQ(told.size(), 1U);
}

struct TryRow {
    const char* name;
    LinkFailure failure;
    bool again;
};
class WorthAnotherTry : public testing::TestWithParam<TryRow> {};

TEST_P(WorthAnotherTry, FollowsTheKindAndTheReason) {
    EXPECT_EQ(GetParam().failure.worthAnotherTry(), GetParam().again);
}

INSTANTIATE_TEST_SUITE_P(Failures, WorthAnotherTry,
                         testing::Values(TryRow{"Lost", LinkFailure::lost(), true},
                                         TryRow{"TooManyErrors", LinkFailure::refused("\xC0"), true},
                                         TryRow{"WrongSequence", LinkFailure::refused("\xC1"), true},
                                         TryRow{"NoSuchFile", LinkFailure::refused("\xBD"), false},
                                         TryRow{"EndWithoutReason", LinkFailure::refused(""), false},
                                         TryRow{"DigitsAsReason", LinkFailure::refused("\xC0\xC0"), false},
                                         TryRow{"NoLink", LinkFailure::noLink("x"), false},
                                         TryRow{"Unexpected", LinkFailure::unexpected("x"), false}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LinkFailureTest, EveryCodeHasItsOwnMeaning) {
    std::vector<std::string> meanings;
    for (const int code : {0, 185, 186, 187, 188, 189, 190, 192, 193, 199, 238}) {
        EXPECT_NE(meaningOfCode(code), meaningOfCode(1)) << code;
        for (const std::string& other : meanings) {
            EXPECT_NE(meaningOfCode(code), other) << code;
        }
        meanings.push_back(meaningOfCode(code));
    }
}

TEST(LinkFailureTest, RefusalTellsCodeAndMeaning) {
    EXPECT_STREQ(LinkFailure::refused("\xBD").what(),
                 "Refused by the server: 189, the file does not exist, or its name was refused.");
}

}  // namespace
}  // namespace velmora
