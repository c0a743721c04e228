// The virtual Organiser against a server that answers whatever it likes.
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "input.h"
#include "link/crc.h"
#include "link/frames.h"
#include "organiser/command_line.h"
#include "organiser/commands.h"
#include "organiser/fake_line.h"
#include "organiser/organiser_link.h"
#include "organiser_steps.h"
#include "require.h"

namespace {

using namespace velmora;
using namespace fuzz;

/// The server's end of the line.
class Server {
  public:
    Server(test::FakeLine& line, Input& input) : line_(line), input_(input) {
        crc_.load_CRCtable();
        line_.onWrite = [this](const std::string& bytes) { take(bytes); };
    }

  private:
    void take(const std::string& bytes) {
        const std::optional<ParsedFrame> frame = parseFrame(crc_, bytes);
        require(frame.has_value());
        const auto type = static_cast<FrameType>(frame->type);
        if (input_.atEnd() || type == FrameType::Ack || type == FrameType::Discon) {
            return;
        }
        if (type == FrameType::Connect) {
            sequence_ = 0;
        }
        step(type, frame->sequence);
    }
    void step(FrameType asked, std::uint8_t sequence) {
        const auto step = static_cast<ServerStep>(input_.below(kServerSteps));
        if (step <= kTwice || step == kLater) {
            send(FrameType::Ack, sequence, {});
        }
        switch (step) {
            case kAnswer:
            case kTwice:
            case kLater:
                if (asked == FrameType::Data) {
                    reply(step);
                }
                break;
            case kRefuse:
                send(FrameType::Discon, 0, input_.bytes(1));
                break;
            case kFrame: {
                const std::uint8_t typeAndSequence = input_.byte();
                send(static_cast<FrameType>(typeAndSequence & 0xF8U), typeAndSequence & 7U, input_.text());
                break;
            }
            case kBytes:
                line_.arrive(input_.text());
                break;
            default:
                break;
        }
    }
    void reply(ServerStep step) {
        sequence_ = static_cast<std::uint8_t>((sequence_ + 1) % kSequenceModulus);
        const auto delay = std::chrono::milliseconds(step == kLater ? 100 * input_.byte() : 0);
        const std::string text = input_.text();
        for (int copies = step == kTwice ? 2 : 1; copies > 0; --copies) {
            send(FrameType::Data, sequence_, text, delay);
        }
    }
    void send(FrameType type, std::uint8_t sequence, const std::string& data,
              std::chrono::milliseconds delay = {}) {
        line_.arrive(buildFrame(crc_, type, sequence, data), delay);
    }

    test::FakeLine& line_;
    Input& input_;
    Crc crc_;
    std::uint8_t sequence_ = 0;
};

/// Commands of every kind that talks to a server; "-" is a standard stream.
std::vector<CommandLine> readCommands() {
    const std::vector<std::vector<std::string>> all = {
        {"load", "MEMO"},
        {"load", "PROC", "--type", "procedure"},
        {"load", "BLOCK", "--type", "block:3"},
        {"save", "-", "--as", "MEMO"},
        {"save", "-", "--as", "PROC", "--type", "procedure"},
        {"save", "-", "--as", "BLOCK", "--type", "block:4"},
        {"dir"},
        {"dir", "*.ODB", "--long"},
        {"read", "FILE"},
        {"read", "FILE", "--text"},
        {"read", "FILE", "--seek", "2:-2"},
        {"write", "FILE", "-"},
        {"write", "FILE", "-", "--text", "--mode", "4"},
        {"formats"},
        {"sheet-load", "SHEET", "--format", "wks"},
        {"sheet-save", "-", "--as", "SHEET", "--format", "csv"},
        {"boot", "CODE", "--address", "2000"},
        {"time"},
        {"gmt"},
        {"timeinfo"},
        {"exit"},
        {"shutdown"},
        {"service", "LINK"},
        {"tour", "--boot", "CODE"},
    };
    std::vector<CommandLine> lines;
    for (std::vector<std::string> arguments : all) {
        arguments.insert(arguments.begin(), {"--device", "line", "--tries", "2"});
        lines.push_back(readCommandLine(arguments));
    }
    return lines;
}

void run(const CommandLine& command, Input& input) {
    test::FakeLine line;
    const Server server(line, input);
    OrganiserLink link(line);
    // Records, bytes and cells at once.
    std::istringstream in("A1 12\nB1 'label\nC1 =A1*2\n");
    std::ostringstream out;
    std::ostringstream error;
    Progress progress;
    const ExitStatus status = runCommand(command, link, {in, out, error, progress});
    require(!link.up());
    require(status == kDone || status == kLocalProblem || status == kRefused || status == kNoLink);
    require(status == kDone || !(out.str() + error.str()).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<CommandLine> commands = readCommands();
    Input input(data, size);
    run(commands[input.below(commands.size())], input);
    return 0;
}
