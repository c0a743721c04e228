#include "services/open_file.h"

#include <algorithm>
#include <utility>

#include "base/run_time_error.h"
#include "services/block_file.h"
#include "services/data_conversion.h"
#include "services/folder_listing.h"
#include "services/map_error.h"
#include "services/procedure_image.h"

namespace velmora {
namespace {

bool isListing(int kind) {
    return kind == kKindShortListing || kind == kKindLongListing;
}

bool isBlockFile(int kind) {
    return kind < kKindProcedure;
}

/// Whether the Organiser is going to write over what a file holds. Blocks and procedures begin at the first
/// byte in every mode; text is added at the end, and any other file is changed where the Organiser seeks to.
bool writesOver(int mode, int kind) {
    return mode == kModeCreate || mode == kModeReplace || (mode == kModeAppend && kind <= kKindProcedure);
}

/// Overflow comes from what the file is to hold, not from the file layer.
bool isFileFailure(const RunTimeError& error) {
    return error.errorNumber() != ErrorNumber::Overflow;
}

/// How a file is opened for writing. Replacing empties the file that is there instead of deleting and making
/// it: a failure cannot take the old file and leave none, and of two files whose names differ only by case
/// exactly the one that was meant is replaced.
OpenMode writingMode(int mode) {
    switch (mode) {
        case kModeCreateNew:
            return OpenMode::CreateNew;
        case kModeAppend:
            return OpenMode::ReadWrite;
        default:
            return OpenMode::Create;
    }
}

}  // namespace

OpenFile::~OpenFile() {
    close();
}

int OpenFile::open_File(const std::string& path, int mode, int kind) {
    try {
        const int result = openChecked(path, mode, kind);
        if (result > 0) {
            close();
        }
        return result;
    } catch (const RunTimeError& error) {
        close();
        if (!isFileFailure(error)) {
            throw;
        }
        return map_Error(error);
    }
}

int OpenFile::openChecked(const std::string& path, int mode, int kind) {
    if (path.empty()) {
        return kCodeFileNotFound;
    }
    if (isListing(kind)) {
        openListing(path, kind);
        return status_ = kOpenForReading;
    }
    if (const ServiceCode refusal = checkMode(path, mode); refusal != kCodeNone) {
        return refusal;
    }
    if (mode == kModeRead) {
        openForReading(path, kind);
        return status_ = kOpenForReading;
    }
    openForWriting(path, mode, kind);
    return status_ = kOpenForWriting;
}

ServiceCode OpenFile::checkMode(const std::string& path, int mode) const {
    const bool exists = files_.fileExists(path);
    if (mode == kModeCreateNew) {
        return exists ? kCodeFileExists : kCodeNone;
    }
    return exists || mode == kModeCreate ? kCodeNone : kCodeFileNotFound;
}

void OpenFile::openListing(const std::string& pattern, int kind) {
    temporary_ = std::make_unique<TemporaryFile>(files_);
    file_ = files_.open(temporary_->path(), OpenMode::ReadWrite);
    writeFolderListing(files_, rules_, pattern,
                       kind == kKindShortListing ? ListedNames::Short : ListedNames::Long, *file_);
    file_->seek(0);
    lines_ = std::make_unique<LineReader>(*file_);
}

void OpenFile::openProcedureImage(const std::string& path) {
    const std::unique_ptr<File> source = files_.open(path, OpenMode::Read);
    temporary_ = std::make_unique<TemporaryFile>(files_);
    file_ = files_.open(temporary_->path(), OpenMode::ReadWrite);
    buildProcedureImage(*source, *file_);
    file_->seek(0);
    procedureImage_ = true;
}

void OpenFile::openForReading(const std::string& path, int kind) {
    if (kind == kKindProcedure) {
        openProcedureImage(path);
        return;
    }
    file_ = files_.open(path, OpenMode::Read);
    if (kind == kKindText) {
        lines_ = std::make_unique<LineReader>(*file_);
    }
}

void OpenFile::openForWriting(const std::string& path, int mode, int kind) {
    const std::string target = mode == kModeCreateNew ? path : files_.storedPath(path);
    save_ = {target, 0, writesOver(mode, kind) ? copies_.keep(target) : std::string()};
    file_ = files_.open(target, writingMode(mode));
    unfinished_ = mode != kModeAppend;
    if (kind == kKindText) {
        writesText_ = true;
        goToEnd();
    } else if (isBlockFile(kind)) {
        blockType_ = -kind;
        header_ = Header::Due;
        if (mode != kModeAppend) {
            file_->write(blockHeader(blockType_));
            header_ = Header::Pending;
        }
    }
}

/// Text is added at the end; a last line without one is ended first.
void OpenFile::goToEnd() {
    const std::uint64_t length = file_->size();
    lineEndMissing_ = false;
    if (length > 0) {
        file_->seek(length - 1);
        lineEndMissing_ = readBytes(1) != "\n";
    }
    file_->seek(length);
}

bool OpenFile::atEnd() {
    return lines_ != nullptr ? lines_->atEnd() : file_->position() >= file_->size();
}

std::optional<std::string> OpenFile::readBlock(std::size_t maximum) {
    return lines_ != nullptr ? readTextBlock(maximum) : readBinaryBlock(maximum);
}

std::optional<std::string> OpenFile::readTextBlock(std::size_t maximum) {
    std::string line;
    if (!lines_->readLine(line, kLongestLine)) {
        return std::nullopt;
    }
    if (fieldSeparator_ != '\0') {
        line = line_ToRecord(line, fieldSeparator_);
    }
    addToStats(window_, StatsBytesSent, line.size() + 2);
    return line.size() <= maximum ? std::optional(std::move(line)) : std::nullopt;
}

std::string OpenFile::readBinaryBlock(std::size_t maximum) {
    std::string block = readBytes(maximum);
    // In an image of a procedure a byte 0 stands for a line end of two bytes.
    const auto lineEnds = procedureImage_ ? std::count(block.begin(), block.end(), '\0') : 0;
    addToStats(window_, StatsBytesSent, block.size() + static_cast<std::size_t>(lineEnds));
    return block;
}

std::string OpenFile::readBytes(std::size_t count) {
    std::string bytes(count, '\0');
    bytes.resize(file_->read(bytes.data(), count));
    return bytes;
}

std::string OpenFile::readImageHeader(std::size_t count) {
    file_->seek(kImageMark);
    return readBytes(count);
}

ServiceCode OpenFile::writeRecord(std::string_view record) {
    try {
        writesText_ ? writeLine(record) : writeBytes(record);
    } catch (const RunTimeError& error) {
        leaveHeader();
        if (!isFileFailure(error)) {
            throw;
        }
        return map_Error(error);
    }
    save_.bytes += record.size() + (writesText_ ? 2 : 0);
    unfinished_ = true;
    return kCodeNone;
}

void OpenFile::writeLine(std::string_view record) {
    addToStats(window_, StatsBytesReceived, record.size() + 2);
    if (file_->position() != file_->size()) {
        goToEnd();  // another program has added or taken away something
    }
    std::string line = lineEndMissing_ ? "\r\n" : "";
    if (fieldSeparator_ != '\0') {
        line += record_ToLine(record, fieldSeparator_);
    } else {
        line += record;
    }
    line += "\r\n";
    // One write: a full disk takes the record with its end or not at all.
    file_->write(line);
    lineEndMissing_ = false;
}

void OpenFile::writeBytes(std::string_view record) {
    // A header that is due goes in the same write: refused, it leaves the old file as it was.
    const std::string header = header_ == Header::Due ? blockHeader(blockType_) : std::string();
    requireRoom(header.size() + record.size());
    file_->write(header + std::string(record));
    if (header_ == Header::Due) {
        header_ = Header::Pending;
    }
    addToStats(window_, StatsBytesReceived, record.size());
}

void OpenFile::requireRoom(std::size_t count) const {
    if (header_ != Header::Settled &&
        std::max(file_->size(), file_->position() + count) > kLargestBlockFile) {
        throw RunTimeError(ErrorNumber::Overflow, "block file above 65,535 bytes");
    }
}

void OpenFile::leaveHeader() {
    if (header_ == Header::Pending) {
        header_ = Header::Settled;
    }
}

void OpenFile::completeHeader() {
    const std::string length = imageLengthField(file_->size());
    const std::uint64_t position = file_->position();
    file_->seek(kImageMark);
    file_->write(length);
    file_->seek(position);
}

ServiceCode OpenFile::save() {
    if (status_ != kOpenForWriting) {
        return kCodeNone;
    }
    try {
        if (header_ == Header::Pending) {
            completeHeader();
        }
        file_->flush();
    } catch (const RunTimeError& error) {
        return map_Error(error);
    }
    if (!file_->isInPlace()) {
        return kCodeNotPossible;
    }
    unfinished_ = false;
    return kCodeNone;
}

void OpenFile::close() {
    if (file_ != nullptr) {
        try {
            if (header_ == Header::Pending) {
                completeHeader();
            }
        } catch (const RunTimeError&) {
            // The header keeps the length 0, by which a later reading refuses the file.
        }
        try {
            file_->close();
        } catch (const RunTimeError&) {
            // The service has ended and has nobody to tell.
        }
    }
    lines_.reset();
    file_.reset();
    temporary_.reset();
    status_ = kNoFile;
    writesText_ = false;
    lineEndMissing_ = false;
    header_ = Header::Settled;
    procedureImage_ = false;
    if (std::exchange(unfinished_, false)) {
        log_.saveBrokeOff(save_);
    }
}

}  // namespace velmora
