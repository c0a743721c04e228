#include "organiser/command_line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "arguments/syntax.h"
#include "arguments/usage_error.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

CommandLine parse(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"--device", "/dev/ttyS0"});
    return readCommandLine(arguments);
}
Command command(const std::vector<std::string>& arguments) {
    return parse(arguments).command;
}

TEST(OrganiserCommandLine, DefaultsOfACommand) {
    const CommandLine line = parse({"time"});
    EXPECT_EQ(line.device, "/dev/ttyS0");
    EXPECT_EQ(line.baud, 9600);
    EXPECT_EQ(line.tries, 3);
    EXPECT_FALSE(line.trace);
    EXPECT_FALSE(line.faults.any());
    EXPECT_EQ(line.command.kind, CommandKind::Time);
}

TEST(OrganiserCommandLine, OptionsMayStandAnywhereAndTakeTheirValueEitherWay) {
    const CommandLine line =
        parse({"--drop=0.25", "dir", "--corrupt", "1", "*.TXT", "--duplicate", "0", "--delay=30", "--seed",
               "18446744073709551615", "--long", "--trace", "--baud=19200", "--tries", "7"});
    EXPECT_EQ(line.faults.drop, 0.25);
    EXPECT_EQ(line.faults.corrupt, 1);
    EXPECT_EQ(line.faults.duplicate, 0);
    EXPECT_EQ(line.faults.delay, 30ms);
    EXPECT_EQ(line.faults.seed, ~std::uint64_t{0});
    EXPECT_TRUE(line.trace);
    EXPECT_EQ(line.baud, 19200);
    EXPECT_EQ(line.tries, 7);
    EXPECT_TRUE(line.command.longNames);
    EXPECT_EQ(line.command.name, "*.TXT");
}

TEST(OrganiserCommandLine, SaveTakesItsNameFromTheFile) {
    EXPECT_EQ(command({"save", "some/notes.txt"}).name, "NOTES");
    EXPECT_EQ(command({"save", "notes.txt", "--as", "Memo"}).name, "Memo");
    EXPECT_EQ(command({"save", "some/notes.txt"}).file, "some/notes.txt");
    EXPECT_EQ(command({"save", "some/\xC3\xB6l.txt"}).name, "\xD6L");
}

TEST(OrganiserCommandLine, TypesOfFiles) {
    EXPECT_EQ(command({"save", "f"}).fileType, 0);
    EXPECT_EQ(command({"save", "f", "--type", "data"}).fileType, 0);
    EXPECT_EQ(command({"load", "f", "--type", "procedure"}).fileType, 1);
    EXPECT_EQ(command({"load", "f", "--type", "block:16"}).fileType, 16);
}

TEST(OrganiserCommandLine, ModeOfAWriteThatSeeksKeepsTheFile) {
    EXPECT_EQ(command({"write", "N", "f"}).mode, FileMode::Create);
    EXPECT_EQ(command({"write", "N", "f", "--seek", "2:-10"}).mode, FileMode::Append);
    EXPECT_EQ(command({"write", "N", "f", "--seek", "2:-10", "--mode", "2"}).mode, FileMode::Replace);
    EXPECT_EQ(command({"write", "N", "f", "--seek", "2:-10"}).seek->from, Seek::From::End);
    EXPECT_EQ(command({"write", "N", "f", "--seek", "2:-10"}).seek->offset, -10);
}

TEST(OrganiserCommandLine, AddressesAndFormats) {
    EXPECT_EQ(command({"boot", "N", "--address", "2000"}).address, 0x2000);
    EXPECT_EQ(command({"boot", "N", "--address", "0xfFfF"}).address, 0xFFFF);
    EXPECT_EQ(command({"boot", "N", "--address", "0Xff"}).address, 0xFF);
    EXPECT_EQ(command({"sheet-load", "N", "--format", "wks"}).sheetFormat, 2);
    EXPECT_EQ(command({"sheet-save", "f", "--as", "N", "--format", "TAB"}).sheetFormat, 6);
}

TEST(OrganiserCommandLine, NamesBecomeBytesOfTheOrganiser) {
    EXPECT_EQ(command({"load", "CAF\xC3\x89"}).name, "CAF\xC9");
}

TEST(OrganiserCommandLine, NothingIsAnOptionBehindTwoDashes) {
    EXPECT_EQ(command({"load", "--", "--long"}).name, "--long");
}

TEST(OrganiserCommandLine, TheListOfPortsNeedsNothingElse) {
    EXPECT_EQ(readCommandLine({"--list-ports"}).command.kind, CommandKind::ListPorts);
    EXPECT_TRUE(readCommandLine({"--list-ports", "--json"}).command.json);
    EXPECT_FALSE(readCommandLine({"--list-ports"}).command.json);
}

TEST(OrganiserCommandLine, HelpNeedsNothingElse) {
    const auto help = [](const std::vector<std::string>& arguments) -> std::string {
        try {
            readCommandLine(arguments);
        } catch (const RequestedText& requested) {
            return requested.text;
        }
        return "no help";
    };
    const std::string program = help({"--help"});
    EXPECT_NE(program.find("  --baud <rate>           Line speed (default: 9600)\n"), std::string::npos);
    EXPECT_NE(program.find("sheet-save"), std::string::npos);
    EXPECT_NE(help({"save", "-h"}).find("--as <name>"), std::string::npos);
}

