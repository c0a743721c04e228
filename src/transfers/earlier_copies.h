// Copies of the files that saves replace.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/clock.h"
#include "base/files.h"
#include "base/path_rules.h"
#include "transfers/transfer_log.h"

namespace velmora {

/// Read at the moment of use; start-up fills it.
struct EarlierCopiesSettings {
    std::string folder;      ///< made when it is first needed, for this user alone
    std::int32_t days = 30;  ///< how long a copy is kept; none are made for 0
};

/// Keeps what a save is about to replace, so that a transfer that breaks off does not take the earlier, whole
/// file with it. A copy has the file's name and the moment: "Memo (2026-11-21 22.20.05).odb". Holds
/// references only; all of them must outlive it.
class EarlierCopies {
  public:
    EarlierCopies(Files& files, const PathRules& rules, const Clock& clock, TransferLog& log,
                  const EarlierCopiesSettings& settings)
        : files_(files), rules_(rules), clock_(clock), log_(log), settings_(settings) {}

    /// Copies the file at `path` and returns the copy's path; empty when there is nothing to keep (no file,
    /// an empty one) or nothing was kept: none are wanted, the file has more than kLargestFile bytes, or
    /// another failure that the log was told of, none of which hinders the save. Throws RunTimeError 61 when
    /// the copy has no room, and what opening the file for writing throws: then the file must stay as it is.
    std::string keep(const std::string& path);

    /// Deletes the copies whose time is over. Other files of the folder are left alone, as is everything when
    /// no copies are wanted. Never fails.
    void removeExpired();

    static constexpr std::uint64_t kLargestFile = 64 * 1024 * 1024;

  private:
    std::string copyOf(File& source, const std::string& path);
    std::unique_ptr<File> createCopy(const std::string& path, std::string& copyPath);
    bool isExpired(const std::string& name, const DateTime& now) const;

    Files& files_;
    const PathRules& rules_;
    const Clock& clock_;
    TransferLog& log_;
    const EarlierCopiesSettings& settings_;
};

}  // namespace velmora
