#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/win32/task_scheduler.h"

namespace velmora {
namespace {

constexpr const char* kName = "VelmoraTests";

/// Wine forgets what a task starts and when, but not how it is described.
std::string definitionWith(const std::string& description) {
    return R"(<Task version="1.2" xmlns="http://schemas.microsoft.com/windows/2004/02/mit/task">
  <RegistrationInfo><Description>)" +
           description + R"(</Description></RegistrationInfo>
  <Settings><ExecutionTimeLimit>PT0S</ExecutionTimeLimit></Settings>
  <Actions Context="Author"><Exec><Command>C:\windows\system32\where.exe</Command></Exec></Actions>
</Task>
)";
}

class TaskScheduler : public ::testing::Test {
  protected:
    /// Wine's scheduler does not start on a server of Wine that was started by itself.
    void SetUp() override {
        try {
            deleteTask(kName);
        } catch (const std::runtime_error& refusal) {
            GTEST_SKIP() << refusal.what();
        }
    }
    void TearDown() override {
        if (!IsSkipped()) {
            deleteTask(kName);
        }
    }
};

TEST_F(TaskScheduler, KeepsATaskUntilItIsDeleted) {
    EXPECT_EQ(registeredTask(kName), std::nullopt);
    registerTask(kName, definitionWith("The first"));
    ASSERT_NE(registeredTask(kName), std::nullopt);
    EXPECT_NE(registeredTask(kName)->find("The first"), std::string::npos);
    EXPECT_TRUE(deleteTask(kName));
    EXPECT_EQ(registeredTask(kName), std::nullopt);
    EXPECT_FALSE(deleteTask(kName));
}

TEST_F(TaskScheduler, ANewTaskReplacesTheOldOne) {
    registerTask(kName, definitionWith("The first"));
    registerTask(kName, definitionWith("Gr\xC3\xBC\xC3\x9F"));
    ASSERT_NE(registeredTask(kName), std::nullopt);
    EXPECT_NE(registeredTask(kName)->find("Gr\xC3\xBC\xC3\x9F"), std::string::npos);
    EXPECT_EQ(registeredTask(kName)->find("The first"), std::string::npos);
}

TEST_F(TaskScheduler, WhatIsNoDefinitionIsRefused) {
    EXPECT_THROW(registerTask(kName, "<Task"), std::runtime_error);
    EXPECT_EQ(registeredTask(kName), std::nullopt);
}

}  // namespace
}  // namespace velmora
