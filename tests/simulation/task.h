// One step as the Organiser does it: the conversation, and what must come of it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "known_files.h"
#include "organiser/organiser_link.h"
#include "plan.h"
#include "random.h"

namespace velmora::simulation {

struct Task {
    /// Talks with the server; throws LinkFailure when it does not come to its end, Violation when what it
    /// was given is not what it must be.
    std::function<void(OrganiserLink&)> converse;
    /// What becomes of a file.
    std::optional<Saving> saving;
    /// The file that is loaded or saved; other programs act on it.
    std::string path;
    /// What the counters show once the conversation came to its end.
    Statistics statistics;
    /// All is answered with the opening of the service. When the server gives a link up and the Organiser's
    /// repeat opens the service on the next one, it is answered, and counted, once more.
    bool oneAnswer = false;
    /// The reason with which the server refuses even if all is well; nothing where it must serve.
    std::optional<std::string> refusal;
};

/// What a task is made from.
struct TaskContext {
    World& world;
    KnownFiles& files;
    const ServerSettings& settings;
    Random random;
};

/// The task of a step. Requires: `action` is one of the Organiser's.
Task makeTask(Action action, TaskContext context);

/// The other program's writing of a step.
void letOtherProgramWrite(TaskContext context);

Task makeFileSaving(Action action, TaskContext& context);
Task makeSheetSaving(TaskContext& context);
Task makeFileLoading(TaskContext& context);
Task makeSheetLoading(const std::string& path, TaskContext& context);
/// Another program puts a worksheet there, with its cells in any order.
void putSheet(TaskContext& context);
/// Another program puts a file of another form there.
void putFile(TaskContext& context);
Task makeQuestion(Action action, TaskContext& context);

}  // namespace velmora::simulation
