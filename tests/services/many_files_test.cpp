// One set of service objects serves files of every kind one after the other: nothing of a file may reach the
// next one.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <ostream>
#include <vector>

#include "services/service_fixture.h"

namespace velmora::test {
namespace {

/// What an Organiser does with one file: the service and the requests to it.
struct FileSession {
    const char* name;
    const char* service;
    std::vector<std::string> requests;
    int dataFileType = 0;
    bool breaksOff = false;  ///< the link is lost instead of a close request
    bool diskIsFull = false;
};

std::string openAs(int mode, int kind, const std::string& name) {
    return std::string{kOpen, static_cast<char>(mode), static_cast<char>(kind)} + name;
}
std::string writing(const std::string& record) {
    return kWrite + record;
}
std::string seeking(int mode, const std::string& offset) {
    return std::string{kSeek, static_cast<char>(mode)} + offset;
}
const std::string kReading{kRead, static_cast<char>(200)};
const std::string kClosing(1, kClose);

/// A record that looks otherwise in every form of a data file, with a byte 0 for procedures.
const std::string kRecord = "a\tx,y\tv;w\0z"s;

FileSession saving(const char* name, int type, const std::string& file, int dataFileType = 0, int mode = 1) {
    return {name, "FTRAN", {openAs(mode, type, file), writing(kRecord), kClosing}, dataFileType};
}
FileSession loading(const char* name, int type, const std::string& file, int dataFileType = 0) {
    return {name, "FTRAN", {openAs(0, type, file), kReading, kReading}, dataFileType};
}
FileSession broken(FileSession session) {
    session.requests.pop_back();
    session.breaksOff = true;
    return session;
}
FileSession onAFullDisk(FileSession session) {
    session.diskIsFull = true;
    return session;
}

/// Files of every kind, saved, loaded, appended to, broken off and refused.
std::vector<FileSession> transfers() {
    return {
        saving("SaveOdb", 0, "SODB"),
        saving("SaveTxt", 0, "STXT", 1),
        saving("SaveCommas", 0, "SCOM", 2),
        saving("SaveSemicolons", 0, "SSEM", 3),
        saving("SaveWithOwnExtension", 0, "SOWN.DAT", 2),
        saving("SaveProcedure", 1, "SPRO"),
        saving("SaveBlock", 3, "SBLO"),
        saving("Append", 0, "APP.TXT", 0, 4),
        {"AppendNothing", "FTRAN", {openAs(4, 0, "APP.TXT"), kClosing}},
        saving("OverwriteBlock", 3, "BLOCK", 0, 4),
        broken(saving("BreakOffData", 0, "XODB", 2)),
        broken(saving("BreakOffBlock", 4, "XBLO")),
        broken(saving("BreakOffProcedure", 1, "XPRO")),
        onAFullDisk(saving("RefuseData", 0, "FODB", 3)),
        onAFullDisk(saving("RefuseBlock", 5, "FBLO")),
        loading("LoadOdb", 0, "DATA"),
        loading("LoadCommas", 0, "TABLE", 2),
        loading("LoadSemicolons", 0, "TABLE", 3),
        loading("LoadWithOwnExtension", 0, "TABLE.CSV", 2),
        loading("LoadProcedure", 1, "PROC"),
        loading("LoadBlock", 3, "BLOCK"),
        loading("LoadMissing", 0, "NONE", 2),
        {"WriteBytes", "FILE", {openAs(1, kKindBinary, "WBIN"), writing(kRecord), kClosing}},
        {"WriteBytesAtAPlace",
         "FILE",
         {openAs(4, kKindBinary, "BYTES"), seeking(2, "-2"), writing(kRecord), kClosing}},
        {"ReadBytes", "FILE", {openAs(0, kKindBinary, "BYTES"), kReading, kReading}},
        {"ListShortNames", "FILE", {openAs(0, kKindShortListing, "*"), kReading, kReading}},
        {"ListLongNames", "FILE", {openAs(0, kKindLongListing, "*.CSV"), kReading, kReading}},
        {"WriteLines", "FILE", {openAs(1, kKindText, "WTXT"), writing("plain line"), kClosing}},
        {"ReadLines", "FILE", {openAs(0, kKindText, "PLAIN"), kReading, kReading}},
    };
}

/// Everything that a session leaves in the world.
struct Outcome {
    std::vector<std::string> answers;
    std::map<std::string, std::string> files;
    std::vector<long> stats;
    std::vector<std::string> shownFiles;
    std::vector<std::string> reports;
    int openFiles = 0;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    for (const std::string& answer : outcome.answers) {
        out << "answered " << testing::PrintToString(answer) << '\n';
    }
    for (const auto& [path, content] : outcome.files) {
        out << path << " holds " << testing::PrintToString(content) << '\n';
    }
    return out << "statistics " << testing::PrintToString(outcome.stats) << ", shown "
               << testing::PrintToString(outcome.shownFiles) << ", reported "
               << testing::PrintToString(outcome.reports) << ", " << outcome.openFiles << " open\n";
}

/// The services with a folder that looks the same before every session.
class Server : public ServiceFixture {
  public:
    /// A session with a service of its own.
    Outcome perform(const FileSession& session) {
        arrange(session);
        send(PLP_EV_DATA, session.service);
        sender.frames.clear();
        ask(session);
        dropLink();
        return outcome();
    }
    /// Both in one opening of the service, as FTRAN allows; what the second one did to answers, files and
    /// statistics.
    Outcome performInOneService(const FileSession& first, const FileSession& second) {
        arrange(first);
        send(PLP_EV_DATA, first.service);
        ask(first);
        if (dispatcher.currentService().empty()) {
            send(PLP_EV_DATA, second.service);  // the first one ended it
        }
        arrange(second);
        ask(second);
        dropLink();
        return transferred(outcome());
    }
    /// Without what is told and shown when the file before it is closed.
    static Outcome transferred(Outcome outcome) {
        outcome.shownFiles.clear();
        outcome.reports.clear();
        return outcome;
    }

