#include "arguments/syntax.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>
#include <utility>

#include "arguments/nearest_word.h"
#include "arguments/usage_error.h"
#include "arguments/version.h"

namespace velmora {
namespace {

constexpr std::size_t kHelpColumn = 26;

/// The command that was given, as far down as commands go; the program itself when there was none.
const CLI::App& chosenCommand(const CLI::App& app) {
    const std::vector<CLI::App*> chosen = app.get_subcommands();
    return chosen.empty() ? app : chosenCommand(*chosen.front());
}

std::vector<std::string> optionNames(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options()) {
        for (const std::string& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
        for (const std::string& name : option->get_snames()) {
            names.push_back("-" + name);
        }
    }
    return names;
}

std::vector<std::string> commandNames(const CLI::App& app) {
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands({})) {
        names.push_back(command->get_name());
    }
    return names;
}

/// The option of that name of the program or of any command; null when there is none.
const CLI::Option* findOption(const CLI::App& app, const std::string& name) {
    const CLI::Option* option = app.get_option_no_throw(name);
    for (const CLI::App* command : app.get_subcommands({})) {
        option = option != nullptr ? option : findOption(*command, name);
    }
    return option;
}

bool takesValue(const CLI::App& app, const std::string& name) {
    const CLI::Option* option = findOption(app, name);
    return option != nullptr && option->get_expected_max() > 0;
}

/// The commands below the program that have an option, by name.
std::vector<std::string> commandsWith(const CLI::App& program, const std::string& option) {
    std::vector<std::string> names;
    for (const CLI::App* command : program.get_subcommands({})) {
        if (command->get_option_no_throw(option) != nullptr || !commandsWith(*command, option).empty()) {
            names.push_back(command->get_name());
        }
    }
    return names;
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
    }
    return text;
}

std::string suggestion(const std::string& typed, const std::vector<std::string>& words) {
    const std::string nearest = nearestWord(typed, words);
    return nearest.empty() ? "" : "; did you mean " + nearest + "?";
}

std::string unknownOption(const CLI::App& program, const CLI::App& command, const std::string& word) {
    const std::string name = word.substr(0, word.find('='));
    const std::vector<std::string> commands = commandsWith(program, name);
    if (!commands.empty()) {
        const bool misplaced = &command == &program || findOption(command, name) != nullptr;
        return misplaced ? name + " belongs behind its command: " + joined(commands)
                         : name + " does not go with " + command.get_name();
    }
    std::vector<std::string> names = optionNames(command);
    for (const CLI::App* above = command.get_parent(); above != nullptr; above = above->get_parent()) {
        const std::vector<std::string> more = optionNames(*above);
        names.insert(names.end(), more.begin(), more.end());
    }
    return "there is no option " + name + suggestion(name, names);
}

std::string unknownWord(const CLI::App& program, const CLI::App& command, const std::string& word) {
    if (word.size() > 1 && word.front() == '-') {
        return unknownOption(program, command, word);
    }
    if (command.get_require_subcommand_min() > 0) {
        const std::string nearest = suggestion(word, commandNames(command));
        return "there is no command \"" + word + "\"" +
               (nearest.empty() ? "; " + program.get_name() + " --help lists them" : nearest);
    }
    return "\"" + word + "\" is one argument too many";
}

/// What is wrong with the values of options; empty when it is something else.
std::string valueMismatch(const CLI::App& program, const std::vector<std::string>& arguments) {
    for (const std::string& word : arguments) {
        const std::string name = word.substr(0, word.find('='));
        const CLI::Option* option = findOption(program, name);
        if (name.size() < word.size() && option != nullptr && option->get_disable_flag_override()) {
            return name + " takes no value";
        }
    }
    for (const std::string& word : arguments) {
        const CLI::Option* option = findOption(program, word);
        if (option != nullptr && option->get_type_size() == 2) {
            return word + " needs two values";
        }
    }
    const bool missing = !arguments.empty() && takesValue(program, arguments.back());
    return missing ? arguments.back() + " needs a value" : "";
}

