#include "doctor/line_doctor.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>

#include "doctor/doctor_report.h"
#include "doctor/simulated_line.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using test::SimulatedHandheld;
using test::SimulatedLine;

ExaminedDevice plainDevice() {
    ExaminedDevice device;
    device.name = "/dev/ttyUSB0";
    device.facts.exists = true;
    device.facts.mayOpen = true;
    return device;
}

tools::Illness illnessOf(const std::string& list) {
    tools::Illness illness = list.empty() ? tools::Illness() : tools::readIllness("--ill", list);
    if (!illness.handheld) {
        illness.handheld.emplace();
    }
    return illness;
}

std::string told(const Diagnosis& diagnosis) {
    std::string text;
    for (const StepFinding& finding : diagnosis.findings) {
        text += findingLine(finding) + "\n";
    }
    return text + verdictText(diagnosis.verdict);
}

Diagnosis examined(SimulatedLine& line, const ExaminedDevice& device = plainDevice()) {
    return LineDoctor(device, line, LineSettings()).examine();
}

/// A line of the table: what is wrong with it, and what the doctor is to say.
struct IllLineCase {
    Cause cause;
    std::string illness;
    SimulatedHandheld::Time reaction = 20ms;
    bool handheld = true;
    std::optional<std::uint32_t> modemLines = std::nullopt;
    bool tellsErrors = true;
    bool hasParity = true;
};

const std::vector<IllLineCase>& illLines() {
    static const std::vector<IllLineCase> lines = {
        {Cause::WrongRate, "rate=110"},
        {Cause::WrongRate, "rate=150"},
        {Cause::WrongRate, "rate=300"},
        {Cause::WrongRate, "rate=600"},
        {Cause::WrongRate, "rate=1200"},
        {Cause::WrongRate, "rate=2400"},
        {Cause::WrongRate, "rate=4800"},
        {Cause::WrongRate, "rate=19200"},
        {Cause::WrongRate, "rate=38400"},
        {Cause::WrongRate, "rate=57600"},
        {Cause::WrongRate, "rate=115200"},
        {Cause::WrongRate, "rate=1200,form=7E1", 20ms, true, std::nullopt, true, false},
        {Cause::WrongParity, "form=7E1"},
        {Cause::WrongParity, "form=7O1"},
        {Cause::WrongParity, "form=7M1"},
        {Cause::WrongParity, "form=7S1"},
        {Cause::WrongParity, "form=8E1"},
        {Cause::WrongParity, "form=8O1"},
        {Cause::WrongParity, "form=8E1", 20ms, true, std::nullopt, false},
        {Cause::WrongParity, "form=7E1", 20ms, true, std::nullopt, false, false},
        {Cause::Loopback, "loopback"},
        {Cause::Echo, "echo,mute"},
        {Cause::Echo, "echo"},
        {Cause::Modem, "modem"},
        {Cause::Modem, "quiet-modem"},
        {Cause::OtherProtocol, "xmodem"},
        {Cause::OtherProtocol, "text"},
        {Cause::LineStuck, "stuck"},
        {Cause::LineStuck, "stuck", 20ms, false, std::nullopt, false},
        {Cause::HandheldDeaf, "deaf"},
        {Cause::HandheldDeaf, "deaf", 20ms, true, kCtsOn | kDsrOn},
        {Cause::Noise, "noise=0.02"},
        {Cause::Noise, "noise=0.1"},
        {Cause::Noise, "noise=0.3"},
        {Cause::Noise, "noise=0.9"},
        {Cause::LooseContact, "breaks=0.05"},
        {Cause::LooseContact, "breaks=0.1", 20ms, true, std::nullopt, false},
        {Cause::AnswersLost, "losses=0.3"},
        {Cause::SlowAnswers, "", 450ms},
        {Cause::SlowAnswers, "", 700ms},
        {Cause::SlowAnswers, "", 1200ms},
        {Cause::Silence, "mute"},
        {Cause::Silence, "dead"},
        {Cause::Silence, "", 20ms, false, kCtsOn},
        {Cause::NotConnected, "dead", 20ms, false, 0U},
    };
    return lines;
}

