// The profile functions of Windows with a file to try them on.
#pragma once

#include <windows.h>

#include "platform/known_folders.h"
#include "platform/profile/win32_profile_files.h"
#include "platform/win32/win32_files.h"
#include "platform/windows_paths.h"
#include "support/profile_rig.h"
#include "support/temp_folder.h"

namespace velmora::test {

/// Whether these are the functions of Wine and not those of Windows itself.
inline bool isWine() {
    const HMODULE ntdll = GetModuleHandleA("ntdll.dll");
    return ntdll != nullptr && GetProcAddress(ntdll, "wine_get_version") != nullptr;
}

class Win32ProfileRig : public ProfileRig {
  public:
    ProfileFiles& profiles() override { return profiles_; }
    FailingFiles& files() override { return files_; }
    std::string file() const override { return folder_.path(kName); }
    std::string fileInMissingFolder() const override { return folder_.path("missing\\velmora.ini"); }
    void given(const std::string& contents) override { folder_.write(kName, contents); }
    std::string contents() const override { return folder_.read(kName); }
    void giveFolder() override { folder_.makeFolder(kName); }
    std::size_t filesThere() const override { return folder_.names().size(); }
    int openingOfTheNewFile() const override { return 1; }
    bool holds(UnderWine underWine) const override { return underWine == UnderWine::Alike || !isWine(); }

  private:
    static constexpr const char* kName = "velmora.ini";

    TempFolder folder_;
    Win32Files disk_{folder_.path()};
    FailingFiles files_{disk_};
    WindowsPaths rules_{currentFolder()};
    Win32ProfileFiles profiles_{files_, rules_};
};

}  // namespace velmora::test
