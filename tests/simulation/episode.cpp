#include "episode.h"

#include <algorithm>
#include <set>

#include "heap_use.h"
#include "organiser/conversation.h"
#include "organiser_end.h"
#include "serial/mode_string.h"
#include "task.h"
#include "violation.h"

namespace velmora::simulation {
namespace {

constexpr std::size_t kCrowd = 10'000;
/// More than everything that serves the files of an episode.
constexpr std::size_t kMostHeap = 2 * 1024 * 1024;

/// How a conversation ended.
struct Ending {
    bool told = false;  ///< with the good end
    std::optional<LinkFailure> failure;
};

class Episode {
  public:
    Episode(const Plan& plan, bool keepsJournal)
        : plan_(plan),
          journal_(keepsJournal),
          world_(plan.seed, plan.line, journal_),
          files_(world_),
          end_(world_),
          link_(end_, WireTime(*parseModeString(std::to_string(plan.line.baud) + ",N,8,1"))) {}

    EpisodeResult run();

  private:
    void crowdFolder();
    void runStep(const Step& step);
    std::vector<Fault> possibleFaults(const Step& step, const Task& task) const;
    Ending converse(const Task& task);
    void requireListedCode(const LinkFailure& failure) const;
    void requireAsAlways(const Task& task, const Ending& ending) const;
    void requireStatistics(const Task& task, bool told);
    void requireBoundedHeap();
    void letThingsSettle();
    bool serves();
    void requireServes();

