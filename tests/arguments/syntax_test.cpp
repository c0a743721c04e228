#include "arguments/syntax.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "arguments/usage_error.h"

namespace velmora {
namespace {

using Words = std::vector<std::string>;

/// A program with options of its own and the commands copy, list and boot, which has two commands.
class SyntaxTest : public ::testing::Test {
  protected:
    /// Reads a command line; what came of it stands in `taken` then, in the order of the syntax.
    void read(const Words& arguments,
              ProgramSyntax::Repeated repeated = ProgramSyntax::Repeated::LastCounts) {
        taken.clear();
        ProgramSyntax syntax("tool", "Does this and that.", repeated);
        syntax.option("--baud", "<rate>", "Line speed", take("baud"));
        syntax.optionalValue("--trace", "<list>", "Trace", take("trace"));
        syntax.note("Exit status: 0 done.");
        CommandSyntax copy = syntax.command("copy", "Copies a file", [this] { taken.push_back("copy"); });
        copy.operand("IN", "File to read", take("in"));
        copy.operand("OUT", "File to write", take("out"));
        copy.option("--from", "<form>", "Its form", take("from"));
        copy.option("-o", "<file>", "Another file", take("o"));
        copy.optionOrEmpty("--at", "<places>", "Places", take("at"));
        copy.flag("--lf", "Line ends", lf);
        CommandSyntax list = syntax.command("list", "Lists a folder", [this] { taken.push_back("list"); });
        list.operand("PATTERN", "Names", take("pattern"), Presence::Optional);
        list.flag("--long", "Long names", longNames);
        CommandSyntax boot = syntax.command("boot", "Boot files", {});
        CommandSyntax make = boot.command("make", "Makes one", [this] { taken.push_back("make"); });
        make.option("--to", "<file>", "File to write", take("to"), Presence::Required);
        boot.command("check", "Checks one", [this] { taken.push_back("check"); });
        syntax.read(arguments);
    }
    std::string complaint(const Words& arguments,
                          ProgramSyntax::Repeated repeated = ProgramSyntax::Repeated::LastCounts) {
        try {
            read(arguments, repeated);
        } catch (const UsageError& error) {
            return error.what();
        }
        return "no complaint";
    }
    std::string text(const Words& arguments) {
        try {
            read(arguments);
        } catch (const RequestedText& requested) {
            return requested.text;
        }
        return "no text";
    }
    CommandSyntax::Take take(const std::string& name) {
        return [this, name](const std::string& value) { taken.push_back(name + "=" + value); };
    }

