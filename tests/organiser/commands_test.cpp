#include "organiser/commands.h"

#include <sstream>
#include <string>
#include <vector>

#include "conversation_fixture.h"
#include "organiser/local_files.h"
#include "support/temp_folder.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class CommandsTest : public test::ConversationFixture {
  protected:
    void SetUp() override {
        server.serve("EXIT", exitService);
        server.serve("TIME", timeService);
        server.serve("PLAN", plan);
    }

    std::string path(const std::string& name) const { return directory.path(name); }
    std::string local(const std::string& name, const std::string& contents) {
        writeLocalFile(path(name), contents);
        return path(name);
    }
    ExitStatus run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--device", "line"});
        out.str("");
        error.str("");
        return runCommand(readCommandLine(arguments), link(), {in, out, error, progress});
    }

    test::TempFolder directory;
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream error;
    test::ScriptedService exitService{test::reply("")};
    test::ScriptedService timeService{test::reply("2010-03-28 14:05:09")};
    test::ModelPlan plan;
};

TEST_F(CommandsTest, DataFileGoesThereAndBack) {
    EXPECT_EQ(run({"save", local("memo.txt", "a\tb\nc\n")}), kDone);
    EXPECT_EQ(folder["MEMO.ODB"], "a\tb\r\nc\r\n");
    EXPECT_EQ(out.str(), "Saved MEMO, 2 records.\n");
    EXPECT_EQ(run({"load", "MEMO", "-o", path("back.txt")}), kDone);
    EXPECT_EQ(readLocalFile(path("back.txt")), "a\tb\r\nc\r\n");
    EXPECT_EQ(out.str(), "Loaded MEMO, 2 records.\n");
}

TEST_F(CommandsTest, ContentsOnStandardOutputAreAlone) {
    folder["MEMO.ODB"] = "a\r\n";
    EXPECT_EQ(run({"load", "MEMO", "--lf"}), kDone);
    EXPECT_EQ(out.str(), "a\n");
    EXPECT_EQ(error.str(), "Loaded MEMO, 1 record.\n");
}

TEST_F(CommandsTest, ADashIsStandardInputOrOutput) {
    in.str("a\tb\nc\n");
    EXPECT_EQ(run({"save", "-", "--as", "MEMO"}), kDone) << error.str();
    EXPECT_EQ(folder["MEMO.ODB"], "a\tb\r\nc\r\n");
    EXPECT_EQ(run({"load", "MEMO", "-o", "-"}), kDone);
    EXPECT_EQ(out.str(), "a\tb\r\nc\r\n");
    EXPECT_EQ(error.str(), "Loaded MEMO, 2 records.\n");
    in = std::istringstream("0123");
    EXPECT_EQ(run({"write", "A.DAT", "-"}), kDone) << error.str();
    EXPECT_EQ(folder["A.DAT"], "0123");
    in = std::istringstream("A1 12\n");
    EXPECT_EQ(run({"sheet-save", "-", "--as", "S", "--format", "wks"}), kDone) << error.str();
}

TEST_F(CommandsTest, AStandardInputThatFailsSavesNothing) {
    in.setstate(std::ios::badbit);
    EXPECT_EQ(run({"save", "-", "--as", "MEMO"}), kLocalProblem);
    EXPECT_EQ(error.str(), "standard input cannot be read.\n");
    in = std::istringstream(std::string(251, 'x'));
    EXPECT_EQ(run({"save", "-", "--as", "MEMO"}), kLocalProblem);
    EXPECT_NE(error.str().find("standard input, line 1: 251 bytes"), std::string::npos) << error.str();
    EXPECT_TRUE(folder.empty());
}

TEST_F(CommandsTest, ProceduresAndBlocksGoThereAndBack) {
    EXPECT_EQ(run({"save", local("p", "A\nBC\n"), "--type", "procedure"}), kDone);
    EXPECT_EQ(run({"load", "P", "--type", "procedure"}), kDone);
    EXPECT_EQ(out.str(), "A\r\nBC\r\n");
    const std::string bytes("\0\x10\x03\xFF", 4);
    EXPECT_EQ(run({"save", local("b", bytes), "--type", "block:3", "--as", "CODE"}), kDone);
    EXPECT_EQ(run({"load", "CODE", "--type", "block:3"}), kDone);
    EXPECT_EQ(out.str(), bytes);
}

