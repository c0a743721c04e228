// Runs episodes until the time or the transfers are through; tells the first broken promise and how to see it
// again. See scripts/simulate.sh.
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

#include "episode.h"
#include "shrinker.h"

namespace velmora::simulation {
namespace {

struct Options {
    std::optional<double> seconds;
    std::optional<std::uint64_t> transfers;
    std::optional<std::uint64_t> episodes;
    std::uint64_t seed = 1;
    std::string journal;  ///< file for the journal of the first episode
};

constexpr const char* kUsage =
    "velmora-simulate [--seconds N] [--transfers N] [--episodes N] [--seed S] [--journal FILE]\n";

Options read(int count, char** arguments) {
    Options options;
    for (int i = 1; i + 1 < count; i += 2) {
        const std::string name = arguments[i];
        const std::string value = arguments[i + 1];
        if (name == "--seconds") {
            options.seconds = std::stod(value);
        } else if (name == "--transfers") {
            options.transfers = std::stoull(value);
        } else if (name == "--episodes") {
            options.episodes = std::stoull(value);
        } else if (name == "--seed") {
            options.seed = std::stoull(value);
        } else if (name == "--journal") {
            options.journal = value;
        } else {
            throw std::invalid_argument(name);
        }
    }
    if (count % 2 == 0) {
        throw std::invalid_argument(arguments[count - 1]);
    }
    if (!options.seconds && !options.transfers && !options.episodes) {
        options.seconds = 10;
    }
    return options;
}

struct Totals {
    std::uint64_t episodes = 0;
    std::uint64_t transfers = 0;
    std::uint64_t completed = 0;
    FaultCounts faults{};
    double seconds = 0;

    void add(const EpisodeResult& result) {
        ++episodes;
        transfers += result.transfers;
        completed += result.completed;
        for (std::size_t i = 0; i < kFaultKinds; ++i) {
            faults[i] += result.faults[i];
        }
    }
};

void tell(const Totals& totals, const Options& options) {
    std::uint64_t all = 0;
    for (std::size_t i = 0; i < kFaultKinds; ++i) {
        std::cout << "  " << faultName(static_cast<FaultKind>(i)) << ": " << totals.faults[i] << '\n';
        all += totals.faults[i];
    }
    std::cout << totals.transfers << " transfers (" << totals.completed << " completed) in "
              << totals.episodes << " episodes from seed " << options.seed << ", " << all << " faults, "
              << static_cast<std::uint64_t>(static_cast<double>(totals.transfers) / totals.seconds)
              << " transfers a second, every promise kept\n";
}

/// The last lines of a text.
std::string lastLines(const std::string& text, int count) {
    std::size_t begin = text.size();
    while (count-- >= 0 && begin > 0) {
        begin = text.rfind('\n', begin - 1);
        if (begin == std::string::npos) {
            return text;
        }
    }
    return text.substr(begin + 1);
}

int tellViolation(const Plan& plan, const std::string& violation) {
    std::cout << "seed " << plan.seed << ": " << violation
              << "\nIt happens again with:\n  scripts/simulate.sh --seed " << plan.seed << " --episodes 1\n"
              << "Looking for the fewest faults..." << std::endl;
    const Plan least =
        shrink(plan, [](const Plan& smaller) { return runEpisode(smaller).violation.has_value(); });
    std::cout << "Of " << plan.steps.size() << " steps and " << plan.faults() << " faults these are enough:\n"
              << describe(least) << "The end of what happened, with times in microseconds:\n"
              << lastLines(runEpisode(least, true).journal, 40) << *runEpisode(least).violation << '\n';
    return EXIT_FAILURE;
}

int run(const Options& options) {
    using Clock = std::chrono::steady_clock;
    const auto began = Clock::now();
    Totals totals;
    const auto goesOn = [&] {
        totals.seconds = std::chrono::duration<double>(Clock::now() - began).count();
        return !(options.seconds && totals.seconds >= *options.seconds) &&
               !(options.transfers && totals.transfers >= *options.transfers) &&
               !(options.episodes && totals.episodes >= *options.episodes);
    };
    while (goesOn()) {
        const Plan plan = Plan::ofSeed(options.seed + totals.episodes);
        const bool keepsJournal = !options.journal.empty() && totals.episodes == 0;
        const EpisodeResult result = runEpisode(plan, keepsJournal);
        totals.add(result);
        if (keepsJournal) {
            std::ofstream(options.journal) << result.journal;
        }
        if (result.violation) {
            return tellViolation(plan, *result.violation);
        }
    }
    tell(totals, options);
    return EXIT_SUCCESS;
}

}  // namespace
}  // namespace velmora::simulation

int main(int count, char** arguments) {
    using namespace velmora::simulation;
    try {
        return run(read(count, arguments));
    } catch (const std::logic_error& error) {
        std::cerr << "velmora-simulate: " << error.what() << '\n' << kUsage;
        return 2;
    }
}
