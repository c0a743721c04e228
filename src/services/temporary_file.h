// Files that are gone when their owner is.
#pragma once

#include <string>

#include "base/files.h"
#include "base/run_time_error.h"

namespace velmora {

/// A new empty file in the system's temporary folder, deleted with this object (a failure to delete is
/// ignored). Close what is open on it first. The file layer must outlive it.
class TemporaryFile {
  public:
    explicit TemporaryFile(Files& files) : files_(files), path_(files.createTemporaryFile()) {}
    ~TemporaryFile() {
        try {
            files_.deleteFile(path_);
        } catch (const RunTimeError&) {
            // Nobody is left to tell, and the system clears its folder in time.
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::string& path() const { return path_; }

  private:
    Files& files_;
    std::string path_;
};

}  // namespace velmora
