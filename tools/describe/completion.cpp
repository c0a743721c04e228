#include "describe/completion.h"

#include <algorithm>

namespace velmora::describe {

Offer offerFor(const ArgumentOutline& argument) {
    const std::vector<std::string> fileOperands = {"FILE", "IN", "OUT", "CODE", "CELLS"};
    const std::string& value = argument.value.empty() ? argument.names.front() : argument.value;
    if (value.starts_with("<file") || std::ranges::find(fileOperands, value) != fileOperands.end()) {
        return Offer::Files;
    }
    if (value == "<folder>") {
        return Offer::Folders;
    }
    if (value == "<port>") {
        return Offer::Ports;
    }
    return value == "NAME" ? Offer::ServerNames : Offer::Nothing;
}

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char letter : text) {
        result += letter == '\'' ? std::string("'\\''") : std::string(1, letter == '\n' ? ' ' : letter);
    }
    return result + "'";
}

std::string functionName(const std::string& program) {
    std::string name = "_" + program;
    std::ranges::replace(name, '-', '_');
    return name;
}

}  // namespace velmora::describe
