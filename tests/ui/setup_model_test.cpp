#include "ui/setup_model.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "support/scripted_port.h"

namespace velmora {
namespace {

constexpr Colour kBlack{};
constexpr Colour kGreen{0, 128, 0};
constexpr Colour kOrange{255, 128, 0};
constexpr Colour kRed{255, 0, 0};
constexpr Colour kDarkRed{192, 0, 0};

class Setup : public testing::Test {
  protected:
    /// Every port that is not told otherwise does not exist.
    void portIs(int number, std::int32_t status) { statuses[number] = status; }
    void open() { model.load(); }
    void checkedPorts(const std::vector<int>& expected) const { EXPECT_EQ(probed, expected); }

    test::ScriptedPort port;
    ServerOptions options;
    TransferSettings transfer;
    std::map<int, std::int32_t> statuses;
    std::vector<int> probed;
    std::function<void()> whileProbing;
    int beeps = 0;
    int focused = 0;
    int closings = 0;
    int changes = 0;
    SetupModel model{
        port,
        options,
        transfer,
        [this](std::int16_t number) {
            probed.push_back(number);
            port.setCommPort(number);
            if (whileProbing) {
                whileProbing();
            }
            return statuses.count(number) != 0 ? statuses[number] : kStatusNotAccessible;
        },
        {[this] { ++changes; }, [this] { ++focused; }, [this] { ++beeps; }, [this] { ++closings; }}};
};

TEST_F(Setup, OpensWithTheValuesInEffect) {
    port.number = 2;
    port.settings = "2400,N,8,1";
    options.AutoStart = true;
    transfer.DataFileType = 3;
    transfer.sheets.wksDialect = WksDialect::Common;
    portIs(2, kStatusAvailable);
    open();
    EXPECT_EQ(model.baud(), 2400);
    EXPECT_TRUE(model.autoStart());
    EXPECT_EQ(model.fileType(), 3);
    EXPECT_EQ(model.wksDialect(), WksDialect::Common);
    EXPECT_EQ(model.selectedPort(), 2);
    EXPECT_EQ(model.statusText(), "COM2 is available");
    EXPECT_TRUE(model.okEnabled());
    EXPECT_FALSE(model.portTextEnabled());
    EXPECT_FALSE(model.probing());
}

TEST_F(Setup, MarksTheFourStandardPorts) {
    portIs(1, kStatusAvailable);
    portIs(2, kStatusModem);
    portIs(3, kStatusInUse);
    open();
    checkedPorts({1, 2, 3, 4});
    EXPECT_EQ(model.mark(1), (PortMark{kGreen, "COM1 is available"}));
    EXPECT_EQ(model.mark(2), (PortMark{kOrange, "COM2 is used (modem)"}));
    EXPECT_EQ(model.mark(3), (PortMark{kRed, "COM3 is in use"}));
    EXPECT_EQ(model.mark(4), (PortMark{kDarkRed, "COM4 is not accessible"}));
    EXPECT_EQ(model.mark(5), PortMark{});
}

TEST_F(Setup, MarksAppearOneByOne) {
    std::vector<std::string> marked;
    whileProbing = [&] { marked.push_back(model.mark(1).toolTip + "|" + model.mark(2).toolTip); };
    portIs(1, kStatusAvailable);
    open();
    EXPECT_EQ(marked[0], "|");
    EXPECT_EQ(marked[1], "COM1 is available|");
    EXPECT_GE(changes, 5);
}

TEST_F(Setup, AModemOnTheFirstPortTurnsItOrange) {
    portIs(1, kStatusModem);
    open();
    EXPECT_EQ(model.mark(1).colour, kOrange);
    EXPECT_EQ(model.statusText(), "COM1 is used (modem)");
}

TEST_F(Setup, TheSearchTakesTheFirstFreePort) {
    options.AutoSelectPort = true;
    portIs(1, kStatusInUse);
    portIs(2, kStatusAvailable);
    portIs(3, kStatusAvailable);
    open();
    EXPECT_EQ(model.selectedPort(), 2);
    checkedPorts({1, 2, 3, 4});
}

TEST_F(Setup, TheSearchGoesOnBehindFourBusyPorts) {
    options.AutoSelectPort = true;
    for (const int busy : {1, 2, 3, 4}) {
        portIs(busy, kStatusInUse);
    }
    portIs(7, kStatusAvailable);
    open();
    checkedPorts({1, 2, 3, 4, 5, 6, 7, 7});
    EXPECT_EQ(model.selectedPort(), 5);
    EXPECT_EQ(model.portText(), "7");
    EXPECT_EQ(model.mark(5), (PortMark{kGreen, "COM7 is available"}));
    EXPECT_EQ(model.statusText(), "COM7 is available");
    EXPECT_TRUE(model.okEnabled());
    EXPECT_TRUE(model.portTextEnabled());
}

TEST_F(Setup, WithoutAnyFreePortANumberMustBeTyped) {
    options.AutoSelectPort = true;
    open();
    EXPECT_EQ(probed.size(), 32U);
    EXPECT_EQ(probed.back(), 32);
    EXPECT_EQ(model.selectedPort(), 5);
    EXPECT_EQ(model.portText(), "");
    EXPECT_FALSE(model.okEnabled());
    model.setPortText("9");
    EXPECT_TRUE(model.okEnabled());
}

TEST_F(Setup, WithoutTheSearchFurtherPortsAreLeftAlone) {
    open();
    checkedPorts({1, 2, 3, 4});
}

TEST_F(Setup, AHighPortInEffectIsShownAsTheOther) {
    port.number = 12;
    portIs(12, kStatusDevice);
    open();
    checkedPorts({1, 2, 3, 4, 12});
    EXPECT_EQ(model.selectedPort(), 5);
    EXPECT_EQ(model.portText(), "12");
    EXPECT_EQ(model.statusText(), "COM12 is used (device)");
}

TEST_F(Setup, APortNumberBelowOneIsNoPort) {
    for (const int number : {0, -3}) {
        port.number = static_cast<std::int16_t>(number);
        open();
        EXPECT_EQ(model.selectedPort(), 5);
        EXPECT_EQ(model.portText(), "");
        EXPECT_FALSE(model.okEnabled());
    }
}

TEST_F(Setup, ABaudRateBesideTheUsualOnesIsShownAndKept) {
    for (const int rate : {24, 19'200, 115'200}) {
        port.settings = std::to_string(rate) + ",N,8,1";
        SetupModel dialog(port, options, transfer, [](std::int16_t) { return kStatusAvailable; }, {});
        dialog.load();
        EXPECT_EQ(dialog.baud(), rate);
        EXPECT_EQ(dialog.otherBaud(), rate);
        dialog.selectPort(1);
        dialog.pbOK_Click();
        EXPECT_EQ(port.settings, std::to_string(rate) + ",N,8,1");
    }
}

TEST_F(Setup, AUsualBaudRateHasNoOtherBesideIt) {
    port.settings = "2400,N,8,1";
    open();
    EXPECT_EQ(model.otherBaud(), std::nullopt);
}

TEST_F(Setup, WithoutARateNoneIsSelectedAndTheSettingsStay) {
    port.settings = "no rate";
    open();
    EXPECT_EQ(model.baud(), std::nullopt);
    EXPECT_EQ(model.otherBaud(), std::nullopt);
    model.pbOK_Click();
    EXPECT_EQ(port.settings, "no rate");
}

TEST_F(Setup, ARateThatNoPortHasIsNotSelected) {
    for (const char* settings : {"-1,N,8,1", "99999999999,N,8,1"}) {
        port.settings = settings;
        open();
        EXPECT_EQ(model.baud(), std::nullopt) << settings;
    }
}

TEST_F(Setup, SelectingTheOtherPortEnablesItsTextAndTakesTheFocus) {
    open();
    focused = 0;
    model.selectPort(5);
    EXPECT_TRUE(model.portTextEnabled());
    EXPECT_FALSE(model.okEnabled());
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(model.statusText(), "");
    model.selectPort(1);
    EXPECT_FALSE(model.portTextEnabled());
    EXPECT_TRUE(model.okEnabled());
    EXPECT_EQ(focused, 1);
    EXPECT_EQ(model.statusText(), "COM1 is not accessible");
}

TEST_F(Setup, ActivationFocusesTheTextOfTheOtherPortOnly) {
    open();
    model.activated();
    EXPECT_EQ(focused, 0);
    model.selectPort(5);
    model.activated();
    EXPECT_EQ(focused, 2);
}

TEST_F(Setup, APressInTheTextSelectsTheOtherPortOnce) {
    open();
    model.portTextPressed();
    EXPECT_EQ(model.selectedPort(), 5);
    model.portTextPressed();
    EXPECT_EQ(focused, 1);
}

TEST_F(Setup, TypingClearsTheOtherPortsMark) {
    port.number = 12;
    portIs(12, kStatusAvailable);
    open();
    model.setPortText("1");
    EXPECT_EQ(model.mark(5), (PortMark{kBlack, ""}));
    EXPECT_EQ(model.statusText(), "");
    EXPECT_TRUE(model.okEnabled());
    model.setPortText("");
    EXPECT_FALSE(model.okEnabled());
    EXPECT_EQ(model.statusText(), "");
}

TEST_F(Setup, CheckProbesTheTypedPort) {
    open();
    portIs(9, kStatusInUse);
    model.selectPort(5);
    model.setPortText("9");
    model.pbCheckPort_Click();
    EXPECT_EQ(probed.back(), 9);
    EXPECT_EQ(model.statusText(), "COM9 is in use");
    EXPECT_EQ(model.mark(5).colour, kRed);
    EXPECT_EQ(beeps, 0);
}

TEST_F(Setup, CheckWithoutANumberBeeps) {
    open();
    model.selectPort(5);
    const auto before = probed;
    model.pbCheckPort_Click();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(probed, before);
}

struct TextRow {
    const char* text;
    int probed;
    const char* status;
};

TEST_F(Setup, AnyTextIsANumberOfSomePort) {
    open();
    model.selectPort(5);
    for (const TextRow& row :
         {TextRow{"99999", 32767, "COM99999 is not accessible"}, TextRow{"1E400", 32767, "COM"},
          TextRow{"abc", 0, "COM0 is not accessible"}, TextRow{"7%&", 7, "COM7 is not accessible"},
          TextRow{"-99999", -32767, "COM-99999"}, TextRow{"6.5", 6, "COM6.5 is not accessible"}}) {
        model.setPortText(row.text);
        model.pbCheckPort_Click();
        EXPECT_EQ(probed.back(), row.probed) << row.text;
        EXPECT_EQ(model.statusText().substr(0, std::string(row.status).size()), row.status);
    }
}

TEST_F(Setup, OkTakesEverythingOver) {
    options.AutoSelectPort = true;
    open();
    model.selectPort(3);
    model.selectBaud(1200);
    model.setAutoStart(true);
    model.setFileType(2);
    model.setWksDialect(WksDialect::Common);
    EXPECT_EQ(transfer.sheets.wksDialect, WksDialect::Own);
    model.pbOK_Click();
    EXPECT_EQ(port.number, 3);
    EXPECT_EQ(port.settings, "1200,N,8,1");
    EXPECT_TRUE(options.AutoStart);
    EXPECT_FALSE(options.AutoSelectPort);
    EXPECT_EQ(transfer.DataFileType, 2);
    EXPECT_EQ(transfer.sheets.wksDialect, WksDialect::Common);
    EXPECT_EQ(closings, 1);
    EXPECT_TRUE(model.closed());
}

TEST_F(Setup, OkTakesTheTypedPort) {
    open();
    model.selectPort(5);
    model.setPortText("21");
    model.pbOK_Click();
    EXPECT_EQ(port.number, 21);
}

TEST_F(Setup, OkWithoutANumberDoesNothing) {
    open();
    model.selectPort(5);
    model.pbOK_Click();
    EXPECT_EQ(closings, 0);
}

TEST_F(Setup, CancelGivesThePortNumberBackAndChangesNothing) {
    port.number = 2;
    options.AutoSelectPort = true;
    open();
    EXPECT_NE(port.number, 2);
    model.setAutoStart(true);
    model.setFileType(1);
    model.setWksDialect(WksDialect::Common);
    model.selectBaud(1200);
    model.pbCancel_Click();
    EXPECT_EQ(port.number, 2);
    EXPECT_EQ(port.settings, "9600,N,8,1");
    EXPECT_FALSE(options.AutoStart);
    EXPECT_TRUE(options.AutoSelectPort);
    EXPECT_EQ(transfer.DataFileType, 0);
    EXPECT_EQ(transfer.sheets.wksDialect, WksDialect::Own);
    EXPECT_EQ(closings, 1);
}

TEST_F(Setup, CancelWhileProbingEndsTheProbing) {
    port.number = 2;
    whileProbing = [this] {
        if (probed.size() == 3) {
            model.pbCancel_Click();
        }
    };
    open();
    checkedPorts({1, 2, 3});
    EXPECT_EQ(port.number, 2);
    EXPECT_EQ(closings, 1);
}

TEST_F(Setup, CancelWhileTheOtherPortIsProbedShowsNothingMore) {
    port.number = 9;
    portIs(9, kStatusAvailable);
    whileProbing = [this] {
        if (probed.back() == 9) {
            model.pbCancel_Click();
        }
    };
    open();
    EXPECT_TRUE(model.mark(SetupModel::kOtherPort).toolTip.empty());
    EXPECT_EQ(port.number, 9);
    EXPECT_EQ(closings, 1);
}

TEST_F(Setup, AfterItWasClosedNothingIsProbed) {
    open();
    model.setPortText("9");
    model.pbCancel_Click();
    model.pbCheckPort_Click();
    checkedPorts({1, 2, 3, 4});
}

TEST_F(Setup, CancelWhileCheckingGivesThePortNumberBack) {
    port.number = 2;
    open();
    model.selectPort(5);
    model.setPortText("9");
    whileProbing = [this] { model.pbCancel_Click(); };
    model.pbCheckPort_Click();
    EXPECT_EQ(port.number, 2);
    EXPECT_TRUE(model.closed());
}

TEST_F(Setup, WhileProbingNothingElseIsProbedOrAccepted) {
    model.setPortText("9");
    whileProbing = [this] {
        model.pbCheckPort_Click();
        model.pbOK_Click();
    };
    open();
    checkedPorts({1, 2, 3, 4});
    EXPECT_EQ(closings, 0);
}

TEST_F(Setup, ClosingTwiceClosesOnce) {
    open();
    model.pbCancel_Click();
    port.number = 30;
    model.pbCancel_Click();
    model.pbOK_Click();
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(port.number, 30);
}

}  // namespace
}  // namespace velmora
