// What the doctor says of ill lines, for its tests and for those of its document.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "doctor/cause.h"

namespace velmora::test {

/// Illnesses of velmora-cable of which the doctor says the same.
struct KnownIllLines {
    std::vector<std::string_view> illnesses;  ///< as --ill takes them; "" for none
    Cause cause;
    bool called = true;  ///< an Organiser calls at the other end
};

/// Every illness that velmora-cable knows.
inline const std::vector<KnownIllLines>& knownIllLines() {
    static const std::vector<KnownIllLines> lines = {
        {{"rate=9600", "form=8N2"}, Cause::None},
        {{"rate=110", "rate=300", "rate=1200", "rate=4800", "rate=19200", "rate=115200", "rate=1200,form=7E1",
          "rate=2400,noise=0.03"},
         Cause::WrongRate},
        {{"form=7E1", "form=7M1"}, Cause::WrongParity},
        {{"deaf", "form=8E1"}, Cause::HandheldDeaf},
        {{"mute", "dead"}, Cause::Silence},
        {{"loopback"}, Cause::Loopback, false},
        {{"echo"}, Cause::Echo, false},
        {{"modem", "quiet-modem"}, Cause::Modem, false},
        {{"xmodem", "text"}, Cause::OtherProtocol, false},
        {{"noise=0.1"}, Cause::Noise},
        {{"breaks=0.2"}, Cause::LooseContact},
        {{"losses=0.3"}, Cause::AnswersLost},
        {{"stuck"}, Cause::LineStuck, false},
    };
    return lines;
}

/// A cause that no illness of the cable has.
struct OtherCause {
    Cause cause;
    std::string_view arrangement;  ///< how a test brings it about, for the document
    std::string_view test;         ///< its name
};

inline constexpr std::array<OtherCause, 8> kOtherCauses = {{
    {Cause::DeviceMissing, "a port that is not there", "CableDoctorTest.AMissingPortIsNamed"},
    {Cause::NoPermission, "another login", "CableDoctorTest.APortOfSomebodyElseIsNamed"},
    {Cause::DeviceBusy, "a server on the port", "CableDoctorTest.APortThatIsHeldIsNamedWithItsHolder"},
    {Cause::DeviceFailed, "a cable that ends amid the examination",
     "CableDoctorTest.AnAdapterThatIsPulledIsNamed"},
    {Cause::SlowAnswers, "`velmora-organiser --delay 450`",
     "CableDoctorTest.AnOrganiserThatAnswersLateIsNamed"},
    {Cause::SettingsRefused, "a pseudo-terminal takes all: a simulated line",
     "LineDoctorTest.SettingsThatAreRefusedOrNotKeptAreTheCause"},
    {Cause::AdapterCopy, "a pseudo-terminal has no chip: a simulated line",
     "LineDoctorTest.ACopiedChipIsSuspectedWhereNothingComes"},
    {Cause::NotConnected, "a pseudo-terminal has no modem lines: a simulated line",
     "LineDoctorTest.NamesTheCauseOfNearlyEveryIllLine"},
}};

}  // namespace velmora::test
