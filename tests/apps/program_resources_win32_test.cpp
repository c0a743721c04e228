// Reads what the linker put into the built programs back through the functions that the shell uses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::Not;

struct Program {
    std::string name;
    std::string description;
};

void PrintTo(const Program& program, std::ostream* out) {
    *out << program.name;
}

std::vector<Program> builtPrograms() {
    return {
        {"velmora-doctor", "Velmora cable doctor"},
        {"velmora-files", "Velmora file conversions"},
        {"velmora-organiser", "Velmora virtual Organiser"},
#ifdef VELMORA_WITH_TOOLKIT
        {"velmora", "Velmora"},
        {"velmorad", "Velmora server without a window"},
#endif
    };
}

/// The program's file in the folder beside the one of this test.
std::string pathOf(const Program& program) {
    char own[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, own, sizeof own);
    std::string folder(own);
    folder.erase(folder.rfind('\\'));
    return folder + "\\..\\bin\\" + program.name + ".exe";
}

class ProgramResources : public testing::TestWithParam<Program> {
  protected:
    void SetUp() override {
        const std::string path = pathOf(GetParam());
        DWORD ignored = 0;
        version_.resize(GetFileVersionInfoSizeA(path.c_str(), &ignored));
        ASSERT_FALSE(version_.empty()) << path << " has no version, error " << GetLastError();
        ASSERT_TRUE(
            GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(version_.size()), version_.data()));
        module_ = LoadLibraryExA(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(module_, nullptr) << "error " << GetLastError();
    }

    void TearDown() override {
        if (module_ != nullptr) {
            FreeLibrary(module_);
        }
    }

    /// A text of the version, or nothing when there is none of that name.
    [[nodiscard]] std::optional<std::string> text(const std::string& name) const {
        void* value = nullptr;
        UINT length = 0;
        const std::string block = "\\StringFileInfo\\000004b0\\" + name;
        if (VerQueryValueA(version_.data(), block.c_str(), &value, &length) == 0 || length == 0) {
            return std::nullopt;
        }
        return std::string(static_cast<const char*>(value));
    }

    /// The bytes of a resource; none when it is missing.
    [[nodiscard]] std::string bytes(const char* name, const char* type) const {
        HRSRC found = FindResourceA(module_, name, type);
        if (found == nullptr) {
            return {};
        }
        const void* data = LockResource(LoadResource(module_, found));
        return {static_cast<const char*>(data), SizeofResource(module_, found)};
    }

  private:
    std::vector<char> version_;
    HMODULE module_ = nullptr;
};

TEST_P(ProgramResources, TheVersionTextsNameTheProgramAndItsMaker) {
    EXPECT_EQ(text("CompanyName"), "Quillbrook");
    EXPECT_EQ(text("ProductName"), "Velmora");
    EXPECT_EQ(text("FileVersion"), VELMORA_VERSION);
    EXPECT_EQ(text("ProductVersion"), VELMORA_VERSION);
    EXPECT_EQ(text("FileDescription"), GetParam().description);
    EXPECT_EQ(text("InternalName"), GetParam().name);
    EXPECT_EQ(text("OriginalFilename"), GetParam().name + ".exe");
    EXPECT_THAT(text("LegalCopyright").value_or(""), HasSubstr("The Velmora developers"));
}

TEST_P(ProgramResources, TheVersionNumbersSayTheSameAsTheText) {
    const std::string path = pathOf(GetParam());
    DWORD ignored = 0;
    std::vector<char> version(GetFileVersionInfoSizeA(path.c_str(), &ignored));
    ASSERT_TRUE(GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(version.size()), version.data()));
    void* value = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueA(version.data(), "\\", &value, &length));
    ASSERT_GE(length, sizeof(VS_FIXEDFILEINFO));
    VS_FIXEDFILEINFO fixed = {};
    std::memcpy(&fixed, value, sizeof fixed);
    EXPECT_EQ(std::to_string(HIWORD(fixed.dwFileVersionMS)) + "." +
                  std::to_string(LOWORD(fixed.dwFileVersionMS)) + "." +
                  std::to_string(HIWORD(fixed.dwFileVersionLS)),
              VELMORA_VERSION);
    EXPECT_EQ(fixed.dwProductVersionMS, fixed.dwFileVersionMS);
    EXPECT_EQ(fixed.dwProductVersionLS, fixed.dwFileVersionLS);
    EXPECT_EQ(fixed.dwFileType, static_cast<DWORD>(VFT_APP));
}

// The directory of an icon: six bytes with the number of pictures, then fourteen bytes a picture, of which
// the first is the width, 0 for 256.
TEST_P(ProgramResources, TheIconHasAPictureForEachSizeOfTheShell) {
    const std::string directory = bytes("IDI_ICON1", RT_GROUP_ICON);
    ASSERT_GE(directory.size(), 6U);
    std::uint16_t count = 0;
    std::memcpy(&count, directory.data() + 4, sizeof count);
    ASSERT_GE(directory.size(), 6U + 14U * count);
    std::vector<int> widths;
    for (unsigned i = 0; i < count; ++i) {
        const int width = static_cast<unsigned char>(directory[6 + 14 * i]);
        widths.push_back(width == 0 ? 256 : width);
    }
    std::sort(widths.begin(), widths.end());
    EXPECT_THAT(widths, testing::ElementsAre(16, 24, 32, 48, 64, 128, 256));
}

TEST_P(ProgramResources, TheManifestAsksForNoAdministratorAndForSharpWindows) {
    const std::string manifest = bytes(MAKEINTRESOURCEA(1), RT_MANIFEST);
    EXPECT_THAT(manifest, HasSubstr("level=\"asInvoker\""));
    EXPECT_THAT(manifest, HasSubstr(">PerMonitorV2, PerMonitor<"));
    EXPECT_THAT(manifest, HasSubstr(">true/pm<"));
    EXPECT_THAT(manifest, HasSubstr("Microsoft.Windows.Common-Controls"));
    EXPECT_THAT(manifest, HasSubstr("{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"));
    EXPECT_THAT(manifest, HasSubstr("Quillbrook.Velmora." + GetParam().name + "\""));
}

// The texts of the system's ANSI functions stay in the user's code page.
TEST_P(ProgramResources, TheManifestLeavesTheCodePageAlone) {
    const std::string manifest = bytes(MAKEINTRESOURCEA(1), RT_MANIFEST);
    ASSERT_FALSE(manifest.empty());
    EXPECT_THAT(manifest, Not(HasSubstr("<activeCodePage")));
    EXPECT_THAT(manifest, Not(HasSubstr("<longPathAware")));
}

INSTANTIATE_TEST_SUITE_P(BuiltPrograms, ProgramResources, testing::ValuesIn(builtPrograms()),
                         [](const testing::TestParamInfo<Program>& tested) {
                             std::string name = tested.param.name;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

}  // namespace
