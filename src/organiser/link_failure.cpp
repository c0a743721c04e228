#include "organiser/link_failure.h"

#include <utility>

#include "link/frames.h"
#include "services/service_codes.h"

namespace velmora {

LinkFailure::LinkFailure(Kind kind, std::string reason, const std::string& text)
    : std::runtime_error(text), kind_(kind), reason_(std::move(reason)) {}

LinkFailure LinkFailure::refused(const std::string& reason) {
    LinkFailure failure(Kind::Refused, reason, "");
    const int code = failure.code();
    return {Kind::Refused, reason,
            "Refused by the server: " + std::to_string(code) + ", " + meaningOfCode(code) + "."};
}

LinkFailure LinkFailure::lost() {
    return {Kind::Lost, "", "The link was lost."};
}

LinkFailure LinkFailure::noLink(const std::string& text) {
    return {Kind::NoLink, "", text};
}

LinkFailure LinkFailure::unexpected(const std::string& text) {
    return {Kind::Unexpected, "", text};
}

int LinkFailure::code() const {
    return reason_.empty() ? 0 : static_cast<unsigned char>(reason_.front());
}

bool LinkFailure::worthAnotherTry() const {
    if (kind_ == Kind::Refused) {
        return reason_.size() == 1 &&
               (reason_.front() == kReasonTooManyErrors || reason_.front() == kReasonWrongSequence);
    }
    return kind_ == Kind::Lost;
}

std::string meaningOfCode(int code) {
    switch (code) {
        case kCodeNone:
            return "the server ended the link";
        case kCodeRecordTooLong:
            return "the record is longer than the maximum asked for";
        case kCodeDiskFull:
            return "the disk is full";
        case kCodeFileExists:
            return "the file to be created already exists";
        case kCodeNotPossible:
            return "the request does not fit the open file, or it failed";
        case kCodeFileNotFound:
            return "the file does not exist, or its name was refused";
        case kCodeInvalidRequest:
            return "invalid request, or unknown service";
        case kCodeAlreadyOpen:
            return "a file is already open, or another program holds it";
        case kCodeEndOfFile:
            return "end of file";
        case static_cast<unsigned char>(kReasonTooManyErrors):
            return "too many send errors on the link";
        case static_cast<unsigned char>(kReasonWrongSequence):
            return "a data frame came out of sequence while the link was being set up";
        default:
            return "a code without a known meaning";
    }
}

}  // namespace velmora
