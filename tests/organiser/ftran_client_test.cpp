#include "organiser/ftran_client.h"

#include <string>
#include <vector>

#include "conversation_fixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using Lines = std::vector<std::string>;

class FtranClientTest : public test::ConversationFixture {
  protected:
    FtranClient client() { return {link(), progress}; }
};

TEST_F(FtranClientTest, RecordsArriveAsLines) {
    client().saveRecords("MEMO", FileMode::Create, {"a\tb", "", "c"});
    EXPECT_EQ(folder["MEMO.ODB"], "a\tb\r\n\r\nc\r\n");
}

TEST_F(FtranClientTest, RecordsComeBackUntilTheServerEndsTheLink) {
    folder["MEMO.ODB"] = "a\tb\r\n\r\nc\r\n";
    EXPECT_EQ(client().loadRecords("MEMO"), (Lines{"a\tb", "", "c"}));
    EXPECT_FALSE(link().up());
}

TEST_F(FtranClientTest, EmptyDataFileHasNoRecords) {
    client().saveRecords("EMPTY", FileMode::Create, {});
    link().end();
    EXPECT_EQ(client().loadRecords("EMPTY"), Lines{});
}

TEST_F(FtranClientTest, RecordOfTheGreatestLengthPasses) {
    const Lines records{std::string(kMostData, 'x')};
    client().saveRecords("LONG", FileMode::Create, records);
    link().end();
    EXPECT_EQ(client().loadRecords("LONG"), records);
}

TEST_F(FtranClientTest, RecordThatIsTooLongForTheOrganiserIsRefused) {
    folder["LONG.ODB"] = std::string(251, 'x') + "\r\n";
    EXPECT_EQ(failureOf([&] { client().loadRecords("LONG"); }).code(), 185);
}

TEST_F(FtranClientTest, ProcedureLinesGoAndComeWithZeroBytes) {
    const Lines lines{"A", "", "BC"};
    client().saveProcedure("PROC", FileMode::Create, lines);
    EXPECT_EQ(folder["PROC.OPL"], "A\r\n\r\nBC\r\n");
    link().end();
    EXPECT_EQ(client().loadProcedure("PROC"), lines);
}

TEST_F(FtranClientTest, EmptyProcedureHasNoLines) {
    folder["PROC.OPL"] = "";
    EXPECT_EQ(client().loadProcedure("PROC"), Lines{});
}

TEST_F(FtranClientTest, ProcedureLongerThanAMessageIsCutAnywhere) {
    Lines lines;
    for (int i = 0; i < 100; ++i) {
        lines.push_back("PRINT " + std::to_string(i));
    }
    client().saveProcedure("PROC", FileMode::Create, lines);
    link().end();
    EXPECT_EQ(client().loadProcedure("PROC"), lines);
}

TEST_F(FtranClientTest, BlockFileKeepsEveryByte) {
    std::string bytes;
    for (int i = 0; i < 1'000; ++i) {
        bytes += static_cast<char>(i % 3 == 0 ? 0x10 : i);
    }
    client().saveBlock("CODE", FileMode::Create, 7, bytes);
    EXPECT_EQ(folder["CODE.OB7"], bytes);
    link().end();
    EXPECT_EQ(client().loadBlock("CODE", 7), bytes);
}

TEST_F(FtranClientTest, EmptyBlockFile) {
    client().saveBlock("CODE", FileMode::Create, 2, "");
    link().end();
    EXPECT_EQ(client().loadBlock("CODE", 2), "");
}

TEST_F(FtranClientTest, ModesAreTheServersToJudge) {
    EXPECT_EQ(failureOf([&] { client().saveRecords("NEW", FileMode::Replace, {}); }).code(), 189);
    folder["OLD.ODB"] = "a\r\n";
    EXPECT_EQ(failureOf([&] { client().saveRecords("OLD", FileMode::CreateNew, {}); }).code(), 187);
    client().saveRecords("OLD", FileMode::Append, {"b"});
    EXPECT_EQ(folder["OLD.ODB"], "a\r\nb\r\n");
    link().end();
    EXPECT_EQ(failureOf([&] { client().saveRecords("OLD", FileMode::Read, {"c"}); }).code(), 188);
}

