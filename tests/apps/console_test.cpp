#include "apps/console.h"

#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

TEST(ConsoleTest, AFileIsNoTerminal) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), std::fclose);
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(isTerminal(file.get()));
}

TEST(ConsoleTest, TheNullDeviceIsNoTerminal) {
#ifdef _WIN32
    const char* const device = "NUL";
#else
    const char* const device = "/dev/null";
#endif
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(device, "wb"), std::fclose);
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(isTerminal(file.get()));
}

#ifndef _WIN32
// On Windows the arguments are the process's own, whatever main() was given; there the end-to-end tests have
// names outside the ANSI code page.
TEST(ConsoleTest, TheArgumentsAreThoseBehindTheProgramsName) {
    char program[] = "program";
    char first[] = "first";
    char second[] = "zwei \xC3\xA4";
    char* arguments[] = {program, first, second, nullptr};
    EXPECT_EQ(utf8Arguments(3, arguments), (std::vector<std::string>{"first", "zwei \xC3\xA4"}));
    EXPECT_EQ(systemArguments(3, arguments), (std::vector<std::string>{"first", "zwei \xC3\xA4"}));
}
#endif

}  // namespace
}  // namespace velmora
