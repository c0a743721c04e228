// Implementations of ProfileFiles with a file to try them on.
#pragma once

#include <string>
#include <vector>

#include "base/files.h"
#include "platform/profile/text_profile_files.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/plain_path_rules.h"
#include "support/profile_cases.h"

namespace velmora::test {

class ProfileRig {
  public:
    virtual ~ProfileRig() = default;

    virtual ProfileFiles& profiles() = 0;
    /// What the implementation works on.
    virtual FailingFiles& files() = 0;
    /// The path of the profile file, in a folder of its own.
    virtual std::string file() const = 0;
    /// The path of a profile file in a folder that is missing.
    virtual std::string fileInMissingFolder() const = 0;
    virtual void given(const std::string& contents) = 0;
    virtual std::string contents() const = 0;
    /// A folder gets the file's name.
    virtual void giveFolder() = 0;
    /// How many files there are beside the profile file and the profile file itself.
    virtual std::size_t filesThere() const = 0;
    /// Which opening of a file during a write is that of the new file; the first is 1.
    virtual int openingOfTheNewFile() const = 0;
    /// Whether a row of a table says what this implementation does.
    virtual bool holds(UnderWine underWine) const = 0;
};

/// Our own reader and writer, in memory.
class TextProfileRig : public ProfileRig {
  public:
    TextProfileRig() { memory_.addFolder("/home"); }
    ProfileFiles& profiles() override { return profiles_; }
    FailingFiles& files() override { return files_; }
    std::string file() const override { return "/home/velmora.ini"; }
    std::string fileInMissingFolder() const override { return "/missing/velmora.ini"; }
    void given(const std::string& contents) override { memory_.addFile(file(), contents); }
    std::string contents() const override { return memory_.content(file()); }
    void giveFolder() override { memory_.addFolder(file()); }
    std::size_t filesThere() const override { return memory_.paths().size(); }
    int openingOfTheNewFile() const override { return 2; }  // the file is read first
    bool holds(UnderWine) const override { return true; }

  private:
    MemoryFiles memory_;
    FailingFiles files_{memory_};
    PlainPathRules rules_;
    TextProfileFiles profiles_{files_, rules_};
};

}  // namespace velmora::test
