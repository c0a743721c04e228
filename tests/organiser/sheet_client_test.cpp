#include "organiser/sheet_client.h"

#include <string>
#include <vector>

#include "conversation_fixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using Kind = LinkFailure::Kind;

const std::string kMenu = "\3WKS\0\2\3DIF\0\3\3CSV\0\4\3TXT\0\5\10TXT(tab)\0\6\0"s;

class SheetClientTest : public test::ConversationFixture {
  protected:
    SheetClientTest() { server.serve("PLAN", plan); }

    test::ModelPlan plan;
    SheetClient client{cleanLink, progress};
    const std::vector<SheetCell> cells{{0, 0, SheetCell::kLabel, "Price"},
                                       {2, 1, SheetCell::kNumberOrFormula, "=A1*2"}};
};

TEST_F(SheetClientTest, MenuOfTheServerIsDecoded) {
    test::ScriptedService menu(test::reply(kMenu));
    server.serve("PLANM", menu);
    EXPECT_EQ(client.formats(),
              (std::vector<OfferedFormat>{{"WKS", 2}, {"DIF", 3}, {"CSV", 4}, {"TXT", 5}, {"TXT(tab)", 6}}));
}

TEST_F(SheetClientTest, EveryCutOfTheMenuIsUnexpected) {
    for (std::size_t length = 0; length < kMenu.size(); ++length) {
        EXPECT_THROW(decodeFormats(kMenu.substr(0, length)), LinkFailure) << length;
    }
    EXPECT_THROW(decodeFormats(kMenu + "x"), LinkFailure);
}

TEST_F(SheetClientTest, SheetIsSentWithItsFormatItsSizeAndItsCells) {
    client.save("BUDGET", 2, cells);
    EXPECT_EQ(plan.lastHeader,
              "\x82"
              "BUDGET");
    EXPECT_EQ(plan.sizes["BUDGET"], std::pair(3, 2));
    EXPECT_EQ((plan.sheets["BUDGET"][{0, 0}]), "\"Price");
    EXPECT_EQ((plan.sheets["BUDGET"][{1, 2}]), "\x87=A1*2");
}

TEST_F(SheetClientTest, SheetComesBackCellByCell) {
    client.save("BUDGET", 4, cells);
    link().end();
    EXPECT_EQ(client.load("BUDGET", 4), cells);
    EXPECT_EQ(plan.lastHeader, "\4BUDGET");
}

TEST_F(SheetClientTest, FailedReadingIsToldInDecimalDigits) {
    const auto failure = failureOf([&] { client.load("NOTHING", 2); });
    EXPECT_EQ(failure.kind(), Kind::Refused);
    EXPECT_STREQ(failure.what(),
                 "Refused by the server: its file operation failed with error 53, File not found.");
}

TEST_F(SheetClientTest, AReasonThatIsNoErrorNumberIsToldAsItCame) {
    for (const char* reason : {"", "5x", "12345"}) {
        test::ScriptedService odd(test::reply(""), {test::Answer{true, reason}});
        server.serve("PLAN", odd);
        const auto failure = failureOf([&] { client.load("A", 2); });
        EXPECT_EQ(failure.kind(), Kind::Refused) << reason;
        EXPECT_EQ(std::string(failure.what()).find("file operation"), std::string::npos) << failure.what();
    }
}

TEST_F(SheetClientTest, FailedWritingIsToldAsOneByte) {
    test::ScriptedService full(test::reply(""), {test::reply("\0"s), test::reply("\0"s), test::reply("\0"s),
                                                 test::reply("\0"s), test::refuse(61)});
    server.serve("PLAN", full);
    const auto failure = failureOf([&] { client.save("BUDGET", 2, cells); });
    EXPECT_STREQ(failure.what(),
                 "Refused by the server: its file operation failed with error 61, Disk full.");
}

TEST_F(SheetClientTest, OrdinaryCodesKeepTheirMeaning) {
    test::ScriptedService refusing(test::reply(""), {test::refuse(189)});
    server.serve("PLAN", refusing);
    EXPECT_EQ(failureOf([&] { client.save("A", 2, cells); }).code(), 189);
    test::ScriptedService broken(test::reply(""), {test::reply("\0"s), test::refuse(188)});
    server.serve("PLAN", broken);
    EXPECT_EQ(failureOf([&] { client.save("A", 2, cells); }).code(), 188);
}

TEST_F(SheetClientTest, CellThatIsNoneIsUnexpected) {
    for (const std::string& cell : {""s, "\0\0"s,
                                    "\32\0\x87"s
                                    "1",
                                    "\0\143\x87"s
                                    "1",
                                    "\0\0x1"s}) {
        test::ScriptedService odd(test::reply(""), {test::reply("\0"s), test::reply(cell)});
        server.serve("PLAN", odd);
        EXPECT_EQ(failureOf([&] { client.load("A", 2); }).kind(), Kind::Unexpected) << cell;
        link().end();
    }
}

}  // namespace
}  // namespace velmora
