// --install-task and --remove-task: the server as a task of Windows.
#pragma once

#include <string>
#include <vector>

namespace velmora {

/// Has Windows start this program with these arguments (UTF-8) whenever this user logs on, in the current
/// folder; a task that was there before is replaced. Returns what to tell the user. Throws
/// std::runtime_error when Windows refuses.
std::string installLogonTask(const std::vector<std::string>& arguments);

/// Removes the task; a server that it has started goes on. Returns what to tell the user. Throws
/// std::runtime_error when there is no such task, or Windows refuses.
std::string removeLogonTask();

}  // namespace velmora
