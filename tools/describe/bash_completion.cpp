// The completion of bash.
#include <map>
#include <set>

#include "describe/completion.h"

namespace velmora::describe {
namespace {

constexpr const char* kWordBeingTyped =
    R"(    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} path='' options='' words='' i
    COMPREPLY=()
    # The shell takes "=" for a word of its own.
    if [[ $current == = ]]; then
        current=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
)";

constexpr const char* kWords = R"(    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
    elif [[ -n $words ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
)";

/// What stands in the script for an offer: it adds to COMPREPLY.
std::string commandFor(Offer offer) {
    const std::string add = "mapfile -t -O \"${#COMPREPLY[@]}\" COMPREPLY < <(";
    const std::string names = "compopt -o filenames 2>/dev/null; ";
    switch (offer) {
        case Offer::Files:
            return names + add + "compgen -f -- \"$current\")";
        case Offer::Folders:
            return names + add + "compgen -d -- \"$current\")";
        case Offer::Ports:
            return add + "compgen -W \"$(\"${COMP_WORDS[0]}\"" + kListPorts + ")\" -- \"$current\")";
        case Offer::ServerNames:
            return names + add + "cd \"$(" + kServedFolder + ")\" && compgen -f -- \"$current\")";
        case Offer::Nothing:
            break;
    }
    return ":";
}

/// A program and its commands, one below the other: the path of each, such as " boot make", and the command.
using Paths = std::map<std::string, const CommandOutline*>;

void addPaths(const CommandOutline& command, const std::string& path, Paths& paths) {
    paths.emplace(path, &command);
    for (const CommandOutline& below : command.commands) {
        addPaths(below, path + " " + below.name, paths);
    }
}

/// The names of options that take a word, by what is offered for it.
std::map<Offer, std::set<std::string>> optionsByOffer(const Paths& paths) {
    std::map<Offer, std::set<std::string>> options;
    for (const auto& [path, command] : paths) {
        for (const ArgumentOutline& option : command->options) {
            if (takesNextWord(option)) {
                options[offerFor(option)].insert(option.names.begin(), option.names.end());
            }
        }
    }
    return options;
}

template <typename Texts>
std::string joined(const Texts& texts, const std::string& before, const std::string& between) {
    std::string result;
    for (const std::string& text : texts) {
        result += (result.empty() ? "" : between) + before + text;
    }
    return result;
}

std::vector<std::string> optionNames(const CommandOutline& command) {
    std::vector<std::string> names;
    for (const ArgumentOutline& option : command.options) {
        names.insert(names.end(), option.names.begin(), option.names.end());
    }
    return names;
}

/// Finds the command, which options with their values may stand before.
std::string pathLoop(const Paths& paths) {
    std::set<std::string> withValue;
    for (const auto& [offer, names] : optionsByOffer(paths)) {
        withValue.insert(names.begin(), names.end());
    }
    std::vector<std::string> commands;
    for (const auto& [path, command] : paths) {
        if (!path.empty()) {
            commands.push_back(quoted(path));
        }
    }
    std::string text =
        "    for ((i = 1; i < COMP_CWORD; ++i)); do\n        case \"$path ${COMP_WORDS[i]}\" in\n";
    if (!withValue.empty()) {
        text += "            " + joined(withValue, "*\\ ", " | ") +
                ")\n                [[ ${COMP_WORDS[i + 1]} != = ]] || ((++i))\n                ((++i))\n"
                "                ;;\n";
    }
    if (!commands.empty()) {
        text += "            " + joined(commands, "", " | ") + ") path+=\" ${COMP_WORDS[i]}\" ;;\n";
    }
    return text + "        esac\n    done\n";
}

std::string valueCases(const Paths& paths) {
    std::string text = "    case \"$previous\" in\n";
    for (const auto& [offer, names] : optionsByOffer(paths)) {
        text += "        " + joined(names, "", " | ") + ")\n            " + commandFor(offer) +
                "\n            return\n            ;;\n";
    }
    return text + "    esac\n";
}

std::string commandCases(const Paths& paths, const CommandOutline& program) {
    std::string text = "    case \"$path\" in\n";
    for (const auto& [path, command] : paths) {
        std::vector<std::string> options = optionNames(*command);
        if (!path.empty()) {
            const std::vector<std::string> common = optionNames(program);
            options.insert(options.end(), common.begin(), common.end());
        }
        std::vector<std::string> below;
        for (const CommandOutline& each : command->commands) {
            below.push_back(each.name);
        }
        text +=
            "        " + quoted(path) + ")\n            options=" + quoted(joined(options, "", " ")) + "\n";
        if (!below.empty()) {
            text += "            words=" + quoted(joined(below, "", " ")) + "\n";
        }
        std::set<Offer> offers;
        for (const ArgumentOutline& operand : command->operands) {
            offers.insert(offerFor(operand));
        }
        for (const Offer offer : offers) {
            text += "            [[ $current == -* ]] || { " + commandFor(offer) + "; }\n";
        }
        text += "            ;;\n";
    }
    return text + "    esac\n";
}

}  // namespace

std::string bashCompletion(const ProgramOutline& program) {
    Paths paths;
    addPaths(program, "", paths);
    const std::string function = functionName(program.name);
    return "# bash completion of " + program.name + "\n" + function + "() {\n" + kWordBeingTyped +
           pathLoop(paths) + valueCases(paths) + commandCases(paths, program) + kWords + "}\ncomplete -F " +
           function + " " + program.name + "\n";
}

}  // namespace velmora::describe
