// What velmora-doctor says of ill lines.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "e2e/support/server_fixture.h"

namespace velmora::e2e {
namespace {

/// The doctor at one end of the cable, an Organiser that calls at the other.
class CableDoctorTest : public ServerFixture {
  protected:
    void SetUp() override {}

    void makeIll(const std::string& illness) {
        connectCable(illness.empty() ? std::vector<std::string>()
                                     : std::vector<std::string>{"--ill", illness});
    }
    void letOrganiserCall() { caller = startOrganiser({"--tries", "10", "dir"}); }
    Finished doctor() { return finish("velmora-doctor", {"--port", serverPort}); }
    void expectCause(const std::string& name) {
        const Finished done = doctor();
        EXPECT_EQ(done.status, 1) << done.output << done.error;
        EXPECT_NE(done.output.find("\nCause: " + name + ","), std::string::npos) << done.output << done.error;
    }

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

TEST_F(CableDoctorTest, SevenBitsWithParityAreNamed) {
    makeIll("form=7E1");
    letOrganiserCall();
    const Finished done = doctor();
    EXPECT_EQ(done.status, 1) << done.error;
    EXPECT_NE(done.output.find("7 bits and even parity"), std::string::npos) << done.output;
}

TEST_F(CableDoctorTest, AHandheldThatHearsNothingIsNamed) {
    makeIll("deaf");
    letOrganiserCall();
    expectCause("handheld-deaf");
}

TEST_F(CableDoctorTest, AModemIsNamed) {
    makeIll("modem");
    expectCause("modem");
}

TEST_F(CableDoctorTest, JoinedPinsAreNamed) {
    makeIll("loopback");
    expectCause("loopback");
}

TEST_F(CableDoctorTest, APortThatIsHeldIsNamedWithItsHolder) {
    makeIll("");
    startServer();
    const Finished done = doctor();
    EXPECT_EQ(done.status, 1) << done.error;
    EXPECT_NE(done.output.find("is in use by "), std::string::npos) << done.output;
    EXPECT_NE(done.output.find("\nCause: device-busy,"), std::string::npos) << done.output;
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
    expectCause("device-missing");
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

}  // namespace
}  // namespace velmora::e2e