    Words taken;
    bool lf = false;
    bool longNames = false;
};

TEST_F(SyntaxTest, OptionsStandAnywhereAndTakeTheirValueEitherWay) {
    read({"copy", "--from=csv", "a", "--baud", "1200", "b", "-o", "c", "--lf"});
    EXPECT_EQ(taken, (Words{"baud=1200", "in=a", "out=b", "from=csv", "o=c", "copy"}));
    EXPECT_TRUE(lf);
    read({"--baud=2400", "copy", "a", "-o=c", "b"});
    EXPECT_EQ(taken, (Words{"baud=2400", "in=a", "out=b", "o=c", "copy"}));
}

TEST_F(SyntaxTest, AValueMayLookLikeAnOptionOrACommand) {
    read({"copy", "list", "-", "--from", "-x", "-o", "--"});
    EXPECT_EQ(taken, (Words{"in=list", "out=-", "from=-x", "o=--", "copy"}));
    read({"copy", "/etc/x", "{}", "--from", "[a,b]"});
    EXPECT_EQ(taken, (Words{"in=/etc/x", "out={}", "from=[a,b]", "copy"}));
    read({"copy", "a", "b", "--from=x=y"});
    EXPECT_EQ(taken, (Words{"in=a", "out=b", "from=x=y", "copy"}));
}

TEST_F(SyntaxTest, NothingIsAnOptionBehindTwoDashes) {
    read({"copy", "--", "--lf", "--from="});
    EXPECT_EQ(taken, (Words{"in=--lf", "out=--from=", "copy"}));
    EXPECT_FALSE(lf);
}

TEST_F(SyntaxTest, AnEmptyValueSwallowsNothing) {
    EXPECT_EQ(complaint({"copy", "a", "b", "--from=", "--lf"}), "--from needs a value");
    EXPECT_EQ(complaint({"copy", "a", "b", "--from", ""}), "--from needs a value");
    read({"copy", "a", "b", "--at=", "--lf"});
    EXPECT_EQ(taken, (Words{"in=a", "out=b", "at=", "copy"}));
}

TEST_F(SyntaxTest, AnOptionalValueStandsOnlyBehindTheSign) {
    read({"--trace", "list", "x"});
    EXPECT_EQ(taken, (Words{"trace=", "pattern=x", "list"}));
    read({"--trace=PLP,COM", "list"});
    EXPECT_EQ(taken, (Words{"trace=PLP,COM", "list"}));
    read({"--trace=", "list"});
    EXPECT_EQ(taken, (Words{"trace=", "list"}));
}

TEST_F(SyntaxTest, CommandsHaveCommands) {
    read({"boot", "make", "--to", "x"});
    EXPECT_EQ(taken, (Words{"to=x", "make"}));
    EXPECT_EQ(complaint({"boot", "mkae", "--to", "x"}), "there is no command \"mkae\"; did you mean make?");
    EXPECT_EQ(complaint({"boot"}), "a command is missing: make or check");
    EXPECT_EQ(complaint({"boot", "make"}), "--to is required");
    EXPECT_EQ(complaint({"boot", "check", "--to", "x"}), "--to does not go with check");
}

TEST_F(SyntaxTest, ARepeatedOptionIsTakenOnceOrRefused) {
    read({"list", "--baud", "1", "--baud", "2"});
    EXPECT_EQ(taken, (Words{"baud=2", "list"}));
    EXPECT_NE(
        complaint({"list", "--baud", "1", "--baud", "2"}, ProgramSyntax::Repeated::Refused).find("--baud"),
        std::string::npos);
    EXPECT_TRUE(taken.empty());
}

TEST_F(SyntaxTest, SaysWhatIsWrong) {
    EXPECT_EQ(complaint({}), "a command is missing: copy, list or boot");
    EXPECT_EQ(complaint({"sing"}), "there is no command \"sing\"; tool --help lists them");
    EXPECT_EQ(complaint({"cpoy", "a", "b"}), "there is no command \"cpoy\"; did you mean copy?");
    EXPECT_EQ(complaint({"copy", "a"}), "OUT is required");
    EXPECT_EQ(complaint({"copy", "a", "b", "c"}), "\"c\" is one argument too many");
    EXPECT_EQ(complaint({"copy", "a", "b", "--form=csv"}), "there is no option --form; did you mean --from?");
    EXPECT_EQ(complaint({"list", "--baudd", "1"}), "there is no option --baudd; did you mean --baud?");
    EXPECT_EQ(complaint({"list", "--frobnicate"}), "there is no option --frobnicate");
    EXPECT_EQ(complaint({"list", "--lf"}), "--lf does not go with list");
    EXPECT_EQ(complaint({"--long", "list"}), "--long belongs behind its command: list");
    EXPECT_EQ(complaint({"list", "--baud"}), "--baud needs a value");
    EXPECT_EQ(complaint({"list", "--long=1"}), "--long takes no value");
}

TEST_F(SyntaxTest, AValueThatItsTakerRefusesEndsTheReading) {
    ProgramSyntax syntax("tool", "Does this and that.");
    syntax.option("--baud", "<rate>", "Line speed", [](const std::string&) { throw UsageError("no speed"); });
    EXPECT_THROW(syntax.read({"--baud", "x"}), UsageError);
}

TEST_F(SyntaxTest, EachCommandHasItsHelp) {
    const std::string program = text({"--help"});
    for (const char* part : {"Does this and that.", "tool [options] COMMAND", "--baud <rate>", "Line speed",
                             "copy", "Lists a folder", "--version", "Exit status: 0 done."}) {
        EXPECT_NE(program.find(part), std::string::npos) << part << "\n" << program;
    }
    const std::string command = text({"copy", "-h"});
    for (const char* part : {"tool copy [options] IN OUT", "Copies a file", "--from <form>", "-o <file>"}) {
        EXPECT_NE(command.find(part), std::string::npos) << part << "\n" << command;
    }
    EXPECT_EQ(command.find("--long"), std::string::npos) << command;
    EXPECT_NE(text({"boot", "make", "--help"}).find("--to <file>"), std::string::npos);
}

TEST_F(SyntaxTest, TheVersionIsOneLine) {
    const std::string version = text({"--version"});
    EXPECT_EQ(version.rfind("tool ", 0), 0U) << version;
    EXPECT_EQ(version.find('\n'), version.size() - 1);
    EXPECT_EQ(text({"copy", "--version"}), version);
}

TEST(ProgramSyntax, AnOptionMayHaveTwoValues) {
    std::string taken;
    ProgramSyntax syntax("tool", "Does this and that.");
    syntax.pairOption(
        "--link", "<file1> <file2>", "Links",
        [&taken](const std::string& first, const std::string& second) { taken = first + " and " + second; });
    syntax.read({"--link", "a", "--b"});
    EXPECT_EQ(taken, "a and --b");
}

TEST(ProgramSyntax, OneOfTwoValuesIsToldByTheOptionsName) {
    ProgramSyntax syntax("tool", "Does this and that.");
    syntax.pairOption("--link", "<file1> <file2>", "Links", [](const std::string&, const std::string&) {});
    try {
        syntax.read({"--link", "a"});
        FAIL();
    } catch (const UsageError& error) {
        EXPECT_STREQ(error.what(), "--link needs two values");
    }
}

TEST(ProgramSyntax, TheHelpTellsTheExitStatusesBehindTheNote) {
    ProgramSyntax syntax("tool", "Does this and that.");
    syntax.exitStatuses({{0, "done"}, {1, "a file failed"}});
    syntax.note("Nothing is saved.");
    try {
        syntax.read({"--help"});
        FAIL();
    } catch (const RequestedText& help) {
        EXPECT_NE(help.text.find("Nothing is saved.\nExit status: 0 done, 1 a file failed.\n"),
                  std::string::npos)
            << help.text;
    }
}

TEST(ProgramSyntax, ItsOutlineHasAllThatMayBeTyped) {
    ProgramSyntax syntax("tool", "Does this and that.");
    bool flag = false;
    syntax.flag("--wait", "Waits", flag);
    syntax.optionalValue("--trace", "<list>", "Traces", [](const std::string&) {});
    syntax.note("Nothing is saved.");
    syntax.exitStatuses({{0, "done"}});
    CommandSyntax boot = syntax.command("boot", "Boot files", {});
    CommandSyntax make = boot.command("make", "Makes one", {});
    make.option(
        "-o", "<file>", "File to write\n(needed)", [](const std::string&) {}, Presence::Required);
    make.operand("CODE", "Machine code", [](const std::string&) {});

    const ProgramOutline outline = syntax.outline();
    EXPECT_EQ(outline.name, "tool");
    EXPECT_EQ(outline.purpose, "Does this and that.");
    EXPECT_EQ(outline.note, "Nothing is saved.");
    EXPECT_EQ(outline.statuses, (std::vector<std::pair<int, std::string>>{{0, "done"}}));
    ASSERT_EQ(outline.options.size(), 4U);
    EXPECT_EQ(outline.options[0].names, (Words{"-h", "--help"}));
    EXPECT_EQ(outline.options[2].names, (Words{"--wait"}));
    EXPECT_EQ(outline.options[2].value, "");
    EXPECT_EQ(outline.options[3].value, "[=<list>]");
    ASSERT_EQ(outline.commands.size(), 1U);
    ASSERT_EQ(outline.commands[0].commands.size(), 1U);
    const CommandOutline& makeOutline = outline.commands[0].commands[0];
    EXPECT_EQ(makeOutline.name, "make");
    ASSERT_EQ(makeOutline.options.size(), 1U) << "--help stands with the program";
    EXPECT_EQ(makeOutline.options[0].value, "<file>");
    EXPECT_EQ(makeOutline.options[0].help, "File to write\n(needed)");
    ASSERT_EQ(makeOutline.operands.size(), 1U);
    EXPECT_EQ(makeOutline.operands[0].names, (Words{"CODE"}));
}

TEST(ProgramSyntax, WhatIsUnknownMayBeLeftToSomebodyElse) {
    ProgramSyntax syntax("tool", "Does this and that.");
    EXPECT_NO_THROW(syntax.read({"-platform", "offscreen", "x"}, ProgramSyntax::Unknown::Ignored));
    EXPECT_THROW(syntax.read({"-style", "x", "--version"}, ProgramSyntax::Unknown::Ignored), RequestedText);
}

}  // namespace
}  // namespace velmora
