// The mapping of names on a real disk with drives.
#include <gtest/gtest.h>

#include "platform/win32/win32_files.h"
#include "platform/windows_paths.h"
#include "services/tools.h"
#include "support/temp_folder.h"
#include "support/windows_name_cases.h"

namespace velmora {
namespace {

using test::NameCase;

class Win32Names : public testing::TestWithParam<NameCase> {
  protected:
    void SetUp() override {
        // With the letters as stored, since existing files are given so.
        const std::string marker = files.storedPath(folder.write("marker"));
        base = marker.substr(0, marker.rfind('\\'));
        if (base.substr(0, 3) != "C:\\") {
            GTEST_SKIP() << "the temporary folder is not on drive C: " << base;
        }
        for (const char* name : test::kNameCaseFolders) {
            files.createFolder(base + name);
        }
        for (const char* name : test::kNameCaseFiles) {
            files.open(base + name, OpenMode::CreateNew);
        }
        settings.DownloadPath = base + "\\Psion";
    }

    test::TempFolder folder;
    Win32Files files{folder.path()};
    WindowsPaths rules{"C:\\Program Files\\Velmora"};
    TransferSettings settings;
    Tools tools{files, rules, settings};
    std::string base;
};

TEST_P(Win32Names, AreMappedAsInMemory) {
    const NameCase& row = GetParam();
    EXPECT_EQ(tools.map_FileName(test::placed(row.name, base), row.resolveExisting, row.allowWildcards),
              test::placed(row.path, base));
}

INSTANTIATE_TEST_SUITE_P(Rows, Win32Names, testing::ValuesIn(test::windowsNameCases()), test::titleOf);

TEST_F(Win32Names, FindAFileByTheShortNameThatIsListed) {
    const std::string path = base + "\\Psion\\Longer file name.txt";
    files.open(path, OpenMode::CreateNew);
    std::string shortName;
    files.listFiles(settings.DownloadPath, ShortNames::Include, [&](const FolderEntry& entry) {
        shortName = entry.name == "Longer file name.txt" ? entry.shortName : shortName;
    });
    ASSERT_NE(shortName.find('~'), std::string::npos) << shortName;
    EXPECT_EQ(tools.map_FileName(translate_Chars(shortName, "~", ">"), true, false), path);
}

TEST_F(Win32Names, WorkWithTheRootOfADriveAsTheDownloadFolder) {
    for (const char* root : {"C:\\", "C:"}) {
        settings.DownloadPath = root;
        EXPECT_EQ(tools.map_FileName("MEMO", false, false), "C:\\Memo") << root;
        EXPECT_EQ(tools.map_FileName("C:MEMO", false, false), "C:\\Memo") << root;
        EXPECT_EQ(tools.map_FileName("\\MEMO", false, false), "C:\\Memo") << root;
    }
}

}  // namespace
}  // namespace velmora
