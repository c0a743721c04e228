// FTRAN: whole files between the Organiser and the download folder.
#pragma once

#include <string>
#include <string_view>

#include "services/file_name_mapper.h"
#include "services/file_requests.h"
#include "services/transfer_settings.h"

namespace velmora {

/// Transfers data files (type 0), procedures (1) and block files (2 to 16). The file type decides the
/// extension of a name without one and the form of the PC file. A closed file is counted but stays open,
/// for further requests too, until the next open or the end of the service.
class FtranService : public FileRequests {
  public:
    /// All must outlive this object. `file` is shared with the FILE service.
    FtranService(FrameSender& sender, ServerWindow& window, OpenFile& file, Transfers& transfers,
                 const FileNameMapper& names, const TransferSettings& settings)
        : FileRequests(sender, window, file, transfers), names_(names), settings_(settings) {}

  private:
    void begin() override { dataWritten_ = false; }
    void open(std::string_view argument) override;
    void close() override;
    void write(std::string_view argument) override;
    void read(std::string_view argument) override;

    /// The name with the extension of its type if it has none; sets the field separator then.
    std::string withExtension(std::string_view name);
    void answerOpened(const std::string& path);

    const FileNameMapper& names_;
    const TransferSettings& settings_;
    int openMode_ = 0;
    int fileType_ = 0;
    bool dataWritten_ = false;
};

}  // namespace velmora