struct BadArguments {
    const char* name;
    std::vector<std::string> arguments;
    const char* problem;
};
class BadCommandLine : public testing::TestWithParam<BadArguments> {};

TEST_P(BadCommandLine, IsToldClearly) {
    try {
        parse(GetParam().arguments);
        FAIL() << "accepted";
    } catch (const UsageError& error) {
        EXPECT_NE(std::string(error.what()).find(GetParam().problem), std::string::npos) << error.what();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BadCommandLine,
    testing::Values(
        BadArguments{"NoCommand", {}, "a command is missing: save"},
        BadArguments{"UnknownCommand", {"sing"}, "no command \"sing\""},
        BadArguments{"MistypedCommand", {"laod", "N"}, "did you mean load?"},
        BadArguments{"MistypedOption", {"--buad", "1200", "time"}, "did you mean --baud?"},
        BadArguments{"UnknownOption", {"time", "--loud"}, "there is no option --loud"},
        BadArguments{"NoValue", {"time", "--baud"}, "--baud needs a value"},
        BadArguments{"ValueForASwitch", {"time", "--trace=1"}, "--trace takes no value"},
        BadArguments{"NoSpeed", {"time", "--baud", "0"}, "\"0\" is not a line speed"},
        BadArguments{"SpeedBeyondAll", {"time", "--baud", "4000001"}, "from 1 to 4000000"},
        BadArguments{"SpeedInWords", {"time", "--baud", "fast"}, "\"fast\" is not a line speed"},
        BadArguments{"ProbabilityAboveOne", {"time", "--drop", "1.5"}, "not a probability"},
        BadArguments{"NegativeProbability", {"time", "--drop", "-0.1"}, "not a probability"},
        BadArguments{"ProbabilityNan", {"time", "--corrupt", "nan"}, "not a probability"},
        BadArguments{"NegativeSeed", {"time", "--seed", "-1"}, "not a whole number"},
        BadArguments{"NegativeDelay", {"time", "--delay", "-1"}, "not a number of milliseconds"},
        BadArguments{"NoTries", {"time", "--tries", "0"}, "from 1 to 100"},
        BadArguments{"BlockTypeOne", {"save", "f", "--type", "block:1"}, "block:2 to block:16"},
        BadArguments{"BlockTypeSeventeen", {"save", "f", "--type", "block:17"}, "block:2 to block:16"},
        BadArguments{"UnknownType", {"save", "f", "--type", "photo"}, "block:2 to block:16"},
        BadArguments{"ModeFive", {"save", "f", "--mode", "5"}, "0 to 4"},
        BadArguments{"SeekModeThree", {"read", "N", "--seek", "3:0"}, "MODE:OFFSET"},
        BadArguments{"SeekWithoutOffset", {"read", "N", "--seek", "2:"}, "MODE:OFFSET"},
        BadArguments{"SeekBelowZero", {"read", "N", "--seek", "/:0"}, "MODE:OFFSET"},
        BadArguments{"SeekWithoutColon", {"read", "N", "--seek", "0-10"}, "MODE:OFFSET"},
        BadArguments{"JsonForACommand", {"time", "--json"}, "--json goes with --list-ports"},
        BadArguments{"SeekInText", {"read", "N", "--seek", "0:1", "--text"}, "does not go with --text"},
        BadArguments{"AddressTooLarge", {"boot", "N", "--address", "10000"}, "address in hexadecimal"},
        BadArguments{"BootWithoutAddress", {"boot", "N"}, "--address is required"},
        BadArguments{"SheetWithoutFormat", {"sheet-load", "N"}, "--format is required"},
        BadArguments{"SheetWithoutName", {"sheet-save", "f", "--format", "wks"}, "--as is required"},
        BadArguments{"InputWithoutName", {"save", "-"}, "--as is required when FILE is standard input"},
        BadArguments{"UnknownFormat", {"sheet-load", "N", "--format", "xls"}, "wks, dif, csv, txt or tab"},
        BadArguments{"OptionOfAnotherCommand", {"time", "--long"}, "--long does not go with time"},
        BadArguments{"TooMuch", {"load", "A", "B"}, "\"B\" is one argument too many"},
        BadArguments{"TooLittle", {"write", "A"}, "FILE is required"},
        BadArguments{"ForeignCharacter", {"load", "\xE2\x98\x83"}, "does not know"},
        BadArguments{"BrokenUtf8", {"load", "\xC3"}, "does not know"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(OrganiserCommandLine, DeviceIsNeeded) {
    EXPECT_THROW(readCommandLine({"time"}), UsageError);
}

TEST(OrganiserCommandLine, ItsOutlineHasTheLineEveryCommandAndEveryStatus) {
    const ProgramOutline outline = commandLineOutline();
    EXPECT_EQ(outline.name, "velmora-organiser");
    EXPECT_EQ(outline.commands.size(), 17U);
    EXPECT_EQ(outline.statuses.size(), 5U);
    // Shells offer ports for this word.
    EXPECT_NE(std::ranges::find(outline.options, "<port>", &ArgumentOutline::value), outline.options.end());
}

}  // namespace
}  // namespace velmora
