// Bytes that no Organiser sends: the server stays up and serves the next request.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <random>
#include <string>

#include "e2e/support/server_fixture.h"
#include "link/frame_cutter.h"
#include "link/frames.h"

namespace velmora::e2e {
namespace {

using namespace std::string_literals;

/// Talks to the server in raw frames.
class BadInputTest : public ServerFixture {
  protected:
    void SetUp() override {
        ServerFixture::SetUp();
        startServer();
        crc.load_CRCtable();
        line = ::open(organiserDevice.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        ASSERT_GE(line, 0);
    }
    void TearDown() override { ::close(line); }

    void writeBytes(const std::string& bytes) const {
        ASSERT_EQ(::write(line, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    void send(FrameType type, std::uint8_t sequence, const std::string& data = {}) const {
        writeBytes(buildFrame(crc, type, sequence, data));
    }
    /// The next frame of the server that is of a type, skipping others.
    std::optional<ParsedFrame> expect(FrameType type) {
        while (true) {
            while (const auto cut = cutter.next()) {
                const auto frame = parseFrame(crc, *cut);
                if (frame && frame->type == static_cast<std::uint8_t>(type)) {
                    return frame;
                }
            }
            pollfd watched{line, POLLIN, 0};
            if (::poll(&watched, 1, std::chrono::milliseconds(kPatience).count()) <= 0) {
                return std::nullopt;
            }
            std::array<char, 4096> buffer{};
            const ssize_t count = ::read(line, buffer.data(), buffer.size());
            if (count <= 0) {
                return std::nullopt;
            }
            cutter.append({buffer.data(), static_cast<std::size_t>(count)});
        }
    }
    /// Brings the link up and opens a service.
    void open(const std::string& service) {
        ASSERT_TRUE(expect(FrameType::Connect));
        send(FrameType::Ack, 0);
        send(FrameType::Data, 1, service);
        const auto reply = expect(FrameType::Data);
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->sequence, 1) << "a link begins with sequence 1";
        send(FrameType::Ack, reply->sequence);
    }
    /// Sends a request and expects it to be refused with a code.
    void expectRefusal(const std::string& request, int code) {
        send(FrameType::Data, 2, request);
        const auto refusal = expect(FrameType::Discon);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->data, std::string(1, static_cast<char>(code)));
    }

    Crc crc;
    FrameCutter cutter;
    int line = -1;
};

TEST_F(BadInputTest, GarbageOnTheLineIsSkipped) {
    std::mt19937 random(3);
    std::string garbage(3000, '\0');
    for (char& byte : garbage) {
        byte = static_cast<char>(random());
    }
    writeBytes(garbage);
    open("PLANM");
}

TEST_F(BadInputTest, AHeaderWithoutAnEndIsSurvived) {
    writeBytes("\x16\x10\x02 this frame never ends");
    // The next good frame ends it; the one after that is understood.
    send(FrameType::Ack, 0);
    open("PLANM");
}

TEST_F(BadInputTest, RequestsThatAreTooShortAreInvalid) {
    for (const std::string& request :
         {""s, "\x00"s, "\x00\x01"s, "\x00\x01\x00"s, "\x03"s, "\x09"s, "\xFF"s}) {
        open("FTRAN");
        if (request == "\x03"s) {
            expectRefusal(request, 190);
        } else if (request == "\x00\x01\x00"s) {
            send(FrameType::Data, 2, request);  // an empty name
            ASSERT_TRUE(expect(FrameType::Discon));
        } else {
            expectRefusal(request, 190);
        }
    }
}

TEST_F(BadInputTest, TypesAndModesOutOfRangeAreInvalid) {
    open("FTRAN");
    expectRefusal("\x00\x05\x00NAME"s, 190);
    open("FTRAN");
    expectRefusal("\x00\x01\x11NAME"s, 190);
    open("FILE");
    expectRefusal("\x00\x00\x04NAME"s, 190);
    open("FILE");
    expectRefusal("\x05"s, 190);
}

TEST_F(BadInputTest, NamesThatLeadNowhereAreRefused) {
    for (const std::string& name : {"NOSUCH/FILE"s, "../../../../../none/FILE"s, "A*B"s, "X:\\FILE"s,
                                    "\\\\server\\share\\FILE"s, "\x81"s, "A\0B"s, "   "s, "."s, ".."s}) {
        open("FTRAN");
        expectRefusal("\x00\x01\x00"s + name, 189);
    }
    EXPECT_TRUE(std::filesystem::is_empty(psion));
}

TEST_F(BadInputTest, AFolderInTheFilesPlaceIsRefused) {
    std::filesystem::create_directory(psion / "Thing.odb");
    open("FTRAN");
    expectRefusal("\x00\x01\x00THING"s, 189);
    EXPECT_TRUE(std::filesystem::is_directory(psion / "Thing.odb"));
}

TEST_F(BadInputTest, ABlockFileWhoseHeaderLiesIsRefused) {
    writeFile(psion / "Lie.ob3", "ORG\x00\x05\x83"s + "abcd");
    open("FTRAN");
    expectRefusal("\x00\x00\x03LIE"s, 190);
    writeFile(psion / "Short.ob3", "OR");
    open("FTRAN");
    expectRefusal("\x00\x00\x03SHORT"s, 190);
}

TEST_F(BadInputTest, ALineOfTenMegabytesIsTooLongAndTakesNoMemory) {
    writeFile(psion / "Line.txt", std::string(10'000'000, 'x'));
    open("FILE");
    send(FrameType::Data, 2, "\x00\x00\x01LINE.TXT"s);
    const auto opened = expect(FrameType::Data);
    ASSERT_TRUE(opened);
    send(FrameType::Ack, opened->sequence);
    send(FrameType::Data, 3, "\x03\x50"s);
    const auto refusal = expect(FrameType::Discon);
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->data, "\xB9") << "185";
}

TEST_F(BadInputTest, ARequestOfTheOrganiserForANewLinkStartsAfresh) {
    open("FTRAN");
    send(FrameType::Connect, 0);
    ASSERT_TRUE(expect(FrameType::Ack));
    send(FrameType::Data, 1, "PLANM");
    const auto reply = expect(FrameType::Data);
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->data.size(), 36U);
}

}  // namespace
}  // namespace velmora::e2e
