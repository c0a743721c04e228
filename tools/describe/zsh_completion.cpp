// The completion of zsh.
#include "describe/completion.h"

namespace velmora::describe {
namespace {

/// A help in brackets, as _arguments takes it behind an option.
std::string bracketed(const std::string& help) {
    std::string result = "[";
    for (const char letter : help) {
        result += letter == '[' || letter == ']' ? std::string("\\") + letter : std::string(1, letter);
    }
    return result + "]";
}

std::string actionFor(Offer offer, const std::string& function) {
    switch (offer) {
        case Offer::Files:
            return "_files";
        case Offer::Folders:
            return "_directories";
        case Offer::Ports:
            return function + "_ports";
        case Offer::ServerNames:
            return function + "_names";
        case Offer::Nothing:
            break;
    }
    return "";
}

/// "<file>" without its brackets.
std::string bare(const std::string& value) {
    std::string result;
    for (const char letter : value) {
        result += letter == '<' || letter == '>' || letter == ':' ? "" : std::string(1, letter);
    }
    return result;
}

std::string optionSpecs(const CommandOutline& command, const std::string& function) {
    std::string specs;
    for (const ArgumentOutline& option : command.options) {
        for (const std::string& name : option.names) {
            std::string spec = name;
            const bool isLong = name.starts_with("--");
            if (takesNextWord(option)) {
                spec += (isLong ? "=" : "") + bracketed(option.help) + ":" + bare(option.value) + ":" +
                        actionFor(offerFor(option), function);
            } else if (!option.value.empty()) {
                spec += "=-" + bracketed(option.help) + "::value:";
            } else {
                spec += bracketed(option.help);
            }
            specs += " \\\n        " + quoted(spec);
        }
    }
    return specs;
}

std::string operandSpecs(const CommandOutline& command, const std::string& function) {
    std::string specs;
    for (const ArgumentOutline& operand : command.operands) {
        specs += " \\\n        " +
                 quoted(":" + operand.names.front() + ":" + actionFor(offerFor(operand), function));
    }
    return specs;
}

/// The functions of a command and of those below it; `common` has the program's options as _arguments takes
/// them.
std::string functions(const CommandOutline& command, const std::string& name, const std::string& program,
                      const std::string& common) {
    const std::string specs = common + optionSpecs(command, program) + operandSpecs(command, program);
    if (command.commands.empty()) {
        return name + "() {\n    _arguments" + specs + "\n}\n";
    }
    std::string text;
    std::string list;
    std::string cases;
    for (const CommandOutline& below : command.commands) {
        const std::string function = name + "_" + below.name;
        text += functions(below, function, program, common.empty() ? optionSpecs(command, program) : common);
        list += "\n        " + quoted(below.name + ":" + below.purpose);
        cases += "        " + below.name + ") " + function + " ;;\n";
    }
    return text + name + "_commands() {\n    local -a commands=(" + list +
           ")\n    _describe command commands\n}\n" + name +
           "() {\n    local context state state_descr line curcontext=\"$curcontext\"\n"
           "    local -A opt_args\n    _arguments -C" +
           specs + " \\\n        " + quoted(": :" + name + "_commands") +
           " \\\n        '*:: :->below' && return\n    [[ $state == below ]] || return 1\n    case $line[1] "
           "in\n" +
           cases + "    esac\n}\n";
}

}  // namespace

std::string zshCompletion(const ProgramOutline& program) {
    const std::string function = functionName(program.name);
    return "#compdef " + program.name + "\n# zsh completion of " + program.name + "\n" + function +
           "_ports() {\n    local -a ports=(${(f)\"$(" + program.name + kListPorts +
           ")\"})\n    compadd -a ports\n}\n" + function + "_names() {\n    _files -W \"$(" + kServedFolder +
           ")\"\n}\n" + functions(program, function, function, "") + function + " \"$@\"\n";
}

}  // namespace velmora::describe
