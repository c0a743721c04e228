#include "arguments/program.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "arguments/syntax.h"
#include "arguments/usage_error.h"

namespace velmora {
namespace {

class ProgramTest : public ::testing::Test {
  protected:
    int run(const std::function<int()>& work) { return runProgram("tool", out, err, work); }

    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(ProgramTest, TheWorkGivesTheStatus) {
    EXPECT_EQ(run([] { return 0; }), 0);
    EXPECT_EQ(run([] { return 7; }), 7);
    EXPECT_EQ(out.str() + err.str(), "");
}

TEST_F(ProgramTest, WrongUsageIsOneLineBehindTheProgramsName) {
    EXPECT_EQ(run([]() -> int { throw UsageError("IN is required"); }), 2);
    EXPECT_EQ(err.str(), "tool: IN is required\n");
    EXPECT_EQ(out.str(), "");
}

TEST_F(ProgramTest, WhateverEscapesIsToldToo) {
    EXPECT_EQ(run([]() -> int { throw std::runtime_error("no room"); }), 1);
    EXPECT_EQ(err.str(), "tool: no room\n");
}

TEST_F(ProgramTest, ATextThatWasAskedForGoesToStandardOutput) {
    EXPECT_EQ(run([]() -> int { throw RequestedText{"tool 1.0\n"}; }), 0);
    EXPECT_EQ(out.str(), "tool 1.0\n");
    EXPECT_EQ(err.str(), "");
}

TEST_F(ProgramTest, AnOutputThatCannotBeWrittenIsAFailure) {
    out.setstate(std::ios::badbit);
    EXPECT_EQ(run([] { return 0; }), 1);
    EXPECT_EQ(err.str(), "tool: standard output cannot be written\n");
    EXPECT_EQ(run([]() -> int { throw RequestedText{"tool 1.0\n"}; }), 1);
    EXPECT_EQ(run([] { return 3; }), 3) << "what failed first is told";
}

}  // namespace
}  // namespace velmora
