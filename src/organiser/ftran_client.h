// FTRAN: whole files between the Organiser and the server's download folder.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "organiser/file_requests.h"
#include "organiser/organiser_link.h"
#include "organiser/progress.h"

namespace velmora {

/// File types of the Organiser.
constexpr int kDataFile = 0;
constexpr int kProcedure = 1;
constexpr int kFirstBlockType = 2;
constexpr int kLastBlockType = 16;

/// The conversations of the service. Each call brings the link up if need be; after a load of records the
/// link is down, since the server ends it at the end of the file. Throws LinkFailure and LineError.
class FtranClient {
  public:
    /// Both must outlive the client.
    FtranClient(OrganiserLink& link, Progress& progress) : link_(link), progress_(progress) {}

    /// Saves records, each at most kMostData bytes.
    void saveRecords(std::string_view name, FileMode mode, const std::vector<std::string>& records);
    /// Saves a procedure: its lines, each sent with a zero byte behind it.
    void saveProcedure(std::string_view name, FileMode mode, const std::vector<std::string>& lines);
    /// Saves the bytes of a block file of `type` 2 to 16.
    void saveBlock(std::string_view name, FileMode mode, int type, std::string_view bytes);

    /// The records of a data file, or the lines of a procedure.
    std::vector<std::string> loadRecords(std::string_view name);
    std::vector<std::string> loadProcedure(std::string_view name);
    /// The bytes of a block file of `type` 2 to 16.
    std::string loadBlock(std::string_view name, int type);

    /// How far the last save came.
    const WriteState& written() const { return written_; }

  private:
    void save(std::string_view name, FileMode mode, int type, const std::vector<std::string>& messages,
              std::string_view unit);
    std::string open(std::string_view name, FileMode mode, int type);
    std::string readBytes(std::string_view name, std::size_t length);

    OrganiserLink& link_;
    Progress& progress_;
    WriteState written_;
};

}  // namespace velmora
