// One object serves sheets of every format one after the other, in both directions: nothing of a sheet may
// reach the next one.
#include <algorithm>
#include <iterator>
#include <map>
#include <ostream>
#include <vector>

#include "services/plan_service.h"
#include "services/service_fixture.h"
#include "spreadsheet/spreadsheet.h"
#include "spreadsheet/tokens.h"

namespace velmora::test {
namespace {

/// What an Organiser does with one sheet: the messages after the opening of the service.
struct SheetSession {
    std::string name;
    std::vector<std::string> messages;
};

std::string cell(int column, int row, int type, const std::string& text) {
    return std::string{static_cast<char>(column), static_cast<char>(row), static_cast<char>(type)} + text;
}

std::string header(int first, const std::string& file) {
    return static_cast<char>(first) + file;
}

/// Three columns and two rows with a cell of each kind.
SheetSession saving(int format, bool whole) {
    SheetSession session{(whole ? "Save" : "BreakOff") + std::to_string(format),
                         {header(128 + format, "S" + std::to_string(format)), "\3\2", cell(0, 0, 34, "Sum"),
                          cell(1, 0, 135, "12"), cell(2, 1, 135, "=B1*2"), cell(0, 1, 135, "2.5")}};
    if (whole) {
        session.messages.emplace_back("\xFE");
    }
    return session;
}

/// Asks for `cells` messages; the sheets have two cells and the end mark.
SheetSession loading(int format, const std::string& file, int cells) {
    SheetSession session{"Load" + file + "By" + std::to_string(cells), {header(format, file)}};
    session.messages.insert(session.messages.end(), static_cast<std::size_t>(cells), "\0"s);
    return session;
}

std::vector<SheetSession> transfers() {
    const std::vector<std::string> files = {"", "", "L.WKS", "L.DIF", "L.CSV", "L.TXT", "L.TAB"};
    std::vector<SheetSession> sessions;
    for (int format = 2; format <= 6; ++format) {
        sessions.push_back(saving(format, true));
        sessions.push_back(saving(format, false));
        for (const int cells : {1, 3, 4}) {
            sessions.push_back(loading(format, files[static_cast<std::size_t>(format)], cells));
        }
    }
    sessions.push_back(loading(4, "EMPTY.CSV", 1));
    sessions.push_back(loading(2, "MISSING.WKS", 1));
    return sessions;
}

/// Everything that a session leaves in the world.
struct Outcome {
    std::vector<std::string> answers;
    std::map<std::string, std::string> files;
    std::vector<long> stats;
    std::vector<std::string> shownFiles;
    std::vector<std::string> reports;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    for (const auto& [path, content] : outcome.files) {
        out << path << " holds " << testing::PrintToString(content) << '\n';
    }
    return out << "answers " << testing::PrintToString(outcome.answers) << "\nstatistics "
               << testing::PrintToString(outcome.stats) << ", shown "
               << testing::PrintToString(outcome.shownFiles) << ", reported "
               << testing::PrintToString(outcome.reports) << '\n';
}

/// The service behind the dispatcher, with a folder that looks the same before every session.
class Server : public ServiceFixture {
  public:
    Server() { dispatcher.add("PLAN", plan); }

    Outcome perform(const SheetSession& session) {
        arrange();
        send(PLP_EV_DATA, "PLAN");
        for (const std::string& asked : session.messages) {
            send(PLP_EV_ACKED);
            message(asked);
        }
        dropLink();
        Outcome outcome;
        for (const RecordingSender::Frame& frame : sender.frames) {
            outcome.answers.push_back((frame.type == FrameType::Discon ? "DISCON " : "DATA ") + frame.data);
        }
        for (const std::string& path : memory.paths()) {
            outcome.files[path] = memory.content(path);
        }
        outcome.stats.assign(std::begin(window.stats), std::end(window.stats));
        outcome.shownFiles = window.files;
        outcome.reports = window.reports;
        return outcome;
    }

  private:
    void TestBody() override {}

    void arrange() {
        for (const std::string& path : memory.paths()) {
            memory.deleteFile(path);
        }
        memory.addFile("/psion/L.wks",
                       startRecord + labelRecord(0, 0, "x") + integerRecord(1, 1, 7) + endRecord);
        memory.addFile("/psion/L.dif",
                       "TABLE\r\n0,1\r\n\"\"\r\nVECTORS\r\n0,2\r\n\"\"\r\nTUPLES\r\n0,1\r\n\"\"\r\nDATA\r\n0,"
                       "0\r\n\"\"\r\n"
                       "-1,0\r\nBOT\r\n1,0\r\n\"x\"\r\n0,7\r\nV\r\n-1,0\r\nEOD\r\n");
        memory.addFile("/psion/L.csv", "x;7\r\n");
        memory.addFile("/psion/L.txt", "x\r\n7\r\n");
        memory.addFile("/psion/L.tab", "x\t7\r\n");
        memory.addFile("/psion/Empty.csv", "");
        sender.frames.clear();
        window.files.clear();
        window.reports.clear();
        std::fill(std::begin(window.stats), std::end(window.stats), 0L);
    }

    SpreadsheetSettings sheets;
    Spreadsheet spreadsheet{files, rules, sheets};
    PlanService plan{sender, window, names, spreadsheet, copies, log, transfers};
};

TEST(ManySheets, EachIsTransferredAfterEveryOtherAsItIsAlone) {
    const std::vector<SheetSession> sessions = transfers();
    for (const SheetSession& second : sessions) {
        const Outcome alone = Server().perform(second);
        for (const SheetSession& first : sessions) {
            Server server;
            server.perform(first);
            EXPECT_EQ(server.perform(second), alone) << second.name << " after " << first.name;
        }
    }
}

TEST(ManySheets, AllInARowAreTransferredAsEachAlone) {
    Server server;
    for (const SheetSession& session : transfers()) {
        EXPECT_EQ(server.perform(session), Server().perform(session)) << session.name;
    }
}

/// The sessions are about what they say: a sheet that is loaded has two cells, one that is saved is there.
TEST(ManySheets, TheSheetsAreWhole) {
    const std::vector<std::string> files = {"", "", "L.WKS", "L.DIF", "L.CSV", "L.TXT", "L.TAB"};
    const std::vector<std::string> saved = {"", "", "S2.wks", "S3.dif", "S4.csv", "S5.txt", "S6.txt"};
    for (std::size_t format = 2; format <= 6; ++format) {
        const int number = static_cast<int>(format);
        const Outcome loaded = Server().perform(loading(number, files[format], 3));
        ASSERT_EQ(loaded.answers.size(), 5U) << files[format];
        EXPECT_EQ(loaded.answers[2], "DATA " + cell(0, 0, 34, "x")) << files[format];
        EXPECT_EQ(loaded.answers[4], "DATA \xFE\0"s) << files[format];
        EXPECT_EQ(Server().perform(saving(number, true)).files.count("/psion/" + saved[format]), 1U);
        EXPECT_EQ(Server().perform(saving(number, false)).files.count("/psion/" + saved[format]), 0U);
    }
}

}  // namespace
}  // namespace velmora::test
