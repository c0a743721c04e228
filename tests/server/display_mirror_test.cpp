#include "server/display_mirror.h"

#include <gtest/gtest.h>

#include <string>

#include "support/fake_timers.h"

namespace velmora {
namespace {

using test::FakeTime;
using test::milliseconds;

class Mirror : public testing::Test {
  protected:
    Mirror() {
        timer.onTick([this] { mirror.DisplayTimer_Tick(); });
    }
    void expectLines(const std::string& line1, const std::string& line2) const {
        EXPECT_EQ(lines[1], line1);
        EXPECT_EQ(lines[2], line2);
    }
    void pass(int span) { time.advance(milliseconds(span)); }

    FakeTime time;
    FakeTime::FakeTimer& timer = time.makeTimer();
    std::string lines[3] = {"", "(line 1)", "(line 2)"};
    int shown = 0;
    DisplayMirror mirror{timer, [this](int line, const std::string& text) {
                             lines[line] = text;
                             ++shown;
                         }};
};

TEST(DisplayTexts, PadRightPadsOrCuts) {
    EXPECT_EQ(padRight("ab", 4), "ab  ");
    EXPECT_EQ(padRight("abcdef", 4), "abcd");
    EXPECT_EQ(padRight("", 2, '.'), "..");
}

TEST(DisplayTexts, CentrePutsHalfTheRestInFront) {
    EXPECT_EQ(centre("Sending", 16), "    Sending");
    EXPECT_EQ(centre("abc", 16), "      abc");
    EXPECT_EQ(centre("123456789012345", 16), "123456789012345");
    EXPECT_EQ(centre("12345678901234567", 16), "12345678901234567");
    EXPECT_EQ(centre("", 4, '.'), "..");
}

TEST_F(Mirror, ShortTextsAreCentredInSixteenColumns) {
    EXPECT_TRUE(mirror.Display("Sending", "directory"));
    expectLines("    Sending     ", "   directory    ");
    EXPECT_FALSE(timer.enabled());
}

TEST_F(Mirror, ABlankAtEitherEndPreventsCentring) {
    mirror.Display("  Connecting...", "right ");
    expectLines("  Connecting... ", "right           ");
}

TEST_F(Mirror, ATextOfSixteenCharactersStaysAsItIs) {
    mirror.Display("Downloading file", "");
    EXPECT_EQ(lines[1], "Downloading file");
}

TEST_F(Mirror, AnEmptyLineLeavesItsLineUnchanged) {
    mirror.Display("", "Connecting...");
    expectLines("(line 1)", " Connecting...  ");
    mirror.Display("Accessing file", "");
    expectLines(" Accessing file ", " Connecting...  ");
}

TEST_F(Mirror, ABlankClearsItsLine) {
    mirror.Display("Waiting for link", " ");
    expectLines("Waiting for link", std::string(16, ' '));
}

TEST_F(Mirror, TheSamePairIsNotDrawnAgainAndDoesNotRestartTheScroll) {
    mirror.Display("Server was stopped by Organiser!", "Click Start!");
    pass(2700);
    const std::string scrolled = lines[1];
    const int before = shown;
    EXPECT_FALSE(mirror.Display("Server was stopped by Organiser!", "Click Start!"));
    EXPECT_EQ(shown, before);
    EXPECT_EQ(lines[1], scrolled);
    EXPECT_EQ(timer.interval(), kScrollStep);
}

TEST_F(Mirror, PairsThatReadTheSameJoinedCountAsTheSame) {
    mirror.Display("ab", "c");
    EXPECT_FALSE(mirror.Display("a", "bc"));
    expectLines("       ab       ", "       c        ");
}

TEST_F(Mirror, TwoEmptyLinesChangeNothingAndLeaveARunningScrollGoing) {
    mirror.Display("Server was stopped by Organiser!", "  Click Start!");
    pass(2500);
    mirror.Display("", "");
    expectLines("Server was stopp", "  Click Start!  ");
    EXPECT_TRUE(timer.enabled());
    EXPECT_EQ(mirror.scrollingLine(), 1);
    pass(2500);
    pass(200);
    EXPECT_EQ(lines[1], "erver was stoppe");
}

TEST_F(Mirror, ALongLineScrollsAfterADelayThenStepByStepAndWrapsBehindTwoBlanks) {
    const std::string text = "Server was stopped by Organiser!";
    mirror.Display(text, "  Click Start!");
    expectLines(text.substr(0, 16), "  Click Start!  ");
    pass(2499);
    EXPECT_EQ(timer.interval(), kScrollDelay);
    pass(1);
    EXPECT_EQ(lines[1], text.substr(0, 16));
    EXPECT_EQ(timer.interval(), kScrollStep);

    const std::string endless = text + "  " + text + "  " + text;
    for (std::size_t step = 1; step <= 40; ++step) {
        pass(200);
        EXPECT_EQ(lines[1], endless.substr(step, 16)) << "step " << step;
    }
    EXPECT_EQ(lines[2], "  Click Start!  ");
}

TEST_F(Mirror, NoWordWrapBesideALineTwoOfItsOwn) {
    mirror.Display("Please set PROTOCOL to PSION in organiser menu COMMS/SETUP...", "and click Start!");
    expectLines("Please set PROTO", "and click Start!");
    EXPECT_EQ(mirror.scrollingLine(), 1);
}

TEST_F(Mirror, ALongLineOneIsWrappedIntoABlankLineTwo) {
    //                1234567.901.345.78901234
    mirror.Display("1234567 901 345 78901234", " ");
    expectLines("1234567 901 345 ", "    78901234    ");
    EXPECT_EQ(mirror.scrollingLine(), 0);
    EXPECT_FALSE(timer.enabled());
}

TEST_F(Mirror, WordWrapWithoutABlankCutsAfterSixteen) {
    mirror.Display("12345678901234567890", " ");
    expectLines("1234567890123456", "      7890      ");
}

TEST_F(Mirror, AWrappedRestThatIsTooLongScrollsOnLineTwo) {
    mirror.Display("The server could not find a free serial port!", "  ");
    expectLines("   The server   ", "could not find a");
    EXPECT_EQ(mirror.scrollingLine(), 2);
    pass(2700);
    EXPECT_EQ(lines[2], "ould not find a ");
}

TEST_F(Mirror, ALongLineOneAloneIsNotWrapped) {
    mirror.Display("12345678 01234567890", "");
    EXPECT_EQ(lines[2], "(line 2)");
    EXPECT_EQ(mirror.scrollingLine(), 1);
}

TEST_F(Mirror, BlanksAtTheEndDoNotMakeALineLong) {
    mirror.Display("Waiting              ", "x                   ");
    expectLines("Waiting         ", "x               ");
    EXPECT_EQ(mirror.scrollingLine(), 0);
}

TEST_F(Mirror, LineOneWinsWhenBothAreLong) {
    mirror.Display("This line is much too long", "and this one is too long as well");
    EXPECT_EQ(mirror.scrollingLine(), 1);
    pass(2700);
    EXPECT_EQ(lines[1], "his line is much");
    EXPECT_EQ(lines[2], "and this one is ");
}

TEST_F(Mirror, ALongLineTwoScrollsWhenLineOneIsShort) {
    mirror.Display("No port selected", "The server could not find a free serial port!");
    EXPECT_EQ(mirror.scrollingLine(), 2);
}

TEST_F(Mirror, AShortTextOnTheOtherLineLetsTheScrollGoOn) {
    mirror.Display("This line is much too long", "");
    pass(3000);
    mirror.Display("", "Memo.odb");
    EXPECT_EQ(mirror.scrollingLine(), 1);
    EXPECT_EQ(timer.interval(), kScrollDelay);
    EXPECT_TRUE(timer.enabled());
}

TEST_F(Mirror, AShortTextOnTheScrollingLineStopsTheScroll) {
    mirror.Display("This line is much too long", "");
    mirror.Display("short", "");
    EXPECT_EQ(mirror.scrollingLine(), 0);
    EXPECT_FALSE(timer.enabled());
}

TEST_F(Mirror, AShortPairStopsTheScroll) {
    mirror.Display("", "This line is much too long");
    mirror.Display("a", "b");
    EXPECT_EQ(mirror.scrollingLine(), 0);
    EXPECT_FALSE(timer.enabled());
}

TEST_F(Mirror, ATickWithoutAScrollDoesNothing) {
    mirror.Display("a", "b");
    const int before = shown;
    mirror.DisplayTimer_Tick();
    EXPECT_EQ(shown, before);
}

}  // namespace
}  // namespace velmora
