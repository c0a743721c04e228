#include "apps/server_arguments.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>

#include "base/byte_text.h"

namespace velmora {
namespace {

/// Walks the arguments and hands out names and values.
class Reader {
  public:
    explicit Reader(const std::vector<std::string>& arguments) : arguments_(arguments) {}

    bool atEnd() const { return next_ == arguments_.size(); }

    /// The next option's name; a value behind "=" is kept for value() and optionalValue().
    std::string option() {
        name_ = arguments_[next_++];
        attached_.reset();
        const std::size_t equals = name_.find('=');
        if (name_.starts_with("--") && equals != std::string::npos) {
            attached_ = name_.substr(equals + 1);
            name_.resize(equals);
        }
        return name_;
    }
    std::optional<std::string> optionalValue() const { return attached_; }
    std::string value() {
        if (!attached_) {
            if (atEnd()) {
                throw UsageError(name_ + " needs a value");
            }
            attached_ = arguments_[next_++];
        }
        if (attached_->empty()) {
            throw UsageError(name_ + " needs a value");
        }
        return *attached_;
    }
    std::int32_t number(std::int32_t lowest, std::int32_t highest) {
        const std::string text = value();
        std::int32_t number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end != text.data() + text.size() || number < lowest || number > highest) {
            throw UsageError(name_ + " " + text + ": not a number from " + std::to_string(lowest) + " to " +
                             std::to_string(highest));
        }
        return number;
    }
    void noValue() const {
        if (attached_) {
            throw UsageError(name_ + " takes no value");
        }
    }

  private:
    const std::vector<std::string>& arguments_;
    std::size_t next_ = 0;
    std::string name_;
    std::optional<std::string> attached_;
};

std::vector<std::string> splitCategories(const std::string& list) {
    std::vector<std::string> categories;
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t comma = std::min(list.find(',', start), list.size());
        const std::string word = upperCase(trimBlanks(list.substr(start, comma - start)));
        if (!word.empty()) {
            categories.push_back(word);
        }
        start = comma + 1;
    }
    return categories;
}

}  // namespace

ServerArguments parseServerArguments(const std::vector<std::string>& arguments) {
    constexpr std::int32_t kHighestBaud = 4'000'000;
    constexpr std::int32_t kHighestFileType = 3;
    ServerArguments result;
    Reader reader(arguments);
    while (!reader.atEnd()) {
        const std::string option = reader.option();
        if (option == "--config") {
            result.config = reader.value();
        } else if (option == "--port") {
            result.port = reader.value();
        } else if (option == "--baud") {
            result.baud = reader.number(1, kHighestBaud);
        } else if (option == "--folder") {
            result.folder = reader.value();
        } else if (option == "--file-type") {
            result.fileType = reader.number(0, kHighestFileType);
        } else if (option == "--trace") {
            result.trace = true;
            result.traceCategories = splitCategories(reader.optionalValue().value_or(""));
        } else if (option == "--trace-file") {
            result.trace = true;
            result.traceFile = reader.value();
        } else if (option == "--help" || option == "-h") {
            reader.noValue();
            result.help = true;
        } else if (option == "--version") {
            reader.noValue();
            result.version = true;
        } else {
            throw UsageError("unknown option " + option);
        }
    }
    return result;
}

std::string serverUsage() {
    return "Usage: velmorad [options]\n"
           "Serves a Psion Organiser II on a serial port, without a window, until it is told to stop.\n"
           "\n"
           "  --config <file>        Configuration file (default: Velmora.ini in the user's configuration "
           "folder)\n"
           "  --port <COMn|device>   Serial port, for example COM5 or /dev/ttyUSB0 (default: the file's "
           "Port)\n"
           "  --baud <rate>          Line speed (default: the file's Baud, 9600)\n"
           "  --folder <folder>      Download folder (default: the file's DownloadPath)\n"
           "  --file-type <0..3>     Data files as 0 ODB, 1 TXT, 2 CSV (comma), 3 CSV (semicolon)\n"
           "  --trace[=<list>]       Protocol trace on standard error: all categories, or some of\n"
           "                         PLP,STATE,EVENT,COM,DATA,ERROR\n"
           "  --trace-file <file>    Protocol trace into a file\n"
           "  --help, --version      Show this text, show the version\n"
           "\n"
           "Options hold for this run and are not saved. Exit status: 0 stopped (by a signal or by the\n"
           "Organiser), 1 the port cannot be opened or failed, 2 the command line makes no sense.\n";
}

}  // namespace velmora
