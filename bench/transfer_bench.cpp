// What a transfer's news cost the link, with everybody who listens to them.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <memory>

#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/simple_names.h"
#include "transfers/transfer_history.h"
#include "transfers/transfers.h"
#include "ui/qt/frm_transfers.h"
#include "ui/server_log.h"
#include "ui/transfer_list.h"

namespace {

using namespace velmora;

constexpr std::size_t kRecord = 60;

Transfer journal() {
    Transfer transfer;
    transfer.name = "Journal.odb";
    transfer.path = "/home/anna/Documents/Psion Files/Journal.odb";
    return transfer;
}

/// The desktop's listeners: a full table that is seen, and the history.
class Desktop {
  public:
    explicit Desktop(Transfers& transfers) {
        for (std::size_t i = 0; i < TransferList::kMost; ++i) {
            list_.transferEnded(journal(), {});
        }
        window_.show();
        QApplication::processEvents();
        transfers.observe(list_);
        transfers.observe(history_);
    }

  private:
    static constexpr int kNoArguments = 1;
    int argc_ = kNoArguments;
    char name_[16] = "transfer_bench";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
    test::MemoryFiles files_;
    test::SimplePathRules rules_;
    test::FakeTime time_;
    Timer& timer_ = time_.makeTimer();
    TransferHistory history_{files_, rules_, "/Transfers.jsonl", timer_, [](const std::string&) {}};
    TransferList list_{[](const DateTime& moment) { return moment; }};
    frmTransfers window_{list_, {}};
};

/// The listener of the server without a window, in the form with the most words.
class Headless {
  public:
    explicit Headless(Transfers& transfers) { transfers.observe(log_); }

  private:
    test::FakeTime time_;
    ServerLog log_{[](const std::string& line) { benchmark::DoNotOptimize(line.data()); },
                   [](const std::string&) {}, time_, LogFormat::Json, false};
};

/// One message's news of a transfer that is under way.
template <typename Listeners>
void Moved(benchmark::State& state) {
    test::FakeTime time;
    Transfers transfers(time);
    const Listeners listeners(transfers);
    transfers.ask(journal());
    transfers.begin();
    for (auto step : state) {
        // At 9600 baud, ten bits a byte.
        time.advance(std::chrono::milliseconds{kRecord});
        transfers.moved(kRecord);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Moved<Desktop>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Moved<Headless>)->Unit(benchmark::kMicrosecond);

/// A transfer from its request to its end: three pieces of news.
template <typename Listeners>
void Whole(benchmark::State& state) {
    test::FakeTime time;
    Transfers transfers(time);
    const Listeners listeners(transfers);
    for (auto step : state) {
        transfers.ask(journal());
        transfers.begin();
        transfers.moved(kRecord);
        transfers.complete();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(Whole<Desktop>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Whole<Headless>)->Unit(benchmark::kMicrosecond);

}  // namespace