TEST_F(FtranClientTest, TellsHowFarASaveCame) {
    FtranClient saving = client();
    failureOf([&] { saving.saveRecords("NEW", FileMode::Replace, {"x"}); });
    EXPECT_FALSE(saving.written().opened);
    saving.saveRecords("NEW", FileMode::Create, {});
    EXPECT_TRUE(saving.written().opened);
    EXPECT_FALSE(saving.written().sentData);
    link().end();
    saving.saveRecords("NEW", FileMode::Create, {"x"});
    EXPECT_TRUE(saving.written().sentData);
}

struct HeaderRow {
    const char* name;
    std::string header;
    std::deque<test::Answer> rest;
};
class BadBlock : public test::ConversationFixture, public testing::WithParamInterface<HeaderRow> {};

TEST_P(BadBlock, IsUnexpected) {
    std::deque<test::Answer> script = GetParam().rest;
    script.push_front(test::reply(GetParam().header));
    test::ScriptedService service(test::reply(""), script);
    server.serve("FTRAN", service);
    FtranClient client(link(), progress);
    EXPECT_EQ(failureOf([&] { client.loadBlock("CODE", 3); }).kind(), LinkFailure::Kind::Unexpected);
}

INSTANTIATE_TEST_SUITE_P(Replies, BadBlock,
                         testing::Values(HeaderRow{"NoHeader", "", {}},
                                         HeaderRow{"HeaderOfAnotherType", "\0\5\x82"s, {}},
                                         HeaderRow{"HeaderTooLong", "\0\5\x83\0"s, {}},
                                         HeaderRow{"NothingComes", "\0\5\x83"s, {test::reply("")}},
                                         HeaderRow{"TooMuchComes", "\0\5\x83"s, {test::reply("123456")}}),
                         [](const auto& row) { return std::string(row.param.name); });

/// Fifty files each way over cables that lose, damage and double frames.
class FaultyCable : public test::ConversationFixture, public testing::WithParamInterface<FaultOptions> {};

TEST_P(FaultyCable, EveryFileArrivesAsItWasSent) {
    damageCable(GetParam());
    FtranClient client(link(), progress);
    Attempts attempts(link(), 10, [](const std::string&) {});
    for (int n = 0; n < 50; ++n) {
        const std::string name = "FILE" + std::to_string(n);
        Lines records;
        for (int i = 0; i < n; ++i) {
            records.push_back("record " + std::to_string(i) + "\t\x10\x10\x03\x16\x02 of " + name);
        }
        std::string stored;
        for (const std::string& record : records) {
            stored += record + "\r\n";
        }
        attempts.run([&] { client.saveRecords(name, FileMode::Create, records); });
        ASSERT_EQ(folder[name + ".ODB"], stored);
        Lines loaded;
        attempts.run([&] { loaded = client.loadRecords(name); });
        ASSERT_EQ(loaded, records);
    }
    const auto& counts = cable->sent();
    EXPECT_GT(counts.dropped + counts.corrupted + counts.duplicated + (GetParam().delay.count() > 0), 0U);
}

using namespace std::chrono_literals;
INSTANTIATE_TEST_SUITE_P(
    Faults, FaultyCable,
    testing::Values(FaultOptions{.drop = 0.05}, FaultOptions{.corrupt = 0.05},
                    FaultOptions{.duplicate = 0.05}, FaultOptions{.duplicate = 0.5},
                    FaultOptions{.drop = 0.1, .seed = 2}, FaultOptions{.delay = 100ms},
                    FaultOptions{.drop = 0.03, .corrupt = 0.03, .duplicate = 0.03, .delay = 20ms, .seed = 3},
                    FaultOptions{.drop = 0.05, .corrupt = 0.05, .duplicate = 0.05, .seed = 4}));

}  // namespace
}  // namespace velmora
