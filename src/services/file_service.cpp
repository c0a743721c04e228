#include "services/file_service.h"

#include "base/number_text.h"
#include "services/named_transfer.h"

namespace velmora {
namespace {

enum SeekMode : int { FromStart = 0, FromPosition = 1, FromEnd = 2 };

TransferKind transferKind(int kind) {
    switch (kind) {
        case kKindBinary:
            return TransferKind::Bytes;
        case kKindText:
            return TransferKind::Text;
        default:
            return TransferKind::Listing;
    }
}

/// The number with at least eight digits.
std::string eightDigits(std::int32_t number) {
    constexpr std::size_t kDigits = 8;
    std::string digits = std::to_string(number);
    if (digits.size() < kDigits) {
        digits.insert(0, kDigits - digits.size(), '0');
    }
    return digits;
}

}  // namespace

void FileService::open(std::string_view argument) {
    if (file().isOpen()) {
        refuse(kCodeAlreadyOpen);
        return;
    }
    if (argument.size() < 2 || byteAt(argument, 0) > kModeAppend || byteAt(argument, 1) > kKindLongListing) {
        refuse(kCodeInvalidRequest);
        return;
    }
    const int mode = byteAt(argument, 0);
    const int kind = byteAt(argument, 1);
    const bool listing = kind == kKindShortListing || kind == kKindLongListing;
    const bool mustExist = mode == kModeRead || mode == kModeAppend;
    const std::string_view name = argument.substr(2);
    const std::string path = names_.map_FileName(name, mustExist, listing);
    announce(namedTransfer(names_, name, path,
                           mode == kModeRead || listing ? TransferDirection::Load : TransferDirection::Save,
                           transferKind(kind)));
    const int status = file().open_File(path, mode, kind);
    if (status > 0) {
        refuse(status);
        return;
    }
    replyOpened({}, listing ? SendDir : FileAccess, path);
}

void FileService::close() {
    saveAndReply();
    end();
}

ServiceCode FileService::checkSeek(std::string_view argument) {
    if (argument.empty()) {
        return kCodeInvalidRequest;
    }
    if (!file().isOpen()) {
        return kCodeNotPossible;
    }
    return file().textMode() || byteAt(argument, 0) > FromEnd ? kCodeInvalidRequest : kCodeNone;
}

void FileService::seek(std::string_view argument) {
    if (const ServiceCode refusal = checkSeek(argument); refusal != kCodeNone) {
        refuse(refusal);
        return;
    }
    const std::string_view offset = argument.substr(1);
    addToStats(window(), StatsBytesReceived, offset.size());
    std::uint64_t base = 0;
    if (byteAt(argument, 0) == FromPosition) {
        base = file().position();
    } else if (byteAt(argument, 0) == FromEnd) {
        base = file().size();
    }
    // The position is counted from 1 up to here and from 0 in the reply.
    const std::int32_t position = toInt32(static_cast<double>(base) + 1 + numericValue(offset));
    if (position < 1) {
        refuse(kCodeNotPossible);
        return;
    }
    file().seek(static_cast<std::uint64_t>(position) - 1);
    reply(eightDigits(position - 1));
    window().SetStats(StatsBytesSent, 8);
}

}  // namespace velmora
