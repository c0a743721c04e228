#include "serial/port_names.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

struct NumberRow {
    const char* text;
    std::optional<int> number;
};

TEST(ComNumberTest, ReadsTheNumberInAnyCase) {
    const NumberRow rows[] = {
        {"COM1", 1},
        {"com7", 7},
        {"Com36", 36},
        {" COM12 ", 12},
        {"COM32767", 32767},
        {"COM0", std::nullopt},
        {"COM32768", std::nullopt},
        {"COM99999999999", std::nullopt},
        {"COM-1", std::nullopt},
        {"COM", std::nullopt},
        {"COM1x", std::nullopt},
        {"COM 1", std::nullopt},
        {"LPT1", std::nullopt},
        {"", std::nullopt},
    };
    for (const NumberRow& row : rows) {
        EXPECT_EQ(comNumber(row.text), row.number) << row.text;
    }
}

// What the numbers stand for by themselves differs between systems and is tested beside.

TEST(PortNamesTest, AGivenDeviceReplacesTheUsualOne) {
    const PortNames usual;
    const PortNames names(PortNames::Overrides{{"com7", "adapter"}, {"COM99", "other"}});
    EXPECT_EQ(names.device(7), "adapter");
    EXPECT_EQ(names.device("com7"), "adapter");
    EXPECT_EQ(names.device(99), "other");
    EXPECT_EQ(names.device(8), usual.device(8));
}

TEST(PortNamesTest, EntriesThatAreNoPortsAreLeftOut) {
    const PortNames usual;
    const PortNames names(PortNames::Overrides{{"COM7", ""}, {"COM0", "zero"}, {"Speed", "9600"}});
    EXPECT_EQ(names.device(7), usual.device(7));
    EXPECT_EQ(names.device(0), std::nullopt);
}

TEST(PortNamesTest, WhatIsNoPortStandsForNothing) {
    const PortNames names;
    EXPECT_EQ(names.device(-1), std::nullopt);
    EXPECT_EQ(names.device(0), std::nullopt);
    EXPECT_EQ(names.device("COM-3"), std::nullopt);
    EXPECT_EQ(names.device("/dev/ttyUSB0"), std::nullopt);
    EXPECT_EQ(names.device(32768), std::nullopt);
}

TEST(PortNamesTest, TheNumberOfATextIsItsOwn) {
    PortNames names;
    EXPECT_EQ(names.numberFor("com12"), 12);
    EXPECT_EQ(names.numberFor("COM64"), 64);
}

TEST(PortNamesTest, ADeviceHasTheNumberThatItWasGiven) {
    PortNames names(PortNames::Overrides{{"COM50", "adapter"}});
    EXPECT_EQ(names.numberFor("adapter"), 50);
}

TEST(PortNamesTest, AnUnknownDeviceGetsTheFirstFreeNumberAndKeepsIt) {
    const int first = PortNames::firstFreeNumber();
    PortNames names(PortNames::Overrides{{"COM" + std::to_string(first), "adapter"}});
    EXPECT_EQ(names.numberFor("third"), first + 1);
    EXPECT_EQ(names.device(first + 1), "third");
    EXPECT_EQ(names.numberFor("fourth"), first + 2);
    EXPECT_EQ(names.numberFor("third"), first + 1);
}

TEST(PortNamesTest, WhenEveryNumberIsTakenADeviceGetsNone) {
    PortNames::Overrides all;
    for (int number = 1; number <= 32767; ++number) {
        all["COM" + std::to_string(number)] = "adapter " + std::to_string(number);
    }
    PortNames names(all);
    EXPECT_EQ(names.numberFor("one more"), 0);
    EXPECT_EQ(names.device(32767), "adapter 32767");
}

TEST(PortNamesTest, MessagesCallAPortAsItWasGiven) {
    PortNames names(PortNames::Overrides{{"COM50", "adapter"}});
    EXPECT_EQ(names.shown(50), "COM50");
    const int number = names.numberFor("other");
    EXPECT_EQ(names.shown(number), "other");
    names.numberFor("adapter");
    EXPECT_EQ(names.shown(50), "adapter");
    EXPECT_EQ(names.shown(names.numberFor("com12")), "COM12");
}

}  // namespace
}  // namespace velmora
