// Which programs a test drives, and how they see this machine.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "e2e/support/process.h"

namespace velmora::e2e {

/// One side's programs: those built for this machine, or the Windows ones under Wine. The variables
///   VELMORA_E2E_WINDOWS    folder of the Windows programs; without it both sides are native
///   VELMORA_E2E_SERVER     "native" takes the native server all the same
///   VELMORA_E2E_ORGANISER  "native" takes the native Organiser all the same
///   VELMORA_E2E_BUILD      build folder of the native programs, this build's without it; they may be for
///                          another kind of machine, which the system emulates
///   VELMORA_E2E_VALGRIND   folder for the reports of valgrind, under which the native programs run then; one
///                          with an error ends with status 99
/// choose; Windows programs live in the prefix that WINEPREFIX names, whose wineserver must be running.
class ProgramsUnderTest {
  public:
    /// The programs of the server's side; throws std::runtime_error when Wine is asked for without a prefix.
    static std::unique_ptr<ProgramsUnderTest> ofServer();
    /// The programs of the Organiser's side; throws as ofServer.
    static std::unique_ptr<ProgramsUnderTest> ofOrganiser();

    virtual ~ProgramsUnderTest() = default;
    ProgramsUnderTest(const ProgramsUnderTest&) = delete;
    ProgramsUnderTest& operator=(const ProgramsUnderTest&) = delete;

    virtual bool windows() const = 0;
    /// The command line that starts a program such as "velmorad".
    virtual std::vector<std::string> command(const std::string& program,
                                             const std::vector<std::string>& arguments) const = 0;
    /// A file or folder as the programs name it.
    virtual std::string path(const std::filesystem::path& path) const = 0;
    /// A terminal as the programs name it; the name holds as long as this object lives.
    virtual std::string port(const std::string& device) = 0;
    /// What must be in the environment so that a test in the folder `home` and in a time zone meets nothing
    /// of whoever runs it.
    virtual std::map<std::string, std::string> environment(const std::filesystem::path& home,
                                                           const std::string& zone) const = 0;
    /// The user's configuration file, in an existing folder.
    virtual std::filesystem::path configuration(const std::filesystem::path& home) const = 0;
    /// Where the server keeps the files that saves replace.
    virtual std::filesystem::path earlierCopies(const std::filesystem::path& home) const = 0;
    /// Asks a running program to end, as its user would.
    virtual void stop(const Process& process) const = 0;
    /// Whether a program was ended by Wine instead of by itself. That happens to about one of a thousand,
    /// which ends with status 1 and without a word; ours have a message for every failure.
    virtual bool lost(const Finished& done) const = 0;

  protected:
    ProgramsUnderTest() = default;
};

/// The folders of the native programs, and of the tools that are none of the released programs.
std::filesystem::path nativePrograms();
std::filesystem::path nativeTools();

}  // namespace velmora::e2e
