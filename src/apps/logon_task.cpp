#include "apps/logon_task.h"

#include <cstddef>
#include <string_view>

namespace velmora {
namespace {

/// A text between two tags of XML 1.0.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            default:
                result += c;
        }
    }
    return result;
}

/// A backslash is itself, unless quotes follow it: then it takes two to mean one.
std::string quoted(std::string_view word) {
    std::string result = "\"";
    std::size_t backslashes = 0;
    for (const char c : word) {
        if (c == '"') {
            result.append(backslashes + 1, '\\');
        }
        backslashes = c == '\\' ? backslashes + 1 : 0;
        result += c;
    }
    result.append(backslashes, '\\');
    return result + "\"";
}

}  // namespace

std::string windowsCommandLine(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words) {
        const bool plain = !word.empty() && word.find_first_of(" \t\"") == std::string::npos;
        line += (line.empty() ? "" : " ") + (plain ? word : quoted(word));
    }
    return line;
}

std::string taskDefinition(const LogonTask& task) {
    const std::string user = "<UserId>" + escaped(task.user) + "</UserId>";
    return R"(<Task version="1.2" xmlns="http://schemas.microsoft.com/windows/2004/02/mit/task">
  <RegistrationInfo>
    <Description>Serves a Psion Organiser II on a serial port.</Description>
  </RegistrationInfo>
  <Triggers>
    <LogonTrigger>)" +
           user + R"(</LogonTrigger>
  </Triggers>
  <Principals>
    <Principal id="Author">)" +
           user + R"(<LogonType>InteractiveToken</LogonType></Principal>
  </Principals>
  <Settings>
    <MultipleInstancesPolicy>IgnoreNew</MultipleInstancesPolicy>
    <DisallowStartIfOnBatteries>false</DisallowStartIfOnBatteries>
    <StopIfGoingOnBatteries>false</StopIfGoingOnBatteries>
    <ExecutionTimeLimit>PT0S</ExecutionTimeLimit>
  </Settings>
  <Actions Context="Author">
    <Exec>
      <Command>)" +
           escaped(task.program) + R"(</Command>
      <Arguments>)" +
           escaped(windowsCommandLine(task.arguments)) + R"(</Arguments>
      <WorkingDirectory>)" +
           escaped(task.folder) + R"(</WorkingDirectory>
    </Exec>
  </Actions>
</Task>
)";
}

}  // namespace velmora
