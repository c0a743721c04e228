// What velmora-doctor says of ill lines.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "e2e/support/server_fixture.h"
#include "support/known_ill_lines.h"
#include "support/ordinary_login.h"

namespace velmora::e2e {
namespace {

/// The doctor at one end of the cable, an Organiser that calls at the other.
class CableDoctorTest : public ServerFixture {
  protected:
    void SetUp() override {}
    void TearDown() override {
        if (caller) {
            organiserSide->stop(*caller);
            caller->wait();
        }
        ServerFixture::TearDown();
    }

    void makeIll(const std::string& illness) {
        connectCable(illness.empty() ? std::vector<std::string>()
                                     : std::vector<std::string>{"--ill", illness});
    }
    void letOrganiserCall() { caller = startOrganiser({"--delay", delay, "--tries", "10", "dir"}); }
    std::unique_ptr<Process> startDoctor() const { return start("velmora-doctor", {"--port", serverPort}); }
    /// Runs the doctor to its end. An Organiser that gives up meanwhile is told to call again.
    Finished doctor() {
        const auto doctor = startDoctor();
        while (caller && doctor->running() && doctor->eitherEnds(*caller)) {
            if (!caller->running()) {
                letOrganiserCall();
            }
        }
        return finished(*doctor);
    }
    static void expectCause(Cause cause, const Finished& done) {
        const CauseWords& words = wordsOf(cause);
        const bool well = cause == Cause::None;
        EXPECT_EQ(done.status, well ? 0 : 1) << done.output << done.error;
        for (const std::string& text :
             {std::string(words.finding), well ? ""
                                               : "\nWhat helps: " + std::string(words.advice) +
                                                     "\nCause: " + std::string(words.name) + ","}) {
            EXPECT_NE(done.output.find(text), std::string::npos) << text << done.output << done.error;
        }
    }

    std::string delay = "0";  ///< of each of the Organiser's frames, in milliseconds
    std::unique_ptr<Process> caller;
};

TEST_F(CableDoctorTest, AHealthyLineIsWell) {
    makeIll("");
    letOrganiserCall();
    const Finished done = doctor();
    EXPECT_EQ(done.status, 0) << done.output << done.error;
    EXPECT_NE(done.output.find("The line is well.\n"), std::string::npos) << done.output;
}

TEST_F(CableDoctorTest, AnotherRateIsNamed) {
    makeIll("rate=1200");
    letOrganiserCall();
    const Finished done = doctor();
    EXPECT_EQ(done.status, 1) << done.error;
    EXPECT_NE(done.output.find("The Organiser uses 1200 baud, and the server 9600 baud."), std::string::npos)
        << done.output;
}

TEST_F(CableDoctorTest, TheRateOfTheServersConfigurationIsWell) {
    const std::filesystem::path configuration = serverSide->configuration(home);
    std::filesystem::create_directories(configuration.parent_path());
    // A very short file counts as one that was never written whole.
    writeFile(configuration, "[Settings]\r\nPort=1\r\nBaud=1200\r\n;" + std::string(100, ' ') + "\r\n");
    makeIll("rate=1200");
    letOrganiserCall();
    const Finished done = doctor();
    EXPECT_NE(done.output.find(" at 1200 baud, which takes up to a minute.\n"), std::string::npos)
        << done.output << done.error;
    expectCause(Cause::None, done);
}

TEST_F(CableDoctorTest, AModemIsNamed) {
    makeIll("modem");
    expectCause(Cause::Modem, doctor());
}

TEST_F(CableDoctorTest, APortThatIsHeldIsNamedWithItsHolder) {
    makeIll("");
    startServer();
    const Finished done = doctor();
    expectCause(Cause::DeviceBusy, done);
    EXPECT_NE(done.output.find("is in use by "), std::string::npos) << done.output;
}

TEST_F(CableDoctorTest, AServerThatWaitsSaysWhatItHearsInPlaceOfFrames) {
    makeIll("rate=1200");
    startServer();
    letOrganiserCall();
    EXPECT_TRUE(server->waitForOutput("The Organiser uses 1200 baud."))
        << server->output() << server->error();
    EXPECT_NE(server->output().find("Bytes come that make no frame."), std::string::npos) << server->output();
}

TEST_F(CableDoctorTest, AMissingPortIsNamed) {
    serverPort = (home / "missing").string();
    expectCause(Cause::DeviceMissing, doctor());
}

TEST_F(CableDoctorTest, APortOfSomebodyElseIsNamed) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "logins as POSIX systems have them";
    }
    makeIll("");
    ASSERT_EQ(::chmod(serverDevice.c_str(), 0), 0);
    std::unique_ptr<Process> doctor;
    {
        const test::OrdinaryLogin login;
        doctor = startDoctor();
    }
    expectCause(Cause::NoPermission, finished(*doctor));
}

TEST_F(CableDoctorTest, AnAdapterThatIsPulledIsNamed) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "terminals as POSIX systems have them";
    }
    makeIll("");
    const auto doctor = startDoctor();
    ASSERT_TRUE(doctor->waitForOutput("What is sent does not come back."));
    cable.reset();
    expectCause(Cause::DeviceFailed, finished(*doctor));
}

TEST_F(CableDoctorTest, AnOrganiserThatAnswersLateIsNamed) {
    makeIll("");
    delay = "450";
    letOrganiserCall();
    expectCause(Cause::SlowAnswers, doctor());
}

TEST_F(CableDoctorTest, TellsProgramsInOneObject) {
    serverPort = (home / "missing").string();
    const Finished done = finish("velmora-doctor", {"--json", "--port", serverPort});
    EXPECT_EQ(done.status, 1) << done.error;
    EXPECT_EQ(done.output.find("{\n"), 0U) << done.output;
    EXPECT_NE(done.output.find("\n  \"cause\": \"device-missing\",\n  \"confidence\": 95,\n"),
              std::string::npos)
        << done.output;
}

TEST_F(CableDoctorTest, AWrongCommandLineIsUsage) {
    EXPECT_EQ(finish("velmora-doctor", {"--prot", "x"}).status, 2);
}

/// One illness of the cable, and what the doctor is to find.
struct IllLine {
    std::string illness;
    Cause cause;
    bool called;
};

void PrintTo(const IllLine& line, std::ostream* out) {
    *out << line.illness;
}

std::vector<IllLine> illLines() {
    std::vector<IllLine> all;
    for (const test::KnownIllLines& lines : test::knownIllLines()) {
        for (const std::string_view illness : lines.illnesses) {
            all.push_back({std::string(illness), lines.cause, lines.called});
        }
    }
    return all;
}

/// "rate=1200,form=7E1" as the name of a test.
std::string testName(const testing::TestParamInfo<IllLine>& info) {
    std::string name = info.param.illness;
    std::ranges::replace_if(
        name, [](unsigned char letter) { return std::isalnum(letter) == 0; }, '_');
    return name;
}

class IllLineTest : public CableDoctorTest, public testing::WithParamInterface<IllLine> {};

TEST_P(IllLineTest, IsToldWithWhatHelps) {
    if (serverSide->windows()) {
        GTEST_SKIP() << "takes minutes there; the lines above are examined";
    }
    makeIll(GetParam().illness);
    if (GetParam().called) {
        letOrganiserCall();
    }
    expectCause(GetParam().cause, doctor());
}

INSTANTIATE_TEST_SUITE_P(OfTheCable, IllLineTest, testing::ValuesIn(illLines()), testName);

}  // namespace
}  // namespace velmora::e2e
