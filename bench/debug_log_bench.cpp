// What a line costs the link when the shown debug window's log is long already.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <chrono>

#include "base/clock.h"
#include "ui/qt/frm_debug.h"

namespace {

using Microseconds = std::chrono::duration<double, std::micro>;

class StandingClock : public velmora::Clock {
  public:
    velmora::DateTime localTime() const override { return {}; }
    velmora::DateTime universalTime() const override { return {}; }
    double secondsSinceMidnight() const override { return 40'000.25; }
    std::chrono::microseconds monotonic() const override { return {}; }
};

void addLines(velmora::frmDebug& window, std::int64_t count) {
    for (std::int64_t line = 0; line < count; ++line) {
        window.model().addline("PLP: data, number 3, 128 bytes, check OK");
    }
}

/// A batch of lines is added, put on the screen and painted. The argument: lines in the log at first.
void DebugLogBatch(benchmark::State& state) {
    constexpr std::int64_t kBatch = 1000;
    int argc = 1;
    char name[] = "debug_log_bench";
    char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const StandingClock clock;
    velmora::frmDebug window(clock);
    window.show();
    addLines(window, state.range(0));
    window.showWaiting();
    QApplication::processEvents();
    double longest = 0;
    for (auto step : state) {
        addLines(window, kBatch);
        const auto before = std::chrono::steady_clock::now();
        window.showWaiting();
        QApplication::processEvents();
        longest = std::max(longest, Microseconds(std::chrono::steady_clock::now() - before).count());
    }
    state.SetItemsProcessed(state.iterations() * kBatch);
    state.counters["longest_flush_us"] = longest;
}
BENCHMARK(DebugLogBatch)->Arg(0)->Arg(1'000'000)->Iterations(500)->Unit(benchmark::kMicrosecond);

}  // namespace
