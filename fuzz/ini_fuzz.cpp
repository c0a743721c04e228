// Any bytes as a configuration file: reading them never fails, an edit changes one line and no other.
#include <cstdint>
#include <string>
#include <vector>

#include "base/message_box.h"
#include "base/run_time_error.h"
#include "platform/profile/profile_encoding.h"
#include "platform/profile/text_profile_files.h"
#include "require.h"
#include "startup/ini_file.h"
#include "startup/messages.h"
#include "startup/settings.h"
#include "support/ini_rig.h"

namespace {

using namespace velmora;
using fuzz::require;

void readEverything(test::IniRig& rig) {
    Strings strings;
    get_Messages(rig.ini, strings);
    readPortDevices(rig.ini);
    for (const SettingStep step : {SettingStep::get_Settings, SettingStep::init_Ports}) {
        try {
            Settings settings;
            readSettings(rig.ini, step, {}, settings);
        } catch (const RunTimeError& error) {
            require(error.number() == 6 || error.number() == 13);
        }
    }
    rig.ini.GetSections();
    rig.ini.SectExist("Settings");
}

/// Whether reading is refused with a type mismatch, as it is for UTF-16, and an edit as well; neither changes
/// the file.
bool isRefused(test::IniRig& rig) {
    const std::string before = rig.contents();
    const auto refuses = [](const auto& use) {
        try {
            use();
        } catch (const RunTimeError& error) {
            return error.errorNumber() == ErrorNumber::TypeMismatch;
        }
        return false;
    };
    rig.ini.setSectionName("Settings");
    return refuses([&] { rig.ini.GetString("Baud", ""); }) &&
           refuses([&] { rig.ini.PutString("Baud", "2400"); }) && rig.contents() == before;
}

/// The file without the part that differs from the other: what both begin and end with.
bool differInOneStretch(const std::string& before, const std::string& after, std::size_t longest) {
    const std::size_t common = std::min(before.size(), after.size());
    std::size_t head = 0;
    while (head < common && before[head] == after[head]) {
        ++head;
    }
    std::size_t tail = 0;
    while (tail < common - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
        ++tail;
    }
    return after.size() - head - tail <= longest;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string before(reinterpret_cast<const char*>(data), size);
    test::IniRig rig;
    rig.given(before);
    if (isUtf16(before)) {
        require(isRefused(rig));
        return 0;
    }
    readEverything(rig);
    require(rig.contents() == before);

    rig.ini.setSectionName("Settings");
    const std::vector<std::string> entries = rig.profiles.getSection("OnExit", test::IniRig::kPath);
    rig.ini.PutString("Baud", "2400");
    require(rig.ini.GetString("Baud", "") == "2400");
    // Line end, header, line end, entry, line end; a replaced line may lose all of its old value.
    require(differInOneStretch(before, rig.contents(), 2 + 10 + 2 + 9 + 2));
    require(rig.profiles.getSection("OnExit", test::IniRig::kPath) == entries);

    rig.ini.PutPath("DownloadPath", "/\xE2\x98\x83");
    require(rig.ini.GetPath("DownloadPath", "") == "/\xE2\x98\x83");
    readEverything(rig);

    rig.ini.DeleteStrEntry("Baud");
    rig.ini.DeleteSection();
    return 0;
}