/// The library's error in our words.
std::string complaint(const CLI::App& program, const std::vector<std::string>& arguments,
                      const CLI::ParseError& error) {
    const CLI::App& command = chosenCommand(program);
    std::vector<std::string> unknown = program.remaining(true);
    unknown.erase(std::remove(unknown.begin(), unknown.end(), "--"), unknown.end());
    if (!unknown.empty()) {
        return unknownWord(program, command, unknown.front());
    }
    if (command.get_require_subcommand_min() > 0) {
        return "a command is missing: " + joined(commandNames(command));
    }
    const bool mismatch = dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr;
    const std::string known = mismatch ? valueMismatch(program, arguments) : "";
    return known.empty() ? error.what() : known;
}

/// The arguments in the order that the library wants, the last one first. A value behind "=" becomes a word
/// of its own where the library would see none: an empty one, or one of a short option.
std::vector<std::string> prepared(const CLI::App& app, const std::vector<std::string>& arguments) {
    std::vector<std::string> words;
    bool optionsEnded = false;
    for (const std::string& word : arguments) {
        optionsEnded = optionsEnded || word == "--";
        const std::size_t equals = word.find('=');
        const bool isShort = word.size() > 2 && word[0] == '-' && word[1] != '-';
        if (!optionsEnded && equals != std::string::npos && (equals + 1 == word.size() || isShort) &&
            takesValue(app, word.substr(0, equals))) {
            words.push_back(word.substr(0, equals));
            words.push_back(word.substr(equals + 1));
        } else {
            words.push_back(word);
        }
    }
    std::reverse(words.begin(), words.end());
    return words;
}

std::vector<std::string> namesOf(const CLI::Option& option) {
    if (option.get_positional()) {
        return {option.get_single_name()};
    }
    std::vector<std::string> names;
    for (const std::string& name : option.get_snames()) {
        names.push_back("-" + name);
    }
    for (const std::string& name : option.get_lnames()) {
        names.push_back("--" + name);
    }
    return names;
}

void fillOutline(CommandOutline& outline, const CLI::App& app) {
    outline.name = app.get_name();
    outline.purpose = app.get_description();
    for (const CLI::Option* option : app.get_options()) {
        if (option == app.get_help_ptr() && app.get_parent() != nullptr) {
            continue;  // the program has it
        }
        auto& arguments = option->get_positional() ? outline.operands : outline.options;
        arguments.push_back({namesOf(*option), option->get_option_text(), option->get_description()});
    }
    for (const CLI::App* command : app.get_subcommands({})) {
        fillOutline(outline.commands.emplace_back(), *command);
    }
}

/// A text broken into lines for the help.
std::string wrapped(const std::string& text) {
    constexpr std::size_t kHelpWidth = 100;
    std::istringstream words(text);
    std::string result;
    std::size_t width = 0;
    for (std::string word; words >> word;) {
        const bool fits = width + 1 + word.size() <= kHelpWidth;
        result += (result.empty() ? "" : fits ? " " : "\n") + word;
        width = fits && width > 0 ? width + 1 + word.size() : word.size();
    }
    return result;
}

}  // namespace

void CommandSyntax::valueOption(const std::string& name, const std::string& value, const std::string& help,
                                Take take, Presence presence) {
    const CLI::callback_t callback = [take = std::move(take)](const CLI::results_t& results) {
        take(results.front());
        return true;
    };
    app_->add_option(name, callback, help)->option_text(value)->required(presence == Presence::Required);
}

void CommandSyntax::option(const std::string& name, const std::string& value, const std::string& help,
                           Take take, Presence presence) {
    valueOption(
        name, value, help,
        [name, take = std::move(take)](const std::string& text) {
            if (text.empty()) {
                throw UsageError(name + " needs a value");
            }
            take(text);
        },
        presence);
}

void CommandSyntax::optionOrEmpty(const std::string& name, const std::string& value, const std::string& help,
                                  Take take, Presence presence) {
    valueOption(name, value, help, std::move(take), presence);
}

void CommandSyntax::pairOption(
    const std::string& name, const std::string& value, const std::string& help,
    std::function<void(const std::string& first, const std::string& second)> take) {
    const CLI::callback_t callback = [take = std::move(take)](const CLI::results_t& results) {
        take(results.front(), results.back());
        return true;
    };
    app_->add_option(name, callback, help)->option_text(value)->type_size(2);
}