class IllLineTest : public testing::TestWithParam<IllLineCase> {};

TEST(LineDoctorTest, NamesTheCauseOfNearlyEveryIllLine) {
    constexpr std::size_t kMostMistaken = 2;
    std::size_t mistaken = 0;
    std::uint64_t seed = 0;
    for (const IllLineCase& ill : illLines()) {
        SimulatedLine line(illnessOf(ill.illness), ++seed);
        if (ill.handheld) {
            line.handheld = std::make_unique<SimulatedHandheld>(70ms, ill.reaction);
        }
        line.lines = ill.modemLines;
        line.tellsErrors = ill.tellsErrors;
        line.hasParity = ill.hasParity;
        const Diagnosis diagnosis = examined(line);
        if (diagnosis.verdict.cause != ill.cause) {
            ++mistaken;
            std::cout << ill.illness << " is " << wordsOf(ill.cause).name << ":\n" << told(diagnosis);
        }
        EXPECT_LT(line.now(), 60s) << ill.illness;
    }
    EXPECT_GE(illLines().size(), 40U);
    EXPECT_LE(mistaken, kMostMistaken);
}

TEST(LineDoctorTest, AccusesNoHealthyLineInAThousandRuns) {
    constexpr int kRuns = 1000;
    for (std::uint64_t seed = 0; seed < kRuns; ++seed) {
        std::mt19937_64 random(seed);
        SimulatedLine line(illnessOf(""), seed);
        line.handheld = std::make_unique<SimulatedHandheld>(std::chrono::microseconds(random() % 1'000'000),
                                                            std::chrono::milliseconds(random() % 200));
        line.lines =
            random() % 2 == 0 ? std::optional<std::uint32_t>(random() % 2 == 0 ? 0U : kCtsOn) : std::nullopt;
        line.hasParity = random() % 2 == 0;
        const Diagnosis diagnosis = examined(line);
        ASSERT_EQ(diagnosis.verdict.cause, Cause::None) << seed << "\n" << told(diagnosis);
    }
}

TEST(LineDoctorTest, SendsNothingButWhatTheServerSends) {
    SimulatedLine line(illnessOf(""), 1);
    line.handheld = std::make_unique<SimulatedHandheld>(70ms, 20ms);
    examined(line);
    line.read(line.now() + 1s);
    const auto& heard = line.handheld->heard();
    ASSERT_FALSE(heard.empty());
    for (const std::uint8_t type : heard) {
        EXPECT_NE(type, static_cast<std::uint8_t>(FrameType::Data));
    }
    EXPECT_EQ(heard.back(), static_cast<std::uint8_t>(FrameType::Discon));
}

TEST(LineDoctorTest, EveryStepIsToldAsSoonAsItIsDone) {
    struct Steps : StepObserver {
        void found(const StepFinding& finding) override { names.emplace_back(nameOf(finding.step)); }
        std::vector<std::string> names;
    } steps;
    SimulatedLine line(illnessOf(""), 1);
    line.handheld = std::make_unique<SimulatedHandheld>(70ms, 20ms);
    LineDoctor(plainDevice(), line, LineSettings(), &steps).examine();
    EXPECT_EQ(steps.names, (std::vector<std::string>{"device", "adapter", "settings", "modem-lines", "echo",
                                                     "listening", "link"}));
}

TEST(LineDoctorTest, APortThatDoesNotOpenIsNotExaminedFurther) {
    SimulatedLine line(illnessOf(""), 1);
    line.openError = kPortInUse;
    const Diagnosis diagnosis = examined(line);
    EXPECT_EQ(diagnosis.verdict.cause, Cause::DeviceBusy);
    EXPECT_EQ(diagnosis.findings.size(), 1U);
}

