#include "files/capture_command.h"

#include <chrono>
#include <ostream>
#include <string_view>
#include <vector>

#include "base/byte_text.h"
#include "base/span_text.h"
#include "base/system_text.h"
#include "capture/capture_events.h"
#include "capture/capture_statistics.h"
#include "capture/pcapng_reader.h"
#include "link/debug.h"

namespace velmora {
namespace {

/// A text of the file as one line that no terminal obeys.
std::string shownUtf8(const std::string& text) {
    const auto windows1252 = fromUtf8(text);
    return windows1252 ? toSystemText(showControls(*windows1252)) : hexEscaped(text);
}

std::string counted(std::size_t count, std::string_view what) {
    return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

std::string_view labelOf(const CaptureEvent& event) {
    if (event.direction == CaptureDirection::Received) {
        return "recv";
    }
    return event.repeated ? "resend" : "send";
}

std::string frameLine(const CaptureEvent& event) {
    std::string line = std::string(labelOf(event)) + " \t" + describeFrame(event.bytes);
    if (!event.parsed) {
        line += "\t[bad check]";
    } else if (event.repeated && event.direction == CaptureDirection::Received) {
        line += "\t[repeat]";
    }
    return line;
}

std::string portLine(const CapturedPort& port) {
    return "port \t" + shownUtf8(port.device) + " " + shownUtf8(port.settings);
}

std::string lineOf(const CaptureEvent& event, const Capture& capture) {
    switch (event.kind) {
        case CaptureEvent::Kind::Port:
            return portLine(capture.ports[event.port]);
        case CaptureEvent::Kind::Frame:
            return frameLine(event);
        case CaptureEvent::Kind::Stray:
            return std::string(labelOf(event)) + " \t[" + counted(event.stray, "stray byte") + "]";
        case CaptureEvent::Kind::Comment:
            return "note \t" + shownUtf8(event.bytes);
    }
    return {};  // unreachable: every kind is above
}

void printWay(const char* from, const WayStatistics& way, std::chrono::nanoseconds length,
              std::ostream& out) {
    out << from << ": " << counted(way.bytes, "byte") << ", " << counted(way.frames, "frame") << ", "
        << counted(way.repeats, "repeat") << ", " << counted(way.badChecks, "bad check") << ", "
        << counted(way.stray, "stray byte") << ", " << percentOf(way.busy, length) << " % of the line used\n";
    const RoundTrips& trips = way.roundTrips;
    if (trips.count > 0) {
        out << "  acknowledged in " << exactSecondsText(trips.mean()) << " s ("
            << exactSecondsText(trips.shortest) << " to " << exactSecondsText(trips.longest) << " s, "
            << counted(trips.count, "frame") << ")\n";
    }
}

}  // namespace

bool runCaptureCommand(const std::string& name, const FileAccess& access) {
    const ReadCapture read = readPcapng(access.readInput(name));
    const std::vector<CaptureEvent> events = eventsOf(read.capture);
    std::ostream& out = access.out();
    for (const CaptureEvent& event : events) {
        out << exactSecondsText(event.time - events.front().time) << '\t' << lineOf(event, read.capture)
            << '\n';
    }
    const CaptureStatistics statistics = statisticsOf(read.capture, events);
    out << "Length: " << exactSecondsText(statistics.length) << " s"
        << (read.capture.masked ? ", masked" : "") << '\n';
    printWay("From the Organiser", statistics.received, statistics.length, out);
    printWay("From the server", statistics.sent, statistics.length, out);
    if (read.damage) {
        access.tellOfInput(name)(*read.damage);
    }
    return !read.damage;
}

}  // namespace velmora
