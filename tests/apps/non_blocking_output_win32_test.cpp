#include <fcntl.h>
#include <gtest/gtest.h>
#include <io.h>
#include <windows.h>

#include <cstdint>
#include <memory>
#include <string>

#include "apps/non_blocking_output.h"

namespace velmora {
namespace {

class NonBlockingOutputTest : public testing::Test {
  protected:
    void SetUp() override {
        HANDLE writer = nullptr;
        ASSERT_TRUE(CreatePipe(&reader, &writer, nullptr, 4096));
        stream.reset(_fdopen(_open_osfhandle(reinterpret_cast<std::intptr_t>(writer), _O_BINARY), "wb"));
        ASSERT_NE(stream, nullptr);
        write = nonBlockingOutput(stream.get());
    }
    void TearDown() override {
        if (reader != nullptr) {
            CloseHandle(reader);
        }
    }

    HANDLE reader = nullptr;
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream{nullptr, std::fclose};
    LineOutput::Write write;
};

TEST_F(NonBlockingOutputTest, AFullPipeTakesNothingUntilItIsRead) {
    std::size_t held = 0;
    for (const std::size_t size : {1000, 1}) {
        const std::string bytes(size, 'x');
        for (std::size_t taken = 1; taken > 0 && held < 10'000'000;) {
            taken = write(bytes);
            held += taken;
        }
    }
    EXPECT_GT(held, 0U);
    EXPECT_EQ(write("more"), 0U);
    std::string read(held, '\0');
    DWORD count = 0;
    ASSERT_TRUE(ReadFile(reader, read.data(), static_cast<DWORD>(read.size()), &count, nullptr));
    EXPECT_EQ(count, held);
    EXPECT_EQ(write("more"), 4U);
}

TEST_F(NonBlockingOutputTest, APipeWhoseReaderHasGoneTakesEverything) {
    CloseHandle(reader);
    reader = nullptr;
    EXPECT_EQ(write("one"), 3U);
}

}  // namespace
}  // namespace velmora
