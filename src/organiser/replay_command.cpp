#include "organiser/replay_command.h"

#include <chrono>
#include <ostream>
#include <utility>

#include "base/span_text.h"
#include "capture/pcapng_reader.h"
#include "organiser/frame_text.h"
#include "organiser/local_files.h"
#include "organiser/replay.h"

namespace velmora {
namespace {

/// Throws LocalFileError.
Capture readableCapture(const std::string& path, std::istream& standardInput) {
    try {
        ReadCapture read = readPcapng(readLocalInput(path, standardInput));
        if (read.damage) {
            throw LocalFileError(inputName(path) + ": " + *read.damage + ".");
        }
        if (read.capture.masked) {
            throw LocalFileError(inputName(path) + ": what the Organiser sent is masked.");
        }
        return std::move(read.capture);
    } catch (const CaptureError& error) {
        throw LocalFileError(inputName(path) + ": " + error.what() + ".");
    }
}

}  // namespace

ExitStatus runReplay(const std::string& path, OrganiserLine& line, const OrganiserLink::FrameTrace& trace,
                     const Console& console) {
    const Capture capture = readableCapture(path, console.in);
    const ReplayResult result = replay(capture, line, trace);
    if (!result.parting) {
        console.out << "All frames of the server agree: " << result.agreed << ".\n";
        return kDone;
    }
    const ReplayParting& parting = *result.parting;
    console.out << "Frame " << parting.frame << " of the server differs, recorded at "
                << exactSecondsText(parting.time) << " s:\n"
                << "  then: " << frameText(parting.then) << '\n'
                << "  now:  " << (parting.now ? frameText(*parting.now) : "no answer") << '\n';
    return parting.now ? kDiffers : kNoLink;
}

}  // namespace velmora
