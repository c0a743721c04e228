// What the command line of a program may be, and how it is read.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "arguments/outline.h"

namespace CLI {
class App;
}  // namespace CLI

namespace velmora {

/// Whether something must be given.
enum class Presence { Optional, Required };

/// What may stand behind the name of a program or of one of its commands. A handle: its copies are the same
/// command, and the ProgramSyntax that it comes from must outlive them. Options stand in any order, between
/// the operands too, and those of a program also behind its commands. A value follows its option, or stands
/// behind "="; behind "--" nothing is an option.
class CommandSyntax {
  public:
    /// Takes a value as it was given; throws UsageError when it makes no sense.
    using Take = std::function<void(const std::string& value)>;

    /// An option with a value: its name with its dashes, what the help calls its value, and what it is for.
    /// An empty value is wrong usage.
    void option(const std::string& name, const std::string& value, const std::string& help, Take take,
                Presence presence = Presence::Optional);
    /// The same, where an empty value says something.
    void optionOrEmpty(const std::string& name, const std::string& value, const std::string& help, Take take,
                       Presence presence = Presence::Optional);
    /// An option with two values, one behind the other; `value` names both.
    void pairOption(const std::string& name, const std::string& value, const std::string& help,
                    std::function<void(const std::string& first, const std::string& second)> take);
    /// An option whose value may only stand behind "="; `take` gets an empty text when there is none.
    void optionalValue(const std::string& name, const std::string& value, const std::string& help, Take take);
    /// An option without a value; `given` is set to true when it is there. It must live until the line is
    /// read.
    void flag(const std::string& name, const std::string& help, bool& given);
    /// The next word that is no option.
    void operand(const std::string& name, const std::string& help, Take take,
                 Presence presence = Presence::Required);
    /// A command; once a program or a command has some, one of them must be given. `chosen` is called when it
    /// was and the whole line is understood.
    CommandSyntax command(const std::string& name, const std::string& help, std::function<void()> chosen);

  protected:
    explicit CommandSyntax(CLI::App& app) : app_(&app) {}
    CLI::App& app() const { return *app_; }

  private:
    void valueOption(const std::string& name, const std::string& value, const std::string& help, Take take,
                     Presence presence);

    CLI::App* app_;
};

/// The whole command line of a program. --help, -h and --version are part of every one.
class ProgramSyntax : public CommandSyntax {
  public:
    /// What to do about an option that is given more than once.
    enum class Repeated { LastCounts, Refused };
    /// What to do about words that are not part of the syntax.
    enum class Unknown { Refused, Ignored };

    ProgramSyntax(const std::string& name, const std::string& purpose,
                  Repeated repeated = Repeated::LastCounts);
    ~ProgramSyntax();
    ProgramSyntax(const ProgramSyntax&) = delete;
    ProgramSyntax& operator=(const ProgramSyntax&) = delete;

    /// A flag that may stand without anything that must be given otherwise.
    void standAloneFlag(const std::string& name, const std::string& help, bool& given);

    /// A text behind the help.
    void note(const std::string& text);
    /// What the program's exit statuses mean; the help tells them behind its note.
    void exitStatuses(const std::vector<std::pair<int, std::string>>& statuses);

    /// All that may stand on the command line.
    ProgramOutline outline() const;

    /// Reads the arguments behind the program's name, once. Throws UsageError, and RequestedText when
    /// --help or --version asks for one.
    void read(const std::vector<std::string>& arguments, Unknown unknown = Unknown::Refused);

  private:
    explicit ProgramSyntax(std::unique_ptr<CLI::App> app);

    void requireNothing();
    void writeFooter();

    std::unique_ptr<CLI::App> owned_;
    std::vector<std::string> standAlone_;
    std::string note_;
    std::vector<std::pair<int, std::string>> statuses_;
};

/// The user asks for a text and for nothing else: thrown by ProgramSyntax::read.
struct RequestedText {
    std::string text;  ///< with its line ends
};

}  // namespace velmora