    const Plan& plan_;
    Journal journal_;
    World world_;
    KnownFiles files_;
    OrganiserEnd end_;
    OrganiserLink link_;
    EpisodeResult result_;
    std::size_t heapAtFirst_ = 0;
};

ServerSettings anySettings(Random& random) {
    ServerSettings settings;
    settings.dataFileType = static_cast<std::int32_t>(random.below(4));
    settings.commonWorksheets = random.chance(1, 2);
    settings.stayInFolder = random.chance(1, 2);
    settings.stopsOnExit = random.chance(3, 4);
    settings.endsOnShutdown = random.chance(3, 4);
    return settings;
}

EpisodeResult Episode::run() {
    crowdFolder();
    heapAtFirst_ = heapInUse();
    std::size_t number = 0;
    try {
        for (const Step& step : plan_.steps) {
            ++number;
            runStep(step);
            requireBoundedHeap();
        }
    } catch (const Violation& violation) {
        result_.violation = "Step " + std::to_string(number) + ", " +
                            actionName(plan_.steps[number - 1].action) + ": " + violation.what();
    }
    result_.faults = world_.faults().counts();
    result_.checkSum = journal_.checkSum();
    result_.journal = journal_.text();
    return result_;
}

void Episode::crowdFolder() {
    for (std::size_t i = 0; plan_.crowded && i < kCrowd; ++i) {
        files_.put(kDownloadFolder + "/" + std::to_string(i) + ".old",
                   {std::to_string(i), Form::Other, 0, false, {}});
    }
}

void Episode::runStep(const Step& step) {
    Random random(step.seed);
    const ServerSettings settings = anySettings(random);
    journal_.note(world_.time().now(), actionName(step.action));
    TaskContext context{world_, files_, settings, random};
    if (step.action == Action::OtherProgramWrites) {
        letOtherProgramWrite(context);
        return;
    }
    const Task task = makeTask(step.action, context);
    world_.beginStep(possibleFaults(step, task), settings, task.path);
    const Ending ending = converse(task);
    result_.transfers += isTransfer(step.action) ? 1 : 0;
    result_.completed += isTransfer(step.action) && ending.told ? 1 : 0;
    journal_.note(world_.time().now(), ending.told ? "done" : ending.failure->what());
    requireAsAlways(task, ending);
    requireStatistics(task, ending.told);
    const bool hadFaults = world_.faults().any();
    world_.heal();
    if (hadFaults) {
        letThingsSettle();
        // The first request may still find out that something is left over: a server that was asked to stop
        // notices only now that the link has ended; a link request behind the rest of a frame is answered
        // with the acknowledgement of the frame before, which at the sequence 0 looks like its own.
        if (!serves()) {
            world_.heal();
            requireServes();
        }
    }
    files_.settle(task.refusal && !hadFaults ? std::nullopt : task.saving, ending.told, task.path);
}

/// What a power failure leaves of a file whose last save broke off is not known beforehand, and so neither is
/// what a step then loads from it or adds to it.
std::vector<Fault> Episode::possibleFaults(const Step& step, const Task& task) const {
    std::vector<Fault> faults = step.faults;
    const KnownFile* file = files_.find(task.path);
    const bool replaces = task.saving && task.saving->replaces;
    if (file != nullptr && !replaces && (!file->others.empty() || file->mayVanish)) {
        std::erase_if(faults, [](const Fault& fault) {
            return fault.kind == FaultKind::PowerFails || fault.kind == FaultKind::PowerFailsMeanwhile;
        });
    }
    return faults;
}

Ending Episode::converse(const Task& task) {
    Ending ending;
    try {
        task.converse(link_);
        ending.told = true;
        if (task.saving) {
            files_.requireSaved(*task.saving);
        }
    } catch (const LinkFailure& failure) {
        ending.failure = failure;
    }
    link_.end();
    return ending;
}

/// A refusal is one of the codes, the link's own reasons, or the number of a failed file operation.
void Episode::requireListedCode(const LinkFailure& failure) const {
    static const std::set<int> kCodes = {kCodeRecordTooLong,
                                         kCodeDiskFull,
                                         kCodeFileExists,
                                         kCodeNotPossible,
                                         kCodeFileNotFound,
                                         kCodeInvalidRequest,
                                         kCodeAlreadyOpen,
                                         kCodeEndOfFile,
                                         kCodeNone,
                                         static_cast<unsigned char>(kReasonTooManyErrors),
                                         static_cast<unsigned char>(kReasonWrongSequence)};
    static const std::set<int> kFileErrors = {53, 57, 58, 61, 64, 67, 70, 71, 75, 76};
    require(failure.kind() != LinkFailure::Kind::Unexpected,
            std::string("An answer made no sense: ") + failure.what());
    if (failure.kind() != LinkFailure::Kind::Refused) {
        return;
    }
    const std::string& reason = failure.reason();
    const bool listed =
        reason.size() == 1 && (kCodes.count(failure.code()) + kFileErrors.count(failure.code())) > 0;
    const bool digits = reason.size() == 2 && kFileErrors.count(std::atoi(reason.c_str())) > 0;
    require(listed || digits, std::string("A refusal with no known code: ") + failure.what());
}

void Episode::requireAsAlways(const Task& task, const Ending& ending) const {
    if (ending.failure) {
        requireListedCode(*ending.failure);
    }
    require(!(ending.told && task.refusal), "The server did what it had to refuse.");
    if (world_.faults().any()) {
        return;
    }
    if (task.refusal) {
        require(ending.failure->reason() == *task.refusal,
                std::string("The server refused for another reason: ") + ending.failure->what());
    } else if (ending.failure) {
        throw Violation(std::string("Nothing was wrong, but: ") + ending.failure->what());
    }
}

/// The counters tell what went over the line: all of it after a good end, no more than that otherwise.
void Episode::requireStatistics(const Task& task, bool told) {
    if (world_.serverEnded() || !world_.serverRuns() || task.refusal) {
        return;
    }
    const Statistics shown = world_.server().statistics();
    Statistics most = task.statistics;
    if (task.oneAnswer && world_.faults().any()) {
        require(shown.bytesSent % most.bytesSent == 0, "The counters tell a part of an answer.");
        most.bytesSent = shown.bytesSent;
    }
    if (told) {
        require(shown == most, "The counters do not tell what went over the line.");
    }
    require(shown.bytesReceived <= most.bytesReceived && shown.bytesSent <= most.bytesSent &&
                shown.filesReceived <= most.filesReceived && shown.filesSent <= most.filesSent,
            "The counters tell more than went over the line.");
}

void Episode::requireBoundedHeap() {
    const std::size_t known = heapAtFirst_ + journal_.text().capacity() + world_.disk().heldBytes();
    const std::size_t now = heapInUse();
    result_.heap = std::max(result_.heap, now - std::min(now, known));
    require(result_.heap <= kMostHeap, "The server holds more and more memory.");
}

/// Copies of frames that a bad line held back arrive; a user is slower than that.
void Episode::letThingsSettle() {
    do {
        world_.run(std::chrono::seconds(2));
    } while (!world_.line().silent());
    world_.line().discard(Direction::ToOrganiser);
    world_.heal();
}

bool Episode::serves() {
    try {
        requireServes();
        return true;
    } catch (const Violation&) {
        link_.end();
        letThingsSettle();
        return false;
    }
}

void Episode::requireServes() {
    try {
        const std::string time = openService(link_, "TIME");
        require(time.size() == 19, "The server answers a request after a fault wrongly.");
    } catch (const LinkFailure& failure) {
        throw Violation(std::string("After a fault the server does not serve: ") + failure.what());
    }
    link_.end();
    require(world_.disk().openFiles() == 0, "A file stays open although nobody uses it.");
}

}  // namespace

EpisodeResult runEpisode(const Plan& plan, bool keepsJournal) {
    return Episode(plan, keepsJournal).run();
}

}  // namespace velmora::simulation
