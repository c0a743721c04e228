// All services behind the dispatcher, over a folder with a file of each kind, and what must hold of them.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "dispatcher_steps.h"
#include "platform/posix/posix_paths.h"
#include "require.h"
#include "services/boot_file.h"
#include "services/boot_service.h"
#include "services/dispatcher.h"
#include "services/file_service.h"
#include "services/ftran_service.h"
#include "services/open_file.h"
#include "services/plan_menu.h"
#include "services/plan_service.h"
#include "services/planm_service.h"
#include "services/stop_request_service.h"
#include "services/time_services.h"
#include "services/tools.h"
#include "small_disk.h"
#include "spreadsheet/spreadsheet.h"
#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/recording_sender.h"
#include "support/recording_trace.h"
#include "support/recording_window.h"

namespace velmora::fuzz {

inline const std::string kFolder = "/psion";

/// The files that are there, and their bytes.
inline const std::vector<std::pair<std::string, std::string>>& filesOfFolder() {
    static const auto sheet = [](int format) {
        SheetGrid grid(2, 2);
        grid.at({0, 0}) = Label{"Sum"};
        grid.at({0, 1}) = 2.5;
        grid.at({1, 0}) = std::int16_t{7};
        grid.at({1, 1}) = Formula{"A2*2"};
        return sheetBytes(grid, format, {});
    };
    using namespace std::string_literals;
    static const std::vector<std::pair<std::string, std::string>> files = {
        {"A.odb", "one\ttwo\r\nthree"},
        {"B.csv", "a,\"b,c\",d,,\r\n\"x\"\r\n"},
        {"C.opl", "c:\r\n\x07print 1\r\n"},
        {"D.ob3", "ORG\0\x03\x83xyz"s},
        {"E.bin", makeBootFile(std::string(450, 'x'), "\0\x01\0\x10"s)},
        {"F.wks", sheet(kFormatWks)},
        {"F.dif", sheet(kFormatDif)},
        {"F.txt", sheet(kFormatTab)},
    };
    return files;
}

class ServedFolder {
  public:
    ServedFolder() {
        memory_.addFolder(kFolder + "/sub");
        for (const auto& [name, content] : filesOfFolder()) {
            memory_.addFile(kFolder + "/" + name, content);
        }
        ServiceHandler* const handlers[] = {&ftran_, &file_, &boot_,     &plan_, &planm_,
                                            &time_,  &gmt_,  &timeInfo_, &exit_, &shutdown_};
        for (std::size_t i = 0; i < std::size(handlers); ++i) {
            dispatcher_.add(usualServices()[i], *handlers[i]);
        }
    }

    /// One event, as the link tells of it.
    void event(std::int32_t code, std::string payload = {}) {
        const bool served = !dispatcher_.currentService().empty();
        window_.current = 6;
        sender_.frames.clear();
        trace_.entries.clear();
        dispatcher_.Services(code, payload);
        require(code >= PLP_EV_RESET && code <= kServiceOpened);
        require(sender_.frames.size() <= 1);
        for (const test::RecordingSender::Frame& frame : sender_.frames) {
            // One byte as a rule, a run-time error's number in digits, or none for the end of boot code.
            require(frame.type == FrameType::Data || frame.data.size() <= 3);
        }
        if (served && dispatcher_.currentService().empty()) {
            requireNothingLeft();
        }
    }
    /// A message; the link acknowledges the answer when there is one.
    void message(const std::string& payload) {
        event(PLP_EV_DATA, payload);
        if (!sender_.frames.empty() && sender_.frames.front().type == FrameType::Data) {
            event(PLP_EV_ACKED);
        }
    }
    /// The user stops the server while it sends the next frame.
    void stopInsideNextSend() {
        sender_.onSend = [this] {
            sender_.onSend = nullptr;
            window_.current = 4;
            std::int32_t code = PLP_EV_RESET;
            std::string nothing;
            dispatcher_.Services(code, nothing);
        };
    }
    SmallDisk& disk() { return disk_; }
    /// Another program deletes a file, if it is there.
    void deleteFile(const std::string& name) {
        if (memory_.fileExists(kFolder + "/" + name)) {
            memory_.deleteFile(kFolder + "/" + name);
        }
    }
    TransferSettings& settings() { return settings_; }

  private:
    class FixedZone : public ZoneSource {
      public:
        std::int32_t offsetMinutes() const override { return 60; }
        bool daylight() const override { return true; }
    };

    void requireNothingLeft() {
        require(!open_.isOpen());
        require(memory_.openFiles() == 0);
        for (const std::string& path : memory_.paths()) {
            const bool isTemporary = rules_.parentFolder(path) == memory_.temporaryFolder() ||
                                     isTemporaryName(rules_.lastComponent(path));
            require(!isTemporary || disk_.mayStay(path));
        }
    }

    test::MemoryFiles memory_;
    SmallDisk disk_{memory_};
    PosixPaths rules_{"/"};
    TransferSettings settings_{kFolder};
    Tools names_{disk_, rules_, settings_};
    test::RecordingWindow window_;
    test::RecordingSender sender_;
    test::RecordingTrace trace_;
    test::FakeTime clock_;
    FixedZone zone_;
    StopRequests requests_;
    TransferLog log_{window_, trace_, rules_};
    EarlierCopiesSettings copiesSettings_{"/data/copies"};
    EarlierCopies copies_{disk_, rules_, clock_, log_, copiesSettings_};
    OpenFile open_{disk_, rules_, window_, copies_, log_};
    Spreadsheet spreadsheet_{disk_, rules_, settings_.sheets};
    TimeServices timeServices_{clock_, zone_};
    Transfers transfers_{clock_};
    FtranService ftran_{sender_, window_, open_, transfers_, names_, settings_};
    FileService file_{sender_, window_, open_, transfers_, names_};
    BootService boot_{sender_, window_, disk_, transfers_, names_};
    PlanService plan_{sender_, window_, names_, spreadsheet_, copies_, log_, transfers_};
    PlanmService planm_{sender_, offeredFormats()};
    TimeService time_{sender_, window_, transfers_, timeServices_, TimeReply::Local};
    TimeService gmt_{sender_, window_, transfers_, timeServices_, TimeReply::Universal};
    TimeService timeInfo_{sender_, window_, transfers_, timeServices_, TimeReply::LocalWithZone};
    StopRequestService exit_{sender_, requests_.exit};
    StopRequestService shutdown_{sender_, requests_.shutdown};
    ServiceDispatcher dispatcher_{sender_, window_, trace_};
};

}  // namespace velmora::fuzz
