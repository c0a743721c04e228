// velmora-describe: prints a program's manual page, the completion of its command line in a shell, or an
// example of its configuration.
//
// The first two come from the syntax that the program reads its command line by, as its help does; the
// example is what a first start writes. It runs when the project is built and is not installed.
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "arguments/program.h"
#include "arguments/syntax.h"
#include "arguments/usage_error.h"
#include "describe/completion.h"
#include "describe/described_programs.h"
#include "describe/manual_page.h"
#include "startup/default_ini.h"

namespace {

using namespace velmora;

std::string manual(const ProgramOutline& program) {
    std::vector<std::string> others;
    for (const ProgramOutline& other : describe::describedPrograms()) {
        if (other.name != program.name) {
            others.push_back(other.name + "(1)");
        }
    }
    others.emplace_back("Velmora.ini(5)");
    return describe::manualPage(program, others);
}

int run(const std::vector<std::string>& arguments) {
    const std::map<std::string, std::function<std::string(const ProgramOutline&)>> forms = {
        {"man", manual},
        {"bash", describe::bashCompletion},
        {"zsh", describe::zshCompletion},
        {"fish", describe::fishCompletion},
        {"ini", [](const ProgramOutline&) { return defaultIni(); }}};
    ProgramSyntax syntax("velmora-describe", "Prints what the system's tools want to know of a program.");
    std::string form;
    std::string name;
    syntax.operand("FORM", "man, bash, zsh, fish or ini",
                   [&form](const std::string& value) { form = value; });
    syntax.operand("PROGRAM", "Its name", [&name](const std::string& value) { name = value; });
    syntax.read(arguments);
    const auto found = forms.find(form);
    if (found == forms.end()) {
        throw UsageError("FORM: \"" + form + "\" is not man, bash, zsh, fish or ini");
    }
    std::cout << found->second(describe::describedProgram(name));
    return kStatusDone;
}

}  // namespace

int main(int argc, char** argv) {
    return runProgram("velmora-describe", std::cout, std::cerr, [argc, argv] {
        return run({argv + 1, argv + argc});
    });
}
