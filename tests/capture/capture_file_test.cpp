#include "capture/capture_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

#include "base/run_time_error.h"
#include "capture/capture_cases.h"
#include "capture/pcapng_reader.h"
#include "capture/pcapng_writer.h"
#include "support/failing_files.h"
#include "support/memory_files.h"
#include "support/run_time_errors.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using test::FileCall;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kPath = "/w/log.pcapng";
constexpr const char* kEarlier = "/w/log.earlier.pcapng";

class CaptureFileTest : public testing::Test {
  protected:
    CaptureFileTest() { memory.addFolder("/w"); }

    void open(const CaptureLimit& limit = {}, bool masked = false) {
        file.emplace(files, CaptureRequest{kPath, limit, masked},
                     [this](const std::string& line) { told.push_back(line); });
        file->addPort(test::usualPort());
    }
    void send(const std::string& bytes, std::chrono::nanoseconds time = {}) {
        file->addPacket({0, time, CaptureDirection::Sent, bytes, {}});
    }
    ReadCapture read(const char* path = kPath) {
        const auto stream = memory.open(path, OpenMode::Read);
        std::string bytes(stream->size(), '\0');
        stream->read(bytes.data(), bytes.size());
        return readPcapng(bytes);
    }
    /// The bytes of the packets, or the comment where there are none.
    std::vector<std::string> packets(const char* path = kPath) {
        const ReadCapture whole = read(path);
        EXPECT_EQ(whole.damage, std::nullopt);
        std::vector<std::string> texts;
        for (const CapturedPacket& packet : whole.capture.packets) {
            texts.push_back(packet.bytes.empty() ? packet.comments.at(0) : packet.bytes);
        }
        return texts;
    }

    test::MemoryFiles memory;
    test::FailingFiles files{memory};
    std::vector<std::string> told;
    std::optional<CaptureFile> file;
};

