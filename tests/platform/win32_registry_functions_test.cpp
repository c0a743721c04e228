#include <gtest/gtest.h>

#include "platform/win32/registry_functions.h"

namespace velmora {
namespace {

constexpr const char* kKey = "SOFTWARE\\Quillbrook\\VelmoraTests\\Functions";
constexpr const char* kKeyAbove = "SOFTWARE\\Quillbrook\\VelmoraTests";

class RegistryFunctions : public ::testing::Test {
  protected:
    RegistryFunctions() { RegDeleteSettingsKey(kKey); }
    ~RegistryFunctions() override {
        RegDeleteSettingsKey(kKey);
        RegDeleteSettingsKey(kKeyAbove);
    }

    static std::optional<std::string> read(const std::string& name) {
        return RegReadValue(HKEY_CURRENT_USER, kKey, name);
    }
    static bool write(const std::string& name, DWORD type, const RegistryValue& value) {
        return RegWriteValue(HKEY_CURRENT_USER, kKey, name, type, value);
    }
    /// Writes bytes as they are; the key must be there.
    static void writeRaw(const std::string& name, DWORD type, const std::string& bytes) {
        ASSERT_EQ(RegSetKeyValueA(HKEY_CURRENT_USER, kKey, name.c_str(), type, bytes.data(),
                                  static_cast<DWORD>(bytes.size())),
                  ERROR_SUCCESS);
    }
};

TEST_F(RegistryFunctions, AMissingKeyOrValueIsNothing) {
    EXPECT_EQ(read("XPos"), std::nullopt);
    ASSERT_TRUE(write("YPos", REG_DWORD, std::uint32_t{1}));
    EXPECT_EQ(read("XPos"), std::nullopt);
}

TEST_F(RegistryFunctions, ANumberReadsAsHexadecimalText) {
    ASSERT_TRUE(write("n", REG_DWORD, std::uint32_t{0xFFFFFF6A}));
    EXPECT_EQ(read("n"), "&hFFFFFF6A");
    ASSERT_TRUE(write("n", REG_DWORD, std::uint32_t{0x0102030A}));
    EXPECT_EQ(read("n"), "&h0102030A");
}

TEST_F(RegistryFunctions, ATextReadsUpToItsFirstZeroByte) {
    ASSERT_TRUE(write("t", REG_SZ, std::string("caf\xE9")));
    EXPECT_EQ(read("t"), "caf\xE9");
    ASSERT_TRUE(write("t", REG_SZ, std::string()));
    EXPECT_EQ(read("t"), "");
    writeRaw("t", REG_SZ, std::string("12\0zz\0", 6));
    EXPECT_EQ(read("t"), "12");
}

TEST_F(RegistryFunctions, ATextFillsTheBufferAtMost) {
    ASSERT_TRUE(write("t", REG_SZ, std::string(1023, 'x')));
    EXPECT_EQ(read("t"), std::string(1023, 'x'));
    ASSERT_TRUE(write("t", REG_SZ, std::string(1024, 'x')));
    EXPECT_EQ(read("t"), std::nullopt);
}

TEST_F(RegistryFunctions, OtherTypesAreNothing) {
    ASSERT_TRUE(write("n", REG_DWORD, std::uint32_t{1}));
    writeRaw("b", REG_BINARY, "abcd");
    EXPECT_EQ(read("b"), std::nullopt);
    EXPECT_FALSE(write("b", REG_BINARY, std::string("x")));
    EXPECT_FALSE(write("n", REG_DWORD, std::string("x")));
    EXPECT_FALSE(write("n", REG_SZ, std::uint32_t{2}));
    EXPECT_EQ(read("n"), "&h00000001");
}

TEST_F(RegistryFunctions, ADeletedKeyHasNoValues) {
    ASSERT_TRUE(write("n", REG_DWORD, std::uint32_t{1}));
    RegDeleteSettingsKey(kKey);
    EXPECT_EQ(read("n"), std::nullopt);
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryFunctions, AKeyThatCannotBeMadeIsAFailure) {
    EXPECT_FALSE(RegWriteValue(HKEY_CURRENT_USER, std::string(300, 'x'), "n", REG_DWORD, std::uint32_t{1}));
}

}  // namespace
}  // namespace velmora
