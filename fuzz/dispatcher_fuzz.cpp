// Any sequence of requests to the services, as an Organiser makes them and as it never would, with faults of
// the disk and of the link between them.
#include <cstdint>
#include <string>

#include "dispatcher_steps.h"
#include "input.h"
#include "served_folder.h"

namespace {

using namespace velmora;
using namespace fuzz;
using test::FileCall;

/// How often a sheet is ended before an input is. Each end writes the sheet and keeps its earlier copy, which
/// takes longer than all other steps together.
constexpr int kMostSheets = 4;

/// One of the usual names, or any text.
std::string name(Input& input) {
    const std::vector<std::string>& names = usualNames();
    const std::size_t choice = input.byte();
    return choice < names.size() ? names[choice] : input.text();
}

/// What a service asks of the disk, and how that fails.
void failOperation(SmallDisk& disk, Input& input) {
    constexpr FileCall kCalls[] = {FileCall::FileSize,     FileCall::Open,    FileCall::Delete,
                                   FileCall::CreateFolder, FileCall::Replace, FileCall::CreateTemporary,
                                   FileCall::List,         FileCall::Read,    FileCall::Write,
                                   FileCall::Flush,        FileCall::Close};
    constexpr ErrorNumber kErrors[] = {ErrorNumber::DiskFull, ErrorNumber::DeviceIoError,
                                       ErrorNumber::PermissionDenied, ErrorNumber::FileNotFound};
    const FileCall call = kCalls[input.below(std::size(kCalls))];
    const int which = 1 + static_cast<int>(input.below(8));
    disk.failAtCall(call, which, kErrors[input.below(std::size(kErrors))]);
}

/// Columns and rows of a sheet. A large one, whose cells cost time and reach only what those of a small one
/// do, is made small, but for the least that is beyond the Organiser's limits.
std::string sheetSize(Input& input) {
    const std::uint8_t columns = input.byte();
    const std::uint8_t rows = input.byte();
    const bool isLeastBeyondLimits = columns == kSheetColumns + 1 && rows == kSheetRows + 1;
    constexpr int kMostCells = 100;
    const int mask = columns * rows > kMostCells && !isLeastBeyondLimits ? 7 : 0xFF;
    return {static_cast<char>(columns & mask), static_cast<char>(rows & mask)};
}

/// The message of a step that is a request.
std::string request(Step step, Input& input) {
    switch (step) {
        case kOpenFile: {
            const char mode = input.character();
            const char kind = input.character();
            return std::string{0, mode, kind} + name(input);
        }
        case kWrite:
            return '\2' + input.text();
        case kRead:
            return {3, input.character()};
        case kSeek: {
            const char mode = input.character();
            return std::string{4, mode} + input.text();
        }
        case kCloseFile:
            return {1};
        case kSheet: {
            const char format = input.character();
            return format + name(input);
        }
        case kSheetSize:
            return sheetSize(input);
        case kCell:
            return input.bytes(3) + input.text();
        case kEndOfSheet:
            return "\xFE";
        default:
            return input.text();
    }
}

void runStep(ServedFolder& server, Step step, Input& input) {
    switch (step) {
        case kOpenService:
            server.event(PLP_EV_RESET);
            server.message(usualServices()[input.below(usualServices().size())]);
            break;
        case kUnanswered:
            server.event(PLP_EV_DATA, input.text());
            break;
        case kLinkDown:
            server.event(PLP_EV_RESET);
            break;
        case kStopInside:
            server.stopInsideNextSend();
            break;
        case kFailOperation:
            failOperation(server.disk(), input);
            break;
        case kDeleteFile:
            server.deleteFile(name(input));
            break;
        default:
            server.message(request(step, input));
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    ServedFolder server;
    const std::uint8_t choice = input.byte();
    server.settings().DataFileType = choice & 3;
    server.settings().StayInFolder = (choice & 4) != 0;
    server.settings().sheets.wksDialect = (choice & 8) != 0 ? WksDialect::Common : WksDialect::Own;
    int sheets = 0;
    while (!input.atEnd() && sheets < kMostSheets) {
        const Step step = static_cast<Step>(input.below(kSteps));
        runStep(server, step, input);
        sheets += step == kEndOfSheet ? 1 : 0;
    }
    server.event(PLP_EV_RESET);
    return 0;
}
