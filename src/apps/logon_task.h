// The task by which Windows starts the server whenever its user logs on.
#pragma once

#include <string>
#include <vector>

namespace velmora {

/// What a task starts, and for whom. All texts are UTF-8.
struct LogonTask {
    std::string user;                    ///< "COMPUTER\name"
    std::string program;                 ///< its full path
    std::vector<std::string> arguments;  ///< behind the program's name
    std::string folder;  ///< in which it runs: relative paths among the arguments mean this one
};

/// The task as the Task Scheduler takes it: XML of its schema 1.2. It starts once per logon of its user, with
/// his rights, runs as long as it wants to, and neither waits for mains power nor ends without it.
std::string taskDefinition(const LogonTask& task);

/// The words as one command line that CommandLineToArgvW takes apart into them again.
std::string windowsCommandLine(const std::vector<std::string>& words);

}  // namespace velmora
