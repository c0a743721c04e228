// All services behind the dispatcher, over files in memory, with the verbs of an Organiser.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "services/boot_service.h"
#include "services/dispatcher.h"
#include "services/file_service.h"
#include "services/ftran_service.h"
#include "services/open_file.h"
#include "support/failing_files.h"
#include "support/fake_timers.h"
#include "support/memory_files.h"
#include "support/recording_sender.h"
#include "support/recording_trace.h"
#include "support/recording_transfers.h"
#include "support/recording_window.h"
#include "support/simple_names.h"

namespace velmora::test {

using namespace std::string_literals;

constexpr char kOpen = 0;
constexpr char kClose = 1;
constexpr char kWrite = 2;
constexpr char kRead = 3;
constexpr char kSeek = 4;

class ServiceFixture : public testing::Test {
  protected:
    ServiceFixture() : ServiceFixture(nullptr, "/psion") { memory.addFolder("/psion"); }
    /// On a file layer of the test's own instead of the one in memory.
    ServiceFixture(Files* disk, const std::string& folder)
        : files(disk != nullptr ? *disk : memory), settings{folder, 0} {
        dispatcher.add("FTRAN", ftran);
        dispatcher.add("FILE", fileService);
        dispatcher.add("BOOT", boot);
        transfers.observe(told);
    }

    /// Opens a service and forgets its reply.
    void openService(const std::string& name) {
        send(PLP_EV_DATA, name);
        ASSERT_EQ(dispatcher.currentService(), name);
        sender.frames.clear();
    }
    void send(std::int32_t code, std::string payload = {}) { dispatcher.Services(code, payload); }
    void message(const std::string& payload) { send(PLP_EV_DATA, payload); }
    void dropLink() { send(PLP_EV_RESET); }

    void openRequest(int mode, int kind, const std::string& name) {
        message(std::string{kOpen, static_cast<char>(mode), static_cast<char>(kind)} + name);
    }
    void closeRequest() { message(std::string{kClose}); }
    void write(const std::string& record) { message(kWrite + record); }
    void read(int maximum = 255) { message({kRead, static_cast<char>(maximum)}); }
    void seek(int mode, const std::string& offset) {
        message(std::string{kSeek, static_cast<char>(mode)} + offset);
    }

    /// The last answer was this DATA frame.
    void expectReply(const std::string& data) {
        ASSERT_FALSE(sender.frames.empty());
        EXPECT_EQ(sender.frames.back().type, FrameType::Data);
        EXPECT_EQ(sender.frames.back().data, data);
        sender.frames.clear();
    }
    /// The only answer was this DISCON frame, and the service left nothing behind.
    void expectRefused(int code) {
        ASSERT_EQ(sender.frames.size(), 1U);
        EXPECT_EQ(sender.frames.back().type, FrameType::Discon);
        EXPECT_EQ(sender.frames.back().data, codePayload(code));
        sender.frames.clear();
        expectClean();
    }
    void expectClean() {
        EXPECT_EQ(dispatcher.currentService(), "");
        EXPECT_FALSE(file.isOpen());
        EXPECT_EQ(memory.openFiles(), 0);
        EXPECT_EQ(window.currentFile, "");
        for (const std::string& path : memory.paths()) {
            EXPECT_NE(rules.parentFolder(path), memory.temporaryFolder()) << path << " was left";
        }
    }
    void expectTraced(const std::string& failure) {
        const RecordingTrace::Entry* entry = trace.find("ERROR");
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(entry->categories, "COM,ERROR");
        EXPECT_EQ(entry->data, failure);
    }

    MemoryFiles memory;
    FailingFiles files;
    SimplePathRules rules;
    TransferSettings settings;
    FolderMapper names{files, rules, settings.DownloadPath};
    RecordingWindow window;
    RecordingSender sender;
    RecordingTrace trace;
    FakeTime time;
    TransferLog log{window, trace, rules};
    EarlierCopiesSettings copiesSettings{settings.DownloadPath + "/copies"};
    EarlierCopies copies{files, rules, time, log, copiesSettings};
    OpenFile file{files, rules, window, copies, log};
    Transfers transfers{time};
    RecordingTransfers told;  ///< of all transfers
    FtranService ftran{sender, window, file, transfers, names, settings};
    FileService fileService{sender, window, file, transfers, names};
    BootService boot{sender, window, files, transfers, names};
    ServiceDispatcher dispatcher{sender, window, trace};
};

}  // namespace velmora::test
