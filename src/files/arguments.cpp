#include "files/arguments.h"

#include <algorithm>

namespace velmora {

Arguments::Arguments(const std::vector<std::string>& arguments, const std::vector<std::string>& known) {
    bool wordsOnly = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (wordsOnly || argument.size() < 2 || argument.front() != '-') {
            words_.push_back(argument);
            continue;
        }
        if (argument == "--") {
            wordsOnly = true;
            continue;
        }
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        if (std::find(known.begin(), known.end(), name) == known.end()) {
            throw UsageError("unknown option " + name);
        }
        std::string value;
        if (equals != std::string::npos) {
            value = argument.substr(equals + 1);
        } else if (++i < arguments.size()) {
            value = arguments[i];
        } else {
            throw UsageError(name + " needs a value");
        }
        if (!options_.emplace(name, value).second) {
            throw UsageError(name + " is given twice");
        }
    }
}

std::string Arguments::value(const std::string& option) const {
    const auto found = options_.find(option);
    return found == options_.end() ? std::string() : found->second;
}

void Arguments::requireWords(const std::vector<std::string>& names) const {
    if (words_.size() < names.size()) {
        throw UsageError(names[words_.size()] + " is missing");
    }
    if (words_.size() > names.size()) {
        throw UsageError("\"" + words_[names.size()] + "\" is one argument too many");
    }
}

}  // namespace velmora