TEST(LineDoctorTest, SettingsThatAreRefusedOrNotKeptAreTheCause) {
    SimulatedLine refusing(illnessOf(""), 1);
    refusing.onlyRate = 1200;
    EXPECT_EQ(examined(refusing).verdict.detail, "The device does not take 9600 baud.");
    SimulatedLine lying(illnessOf(""), 1);
    lying.told = LineSettings{1200};
    const Diagnosis diagnosis = examined(lying);
    EXPECT_EQ(diagnosis.verdict.cause, Cause::SettingsRefused);
    EXPECT_EQ(diagnosis.verdict.detail, "The device does not take 9600 baud; it tells of 1200 baud.");
}

TEST(LineDoctorTest, ADeviceThatTellsNothingIsWellAllTheSame) {
    SimulatedLine line(illnessOf(""), 1);
    line.handheld = std::make_unique<SimulatedHandheld>(70ms, 20ms);
    line.tellsSettings = false;
    EXPECT_EQ(examined(line).verdict.cause, Cause::None);
}

TEST(LineDoctorTest, AnAdapterThatIsPulledMeanwhileIsTheCause) {
    SimulatedLine line(illnessOf(""), 1);
    line.lostAt = 1s;
    const Diagnosis diagnosis = examined(line);
    EXPECT_EQ(diagnosis.verdict.cause, Cause::DeviceFailed);
    EXPECT_EQ(diagnosis.findings.back().text, "The line was cut.");
}

TEST(LineDoctorTest, ACopiedChipIsSuspectedWhereNothingComes) {
    ExaminedDevice device = plainDevice();
    device.identity.vendorId = "0403";
    device.identity.productId = "0000";
    SimulatedLine line(illnessOf("dead"), 1);
    EXPECT_EQ(examined(line, device).verdict.cause, Cause::AdapterCopy);
}

TEST(LineDoctorTest, AHandheldThatOnlyAnswersIsFoundAtItsRate) {
    SimulatedLine line(illnessOf("rate=2400"), 1);
    line.handheld = std::make_unique<SimulatedHandheld>(1h, 20ms);
    // Nothing of a request at another rate makes a frame there, so it is silent until the rate is right.
    const Diagnosis diagnosis = examined(line);
    EXPECT_EQ(diagnosis.verdict.cause, Cause::WrongRate);
    EXPECT_EQ(diagnosis.verdict.confidence, 95);
    EXPECT_EQ(diagnosis.verdict.detail, "The Organiser uses 2400 baud, and the server 9600 baud.");
}

TEST(LineDoctorTest, AnAnswerThatComesLateOnceIsNoFault) {
    SimulatedLine line(illnessOf(""), 1);
    line.handheld = std::make_unique<SimulatedHandheld>(70ms, 20ms);
    line.busyAt = 2s;
    EXPECT_EQ(examined(line).verdict.cause, Cause::None);
}

TEST(LineDoctorTest, AnOrganiserThatGivesUpMeanwhileIsNotCalledDeaf) {
    constexpr std::uint64_t kRuns = 20;
    for (std::uint64_t seed = 0; seed < kRuns; ++seed) {
        SimulatedLine line(illnessOf("losses=0.3"), seed);
        line.handheld = std::make_unique<SimulatedHandheld>(70ms, 20ms);
        line.goneAt = 8s;
        const Diagnosis diagnosis = examined(line);
        EXPECT_NE(diagnosis.verdict.cause, Cause::HandheldDeaf) << told(diagnosis);
    }
}

TEST(LineDoctorTest, RatesThatTheDeviceRefusesAreLeftOut) {
    SimulatedLine line(illnessOf("loopback"), 1);
    line.onlyRate = 9600;
    const Diagnosis diagnosis = examined(line);
    EXPECT_EQ(diagnosis.verdict.detail, "Every byte value came back at 1 of 1 rates.");
}

}  // namespace
}  // namespace velmora
