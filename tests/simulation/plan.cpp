#include "plan.h"

#include <array>
#include <iterator>

#include "random.h"

namespace velmora::simulation {
namespace {

constexpr std::array<const char*, kActions> kNames = {
    "save records",
    "save a procedure",
    "save a block file",
    "write bytes",
    "write lines",
    "append records",
    "append lines",
    "overwrite bytes",
    "save a sheet",
    "load",
    "load a missing file",
    "create a file that exists",
    "list names",
    "fetch boot code",
    "ask for the time",
    "ask for the formats",
    "ask for an unknown service",
    "EXIT",
    "SHUTDOWN",
    "another program writes",
};

/// How often each action comes, of the sum of all.
constexpr std::array<unsigned, kActions> kWeights = {14, 8, 10, 6, 5, 5, 3, 4, 8, 30,
                                                     2,  2, 3,  3, 2, 1, 1, 1, 1, 4};

Action anyAction(Random& random) {
    unsigned sum = 0;
    for (const unsigned weight : kWeights) {
        sum += weight;
    }
    std::uint64_t drawn = random.below(sum);
    std::size_t action = 0;
    while (drawn >= kWeights[action]) {
        drawn -= kWeights[action++];
    }
    return static_cast<Action>(action);
}

Fault lineFault(Random& random, std::uint32_t frame) {
    constexpr std::array kKinds = {FaultKind::Drop,      FaultKind::Drop,     FaultKind::Corrupt,
                                   FaultKind::Duplicate, FaultKind::Truncate, FaultKind::Noise,
                                   FaultKind::Stall};
    const FaultKind kind = random.pick(kKinds);
    const Direction direction = random.chance(1, 2) ? Direction::ToServer : Direction::ToOrganiser;
    const auto amount = static_cast<std::uint32_t>(kind == FaultKind::Stall ? random.between(5, 3'000)
                                                                            : random.below(1U << 20U));
    return {kind, direction, frame, amount};
}

Fault diskFault(Random& random) {
    constexpr std::array kKinds = {FaultKind::DiskFailure, FaultKind::DiskFull,    FaultKind::DiskFull,
                                   FaultKind::FileRemoved, FaultKind::FileRenamed, FaultKind::PowerFails,
                                   FaultKind::PowerFails,  FaultKind::ServerKilled};
    const FaultKind kind = random.pick(kKinds);
    const std::uint64_t most = kind == FaultKind::DiskFull ? 1'500 : 5'000;
    return {kind, Direction::ToServer, static_cast<std::uint32_t>(random.below(14)),
            static_cast<std::uint32_t>(random.below(most))};
}

Fault timedFault(Random& random) {
    constexpr std::array kKinds = {FaultKind::CableCut, FaultKind::CableCut, FaultKind::PowerFailsMeanwhile,
                                   FaultKind::ServerKilledMeanwhile, FaultKind::ServerStopped};
    return {random.pick(kKinds), Direction::ToServer, static_cast<std::uint32_t>(random.below(4'000)),
            static_cast<std::uint32_t>(random.between(1, 8'000))};
}

std::vector<Fault> anyFaults(Random& random) {
    std::vector<Fault> faults;
    switch (random.below(10)) {
        case 0:  // a bad cable
            for (std::uint64_t i = random.between(1, 4); i > 0; --i) {
                faults.push_back(lineFault(random, static_cast<std::uint32_t>(random.below(24))));
            }
            break;
        case 1: {  // one that is bad for a while, so that somebody gives up
            const auto begin = static_cast<std::uint32_t>(random.below(12));
            for (std::uint32_t i = 0; i < random.between(2, 8); ++i) {
                faults.push_back(lineFault(random, begin + i));
            }
            break;
        }
        case 2:
            faults.push_back(diskFault(random));
            break;
        case 3:
            faults.push_back(timedFault(random));
            if (random.chance(1, 3)) {
                faults.push_back(lineFault(random, static_cast<std::uint32_t>(random.below(24))));
            }
            break;
        default:
            break;  // all is well
    }
    return faults;
}

}  // namespace

const char* actionName(Action action) {
    return kNames[static_cast<std::size_t>(action)];
}

bool isTransfer(Action action) {
    return action <= Action::Load || action == Action::FetchBoot;
}

Plan Plan::ofSeed(std::uint64_t seed) {
    constexpr std::size_t kSteps = 60;
    constexpr std::array kRates = {1200U, 9600U, 9600U, 9600U, 19200U, 115'200U};
    Random random(seed * 2 + 1);
    Plan plan;
    plan.seed = seed;
    plan.line.baud = random.pick(kRates);
    plan.line.delay = Time(random.chance(1, 3) ? random.below(20'000) : 0);
    plan.crowded = random.chance(1, 200);
    for (std::size_t i = 0; i < kSteps; ++i) {
        const Action action = anyAction(random);
        const std::uint64_t stepSeed = random.next();
        plan.steps.push_back({action, stepSeed, anyFaults(random)});
    }
    return plan;
}

std::size_t Plan::faults() const {
    std::size_t count = 0;
    for (const Step& step : steps) {
        count += step.faults.size();
    }
    return count;
}

std::string describe(const Plan& plan) {
    std::string text = std::to_string(plan.line.baud) + " baud, " + std::to_string(plan.line.delay.count()) +
                       " microseconds of delay" + (plan.crowded ? ", a crowded folder" : "") + "\n";
    for (const Step& step : plan.steps) {
        text += std::string("  ") + actionName(step.action) + " (" + std::to_string(step.seed) + ")\n";
        for (const Fault& fault : step.faults) {
            text += "    " + describe(fault) + "\n";
        }
    }
    return text;
}

}  // namespace velmora::simulation