void CommandSyntax::optionalValue(const std::string& name, const std::string& value, const std::string& help,
                                  Take take) {
    // What the library says for a flag without a value.
    constexpr const char* kNoValue = "true";
    app_->add_flag(name, help)
        ->option_text("[=" + value + "]")
        ->each([take = std::move(take)](const std::string& text) { take(text == kNoValue ? "" : text); });
}

void CommandSyntax::flag(const std::string& name, const std::string& help, bool& given) {
    app_->add_flag(name, given, help)->disable_flag_override();
}

void CommandSyntax::operand(const std::string& name, const std::string& help, Take take, Presence presence) {
    valueOption(name, {}, help, std::move(take), presence);
}

CommandSyntax CommandSyntax::command(const std::string& name, const std::string& help,
                                     std::function<void()> chosen) {
    app_->require_subcommand(1);
    CLI::App& command = *app_->add_subcommand(name, help);
    command.fallthrough();
    command.group("Commands");
    command.final_callback(std::move(chosen));
    return CommandSyntax(command);
}

ProgramSyntax::ProgramSyntax(const std::string& name, const std::string& purpose, Repeated repeated)
    : ProgramSyntax(std::make_unique<CLI::App>(purpose, name)) {
    CLI::App& program = app();
    // A path may begin with "/".
    program.allow_windows_style_options(false);
    program.set_help_flag("-h,--help", "Show this text");
    program.set_version_flag("--version", name + " " + fullVersion(), "Show the version");
    if (repeated == Repeated::LastCounts) {
        program.option_defaults()->take_last();
    }
    const auto formatter = std::make_shared<CLI::Formatter>();
    formatter->column_width(kHelpColumn);
    formatter->label("OPTIONS", "options");
    formatter->label("SUBCOMMAND", "COMMAND ...");
    formatter->label("Positionals", "Arguments");
    formatter->label("REQUIRED", "");
    program.formatter(formatter);
}

ProgramSyntax::ProgramSyntax(std::unique_ptr<CLI::App> app) : CommandSyntax(*app), owned_(std::move(app)) {}

ProgramSyntax::~ProgramSyntax() = default;

void ProgramSyntax::standAloneFlag(const std::string& name, const std::string& help, bool& given) {
    flag(name, help, given);
    standAlone_.push_back(name);
}

void ProgramSyntax::note(const std::string& text) {
    note_ = text;
    writeFooter();
}

void ProgramSyntax::exitStatuses(const std::vector<std::pair<int, std::string>>& statuses) {
    statuses_ = statuses;
    writeFooter();
}

void ProgramSyntax::writeFooter() {
    std::string text;
    for (const auto& [status, meaning] : statuses_) {
        text += (text.empty() ? "Exit status: " : ", ") + std::to_string(status) + " " + meaning;
    }
    const std::string between = note_.empty() || text.empty() ? "" : "\n";
    app().footer(note_ + between + (text.empty() ? "" : wrapped(text + ".")));
}

ProgramOutline ProgramSyntax::outline() const {
    ProgramOutline outline;
    fillOutline(outline, app());
    outline.version = releaseVersion();
    outline.note = note_;
    outline.statuses = statuses_;
    return outline;
}

void ProgramSyntax::requireNothing() {
    app().require_subcommand(0);
    for (CLI::Option* option : app().get_options()) {
        option->required(false);
    }
}

void ProgramSyntax::read(const std::vector<std::string>& arguments, Unknown unknown) {
    CLI::App& program = app();
    const auto optionsEnd = std::find(arguments.begin(), arguments.end(), "--");
    if (std::find_first_of(arguments.begin(), optionsEnd, standAlone_.begin(), standAlone_.end()) !=
        optionsEnd) {
        requireNothing();
    }
    program.allow_extras(unknown == Unknown::Ignored);
    try {
        program.parse(prepared(program, arguments));
    } catch (const CLI::CallForHelp&) {
        throw RequestedText{program.help()};
    } catch (const CLI::CallForVersion& version) {
        throw RequestedText{std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
        throw UsageError(complaint(program, arguments, error));
    }
}

}  // namespace velmora
