// The one file that FTRAN and FILE have open at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/files.h"
#include "base/path_rules.h"
#include "link/server_window.h"
#include "services/line_reader.h"
#include "services/service_codes.h"
#include "services/temporary_file.h"
#include "transfers/earlier_copies.h"
#include "transfers/incomplete_save.h"
#include "transfers/transfer_log.h"

namespace velmora {

/// What open_File opens; a block file of the Organiser's type t (2 to 16) is -t.
enum FileKind : int {
    kKindProcedure = -1,    ///< a procedure text; read as an image made from it
    kKindBinary = 0,        ///< bytes
    kKindText = 1,          ///< lines
    kKindShortListing = 2,  ///< the short names of a folder's files, as lines
    kKindLongListing = 3,   ///< the long names of a folder's files, as lines
};

/// The mode byte of an open request.
enum OpenModeByte : int {
    kModeRead = 0,       ///< the file must exist
    kModeCreate = 1,     ///< an existing file is replaced
    kModeReplace = 2,    ///< the file must exist and is replaced
    kModeCreateNew = 3,  ///< the file must not exist
    kModeAppend = 4,     ///< the file must exist; text is added at its end
};

/// Results of open_File besides the error codes, which are positive.
enum FileStatus : int {
    kNoFile = 0,
    kOpenForReading = -1,
    kOpenForWriting = -2,
};

/// Opens, reads, writes and closes the file in the terms of the services, and counts its bytes in the
/// window's statistics. Shared by both services. Unless told otherwise, failures of the file layer leave as
/// RunTimeError. Holds references only; all of them must outlive it.
class OpenFile {
  public:
    OpenFile(Files& files, const PathRules& rules, ServerWindow& window, EarlierCopies& copies,
             TransferLog& log)
        : files_(files), rules_(rules), window_(window), copies_(copies), log_(log) {}
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// Opens `path` (for a listing: folder and pattern) and returns the new status: kOpenForReading,
    /// kOpenForWriting, or the ServiceCode of the failure, after which no file is open. An empty path is a
    /// refused name (189). Of a file that modes 1 and 2 replace an earlier copy is kept first; without room
    /// for it the disk is full (186), and the file stays as it was. Requires: no file open, mode 0 to 4. A
    /// procedure that is too large for its image is a RunTimeError 6, and no file is open then either.
    int open_File(const std::string& path, int mode, int kind);

    FileStatus status() const { return status_; }
    bool isOpen() const { return status_ != kNoFile; }
    bool textMode() const { return lines_ != nullptr || writesText_; }

    /// Text: nothing is left to read. Binary: the position is at or behind the end.
    /// Requires: open for reading.
    bool atEnd();
    /// Reads the next line, as a record where there is a field separator, or up to `maximum` bytes, and
    /// counts them. Nothing when the record is longer than `maximum` or the line longer than kLongestLine.
    /// Requires: open for reading.
    std::optional<std::string> readBlock(std::size_t maximum);
    /// Writes and counts a record: a line in text mode, its bytes in binary mode. Returns kCodeNone or the
    /// code of the failure; of a line that failed nothing is in the file. A block file keeps the length 0 in
    /// its header then, so that no reading takes for whole what is there.
    /// A block file that would outgrow its length field is a RunTimeError 6. Requires: open for writing.
    ServiceCode writeRecord(std::string_view record);

    /// The bytes behind "ORG" of the image open for reading, fewer where it ends; the position is behind
    /// them then. They are not counted.
    std::string readImageHeader(std::size_t count);

    /// The copy of what the file open for writing has replaced; empty when it replaces nothing.
    std::string earlierCopy() const { return status_ == kOpenForWriting ? save_.earlierCopy : std::string(); }

    /// Position and length in bytes, binary mode.
    std::uint64_t position() const { return file_->position(); }
    std::uint64_t size() const { return file_->size(); }
    void seek(std::uint64_t position) { file_->seek(position); }

    /// Makes sure of what was written, for the answer that it is saved: a block file gets its length, all is
    /// handed to the disk, and the file must still be the one of its name. The file stays open at its
    /// position. Returns kCodeNone, also when nothing was to be saved, or the code of the failure.
    ServiceCode save();

    /// Completes a block file's length, closes, and deletes a temporary file. Never fails; what cannot be
    /// done is left. Closing when nothing is open is fine.
    void close();

    /// Between fields of the text files: '\0' for none (records are lines as they are), ',' or ';'. Stays
    /// when the file is closed.
    char fieldSeparator() const { return fieldSeparator_; }
    void setFieldSeparator(char separator) { fieldSeparator_ = separator; }

    /// A longer line of a file can be no record.
    static constexpr std::size_t kLongestLine = 65'536;

  private:
    /// What is still to be done to the header of a block file.
    enum class Header {
        Settled,  ///< nothing, or it is no block file
        Due,      ///< it goes before the first record; until then the old file is as it was
        Pending,  ///< it has the length 0 and gets the file's at the end
    };

    int openChecked(const std::string& path, int mode, int kind);
    ServiceCode checkMode(const std::string& path, int mode) const;
    void openListing(const std::string& pattern, int kind);
    void openProcedureImage(const std::string& path);
    void openForReading(const std::string& path, int kind);
    void openForWriting(const std::string& path, int mode, int kind);
    void goToEnd();

    std::optional<std::string> readTextBlock(std::size_t maximum);
    std::string readBinaryBlock(std::size_t maximum);
    std::string readBytes(std::size_t count);
    void writeLine(std::string_view record);
    void writeBytes(std::string_view record);
    void requireRoom(std::size_t count) const;
    /// A write was refused.
    void leaveHeader();
    void completeHeader();

    Files& files_;
    const PathRules& rules_;
    ServerWindow& window_;
    EarlierCopies& copies_;
    TransferLog& log_;
    char fieldSeparator_ = '\0';

    FileStatus status_ = kNoFile;
    std::unique_ptr<TemporaryFile> temporary_;
    std::unique_ptr<File> file_;
    std::unique_ptr<LineReader> lines_;
    bool writesText_ = false;
    bool lineEndMissing_ = false;
    Header header_ = Header::Settled;
    int blockType_ = 0;
    IncompleteSave save_;
    bool unfinished_ = false;  // something was changed that the Organiser has not called complete
    bool procedureImage_ = false;
};

}  // namespace velmora
