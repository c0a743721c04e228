#include "organiser/tour.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/byte_text.h"
#include "organiser/boot_client.h"
#include "organiser/cells_file.h"
#include "organiser/conversation.h"
#include "organiser/sheet_client.h"
#include "organiser/tour_names.h"
#include "services/service_codes.h"

namespace velmora {
namespace {

constexpr std::uint16_t kBootAddress = 0x2000;
constexpr int kBlockType = 3;
constexpr int kWorksheet = 2;

/// Something came back from the server in another form than it went there.
class Difference : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

std::vector<std::string> sampleRecords() {
    std::vector<std::string> records;
    for (int i = 1; i <= 200; ++i) {
        records.push_back("Person " + std::to_string(i) + "\t" + std::to_string(i) + " High Street\t0" +
                          std::to_string(71'000 + i));
    }
    return records;
}

const std::vector<std::string> kProcedureLines{
    "tour:", "LOCAL n%", "n%=1", "WHILE n%<=3", "PRINT \"Hello\",n%", "n%=n%+1", "ENDWH"};

/// Every byte value, runs of the link's own control characters included.
std::string sampleBytes(std::size_t count) {
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes += static_cast<char>(i % 7 == 0 ? 0x10 : i % 256);
    }
    return bytes;
}

const std::vector<SheetCell> kCells{
    {0, 0, SheetCell::kLabel, "Price"},  {1, 0, SheetCell::kNumberOrFormula, "12.5"},
    {0, 1, SheetCell::kLabel, "Amount"}, {1, 1, SheetCell::kNumberOrFormula, "4"},
    {0, 2, SheetCell::kLabel, "Total"},  {1, 2, SheetCell::kNumberOrFormula, "=B1*B2"}};

class Tour {
  public:
    Tour(const CommandLine& line, OrganiserLink& link, const Console& console)
        : line_(line),
          link_(link),
          out_(console.out),
          progress_(console.progress),
          ftran_(link, console.progress),
          file_(link, console.progress),
          sheet_(link, console.progress),
          attempts_(link, line.tries, [this](const std::string& text) { say(text); }) {}

    ExitStatus run();

  private:
    /// Whether a server may do without the services of a step.
    enum class Need { Expected, Optional };
    void step(const std::string& title, Need need, const std::function<void()>& action);
    void say(const std::string& text) { out_ << "  " << text << '\n'; }
    template <typename Value>
    void compare(const std::string& what, const Value& sent, const Value& received);
    std::vector<std::string> listLong();
    void saveNew(const WriteState& written, const std::function<void(FileMode)>& save);

    void chooseNames();
    void dataFile();
    void procedure();
    void blockFile();
    void anyFile();
    void folder();
    void spreadsheet();
    void clock();
    void boot();
    void unknownService();
    void tellWhatStays();

    const CommandLine& line_;
    OrganiserLink& link_;
    std::ostream& out_;
    Progress& progress_;
    FtranClient ftran_;
    FileClient file_;
    SheetClient sheet_;
    Attempts attempts_;
    std::vector<std::string> listedBefore_;
    std::optional<TourNames> names_;
    ExitStatus status_ = kDone;
};

template <typename Value>
void Tour::compare(const std::string& what, const Value& sent, const Value& received) {
    if (sent != received) {
        throw Difference(what + " came back changed.");
    }
    say(what + " came back exactly as sent.");
}

void Tour::step(const std::string& title, Need need, const std::function<void()>& action) {
    if (status_ == kNoLink) {
        return;
    }
    out_ << '\n' << title << '\n';
    ExitStatus status = kDone;
    try {
        status = guarded(out_, [&] {
            try {
                action();
            } catch (const LinkFailure& failure) {
                const bool missing =
                    failure.kind() == LinkFailure::Kind::Refused && failure.code() == kCodeInvalidRequest;
                if (need == Need::Expected || !missing) {
                    throw;
                }
                say("Skipped: the server answers " + std::to_string(failure.code()) + ", " +
                    meaningOfCode(failure.code()) + ".");
            }
        });
    } catch (const Difference& difference) {
        say(difference.what());
        status = kLocalProblem;
    }
    if (status_ == kDone || status == kNoLink) {
        status_ = status;
    }
}

std::vector<std::string> Tour::listLong() {
    std::vector<std::string> names;
    attempts_.run([&] { names = file_.list("TOUR*", true); });
    return names;
}

/// Saves a file that must not be there yet, unless an earlier try has made it.
void Tour::saveNew(const WriteState& written, const std::function<void(FileMode)>& save) {
    bool made = false;
    attempts_.run([&] { save(made ? FileMode::Create : FileMode::CreateNew); },
                  [&] {
                      made = made || written.opened;
                      return true;
                  });
}

void Tour::chooseNames() {
    listedBefore_ = listLong();
    names_ = freeTourNames(listedBefore_);
    say(names_->base + ", " + names_->text + " and " + names_->bytes + " are free.");
}

void Tour::dataFile() {
    const std::string& name = names_->base;
    const auto records = sampleRecords();
    std::vector<std::string> received;
    saveNew(ftran_.written(), [&](FileMode mode) { ftran_.saveRecords(name, mode, records); });
    attempts_.run([&] { received = ftran_.loadRecords(name); });
    compare("The data file " + name + ", 200 records,", records, received);
}

void Tour::procedure() {
    const std::string& name = names_->base;
    std::vector<std::string> received;
    saveNew(ftran_.written(), [&](FileMode mode) { ftran_.saveProcedure(name, mode, kProcedureLines); });
    attempts_.run([&] { received = ftran_.loadProcedure(name); });
    compare("The procedure " + name + ", " + std::to_string(kProcedureLines.size()) + " lines,",
            kProcedureLines, received);
}

void Tour::blockFile() {
    const std::string& name = names_->base;
    const std::string bytes = sampleBytes(4'000);
    std::string received;
    saveNew(ftran_.written(), [&](FileMode mode) { ftran_.saveBlock(name, mode, kBlockType, bytes); });
    attempts_.run([&] { received = ftran_.loadBlock(name, kBlockType); });
    compare("The block file " + name + ", type 3, 4000 bytes,", bytes, received);
}

void Tour::anyFile() {
    const std::vector<std::string> lines{"A text file of the server,", "line by line.", "", "The end."};
    std::vector<std::string> receivedLines;
    saveNew(file_.written(), [&](FileMode mode) { file_.writeLines(names_->text, mode, lines); });
    attempts_.run([&] { receivedLines = file_.readLines(names_->text); });
    compare("The text file " + names_->text + ", 4 lines,", lines, receivedLines);

    const std::string bytes = sampleBytes(1'000);
    const Seek tail{Seek::From::End, -100};
    std::string received;
    saveNew(file_.written(),
            [&](FileMode mode) { file_.writeBytes(names_->bytes, mode, std::nullopt, bytes); });
    attempts_.run([&] { received = file_.readBytes(names_->bytes, tail); });
    compare("The end of " + names_->bytes + ", from byte " + std::to_string(file_.position()) + " on,",
            bytes.substr(900), received);
}

void Tour::folder() {
    for (const bool longNames : {false, true}) {
        std::vector<std::string> names;
        attempts_.run([&] { names = file_.list("TOUR*", longNames); });
        std::string text;
        for (const std::string& name : names) {
            text += " " + toUtf8(name);
        }
        say((longNames ? "Long names: " : "Short names:") + text);
    }
}

void Tour::spreadsheet() {
    std::vector<OfferedFormat> formats;
    attempts_.run([&] { formats = sheet_.formats(); });
    std::string text;
    for (const OfferedFormat& format : formats) {
        text += " " + toUtf8(format.name);
    }
    say("The server writes worksheets as" + text + ".");
    const std::string& name = names_->base;
    std::vector<SheetCell> received;
    // The service replaces what is there; the listing has shown that nothing is.
    attempts_.run([&] { sheet_.save(name, kWorksheet, kCells); });
    attempts_.run([&] { received = sheet_.load(name, kWorksheet); });
    for (const std::string& line : cellLines(received)) {
        say("  " + toUtf8(line));
    }
    compare("The spreadsheet " + name + ", 6 cells,", cellLines(kCells), cellLines(received));
}

void Tour::clock() {
    struct Question {
        std::string service;
        std::string words;
    };
    for (const Question& question :
         {Question{"TIME", "Local time:         "}, Question{"GMT", "Universal time:     "},
          Question{"TIMEINFO", "Local time and zone:"}}) {
        std::string reply;
        attempts_.run([&] { reply = openService(link_, question.service); });
        say(question.words + " " + hexEscaped(reply));
    }
    say("A \"*\" stands for daylight-saving time.");
}

void Tour::boot() {
    if (!line_.command.bootName) {
        say("Skipped: name a boot file of the server with --boot.");
        return;
    }
    const std::uint16_t address = line_.command.address.value_or(kBootAddress);
    BootCode code;
    attempts_.run([&] { code = fetchBootCode(link_, progress_, *line_.command.bootName, address); });
    std::ostringstream text;
    text << code.code.size() << " bytes of code in " << code.chunks.size() << " pieces, relocated to "
         << std::hex << std::uppercase << address << '.';
    say(text.str());
}

void Tour::unknownService() {
    try {
        attempts_.run([&] { openService(link_, "TEAPOT"); });
        throw Difference("The server claims to know a service TEAPOT.");
    } catch (const LinkFailure& failure) {
        if (failure.kind() != LinkFailure::Kind::Refused || failure.code() != kCodeInvalidRequest) {
            throw;
        }
        say("The server answers " + std::to_string(failure.code()) + ", as it should.");
    }
}

void Tour::tellWhatStays() {
    std::string text;
    for (const std::string& name : listLong()) {
        if (std::find(listedBefore_.begin(), listedBefore_.end(), name) == listedBefore_.end()) {
            text += " " + toUtf8(name);
        }
    }
    say(text.empty() ? "No file." : "It leaves these files in the server's folder:" + text);
}

ExitStatus Tour::run() {
    out_ << "A tour of the server on " << line_.device << '\n';
    step("Names that are free", Need::Expected, [this] { chooseNames(); });
    if (names_) {
        step("Data file, there and back", Need::Expected, [this] { dataFile(); });
        step("Procedure, there and back", Need::Expected, [this] { procedure(); });
        step("Block file, there and back", Need::Expected, [this] { blockFile(); });
        step("Any file: lines, bytes and a seek", Need::Expected, [this] { anyFile(); });
        step("The server's folder", Need::Expected, [this] { folder(); });
        step("Spreadsheet, there and back", Need::Optional, [this] { spreadsheet(); });
    }
    step("The server's clock", Need::Optional, [this] { clock(); });
    step("Boot code", Need::Optional, [this] { boot(); });
    step("A service that does not exist", Need::Expected, [this] { unknownService(); });
    if (names_) {
        step("What stays", Need::Expected, [this] { tellWhatStays(); });
    }
    out_ << '\n'
         << (status_ == kDone ? "All done. " : "Not all of it worked. ")
         << "The commands exit and shutdown stop the server and are left to you.\n";
    return status_;
}

}  // namespace

ExitStatus runTour(const CommandLine& line, OrganiserLink& link, const Console& console) {
    return Tour(line, link, console).run();
}

}  // namespace velmora
