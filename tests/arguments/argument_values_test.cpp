#include "arguments/argument_values.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace velmora {
namespace {

TEST(ArgumentValues, NumbersOfEveryKindAreTakenWhole) {
    EXPECT_EQ(numberValue<int>("--tries", "100", 1, 100, "a number"), 100);
    EXPECT_EQ(numberValue<double>("--drop", "0.25", 0, 1, "a probability"), 0.25);
    EXPECT_EQ(numberValue<std::uint16_t>("--address", "fFfF", 0, 0xFFFF, "an address", 16), 0xFFFF);
}

TEST(ArgumentValues, WhatIsNoSuchNumberIsNamed) {
    for (const char* bad : {"", "0", "101", "1x", " 1", "0x10", "nan"}) {
        try {
            numberValue<int>("--tries", bad, 1, 100, "a number from 1 to 100");
            ADD_FAILURE() << "accepted: " << bad;
        } catch (const UsageError& error) {
            EXPECT_EQ(error.what(), "--tries: \"" + std::string(bad) + "\" is not a number from 1 to 100");
        }
    }
    EXPECT_THROW(numberValue<double>("--drop", "nan", 0, 1, "a probability"), UsageError);
}

}  // namespace
}  // namespace velmora
