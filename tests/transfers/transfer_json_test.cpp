#include "transfers/transfer_json.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace velmora {
namespace {

using Json = nlohmann::ordered_json;
using Lines = std::vector<std::string>;

EndedTransfer whole() {
    EndedTransfer ended;
    ended.transfer.name = "S\xFCms.wks";
    ended.transfer.path = "/psion/Sums.wks";
    ended.transfer.direction = TransferDirection::Load;
    ended.transfer.kind = TransferKind::Sheet;
    ended.transfer.size = 300;
    ended.transfer.bytes = 200;
    ended.transfer.began = {2026, 11, 22, 19, 39, 35};
    ended.transfer.duration = std::chrono::milliseconds{17'250};
    ended.transfer.earlierCopy = "/copies/Sums.wks";
    ended.transfer.remarks = {"A1: =\"\xE9\"", "B1: =1"};
    ended.end = {TransferResult::Incomplete, 186, "disk full"};
    return ended;
}

TEST(TransferJsonTest, AnEndedTransferIsAnObject) {
    EXPECT_EQ(objectOf(whole()).dump(),
              "{\"began\":\"2026-11-22T19:39:35Z\",\"name\":\"S\xC3\xBCms.wks\",\"path\":\"/psion/Sums.wks\","
              "\"direction\":\"load\",\"kind\":\"sheet\",\"size\":300,\"bytes\":200,\"seconds\":17.25,"
              "\"result\":\"incomplete\",\"code\":186,\"reason\":\"disk full\","
              "\"earlierCopy\":\"/copies/Sums.wks\",\"remarks\":[\"A1: =\\\"\xC3\xA9\\\"\",\"B1: =1\"]}");
}

TEST(TransferJsonTest, WhatWasWrittenIsReadBack) {
    const auto ended = endedTransferOf(objectOf(whole()));
    ASSERT_TRUE(ended);
    EXPECT_EQ(objectOf(*ended), objectOf(whole()));
    EXPECT_EQ(ended->transfer.name, "S\xFCms.wks");
    EXPECT_EQ(ended->transfer.duration, std::chrono::milliseconds{17'250});
    EXPECT_EQ(ended->transfer.remarks, whole().transfer.remarks);
    EXPECT_EQ(ended->end.result, TransferResult::Incomplete);
}

TEST(TransferJsonTest, WhatMayBeMissingIsReadWithoutIt) {
    EndedTransfer ended = whole();
    ended.transfer.size.reset();
    ended.transfer.earlierCopy.clear();
    ended.transfer.remarks.clear();
    const auto read = endedTransferOf(objectOf(ended));
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->transfer.size);
    EXPECT_EQ(read->transfer.earlierCopy, "");
    EXPECT_TRUE(read->transfer.remarks.empty());
}

TEST(TransferJsonTest, ALetterThatTheOrganiserLacksIsAQuestionMark) {
    Json object = objectOf(whole());
    object["name"] = "a\xE4\xB8\xAD";
    ASSERT_TRUE(endedTransferOf(object));
    EXPECT_EQ(endedTransferOf(object)->transfer.name, "a???");
}

TEST(TransferJsonTest, AnythingElseIsNoTransfer) {
    EXPECT_FALSE(endedTransferOf(Json(7)));
    EXPECT_FALSE(endedTransferOf(Json::array()));
    for (const char* key :
         {"began", "name", "direction", "kind", "bytes", "seconds", "result", "code", "reason"}) {
        Json object = objectOf(whole());
        object.erase(key);
        EXPECT_FALSE(endedTransferOf(object)) << key << " is missing";
        object[key] = Json::array();
        EXPECT_FALSE(endedTransferOf(object)) << key << " is a list";
        object[key] = "nonsense";
        EXPECT_EQ(endedTransferOf(object).has_value(),
                  std::string(key) == "name" || std::string(key) == "reason")
            << key;
    }
    for (const char* key : {"size", "earlierCopy", "remarks", "path"}) {
        Json object = objectOf(whole());
        object[key] = Json::object({{"a", 1}});
        EXPECT_FALSE(endedTransferOf(object)) << key;
    }
}

}  // namespace
}  // namespace velmora