TEST_F(CommandsTest, AnyFileIsWrittenReadAndListed) {
    EXPECT_EQ(run({"write", "A.DAT", local("a", "0123456789")}), kDone);
    EXPECT_EQ(run({"write", "A.DAT", local("x", "xy"), "--seek", "0:4"}), kDone);
    EXPECT_EQ(run({"read", "A.DAT", "--seek", "2:-7"}), kDone);
    EXPECT_EQ(out.str(), "3xy6789");
    EXPECT_EQ(run({"write", "B.TXT", local("b", "one\ntwo"), "--text"}), kDone);
    EXPECT_EQ(run({"read", "B.TXT", "--text"}), kDone);
    EXPECT_EQ(out.str(), "one\r\ntwo\r\n");
    EXPECT_EQ(run({"dir"}), kDone);
    EXPECT_EQ(out.str(), "A.DAT\nB.TXT\n");
}

TEST_F(CommandsTest, SheetGoesThereAndBack) {
    const std::string cells = "A1 'Price\r\nB1 12.5\r\nB2 =B1*2\r\n";
    EXPECT_EQ(run({"sheet-save", local("s", cells), "--as", "S", "--format", "wks"}), kDone);
    EXPECT_EQ(run({"sheet-load", "S", "--format", "wks"}), kDone);
    EXPECT_EQ(out.str(), cells);
}

TEST_F(CommandsTest, ClockAndUnknownServices) {
    EXPECT_EQ(run({"time"}), kDone);
    EXPECT_EQ(out.str(), "2010-03-28 14:05:09\n");
    EXPECT_EQ(run({"service", "time"}), kDone);
    EXPECT_EQ(out.str().substr(0, 36), "time answered 19 bytes.\nhex:  32 30 ");
    EXPECT_EQ(run({"gmt"}), kRefused);
    EXPECT_EQ(error.str(), "Refused by the server: 190, invalid request, or unknown service.\n");
}

TEST_F(CommandsTest, BootCodeIsWrittenAndCounted) {
    test::ModelBoot boot(std::string(450, 'x'));
    server.serve("BOOT", boot);
    EXPECT_EQ(run({"boot", "LOADER", "--address", "2000", "-o", path("code")}), kDone);
    EXPECT_EQ(readLocalFile(path("code")), std::string(450, 'x'));
    EXPECT_EQ(out.str(), "Loaded LOADER, 450 bytes of code in 3 pieces (200, 200, 50).\n");
}

TEST_F(CommandsTest, ExitOpensTheServiceAndDropsTheLink) {
    EXPECT_EQ(run({"exit"}), kDone);
    EXPECT_EQ(exitService.timesClosed, 1);
    EXPECT_EQ(server.linksDropped, 1);
}

TEST_F(CommandsTest, StatusTellsWhatWentWrong) {
    EXPECT_EQ(run({"load", "NOTHING"}), kRefused);
    EXPECT_NE(error.str().find("189"), std::string::npos);
    EXPECT_EQ(run({"save", path("absent")}), kLocalProblem);
    EXPECT_NE(error.str().find("absent cannot be read: No such file"), std::string::npos);
    EXPECT_EQ(run({"save", directory.path()}), kLocalProblem);
    EXPECT_EQ(run({"save", local("long", std::string(251, 'x'))}), kLocalProblem);
    EXPECT_NE(error.str().find("line 1: 251 bytes"), std::string::npos);
    folder["MEMO.ODB"] = "a\r\n";
    EXPECT_EQ(run({"load", "MEMO", "-o", path("no/folder")}), kLocalProblem);
    line.gone = true;
    EXPECT_EQ(run({"time"}), kNoLink);
}

TEST_F(CommandsTest, SilentServerIsNoLink) {
    line.onWrite = {};
    line.alarm.reset();
    line.read(line.clock);
    EXPECT_EQ(run({"time"}), kNoLink);
    EXPECT_EQ(error.str(), "No link: no server answers on this line.\n");
}

/// Breaks the link once, when the n-th message of data has been taken.
class BreakingFtran : public test::ModelFtran {
  public:
    BreakingFtran(test::ModelFolder& files, int n) : ModelFtran(files), left_(n) {}
    test::Answer message(const std::string& payload) override {
        test::Answer answer = ModelFtran::message(payload);
        if (!payload.empty() && payload[0] == 2 && --left_ == 0) {
            return test::refuse(192);
        }
        return answer;
    }

  private:
    int left_;
};

