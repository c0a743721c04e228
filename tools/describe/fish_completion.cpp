// The completion of fish.
#include <set>

#include "describe/completion.h"

namespace velmora::describe {
namespace {

std::string argumentsFor(Offer offer, const std::string& program) {
    switch (offer) {
        case Offer::Files:
            return " -F";
        case Offer::Folders:
            return " -a " + quoted("(__fish_complete_directories)");
        case Offer::Ports:
            return " -a \"(" + program + kListPorts + ")\"";
        case Offer::ServerNames:
            return std::string(" -a \"(ls (") + kServedFolder + ") 2>/dev/null)\"";
        case Offer::Nothing:
            break;
    }
    return "";
}

std::string namesOf(const ArgumentOutline& option) {
    std::string names;
    for (const std::string& name : option.names) {
        names += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    }
    return names;
}

/// What of an option is completed behind it.
std::string valueOf(const ArgumentOutline& option, const std::string& program) {
    if (!takesNextWord(option)) {
        return "";
    }
    const Offer offer = offerFor(option);
    return (offer == Offer::Files ? " -r" : " -x") + argumentsFor(offer, program);
}

/// The lines of a command; `condition` holds while it is the one that is typed.
std::string linesOf(const CommandOutline& command, const std::string& program, const std::string& condition) {
    const std::string when = condition.empty() ? "" : " -n " + quoted(condition);
    const std::string begin = "complete -c " + program + when;
    std::string text;
    for (const ArgumentOutline& option : command.options) {
        text += begin + namesOf(option) + valueOf(option, program) + " -d " + quoted(option.help) + "\n";
    }
    std::set<Offer> offers;
    for (const ArgumentOutline& operand : command.operands) {
        offers.insert(offerFor(operand));
    }
    for (const Offer offer : offers) {
        const std::string offered = argumentsFor(offer, program);
        text += offered.empty() ? "" : begin + offered + "\n";
    }
    std::string names;
    for (const CommandOutline& below : command.commands) {
        names += " " + below.name;
    }
    const std::string also = condition.empty() ? "" : condition + "; and ";
    for (const CommandOutline& below : command.commands) {
        text += "complete -c " + program + " -n " + quoted(also + "not __fish_seen_subcommand_from" + names) +
                " -a " + below.name + " -d " + quoted(below.purpose) + "\n";
        text += linesOf(below, program, also + "__fish_seen_subcommand_from " + below.name);
    }
    return text;
}

}  // namespace

std::string fishCompletion(const ProgramOutline& program) {
    return "# fish completion of " + program.name + "\ncomplete -c " + program.name + " -f\n" +
           linesOf(program, program.name, "");
}

}  // namespace velmora::describe
