#include "files/boot_command.h"

#include "files/tool_fixture.h"
#include "services/boot_file.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class BootCommandTest : public test::ToolTest {
  protected:
    BootCommandTest() { memory.addFile("/w/code", "\x12\x34\x00\x05\x01"s); }
    void make(const std::string& offsets) {
        EXPECT_EQ(run({"boot", "make", "/w/code", "--relocations", offsets, "-o", "/w/a.bin"}), 0)
            << complaint;
    }
};

TEST_F(BootCommandTest, MakesAFileThatIsRight) {
    make("0,0x2");
    EXPECT_EQ(memory.content("/w/a.bin"), "\0\5\x12\x34\x00\x05\x01\0\x4C\0\2\0\0\0\2\0\2"s);
    EXPECT_EQ(run({"boot", "check", "/w/a.bin"}), 0);
    expectPrinted("Code:        5 bytes, sum 0x004C, check 0x004C");
    expectPrinted("Relocations: 2, sum 0x0002, check 0x0002");
    expectPrinted("  0x0000: word 0x1234\n  0x0002: word 0x0005\n");
    expectPrinted("Problem:     none");
}

TEST_F(BootCommandTest, TheTablesSumIsThatOfItsWords) {
    memory.addFile("/w/code", std::string(300, 'x'));
    make("0x102");
    EXPECT_EQ(run({"boot", "check", "/w/a.bin"}), 0);
    expectPrinted("Relocations: 1, sum 0x0102, check 0x0102");
}

TEST_F(BootCommandTest, OffsetsMayBeNoneOrComeFromAFile) {
    make("");
    EXPECT_EQ(readBootFile(memory.content("/w/a.bin")).relocations, "");
    memory.addFile("/w/offsets", "0\r\n0x3\n");
    make("@/w/offsets");
    EXPECT_EQ(readBootFile(memory.content("/w/a.bin")).relocations, "\0\0\0\3"s);
}

TEST_F(BootCommandTest, RefusesOffsetsThatAreNone) {
    for (const char* offsets : {"4", "x", "0x", "-1", "65536", "0x10000", "1.5"}) {
        expectUsage({"boot", "make", "/w/code", "--relocations", offsets, "-o", "/w/a.bin"}, "offset");
    }
    EXPECT_FALSE(memory.fileExists("/w/a.bin"));
}

TEST_F(BootCommandTest, SaysWhatIsWrongWithAFile) {
    make("0");
    const std::string good = memory.content("/w/a.bin");
    std::string bad = good;
    bad[3] = '\x7F';
    memory.addFile("/w/bad.bin", bad);
    EXPECT_EQ(run({"boot", "check", "/w/bad.bin"}), 1);
    expectPrinted("the code check is not the sum of the code");
    bad = good;
    bad[12] = '\x01';
    memory.addFile("/w/bad.bin", bad);
    EXPECT_EQ(run({"boot", "check", "/w/bad.bin"}), 1);
    expectPrinted("the table check is not the sum of the table");
    for (std::size_t length = 0; length < good.size(); ++length) {
        EXPECT_EQ(run({"boot", "check", "-"}, good.substr(0, length)), 1) << length;
        expectPrinted("the file ends before");
    }
    EXPECT_EQ(run({"boot", "check", "-"}, makeBootFile("ab", "\0\1"s)), 1);
    expectPrinted("outside the code");
}

TEST_F(BootCommandTest, SaysWhatIsMissing) {
    expectUsage({"boot"}, "a command is missing: make or check");
    expectUsage({"boot", "burn"}, "burn");
    expectUsage({"boot", "make"}, "CODE");
    expectUsage({"boot", "make", "/w/code", "--relocations", ""}, "-o");
    expectUsage({"boot", "make", "/w/code", "-o", "/w/a.bin"}, "--relocations");
    expectUsage({"boot", "check"}, "FILE is required");
    expectUsage({"boot", "check", "/w/a.bin", "-o", "x"}, "-o does not go with check");
}

TEST_F(BootCommandTest, CodeThatIsTooLongIsAFailure) {
    memory.addFile("/w/long", std::string(65'536, 'x'));
    EXPECT_EQ(run({"boot", "make", "/w/long", "--relocations", "", "-o", "/w/a.bin"}), 1);
    EXPECT_FALSE(memory.fileExists("/w/a.bin"));
}

}  // namespace
}  // namespace velmora