TEST_F(CommandsTest, BrokenSaveIsDoneAgainAlsoWhenItMadeTheFileItself) {
    for (const char* mode : {"1", "3"}) {
        folder.clear();
        BreakingFtran breaking(folder, 2);
        server.serve("FTRAN", breaking);
        EXPECT_EQ(run({"save", local("memo", "a\nb\nc\n"), "--mode", mode}), kDone) << mode;
        EXPECT_EQ(folder["MEMO.ODB"], "a\r\nb\r\nc\r\n");
        EXPECT_NE(error.str().find("Trying again (2 of 3)."), std::string::npos);
    }
}

TEST_F(CommandsTest, BrokenAppendIsNotDoneAgain) {
    folder["MEMO.ODB"] = "old\r\n";
    BreakingFtran breaking(folder, 2);
    server.serve("FTRAN", breaking);
    EXPECT_EQ(run({"save", local("memo", "a\nb\nc\n"), "--mode", "4"}), kRefused);
    EXPECT_EQ(folder["MEMO.ODB"], "old\r\na\r\nb\r\n");
    EXPECT_NE(error.str().find("Not tried again"), std::string::npos);
}

/// Breaks the link once, when the n-th block or line has been written.
class BreakingFile : public test::ModelFile {
  public:
    BreakingFile(test::ModelFolder& files, int n) : ModelFile(files), left_(n) {}
    test::Answer message(const std::string& payload) override {
        test::Answer answer = ModelFile::message(payload);
        return !payload.empty() && payload[0] == 2 && --left_ == 0 ? test::refuse(192) : answer;
    }

  private:
    int left_;
};

TEST_F(CommandsTest, BrokenWriteIsDoneAgainAlsoWhenItMadeTheFileItself) {
    const std::string lines = local("lines", "one\ntwo\nthree\n");
    const std::string bytes = local("bytes", std::string(600, 'x'));
    for (const char* mode : {"1", "3"}) {
        folder.clear();
        BreakingFile breaksLines(folder, 2);
        server.serve("FILE", breaksLines);
        EXPECT_EQ(run({"write", "B.TXT", lines, "--text", "--mode", mode}), kDone) << error.str();
        EXPECT_EQ(folder["B.TXT"], "one\r\ntwo\r\nthree\r\n");
        BreakingFile breaksBytes(folder, 2);
        server.serve("FILE", breaksBytes);
        EXPECT_EQ(run({"write", "A.DAT", bytes, "--mode", mode}), kDone) << error.str();
        EXPECT_EQ(folder["A.DAT"], std::string(600, 'x'));
        EXPECT_NE(error.str().find("Trying again (2 of 3)."), std::string::npos);
    }
}

TEST_F(CommandsTest, BrokenWriteOverBytesFromTheStartIsDoneAgain) {
    folder["A.DAT"] = std::string(700, 'o');
    BreakingFile breaking(folder, 2);
    server.serve("FILE", breaking);
    const std::string bytes = local("bytes", std::string(600, 'x'));
    EXPECT_EQ(run({"write", "A.DAT", bytes, "--seek", "0:50"}), kDone) << error.str();
    EXPECT_EQ(folder["A.DAT"], std::string(50, 'o') + std::string(600, 'x') + std::string(50, 'o'));
}

TEST_F(CommandsTest, BrokenWriteThatAddsIsNotDoneAgain) {
    folder["B.TXT"] = "old\r\n";
    BreakingFile breaksLines(folder, 2);
    server.serve("FILE", breaksLines);
    EXPECT_EQ(run({"write", "B.TXT", local("lines", "one\ntwo\nthree\n"), "--text", "--mode", "4"}),
              kRefused);
    EXPECT_EQ(folder["B.TXT"], "old\r\none\r\ntwo\r\n");
    EXPECT_NE(error.str().find("Not tried again"), std::string::npos);
    folder["A.DAT"] = "old";
    BreakingFile breaksBytes(folder, 2);
    server.serve("FILE", breaksBytes);
    const std::string bytes = local("bytes", std::string(600, 'x'));
    EXPECT_EQ(run({"write", "A.DAT", bytes, "--seek", "2:0"}), kRefused);
    EXPECT_NE(error.str().find("Not tried again"), std::string::npos);
    EXPECT_EQ(folder["A.DAT"].substr(0, 4), "oldx");
}

