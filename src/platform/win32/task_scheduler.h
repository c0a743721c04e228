// The tasks that Windows starts by itself (Task Scheduler 2.0).
#pragma once

#include <optional>
#include <string>

namespace velmora {

/// Registers a task of this user in the scheduler's top folder; one of the same name is replaced. The
/// definition is XML in UTF-8. Throws std::runtime_error that says why Windows refused.
void registerTask(const std::string& name, const std::string& definition);

/// Removes a task; false when there is none of this name. Throws as registerTask does.
bool deleteTask(const std::string& name);

/// The definition of a task as the scheduler keeps it, in UTF-8; nothing when there is none of this name.
/// Throws as registerTask does.
std::optional<std::string> registeredTask(const std::string& name);

}  // namespace velmora