  private:
    void TestBody() override {}

    void arrange(const FileSession& session) {
        for (const std::string& path : memory.paths()) {
            memory.deleteFile(path);
        }
        memory.addFile("/psion/Data.odb", "a\tb\r\nlast");
        memory.addFile("/psion/Table.csv", "a,\"x,y\";b\r\n");
        memory.addFile("/psion/Proc.opl", "A:\r\nPRINT 1\r\n");
        memory.addFile("/psion/Block.ob3", "ORG\0\5\x83"s + "\0\n\0xy"s);
        memory.addFile("/psion/Bytes", "0\0\0\0\r\n789"s);
        memory.addFile("/psion/App.txt", "no end");
        memory.addFile("/psion/Plain", "first\r\nsecond\r\n");
        settings.DataFileType = session.dataFileType;
        files.healthy();
        if (session.diskIsFull) {
            files.failAfterBytes(8, ErrorNumber::DiskFull);
        }
        sender.frames.clear();
        window.files.clear();
        window.reports.clear();
        std::fill(std::begin(window.stats), std::end(window.stats), 0L);
    }
    void ask(const FileSession& session) {
        for (const std::string& request : session.requests) {
            message(request);
            send(PLP_EV_ACKED);
        }
    }
    Outcome outcome() {
        Outcome result;
        for (const RecordingSender::Frame& frame : sender.frames) {
            result.answers.push_back((frame.type == FrameType::Discon ? "DISCON " : "DATA ") + frame.data);
        }
        for (const std::string& path : memory.paths()) {
            if (path.find("copies") == std::string::npos) {
                result.files[path] = memory.content(path);
            }
        }
        result.stats.assign(std::begin(window.stats), std::end(window.stats));
        result.shownFiles = window.files;
        result.reports = window.reports;
        result.openFiles = memory.openFiles();
        return result;
    }
};

TEST(ManyFiles, EachIsTransferredAfterEveryOtherAsItIsAlone) {
    const std::vector<FileSession> sessions = transfers();
    for (const FileSession& second : sessions) {
        const Outcome alone = Server().perform(second);
        for (const FileSession& first : sessions) {
            Server server;
            server.perform(first);
            EXPECT_EQ(server.perform(second), alone) << second.name << " after " << first.name;
        }
    }
}

TEST(ManyFiles, EachIsTransferredAfterEveryOtherOfOneServiceAsItIsAlone) {
    const std::vector<FileSession> sessions = transfers();
    for (const FileSession& second : sessions) {
        const Outcome alone = Server::transferred(Server().perform(second));
        for (const FileSession& first : sessions) {
            if (first.service == "FTRAN"s && second.service == "FTRAN"s) {
                EXPECT_EQ(Server().performInOneService(first, second), alone)
                    << second.name << " after " << first.name;
            }
        }
    }
}

TEST(ManyFiles, AllInARowAreTransferredAsEachAlone) {
    const std::vector<FileSession> sessions = transfers();
    Server server;
    for (const FileSession& session : sessions) {
        EXPECT_EQ(server.perform(session), Server().perform(session)) << session.name;
    }
}

}  // namespace
}  // namespace velmora::test