TEST_F(CommandsTest, BrokenBlockThatIsWrittenOverAnotherIsDoneAgain) {
    folder["B.OB3"] = std::string(600, 'o');
    BreakingFtran breaking(folder, 2);
    server.serve("FTRAN", breaking);
    const std::string bytes = local("b", std::string(600, 'x'));
    EXPECT_EQ(run({"save", bytes, "--type", "block:3", "--mode", "4"}), kDone) << error.str();
    EXPECT_EQ(folder["B.OB3"], std::string(600, 'x'));
}

TEST_F(CommandsTest, AServerThatAnswersSomethingElseIsNoLink) {
    test::ScriptedService odd(test::reply(""), {test::reply("?")});
    server.serve("FILE", odd);
    EXPECT_EQ(run({"read", "A.DAT"}), kNoLink);
    EXPECT_EQ(error.str(), "The server answered something else than expected: \"?\".\n");
}

TEST_F(CommandsTest, FormatsOfWorksheetsAreListedWithTheirNumbers) {
    test::ScriptedService menu(test::reply("\3WKS\0\2\0"s));
    server.serve("PLANM", menu);
    EXPECT_EQ(run({"formats"}), kDone) << error.str();
    EXPECT_EQ(out.str(), "2  WKS\n");
}

TEST_F(CommandsTest, UniversalTimeAndTheZoneAreAskedForByTheirOwnServices) {
    test::ScriptedService gmt(test::reply("2010-03-28 13:05:09"));
    test::ScriptedService zone(test::reply("2010-03-28 14:05:09*+60"));
    server.serve("GMT", gmt);
    server.serve("TIMEINFO", zone);
    EXPECT_EQ(run({"gmt"}), kDone);
    EXPECT_EQ(out.str(), "2010-03-28 13:05:09\n");
    EXPECT_EQ(run({"timeinfo"}), kDone);
    EXPECT_EQ(out.str(), "2010-03-28 14:05:09*+60\n");
}

TEST_F(CommandsTest, AServiceThatAnswersNothingIsSaidSo) {
    EXPECT_EQ(run({"service", "EXIT"}), kDone);
    EXPECT_EQ(out.str(), "EXIT answered 0 bytes.\n");
}

TEST_F(CommandsTest, ShutdownOpensItsService) {
    test::ScriptedService shutdown(test::reply(""));
    server.serve("SHUTDOWN", shutdown);
    EXPECT_EQ(run({"shutdown"}), kDone);
    EXPECT_EQ(out.str(), "The server's program was asked to end.\n");
    EXPECT_EQ(shutdown.timesClosed, 1);
}

TEST_F(CommandsTest, EmptyBootCodeHasNoPieces) {
    test::ModelBoot boot("");
    server.serve("BOOT", boot);
    EXPECT_EQ(run({"boot", "LOADER", "--address", "2000", "-o", path("code")}), kDone) << error.str();
    EXPECT_EQ(out.str(), "Loaded LOADER, 0 bytes of code in 0 pieces.\n");
    EXPECT_EQ(readLocalFile(path("code")), "");
}

TEST_F(CommandsTest, TourTellsOfAServerThatKnowsWhatItShouldNot) {
    test::ScriptedService teapot(test::reply("short and stout"));
    server.serve("TEAPOT", teapot);
    EXPECT_EQ(run({"tour"}), kLocalProblem);
    EXPECT_NE(out.str().find("The server claims to know a service TEAPOT."), std::string::npos);
}

TEST_F(CommandsTest, TourTellsOfAServiceThatIsThereAndRefuses) {
    test::ScriptedService teapot(test::refuse(188));
    server.serve("TEAPOT", teapot);
    server.serve("GMT", timeService);
    test::ScriptedService zone(test::refuse(188));
    server.serve("TIMEINFO", zone);
    EXPECT_EQ(run({"tour"}), kRefused) << out.str();
    EXPECT_EQ(out.str().find("The server answers 190, as it should."), std::string::npos);
    EXPECT_NE(out.str().find("Not all of it worked."), std::string::npos);
}

