// FILE: records or bytes of any PC file, seeking, and folder listings.
#pragma once

#include <string_view>

#include "services/file_name_mapper.h"
#include "services/file_requests.h"

namespace velmora {

/// Opens one file at a time, as text, as bytes, or as a listing of a folder's names. It never changes the
/// field separator: after a data file of separated values was transferred, text records go on being
/// converted as that file's were.
class FileService : public FileRequests {
  public:
    /// All must outlive this object. `file` is shared with the FTRAN service.
    FileService(FrameSender& sender, ServerWindow& window, OpenFile& file, Transfers& transfers,
                const FileNameMapper& names)
        : FileRequests(sender, window, file, transfers), names_(names) {}

  private:
    void open(std::string_view argument) override;
    void close() override;
    void write(std::string_view argument) override { writeAndReply(argument); }
    void read(std::string_view argument) override { readAndReply(argument); }
    void seek(std::string_view argument) override;

    ServiceCode checkSeek(std::string_view argument);

    const FileNameMapper& names_;
};

}  // namespace velmora
