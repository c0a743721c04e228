// Folders of many files: how long it takes to find a name and to list all of them grows with their number,
// not with its square.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/posix/posix_files.h"
#include "platform/short_names.h"
#include "support/temp_folder.h"

namespace {

using namespace velmora;

constexpr std::int64_t kFewest = 1'000;
constexpr std::int64_t kMost = 100'000;

/// A folder of as many files as a benchmark is called with, whose short names all begin alike.
class ManyFiles {
  public:
    explicit ManyFiles(std::int64_t count) : files(folder.path()) {
        for (std::int64_t i = 0; i < count; ++i) {
            folder.write("Measurement " + std::to_string(i));
        }
    }

    test::TempFolder folder;
    PosixFiles files;
};

void lookFor(benchmark::State& state, const std::string& name, bool isThere) {
    ManyFiles many(state.range(0));
    for (auto _ : state) {
        if (many.files.fileExists(many.folder.path(name)) != isThere) {
            state.SkipWithError("the wrong answer");
        }
    }
    state.SetComplexityN(state.range(0));
}

void listAll(benchmark::State& state) {
    ManyFiles many(state.range(0));
    for (auto _ : state) {
        std::int64_t seen = 0;
        many.files.listFiles(many.folder.path(), ShortNames::Include, [&](const FolderEntry&) { ++seen; });
        if (seen != state.range(0)) {
            state.SkipWithError("not every file was listed");
        }
    }
    state.SetComplexityN(state.range(0));
}

void nameAll(benchmark::State& state) {
    std::vector<std::string> names;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        names.push_back("measurement " + std::to_string(i) + ".txt");
    }
    std::sort(names.begin(), names.end());
    for (auto _ : state) {
        benchmark::DoNotOptimize(shortNames(names));
    }
    state.SetComplexityN(state.range(0));
}

void overFolderSizes(benchmark::internal::Benchmark* bench) {
    bench->Unit(benchmark::kMillisecond)->RangeMultiplier(10)->Range(kFewest, kMost)->Complexity();
}
BENCHMARK_CAPTURE(lookFor, NameThatIsNotThere, "NO SUCH FILE", false)->Apply(overFolderSizes);
BENCHMARK_CAPTURE(lookFor, NameInCapitals, "MEASUREMENT 777", true)->Apply(overFolderSizes);
BENCHMARK_CAPTURE(lookFor, ShortName, "MEAS~999", true)->Apply(overFolderSizes);
BENCHMARK(listAll)->Apply(overFolderSizes);
BENCHMARK(nameAll)->Apply(overFolderSizes);

}  // namespace
