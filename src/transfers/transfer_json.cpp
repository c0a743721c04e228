#include "transfers/transfer_json.h"

#include <chrono>
#include <exception>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

#include "base/byte_text.h"
#include "base/moment_text.h"
#include "base/system_text.h"
#include "transfers/transfer_text.h"

namespace velmora {
namespace {

using Json = nlohmann::ordered_json;

/// The value among the first `count` of an enumeration that has this name; throws for a name that none has.
template <typename Value>
Value named(const Json& name, int count) {
    for (int i = 0; i < count; ++i) {
        if (name == nameOf(static_cast<Value>(i))) {
            return static_cast<Value>(i);
        }
    }
    throw std::invalid_argument("name");
}

std::string textIn(const Json& value) {
    const auto utf8 = value.get<std::string>();
    return fromUtf8(utf8).value_or(asciiOf(utf8));
}

/// A member in the system's encoding; empty when it is missing.
std::string pathIn(const Json& object, const char* key) {
    return systemTextOfUtf8(object.value(key, std::string()));
}

Transfer transferOf(const Json& object) {
    Transfer transfer;
    transfer.name = textIn(object.at("name"));
    transfer.path = pathIn(object, "path");
    transfer.direction = named<TransferDirection>(object.at("direction"), 2);
    transfer.kind = named<TransferKind>(object.at("kind"), 9);
    if (object.contains("size")) {
        transfer.size = object.at("size").get<std::uint64_t>();
    }
    transfer.bytes = object.at("bytes").get<std::uint64_t>();
    transfer.began = momentIn(object.at("began").get<std::string>(), kIsoForm).value();
    transfer.duration = std::chrono::round<std::chrono::microseconds>(
        std::chrono::duration<double>(object.at("seconds").get<double>()));
    transfer.earlierCopy = pathIn(object, "earlierCopy");
    for (const Json& remark : object.value("remarks", Json::array())) {
        transfer.remarks.push_back(textIn(remark));
    }
    return transfer;
}

}  // namespace

void addTransfer(Json& object, const Transfer& transfer) {
    object["name"] = toUtf8(transfer.name);
    object["path"] = utf8OfSystemText(transfer.path);
    object["direction"] = nameOf(transfer.direction);
    object["kind"] = nameOf(transfer.kind);
    if (transfer.size) {
        object["size"] = *transfer.size;
    }
}

void addAmount(Json& object, const Transfer& transfer) {
    constexpr double kThousand = 1'000;
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(transfer.duration);
    object["bytes"] = transfer.bytes;
    object["seconds"] = static_cast<double>(milliseconds.count()) / kThousand;
}

void addEnd(Json& object, const Transfer& transfer, const TransferEnd& end) {
    object["result"] = nameOf(end.result);
    object["code"] = end.code;
    object["reason"] = toUtf8(end.reason);
    if (!transfer.earlierCopy.empty()) {
        object["earlierCopy"] = utf8OfSystemText(transfer.earlierCopy);
    }
    for (const std::string& remark : transfer.remarks) {
        object["remarks"].push_back(toUtf8(remark));
    }
}

Json objectOf(const EndedTransfer& ended) {
    Json object;
    object["began"] = momentText(ended.transfer.began, kIsoForm);
    addTransfer(object, ended.transfer);
    addAmount(object, ended.transfer);
    addEnd(object, ended.transfer, ended.end);
    return object;
}

std::optional<EndedTransfer> endedTransferOf(const Json& object) {
    try {
        return EndedTransfer{transferOf(object),
                             {named<TransferResult>(object.at("result"), 3), object.at("code").get<int>(),
                              textIn(object.at("reason"))}};
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

}  // namespace velmora
