#include <gtest/gtest.h>

#include "apps/server_arguments.h"
#include "arguments/usage_error.h"

namespace velmora {
namespace {

TEST(TaskArguments, TheTaskGetsTheOtherOptions) {
    const std::vector<std::string> given{"--port", "COM5", "--install-task", "--wait"};
    const ServerArguments arguments = readServerArguments(given);
    EXPECT_TRUE(arguments.installTask);
    EXPECT_EQ(arguments.port, "COM5");
    EXPECT_EQ(argumentsOfTask(given), (std::vector<std::string>{"--port", "COM5", "--wait"}));
    EXPECT_TRUE(readServerArguments({"--remove-task"}).removeTask);
}

TEST(TaskArguments, ATaskIsForServing) {
    EXPECT_THROW(readServerArguments({"--install-task", "--list-ports"}), UsageError);
    EXPECT_THROW(readServerArguments({"--install-task", "--print-config"}), UsageError);
    EXPECT_THROW(readServerArguments({"--install-task", "--remove-task"}), UsageError);
    EXPECT_THROW(readServerArguments({"--remove-task", "--wait"}), UsageError);
}

TEST(TaskArguments, AWrongOptionIsToldBeforeATaskIsMade) {
    EXPECT_THROW(readServerArguments({"--install-task", "--baud", "fast"}), UsageError);
}

}  // namespace
}  // namespace velmora
