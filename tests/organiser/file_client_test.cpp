#include "organiser/file_client.h"

#include <string>
#include <vector>

#include "conversation_fixture.h"

namespace velmora {
namespace {

using Lines = std::vector<std::string>;

class FileClientTest : public test::ConversationFixture {
  protected:
    FileClient client{cleanLink, progress};
};

TEST_F(FileClientTest, LinesAreWrittenAndRead) {
    const Lines lines{"one", "", "three"};
    client.writeLines("A.TXT", FileMode::Create, lines);
    EXPECT_EQ(folder["A.TXT"], "one\r\n\r\nthree\r\n");
    link().end();
    EXPECT_EQ(client.readLines("A.TXT"), lines);
}

TEST_F(FileClientTest, BytesAreWrittenAndReadInChunks) {
    const std::string bytes(600, '\x10');
    client.writeBytes("A.DAT", FileMode::Create, std::nullopt, bytes);
    EXPECT_EQ(folder["A.DAT"], bytes);
    link().end();
    EXPECT_EQ(client.readBytes("A.DAT", std::nullopt), bytes);
}

TEST_F(FileClientTest, SeekFromTheEndReadsTheRest) {
    folder["A.DAT"] = std::string(90, 'a') + "0123456789";
    EXPECT_EQ(client.readBytes("A.DAT", Seek{Seek::From::End, -10}), "0123456789");
    EXPECT_EQ(client.position(), 90U);
}

TEST_F(FileClientTest, SeekBeforeWritingKeepsWhatIsAround) {
    folder["A.DAT"] = "0123456789";
    client.writeBytes("A.DAT", FileMode::Append, Seek{Seek::From::Start, 4}, "xy");
    EXPECT_EQ(folder["A.DAT"], "0123xy6789");
}

TEST_F(FileClientTest, SeekBeforeTheStartIsRefused) {
    folder["A.DAT"] = "abc";
    const auto failure = failureOf([&] { client.readBytes("A.DAT", Seek{Seek::From::Start, -1}); });
    EXPECT_EQ(failure.code(), 188);
}

TEST_F(FileClientTest, PositionThatIsNoNumberIsUnexpected) {
    for (const char* position : {"", "1234567", "0000001x", "1234567890123456789"}) {
        test::ScriptedService odd(test::reply(""), {test::reply(""), test::reply(position)});
        server.serve("FILE", odd);
        const auto failure = failureOf([&] { client.readBytes("A", Seek{}); });
        EXPECT_EQ(failure.kind(), LinkFailure::Kind::Unexpected) << position;
        link().end();
    }
}

TEST_F(FileClientTest, ListingGivesTheNamesThatMatch) {
    folder["TOUR.ODB"] = folder["TOUR.OPL"] = folder["OTHER.TXT"] = "";
    EXPECT_EQ(client.list("TOUR*", false), (Lines{"TOUR.ODB", "TOUR.OPL"}));
    link().end();
    EXPECT_EQ(client.list("*.DOC", true), Lines{});
}

TEST_F(FileClientTest, ListingAsksForTheKindOfNames) {
    for (const bool longNames : {false, true}) {
        test::ScriptedService listing(test::reply(""), {test::reply(""), test::refuse(238)});
        server.serve("FILE", listing);
        client.list("*", longNames);
        EXPECT_EQ(listing.messages.at(0), std::string({0, 0, static_cast<char>(longNames ? 3 : 2), '*'}));
        EXPECT_EQ(listing.messages.at(1), "\x03\xFF");
        link().end();
    }
}

TEST_F(FileClientTest, InvalidRequestIsARefusalAtTheOpenAndALostLinkAmidTheTransfer) {
    test::ScriptedService atOpen(test::reply(""), {test::refuse(190)});
    server.serve("FILE", atOpen);
    EXPECT_EQ(failureOf([&] { client.readLines("A"); }).code(), 190);
    link().end();
    test::ScriptedService later(test::reply(""), {test::reply(""), test::refuse(190)});
    server.serve("FILE", later);
    EXPECT_EQ(failureOf([&] { client.readLines("A"); }).kind(), LinkFailure::Kind::Lost);
}

}  // namespace
}  // namespace velmora
