#include "doctor/cause.h"

#include <array>
#include <cstddef>

namespace velmora {
namespace {

constexpr std::array<CauseWords, 21> kCauses = {{
    {Cause::None, "none", "The line is well.", "There is nothing to do."},
    {Cause::DeviceMissing, "device-missing", "There is no such port.",
     "Plug the adapter in, or choose another port."},
    {Cause::NoPermission, "no-permission", "This login may not open the port.",
     "Join the group that owns the device, and log in again."},
    {Cause::DeviceBusy, "device-busy", "Another program has the port open.",
     "End that program, or stop the server, and check again."},
    {Cause::SettingsRefused, "settings-refused",
     "The device does not take the rate, or keeps other settings than it was given.",
     "Use another adapter, or install the driver that belongs to its chip."},
    {Cause::DeviceFailed, "device-failed", "The device fails: its driver reports errors, or it went away.",
     "Plug the adapter in again, directly at the computer, and try another one."},
    {Cause::AdapterCopy, "adapter-copy",
     "Nothing comes, and the adapter's chip is a copy that its driver refuses.",
     "Use an adapter with a genuine chip, or install an older driver."},
    {Cause::Loopback, "loopback",
     "Everything that is sent comes back, at every rate: pins 2 and 3 are joined.",
     "The adapter and the cable are well as far as the joint; remove it and connect the Organiser."},
    {Cause::Echo, "echo", "What is sent comes back, and nothing else does.",
     "Something on the line repeats every byte; check that the cable ends at the Organiser, and that its "
     "wires "
     "do not touch."},
    {Cause::Modem, "modem", "A modem is on the line, not an Organiser: it answers AT.",
     "Connect the Organiser's cable to this port, or choose the port that it is connected to."},
    {Cause::WrongRate, "wrong-rate", "The Organiser speaks at another rate than the server.",
     "Set BAUD in the Organiser's COMMS/SETUP menu to the server's rate, or the server to the Organiser's."},
    {Cause::WrongParity, "wrong-parity",
     "The Organiser uses another parity or number of bits than the server.",
     "Set PARITY to NONE, BITS to 8 and STOP to 1 in the Organiser's COMMS/SETUP menu."},
    {Cause::OtherProtocol, "other-protocol", "The Organiser speaks, but not the protocol of the server.",
     "Set PROTOCOL to PSION in the Organiser's COMMS/SETUP menu."},
    {Cause::LineStuck, "line-stuck", "Only nulls come: the line is held low.",
     "Check the plug for bent or touching pins, and try another cable."},
    {Cause::LooseContact, "loose-contact", "The line is interrupted again and again while bytes come.",
     "Push the plugs home at both ends; if that does not help, try another cable."},
    {Cause::Noise, "noise", "Bytes arrive damaged.",
     "Use a shorter cable away from power supplies, check its ground wire, or set a lower rate on both "
     "sides."},
    {Cause::AnswersLost, "answers-lost", "The Organiser answers, but not every time.",
     "Push the plugs home at both ends, and plug the adapter in directly at the computer."},
    {Cause::SlowAnswers, "slow-answers", "The Organiser's answers come too late for the server.",
     "Plug the adapter in directly at the computer, and leave out hubs, networks and radio links on the "
     "way."},
    {Cause::HandheldDeaf, "handheld-deaf", "The Organiser calls, but does not hear what is sent to it.",
     "Check the wire from pin 3 of the computer's plug to the Organiser, and that PARITY is NONE there; try "
     "another cable."},
    {Cause::NotConnected, "not-connected", "Nothing comes, and no line of the plug is on.",
     "Plug the cable in at both ends, and switch the Organiser on."},
    {Cause::Silence, "silence", "Nothing comes from the Organiser.",
     "Start a transfer on the Organiser; if it says that it waits, check the cable: join pins 2 and 3 at the "
     "Organiser's end and check again."},
}};

}  // namespace

std::span<const CauseWords> causes() {
    return kCauses;
}

const CauseWords& wordsOf(Cause cause) {
    return kCauses.at(static_cast<std::size_t>(cause));
}

}  // namespace velmora
