// Any sequence of requests to the services, as an Organiser makes them and as it never would, with faults of
// the disk and of the link between them.
//
// Input: a byte for the settings, then steps, each a byte for its kind and what that kind reads. A name is a
// byte that chooses one, or a text.
#include <cstdint>
#include <string>

#include "input.h"
#include "served_folder.h"

namespace {

using namespace velmora;
using fuzz::Input;
using test::FileCall;

enum Step : std::uint8_t {
    kOpenService,    ///< the link is new; which service
    kOpenFile,       ///< mode, kind, name
    kWrite,          ///< text
    kRead,           ///< maximum
    kSeek,           ///< mode, offset as text
    kCloseFile,      ///< nothing
    kSheet,          ///< format, with 128 for a save; name
    kSheetSize,      ///< columns, rows
    kCell,           ///< column, row, type, text
    kEndOfSheet,     ///< nothing
    kMessage,        ///< text
    kUnanswered,     ///< text; the answer is not acknowledged
    kLinkDown,       ///< nothing
    kStopInside,     ///< nothing: the user stops the server inside the next send
    kFailOperation,  ///< kind of file operation, how many succeed before it, error
    kDeleteFile,     ///< name: another program deletes the file
    kSteps,
};

/// The names that requests use most: files that are there, others, patterns and folders.
std::string name(Input& input) {
    static const std::vector<std::string> others = {"NEW",      "NEW.WKS", "*",         "*.*",
                                                    "SUB\\NEW", "C>1.OPL", "..\\A.ODB", ""};
    const auto& files = fuzz::filesOfFolder();
    const std::size_t choice = input.byte();
    if (choice < files.size()) {
        return files[choice].first;
    }
    return choice < files.size() + others.size() ? others[choice - files.size()] : input.text();
}

/// What a service asks of the disk, and how that fails.
void failOperation(fuzz::SmallDisk& disk, Input& input) {
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
            return input.bytes(2);
        case kCell:
            return input.bytes(3) + input.text();
        case kEndOfSheet:
            return "\xFE";
        default:
            return input.text();
    }
}

void runStep(fuzz::ServedFolder& server, Input& input) {
    const auto step = static_cast<Step>(input.below(kSteps));
    switch (step) {
        case kOpenService:
            server.event(PLP_EV_RESET);
            server.message(fuzz::kServices[input.below(fuzz::kServices.size())]);
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
    fuzz::ServedFolder server;
    const std::uint8_t choice = input.byte();
    server.settings().DataFileType = choice & 3;
    server.settings().StayInFolder = (choice & 4) != 0;
    server.settings().sheets.wksDialect = (choice & 8) != 0 ? WksDialect::Common : WksDialect::Own;
    while (!input.atEnd()) {
        runStep(server, input);
    }
    server.event(PLP_EV_RESET);
    return 0;
}