TEST_F(CaptureFileTest, IsWholeAfterEachPacket) {
    open();
    EXPECT_THAT(packets(), IsEmpty());
    send("one");
    EXPECT_THAT(packets(), ElementsAre("one"));
    send("two");
    EXPECT_THAT(packets(), ElementsAre("one", "two"));
    EXPECT_EQ(read().capture.ports, std::vector<CapturedPort>{test::usualPort()});
    EXPECT_FALSE(read().capture.masked);
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(CaptureFileTest, PacketsAreOfThePortThatWasOpenedLast) {
    open();
    send("one");
    file->addPort({"COM7", "", 0});
    send("two");
    EXPECT_EQ(read().capture.packets[0].port, 0U);
    EXPECT_EQ(read().capture.packets[1].port, 1U);
}

TEST_F(CaptureFileTest, TakesThePlaceOfAnotherCaptureAndOfAnEmptyFile) {
    memory.addFile(kPath, pcapngFile(test::CaptureScript().sent(0, "old").capture));
    open();
    send("new");
    EXPECT_THAT(packets(), ElementsAre("new"));
    file.reset();
    memory.addFile(kPath, "");
    open();
    EXPECT_THAT(packets(), IsEmpty());
}

TEST_F(CaptureFileTest, LeavesAFileAloneThatIsNoCapture) {
    memory.addFile(kPath, "a diary");
    EXPECT_EQ(test::errorOf([this] { open(); }), 58);
    EXPECT_EQ(memory.content(kPath), "a diary");
}

TEST_F(CaptureFileTest, AFileThatCannotBeMadeIsAnError) {
    files.failAtCall(FileCall::Open, 1, ErrorNumber::PathFileAccess);
    EXPECT_EQ(test::errorOf([this] { open(); }), 75);
    files.failAtCall(FileCall::Write, 1, ErrorNumber::DiskFull);
    EXPECT_EQ(test::errorOf([this] { open(); }), 61);
}

TEST_F(CaptureFileTest, AFullDiskIsToldOnceAndLeavesAGapThatIsMarked) {
    open();
    send("one");
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    send("two");
    send("three");
    EXPECT_THAT(told,
                ElementsAre("The capture cannot grow: Disk full. What passes meanwhile is missing in it."));
    files.healthy();
    send("four");
    send("five");
    EXPECT_THAT(packets(), ElementsAre("one", "packets are missing here: 2", "four", "five"));
    EXPECT_EQ(told.size(), 2U);
    EXPECT_EQ(told.back(), "The capture grows again.");
}

TEST_F(CaptureFileTest, APortThatIsOpenedWhileTheDiskIsFullIsKept) {
    open();
    files.failAfterBytes(0, ErrorNumber::DiskFull);
    send("one");
    file->addPort({"COM7", "", 0});
    files.healthy();
    send("two");
    EXPECT_EQ(read().capture.ports.size(), 2U);
    EXPECT_THAT(packets(), ElementsAre("packets are missing here: 1", "two"));
}

TEST_F(CaptureFileTest, ALimitOfBytesKeepsTheNewestInTwoParts) {
    CaptureLimit limit;
    limit.bytes = 8 * 1024;
    open(limit);
    for (int i = 0; i < 40; ++i) {
        send(std::string(500, static_cast<char>('A' + i)));
        EXPECT_LE(memory.content(kPath).size(), 4 * 1024U);
    }
    std::vector<std::string> kept = packets(kEarlier);
    for (const std::string& packet : packets()) {
        kept.push_back(packet);
    }
    ASSERT_GE(kept.size(), 7U);
    EXPECT_LE(memory.content(kEarlier).size(), 4 * 1024U);
    for (std::size_t back = 0; back < kept.size(); ++back) {
        EXPECT_EQ(kept[kept.size() - 1 - back][0], static_cast<char>('A' + 39 - back));
    }
    EXPECT_EQ(read().capture.ports, std::vector<CapturedPort>{test::usualPort()});
}

TEST_F(CaptureFileTest, ALimitOfTimeKeepsTheNewest) {
    CaptureLimit limit;
    limit.time = 60s;
    open(limit);
    for (int second = 0; second < 100; second += 10) {
        send(std::to_string(second), std::chrono::seconds(second));
    }
    EXPECT_THAT(packets(kEarlier), ElementsAre("40", "50", "60", "70"));
    EXPECT_THAT(packets(), ElementsAre("80", "90"));
}

TEST_F(CaptureFileTest, ANewPartThatCannotBeBegunIsTriedAgain) {
    CaptureLimit limit;
    limit.time = 60s;
    open(limit);
    send("one");
    file->addPort({"COM7", "", 0});
    files.failAtCall(FileCall::Replace, 1, ErrorNumber::PermissionDenied);
    send("lost", 40s);
    EXPECT_THAT(packets(), ElementsAre("one"));
    files.failAtCall(FileCall::Open, 1, ErrorNumber::PermissionDenied);
    send("lost", 41s);
    files.failAtCall(FileCall::Write, 1, ErrorNumber::DiskFull);
    send("lost", 42s);
    send("two", 43s);
    EXPECT_THAT(packets(kEarlier), ElementsAre("one"));
    EXPECT_THAT(packets(), ElementsAre("packets are missing here: 3", "two"));
    EXPECT_EQ(read().capture.ports, (std::vector<CapturedPort>{{"COM7", "", 0}}));
    EXPECT_EQ(told.size(), 2U);
}

TEST_F(CaptureFileTest, MasksContentsInBothDirectionsAndSaysSo) {
    open({}, true);
    send(test::dataFrame(1, "abc"));
    file->addPacket({0,
                     {},
                     CaptureDirection::Received,
                     test::dataFrame(1,
                                     "\x02"
                                     "def"),
                     {}});
    EXPECT_THAT(packets(), ElementsAre(test::dataFrame(1, "xxx"), test::dataFrame(1, "\x02xxx")));
    EXPECT_TRUE(read().capture.masked);
}

TEST(EarlierCapturePath, StandsBeforeTheExtension) {
    EXPECT_EQ(earlierCapturePath("a.pcapng"), "a.earlier.pcapng");
    EXPECT_EQ(earlierCapturePath("/x.y/a"), "/x.y/a.earlier");
    EXPECT_EQ(earlierCapturePath("/x/.a"), "/x/.a.earlier");
    EXPECT_EQ(earlierCapturePath("C:\\x\\a.b"), "C:\\x\\a.earlier.b");
    EXPECT_EQ(earlierCapturePath("a"), "a.earlier");
}

}  // namespace
}  // namespace velmora
