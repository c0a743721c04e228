// An INI object over a file in memory.
#pragma once

#include <string>

#include "platform/profile/text_profile_files.h"
#include "startup/ini_file.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/plain_path_rules.h"
#include "support/recording_box.h"

namespace velmora::test {

struct IniRig {
    static constexpr const char* kPath = "/home/.config/Velmora.ini";

    /// The file with these contents becomes the INI object's.
    void given(const std::string& contents) {
        memory.addFile(kPath, contents);
        ini.setIniFile(kPath);
    }
    std::string contents() const { return memory.content(kPath); }

    MemoryFiles memory;
    FailingFiles files{memory};
    PlainPathRules rules;
    TextProfileFiles profiles{files, rules};
    RecordingBox box;
    clsIniFile ini{profiles, rules, box, "/windows"};
};

}  // namespace velmora::test
