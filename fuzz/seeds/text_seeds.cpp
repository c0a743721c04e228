#include <sstream>

#include "link/crc.h"
#include "link/frames.h"
#include "seeds.h"
#include "services/boot_file.h"
#include "startup/default_ini.h"
#include "support/windows_name_cases.h"

namespace velmora::fuzz {
namespace {

using namespace std::string_literals;

void giveConfiguration(const TakeSeed& take) {
    const std::string ini = defaultIni();
    take("ini", ini);
    take("ini", "\xEF\xBB\xBF[Settings]\r\nBaud=4800\r\n\r\n[Ports]\nCOM7=/dev/ttyUSB0\n[OnExit]\nx=y");
    std::istringstream lines(ini);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t begin = line.find('=');
        if (begin != std::string::npos && line.find('"') != std::string::npos) {
            take("display_value", line.substr(begin + 1));
        }
    }
    for (const char* mode : {"9600,N,8,1", "19200, E ,7,2", "baud=110 parity=O data=5 stop=1.5", "BAUD=96"}) {
        take("mode_string", mode);
    }
    take("user_dirs",
         "# folders\nXDG_DESKTOP_DIR=\"$HOME/Desktop\"\n XDG_DOCUMENTS_DIR = \"$HOME/My \\\"Docs\\\"/\" # x\n"
         "XDG_DOCUMENTS_DIR=\"/data/docs\"\n");
}

void giveNames(const TakeSeed& take) {
    for (const test::NameCase& name : test::windowsNameCases()) {
        const int flags = (name.resolveExisting ? 1 : 0) + (name.allowWildcards ? 2 : 0);
        take("map_filename", static_cast<char>(flags) + test::placed(name.name, "C:"));
    }
    for (const char* pattern : {"*", "*.ODB", "LONG*", "[A-M]*", "?EMO.#"}) {
        for (char choice = 0; choice < 4; ++choice) {
            take("folder_listing", choice + counted(pattern) + counted("Memo.odb") + counted("MEMO.1") +
                                       counted("Longer name.odb") + counted("Longer name 2.odb") +
                                       counted("LONGER~1.ODB") + counted("per%cent") + counted(" blank "));
        }
    }
}

void giveFrames(const TakeSeed& take) {
    Crc crc;
    crc.load_CRCtable();
    const auto frame = [&](FrameType type, int sequence, const std::string& data) {
        return buildFrame(crc, type, static_cast<std::uint8_t>(sequence), data);
    };
    const std::string stream = frame(FrameType::Connect, 0, "") + frame(FrameType::Ack, 0, "") +
                               frame(FrameType::Data, 1, "FTRAN\x10\x10\x03") +
                               frame(FrameType::Discon, 0, "\0"s);
    for (const char* sizes : {"\xFF\1", "\x40\7", "\x10\xFF"}) {
        take("frame_cutter", sizes + stream);
        take("frame_cutter", sizes + stream.substr(2) + "\x16\x10" + stream);
    }
    // From each state: link request, acknowledgement and a request, late timers, a failing port.
    for (char state = 0; state < 5; ++state) {
        take("plp", state + "\0\x10\0\0\0\0\0\x19\5FTRAN\0\1\0\5"s);
        take("plp", state + "\6\1\5\6\0\5\7\1\2\0\x19\1x\x0A\3"s);
    }
}

}  // namespace

void giveTextSeeds(const TakeSeed& take) {
    giveConfiguration(take);
    giveNames(take);
    giveFrames(take);
    take("boot_file", makeBootFile(std::string(40, 'x'), "\0\1\0\x10"s));
    take("boot_file", makeBootFile("x", ""));
}

}  // namespace velmora::fuzz
