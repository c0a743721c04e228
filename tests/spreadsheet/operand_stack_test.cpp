#include "spreadsheet/operand_stack.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace velmora {
namespace {

TEST(OperandStack, GivesBackTheLastFirst) {
    OperandStack stack;
    stack.PushOperand("a", 1);
    stack.PushOperand("b", 2);
    EXPECT_EQ(stack.PopOperand(), (StackEntry{"b", 2}));
    EXPECT_EQ(stack.PopOperand(), (StackEntry{"a", 1}));
}

TEST(OperandStack, AnEmptyOneGivesAnEmptyText) {
    OperandStack stack;
    EXPECT_EQ(stack.PopOperand(), (StackEntry{"", 0}));
}

TEST(OperandStack, Holds101) {
    OperandStack stack;
    for (int i = 0; i < 101; ++i) {
        stack.PushOperand("x", 99);
    }
    try {
        stack.PushOperand("x", 99);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 9);
    }
    EXPECT_EQ(stack.size(), 101U);
}

}  // namespace
}  // namespace velmora
