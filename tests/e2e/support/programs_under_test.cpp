#include "e2e/support/programs_under_test.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <string_view>

namespace velmora::e2e {
namespace {

namespace fs = std::filesystem;

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

class NativePrograms : public ProgramsUnderTest {
  public:
    bool windows() const override { return false; }

    std::vector<std::string> command(const std::string& program,
                                     const std::vector<std::string>& arguments) const override {
        std::vector<std::string> words;
        if (!valgrindLogs_.empty()) {
            // The controls of a port's exclusive use pass no memory, which valgrind does not know.
            words = {"valgrind",
                     "--quiet",
                     "--sim-hints=lax-ioctls",
                     "--leak-check=full",
                     "--errors-for-leak-kinds=definite",
                     "--show-leak-kinds=definite",
                     "--error-exitcode=99",
                     "--log-file=" + valgrindLogs_ + "/" + program + "-%p.log"};
        }
        words.push_back((nativePrograms() / program).string());
        words.insert(words.end(), arguments.begin(), arguments.end());
        return words;
    }
    std::string path(const fs::path& path) const override { return path.string(); }
    std::string port(const std::string& device) override { return device; }
    std::map<std::string, std::string> environment(const fs::path& home,
                                                   const std::string& zone) const override {
        return {{"HOME", home.string()},
                {"XDG_CONFIG_HOME", (home / "config").string()},
                {"XDG_DATA_HOME", (home / "data").string()},
                {"TMPDIR", (home / "tmp").string()},
                {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=" + (home / "bus").string()},
                {"TZ", zone},
                {"LC_ALL", "C.UTF-8"}};
    }
    fs::path configuration(const fs::path& home) const override {
        fs::create_directories(home / "config");
        return home / "config" / "Velmora.ini";
    }
    fs::path earlierCopies(const fs::path& home) const override {
        return home / "data" / "Velmora" / "Earlier copies";
    }
    void stop(const Process& process) const override { process.signal(SIGTERM); }
    bool lost(const Finished& /*done*/) const override { return false; }

  private:
    std::string valgrindLogs_ = variable("VELMORA_E2E_VALGRIND");
};

class WinePrograms : public ProgramsUnderTest {
  public:
    WinePrograms(fs::path folder, fs::path prefix) : folder_(std::move(folder)), prefix_(std::move(prefix)) {
        // The prefix outlives a test; what a test leaves there must not.
        fs::remove(applicationData() / "Velmora.ini");
        fs::remove_all(localData() / "Velmora");
    }
    ~WinePrograms() override {
        std::error_code ignored;
        for (const fs::path& link : links_) {
            fs::remove(link, ignored);
        }
        fs::remove(applicationData() / "Velmora.ini", ignored);
    }

    bool windows() const override { return true; }

    std::vector<std::string> command(const std::string& program,
                                     const std::vector<std::string>& arguments) const override {
        std::vector<std::string> words = {"wine", (folder_ / (program + ".exe")).string()};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return words;
    }
    /// Drive Z: is this machine's root.
    std::string path(const fs::path& path) const override {
        std::string name = "Z:" + path.string();
        std::replace(name.begin(), name.end(), '/', '\\');
        return name;
    }
    /// A pseudo-terminal's number is its own while it is open, so no two tests make the same port.
    std::string port(const std::string& device) override {
        constexpr int kFirstPort = 20;
        const int number = kFirstPort + std::stoi(fs::path(device).filename().string());
        const fs::path link = prefix_ / "dosdevices" / ("com" + std::to_string(number));
        fs::remove(link);
        fs::create_symlink(device, link);
        links_.push_back(link);
        return "COM" + std::to_string(number);
    }
    std::map<std::string, std::string> environment(const fs::path& /*home*/,
                                                   const std::string& zone) const override {
        return {{"WINEPREFIX", prefix_.string()}, {"WINEDEBUG", debug_}, {"TZ", zone}, {"LC_ALL", "C.UTF-8"}};
    }
    fs::path configuration(const fs::path& /*home*/) const override {
        return applicationData() / "Velmora.ini";
    }
    fs::path earlierCopies(const fs::path& /*home*/) const override {
        return localData() / "Velmora" / "Earlier copies";
    }
    /// Wine makes an interrupt into Ctrl+C; other signals end the process without its knowledge.
    void stop(const Process& process) const override { process.signal(SIGINT); }
    bool lost(const Finished& done) const override {
        const bool silent = done.status == 1 && done.output.empty() && done.error.empty();
        if (silent) {
            std::cout << "Wine ended a program with status 1 and without a word; it is started again.\n";
        }
        return silent;
    }

  private:
    fs::path applicationData() const { return appData() / "Roaming"; }
    fs::path localData() const { return appData() / "Local"; }
    /// The application data of the prefix's one user.
    fs::path appData() const {
        for (const fs::directory_entry& user : fs::directory_iterator(prefix_ / "drive_c" / "users")) {
            if (user.path().filename() != "Public") {
                return user.path() / "AppData";
            }
        }
        throw std::runtime_error("the Wine prefix " + prefix_.string() + " has no user");
    }

    fs::path folder_;
    fs::path prefix_;
    /// What Wine says of itself, on the programs' standard error: nothing, unless the caller wants it.
    std::string debug_ = variable("WINEDEBUG").empty() ? "-all" : variable("WINEDEBUG");
    std::vector<fs::path> links_;
};

/// The side whose choice a variable overrides.
std::unique_ptr<ProgramsUnderTest> side(const char* choice) {
    const std::string folder = variable("VELMORA_E2E_WINDOWS");
    if (folder.empty() || variable(choice) == "native") {
        return std::make_unique<NativePrograms>();
    }
    const std::string prefix = variable("WINEPREFIX");
    if (prefix.empty()) {
        throw std::runtime_error("VELMORA_E2E_WINDOWS needs WINEPREFIX");
    }
    return std::make_unique<WinePrograms>(fs::absolute(folder), fs::absolute(prefix));
}

fs::path nativeBuild() {
    const std::string build = variable("VELMORA_E2E_BUILD");
    return build.empty() ? fs::path(VELMORA_BUILD_DIR) : fs::absolute(build);
}

}  // namespace

fs::path nativePrograms() {
    return nativeBuild() / "bin";
}

fs::path nativeTools() {
    return nativeBuild() / "tools";
}

std::unique_ptr<ProgramsUnderTest> ProgramsUnderTest::ofServer() {
    return side("VELMORA_E2E_SERVER");
}

std::unique_ptr<ProgramsUnderTest> ProgramsUnderTest::ofOrganiser() {
    return side("VELMORA_E2E_ORGANISER");
}

}  // namespace velmora::e2e
