#include "organiser/boot_client.h"

#include <string>
#include <vector>

#include "conversation_fixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class BootClientTest : public test::ConversationFixture {
  protected:
    LinkFailure::Kind kindFor(const std::deque<test::Answer>& script) {
        test::ScriptedService service(test::reply(""), script);
        server.serve("BOOT", service);
        const auto failure = failureOf([&] { fetchBootCode(link(), progress, "LOADER", 0x2000); });
        link().end();
        return failure.kind();
    }
};

TEST_F(BootClientTest, CodeComesInChunksOfTwoHundred) {
    std::string code;
    for (int i = 0; i < 450; ++i) {
        code += static_cast<char>(i * 7);
    }
    test::ModelBoot boot(code);
    server.serve("BOOT", boot);
    const BootCode fetched = fetchBootCode(link(), progress, "LOADER", 0x2000);
    EXPECT_EQ(fetched.code, code);
    EXPECT_EQ(fetched.chunks, (std::vector<std::size_t>{200, 200, 50}));
    EXPECT_FALSE(link().up());
}

TEST_F(BootClientTest, EmptyCodeEndsAtOnce) {
    test::ModelBoot boot("");
    server.serve("BOOT", boot);
    EXPECT_EQ(fetchBootCode(link(), progress, "LOADER", 0).code, "");
}

TEST_F(BootClientTest, AddressMayReachTheEndOfMemory) {
    test::ModelBoot boot(std::string(300, 'x'));
    server.serve("BOOT", boot);
    EXPECT_EQ(fetchBootCode(link(), progress, "LOADER", 0xFFFF).code.size(), 300U);
}

TEST_F(BootClientTest, MissingBootFileIsRefused) {
    test::ModelBoot boot("x");
    server.serve("BOOT", boot);
    EXPECT_EQ(failureOf([&] { fetchBootCode(link(), progress, "OTHER", 0); }).code(), 189);
}

TEST_F(BootClientTest, PieceThatDoesNotFollowIsUnexpected) {
    using Kind = LinkFailure::Kind;
    EXPECT_EQ(kindFor({test::reply("x")}), Kind::Unexpected);
    EXPECT_EQ(kindFor({test::reply("\0\2"s), test::reply("\x20\0"s)}), Kind::Unexpected);
    EXPECT_EQ(kindFor({test::reply("\0\2"s), test::reply("\x20\1xy"s)}), Kind::Unexpected);
    EXPECT_EQ(kindFor({test::reply("\0\2"s), test::reply("\x20\0xyz"s)}), Kind::Unexpected);
    EXPECT_EQ(kindFor({test::reply("\0\2"s), test::reply("\x20\0xy"s), test::reply("\x20\2z"s)}),
              Kind::Unexpected);
}

TEST_F(BootClientTest, RefusalInTheMiddleIsOne) {
    EXPECT_EQ(kindFor({test::reply("\0\2"s), test::refuse(188)}), LinkFailure::Kind::Refused);
}

}  // namespace
}  // namespace velmora
