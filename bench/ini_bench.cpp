// A large configuration file: everything that start-up reads must take less than 50 ms from 1 MB.
#include <benchmark/benchmark.h>

#include <string>

#include "startup/default_ini.h"
#include "startup/messages.h"
#include "startup/settings.h"
#include "support/ini_rig.h"

namespace {

using namespace velmora;

constexpr std::size_t kSize = 1024 * 1024;

/// The default file with a megabyte of lines in front of, or inside, its sections.
std::string foreignSections() {
    std::string file;
    for (int i = 0; file.size() < kSize; ++i) {
        file += "[Section" + std::to_string(i) + "]\r\nKey=some value or other\r\n; a comment\r\n\r\n";
    }
    return file + defaultIni();
}
std::string entriesOfSettings() {
    std::string file = "[Settings]\r\n";
    for (int i = 0; file.size() < kSize; ++i) {
        file += "Key" + std::to_string(i) + "=some value or other\r\n";
    }
    return file + defaultIni();
}
std::string entriesOfTexts() {
    std::string file = "[DisplayStrings]\r\n";
    for (int i = 0; file.size() < kSize; ++i) {
        file += "Key" + std::to_string(i) + "=\"line \xC3\xA9\",\"line 2\"\r\n";
    }
    return file + defaultIni();
}
std::string oneLine() {
    return defaultIni() + std::string(kSize, 'x');
}

void readAtStart(benchmark::State& state, const std::string& file) {
    for (auto _ : state) {
        state.PauseTiming();
        test::IniRig rig;
        rig.given(file);
        state.ResumeTiming();
        Strings strings;
        get_Messages(rig.ini, strings);
        Settings settings;
        readSettings(rig.ini, SettingStep::get_Settings, {}, settings);
        settings.ports = readPortDevices(rig.ini);
        readSettings(rig.ini, SettingStep::init_Ports, {}, settings);
        benchmark::DoNotOptimize(settings);
    }
}

BENCHMARK_CAPTURE(readAtStart, DefaultFile, defaultIni())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readAtStart, ForeignSections, foreignSections())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readAtStart, EntriesOfSettings, entriesOfSettings())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readAtStart, EntriesOfTexts, entriesOfTexts())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readAtStart, OneLine, oneLine())->Unit(benchmark::kMillisecond);

}  // namespace