TEST_F(CommandsTest, TourTriesEverythingAndLeavesItsFiles) {
    test::ScriptedService menu(test::reply("\3WKS\0\2\0"s));
    test::ModelBoot boot(std::string(450, 'x'));
    server.serve("PLANM", menu);
    server.serve("BOOT", boot);
    server.serve("GMT", timeService);
    server.serve("TIMEINFO", timeService);
    EXPECT_EQ(run({"tour", "--boot", "LOADER"}), kDone);
    for (const char* told : {"The data file TOUR, 200 records, came back exactly as sent.",
                             "The procedure TOUR, 7 lines, came back exactly as sent.",
                             "The block file TOUR, type 3, 4000 bytes, came back exactly as sent.",
                             "from byte 900 on, came back exactly as sent.", "TOUR.OB3", "B3 =B1*B2",
                             "Universal time:      2010-03-28 14:05:09",
                             "450 bytes of code in 3 pieces, relocated to 2000.", "All done."}) {
        EXPECT_NE(out.str().find(told), std::string::npos) << told << "\n" << out.str();
    }
    EXPECT_EQ(folder.count("TOUR.ODB"), 1U);
}

// It overwrote them: whoever keeps a TOUR of his own lost it to a demonstration.
TEST_F(CommandsTest, TourTouchesNoFileThatIsThere) {
    const test::ModelFolder own{{"TOUR.ODB", "own\r\n"}, {"TOUR.OPL", "own"},     {"TOUR.OB3", "own"},
                                {"TOURTEXT.TXT", "own"}, {"TOURFILE.DAT", "own"}, {"TOUR2.WKS", "own"}};
    folder = own;
    test::ScriptedService menu(test::reply("\3WKS\0\2\0"s));
    server.serve("PLANM", menu);
    EXPECT_EQ(run({"tour"}), kDone) << out.str();
    for (const auto& [name, contents] : own) {
        EXPECT_EQ(folder[name], contents) << name;
    }
    EXPECT_EQ(plan.sheets.count("TOUR3"), 1U);
    EXPECT_NE(out.str().find("The data file TOUR3, 200 records, came back exactly as sent."),
              std::string::npos);
    EXPECT_NE(out.str().find("It leaves these files in the server's folder: TOUR3.OB3 TOUR3.ODB TOUR3.OPL "
                             "TOUR3FILE.DAT TOUR3TEXT.TXT\n"),
              std::string::npos)
        << out.str();
}

TEST_F(CommandsTest, TourThatMadeAFileBeforeTheLinkBrokeMakesItAgain) {
    BreakingFtran breaking(folder, 2);
    server.serve("FTRAN", breaking);
    EXPECT_EQ(run({"tour"}), kDone) << out.str();
}

// A server that lists nothing has files all the same.
TEST_F(CommandsTest, TourRefusesToReplaceWhatTheServerDoesNotList) {
    class Hiding : public test::ModelFile {
      public:
        using ModelFile::ModelFile;
        test::Answer message(const std::string& payload) override {
            const bool listing = payload.size() > 2 && payload[0] == kOpen && payload[2] > 1;
            return ModelFile::message(listing ? payload + "nothing" : payload);
        }
    } hiding(folder);
    server.serve("FILE", hiding);
    folder["TOUR.ODB"] = "own\r\n";
    EXPECT_EQ(run({"tour"}), kRefused) << out.str();
    EXPECT_EQ(folder["TOUR.ODB"], "own\r\n");
}

TEST_F(CommandsTest, TourSkipsServicesThatTheServerDoesNotKnow) {
    EXPECT_EQ(run({"tour"}), kDone);
    EXPECT_NE(out.str().find("Skipped: the server answers 190"), std::string::npos);
    EXPECT_NE(out.str().find("Skipped: name a boot file"), std::string::npos);
}

TEST_F(CommandsTest, TourThatFindsADifferenceSaysSoAndGoesOn) {
    class Forgetful : public test::ModelFtran {
      public:
        using ModelFtran::ModelFtran;
        test::Answer message(const std::string& payload) override {
            const bool forgotten = payload.find("Person 7\t") != std::string::npos;
            return forgotten ? test::reply("") : ModelFtran::message(payload);
        }
    } forgetful(folder);
    server.serve("FTRAN", forgetful);
    EXPECT_EQ(run({"tour"}), kLocalProblem);
    EXPECT_NE(out.str().find("The data file TOUR, 200 records, came back changed."), std::string::npos);
    EXPECT_NE(out.str().find("The procedure TOUR, 7 lines, came back exactly as sent."), std::string::npos);
    EXPECT_NE(out.str().find("Not all of it worked."), std::string::npos);
}

TEST_F(CommandsTest, TourEndsWithoutALink) {
    line.gone = true;
    EXPECT_EQ(run({"tour"}), kNoLink);
    EXPECT_EQ(out.str().find("Procedure, there and back"), std::string::npos);
}

}  // namespace
}  // namespace velmora
