#include "platform/win32/win32_file.h"

#include <gtest/gtest.h>

#include "support/run_time_errors.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using test::errorOf;

/// Memory whose last page cannot be read: what is written from it fails half way.
class BrokenBytes {
  public:
    explicit BrokenBytes(std::size_t size)
        : size_(size),
          bytes_(static_cast<char*>(VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE))) {
        DWORD old = 0;
        EXPECT_NE(VirtualProtect(bytes_ + size - kPage, kPage, PAGE_NOACCESS, &old), 0);
    }
    BrokenBytes(const BrokenBytes&) = delete;
    BrokenBytes& operator=(const BrokenBytes&) = delete;
    ~BrokenBytes() { VirtualFree(bytes_, 0, MEM_RELEASE); }
    std::string_view text() const { return {bytes_, size_}; }

  private:
    static constexpr std::size_t kPage = 4096;
    std::size_t size_;
    char* bytes_;
};

class Win32FileTest : public testing::Test {
  protected:
    /// Opens a file with this content.
    std::unique_ptr<Win32File> opened(const std::string& content,
                                      DWORD access = GENERIC_READ | GENERIC_WRITE) {
        const std::string path = folder.write("file", content);
        return std::make_unique<Win32File>(handleOf(path, access), true, path);
    }
    static HANDLE handleOf(const std::string& path, DWORD access) {
        return CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                           0, nullptr);
    }
    test::TempFolder folder;
};

TEST_F(Win32FileTest, AWriteThatFailsHalfWayLeavesTheOldLengthAndPosition) {
    const auto file = opened("12345");
    file->seek(5);
    // More than one call of the system takes, so that the first part is on disk when the second fails.
    const BrokenBytes broken(std::size_t{20} * 1024 * 1024);
    EXPECT_EQ(errorOf([&] { file->write(broken.text()); }), 57);
    EXPECT_EQ(file->position(), 5U);
    EXPECT_EQ(file->size(), 5U);
    EXPECT_EQ(folder.read("file"), "12345");
    file->write("abcdef");
    EXPECT_EQ(folder.read("file"), "12345abcdef");
}

TEST_F(Win32FileTest, AWriteThatFailsBeyondTheEndLeavesTheOldLength) {
    const auto file = opened("12345");
    file->seek(1000);
    const BrokenBytes broken(std::size_t{4} * 4096);
    EXPECT_EQ(errorOf([&] { file->write(broken.text()); }), 57);
    EXPECT_EQ(folder.read("file"), "12345");
}

TEST_F(Win32FileTest, AWriteThatFailsOutrightChangesNothing) {
    const auto file = opened("12345678", GENERIC_READ);
    file->seek(8);
    EXPECT_EQ(errorOf([&] { file->write("x"); }), 75);
    EXPECT_EQ(file->position(), 8U);
    EXPECT_EQ(folder.read("file"), "12345678");
}

TEST_F(Win32FileTest, PositionsThatNoFileCanHaveAreRefused) {
    const auto file = opened("x");
    EXPECT_EQ(errorOf([&] { file->seek(std::uint64_t{1} << 63); }), 5);
    EXPECT_EQ(file->position(), 0U);
    file->seek((std::uint64_t{1} << 63) - 1);
    EXPECT_EQ(errorOf([&] { file->write("xy"); }), 61);
    EXPECT_EQ(folder.read("file"), "x");
}

TEST_F(Win32FileTest, ReadingAtAndBehindTheEndGivesNothing) {
    const auto file = opened("123");
    char bytes[8];
    EXPECT_EQ(file->read(bytes, 8), 3U);
    EXPECT_EQ(file->read(bytes, 8), 0U);
    file->seek(std::uint64_t{5} << 32);
    EXPECT_EQ(file->read(bytes, 8), 0U);
    EXPECT_EQ(file->position(), std::uint64_t{5} << 32);
}

TEST_F(Win32FileTest, WritingNothingIsFine) {
    const auto file = opened("x");
    file->write("");
    EXPECT_EQ(file->position(), 0U);
    EXPECT_EQ(file->size(), 1U);
}

TEST_F(Win32FileTest, BytesPassAsTheyAre) {
    const auto file = opened("");
    const std::string bytes("\r\n\n\x1A\0\xFF", 6);
    file->write(bytes);
    file->close();
    EXPECT_EQ(folder.read("file"), bytes);
}

TEST_F(Win32FileTest, AHandleThatTheSystemTookAwayIsABadFileNumber) {
    const std::string path = folder.write("file", "x");
    const HANDLE handle = handleOf(path, GENERIC_READ | GENERIC_WRITE);
    Win32File file(handle, true, path);
    CloseHandle(handle);
    char byte = 0;
    EXPECT_EQ(errorOf([&] { file.read(&byte, 1); }), 52);
    EXPECT_EQ(errorOf([&] { file.close(); }), 52) << "the system's word on closing is passed on";
}

}  // namespace
}  // namespace velmora
