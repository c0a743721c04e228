// Any sequence of events against the dispatcher with all services over files in memory.
//
// The first byte chooses the form of data files. Then come steps, a kind byte each, some with a payload (a
// length byte and as many bytes): see Step.
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "services/boot_file.h"
#include "services/boot_service.h"
#include "services/dispatcher.h"
#include "services/file_service.h"
#include "services/ftran_service.h"
#include "services/open_file.h"
#include "services/planm_service.h"
#include "services/stop_request_service.h"
#include "services/time_services.h"
#include "support/failing_files.h"
#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/recording_sender.h"
#include "support/recording_trace.h"
#include "support/recording_window.h"
#include "support/simple_names.h"

namespace {

using namespace velmora;
using test::FileCall;

constexpr const char* kServices[] = {"FTRAN", "FILE", "BOOT", "EXIT",    "SHUTDOWN",
                                     "PLANM", "TIME", "GMT",  "TIMEINFO"};

enum Step : int {
    kData,           ///< a data message with a payload
    kAcknowledge,    ///< the last reply was acknowledged
    kLinkDown,       ///< the link went down
    kReopen,         ///< the link went down and a service is named: a byte chooses it
    kStopInside,     ///< the next send runs a stop of the server
    kFailNextWrite,  ///< the next write finds the disk full
    kFailNextRead,   ///< the next read fails
    kStepCount,
};

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A file on a small disk: no seek makes it large.
class SmallFile : public File {
  public:
    explicit SmallFile(std::unique_ptr<File> inner) : inner_(std::move(inner)) {}
    std::size_t read(char* buffer, std::size_t count) override { return inner_->read(buffer, count); }
    void write(std::string_view bytes) override {
        if (inner_->position() + bytes.size() > 200'000) {
            throw RunTimeError(ErrorNumber::DiskFull);
        }
        inner_->write(bytes);
    }
    std::uint64_t position() const override { return inner_->position(); }
    void seek(std::uint64_t position) override { inner_->seek(position); }
    std::uint64_t size() const override { return inner_->size(); }
    void flush() override { inner_->flush(); }
    bool isInPlace() const override { return inner_->isInPlace(); }
    void close() override { inner_->close(); }

  private:
    std::unique_ptr<File> inner_;
};

class SmallDisk : public test::FailingFiles {
  public:
    using FailingFiles::FailingFiles;
    std::unique_ptr<File> open(const std::string& path, OpenMode mode) override {
        return std::make_unique<SmallFile>(FailingFiles::open(path, mode));
    }
};

class FixedZone : public ZoneSource {
  public:
    std::int32_t offsetMinutes() const override { return 60; }
    bool daylight() const override { return true; }
};

/// The server with everything that it serves.
class Server {
  public:
    explicit Server(int dataFileType) {
        settings_.DataFileType = dataFileType;
        memory_.addFile("/psion/A.odb", "one\ttwo\r\nthree");
        memory_.addFile("/psion/B.csv", "a,\"b,c\",d,,\r\n\"x\"\r\n");
        memory_.addFile("/psion/C.opl", "c:\r\n\x07print 1\r\n");
        memory_.addFile("/psion/D.ob3", std::string("ORG\0\x03\x83xyz", 9));
        memory_.addFile("/psion/E.bin", makeBootFile(std::string(450, 'x'), std::string("\0\x01\0\x10", 4)));
        ServiceHandler* const handlers[] = {&ftran_, &file_, &boot_, &exit_,    &shutdown_,
                                            &planm_, &time_, &gmt_,  &timeInfo_};
        for (std::size_t i = 0; i < std::size(kServices); ++i) {
            dispatcher_.add(kServices[i], *handlers[i]);
        }
    }

    void event(std::int32_t code, std::string payload = {}) {
        window_.current = 6;
        sender_.frames.clear();
        trace_.entries.clear();
        dispatcher_.Services(code, payload);
        require(code >= PLP_EV_RESET && code <= kServiceOpened);
        if (dispatcher_.currentService().empty()) {
            requireNothingLeft();
        }
    }
    void reopen(std::size_t service) {
        event(PLP_EV_RESET);
        event(PLP_EV_DATA, kServices[service % std::size(kServices)]);
    }
    void stopInsideNextSend() {
        sender_.onSend = [this] {
            sender_.onSend = nullptr;
            window_.current = 4;
            std::int32_t code = PLP_EV_RESET;
            std::string nothing;
            dispatcher_.Services(code, nothing);
        };
    }
    void failNext(FileCall call, ErrorNumber error) { files_.failAtCall(call, 1, error); }

  private:
    void requireNothingLeft() {
        require(!open_.isOpen());
        require(memory_.openFiles() == 0);
        for (const std::string& path : memory_.paths()) {
            require(rules_.parentFolder(path) != memory_.temporaryFolder());
        }
    }

    test::MemoryFiles memory_;
    SmallDisk files_{memory_};
    test::SimplePathRules rules_;
    TransferSettings settings_{"/psion", 0};
    test::FolderMapper names_{files_, rules_, settings_.DownloadPath};
    test::RecordingWindow window_;
    test::RecordingSender sender_;
    test::RecordingTrace trace_;
    test::FakeTime clock_;
    FixedZone zone_;
    StopRequests requests_;
    TransferLog log_{window_, trace_, rules_};
    EarlierCopiesSettings copiesSettings_{"/data/copies"};
    EarlierCopies copies_{files_, rules_, clock_, log_, copiesSettings_};
    OpenFile open_{files_, rules_, window_, copies_, log_};
    TimeServices timeServices_{clock_, zone_};
    FtranService ftran_{sender_, window_, open_, names_, settings_};
    FileService file_{sender_, window_, open_, names_};
    BootService boot_{sender_, window_, files_, names_};
    StopRequestService exit_{sender_, requests_.exit};
    StopRequestService shutdown_{sender_, requests_.shutdown};
    PlanmService planm_{sender_, {{2, "WKS"}, {3, "DIF"}}};
    TimeService time_{sender_, window_, timeServices_, TimeReply::Local};
    TimeService gmt_{sender_, window_, timeServices_, TimeReply::Universal};
    TimeService timeInfo_{sender_, window_, timeServices_, TimeReply::LocalWithZone};
    ServiceDispatcher dispatcher_{sender_, window_, trace_};
};

/// Takes the input apart; at its end everything is 0 and empty.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}
    bool atEnd() const { return rest_.empty(); }
    std::size_t number() {
        if (rest_.empty()) {
            return 0;
        }
        const auto value = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return value;
    }
    std::string text() {
        const std::size_t length = number();
        std::string copy(rest_.substr(0, length));
        rest_.remove_prefix(copy.size());
        return copy;
    }

  private:
    std::string_view rest_;
};

void runStep(Server& server, Input& input) {
    switch (static_cast<Step>(input.number() % kStepCount)) {
        case kData:
            server.event(PLP_EV_DATA, input.text());
            break;
        case kAcknowledge:
            server.event(PLP_EV_ACKED);
            break;
        case kLinkDown:
            server.event(PLP_EV_RESET);
            break;
        case kReopen:
            server.reopen(input.number());
            break;
        case kStopInside:
            server.stopInsideNextSend();
            break;
        case kFailNextWrite:
            server.failNext(FileCall::Write, ErrorNumber::DiskFull);
            break;
        case kFailNextRead:
            server.failNext(FileCall::Read, ErrorNumber::DeviceIoError);
            break;
        case kStepCount:
            break;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    Server server(static_cast<int>(input.number() % 4));
    while (!input.atEnd()) {
        runStep(server, input);
    }
    server.event(PLP_EV_RESET);
    return 0;
}
