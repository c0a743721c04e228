#include "organiser/conversation.h"

#include <utility>

#include "base/byte_text.h"

namespace velmora {

std::vector<std::string> inChunks(std::string_view bytes) {
    std::vector<std::string> chunks;
    for (; !bytes.empty(); bytes.remove_prefix(chunks.back().size())) {
        chunks.emplace_back(bytes.substr(0, kMostData));
    }
    return chunks;
}

std::string openService(OrganiserLink& link, std::string_view name) {
    link.connect();
    return link.request(name);
}

void requestExpecting(OrganiserLink& link, std::string_view request, std::string_view expected) {
    const std::string reply = link.request(request);
    if (reply != expected) {
        throw LinkFailure::unexpected("The server answered something else than expected: \"" +
                                      hexEscaped(reply) + "\".");
    }
}

std::optional<std::string> requestUntil(OrganiserLink& link, std::string_view request, int endCode) {
    try {
        return link.request(request);
    } catch (const LinkFailure& failure) {
        if (failure.kind() == LinkFailure::Kind::Refused && failure.code() == endCode) {
            return std::nullopt;
        }
        throw;
    }
}

Attempts::Attempts(OrganiserLink& link, int most, Tell tell)
    : link_(link), most_(most), tell_(std::move(tell)) {}

void Attempts::run(const std::function<void()>& conversation, const std::function<bool()>& repeatable) {
    for (int attempt = 1;; ++attempt) {
        try {
            conversation();
            link_.end();
            return;
        } catch (const LinkFailure& failure) {
            link_.end();
            if (!failure.worthAnotherTry() || attempt >= most_) {
                throw;
            }
            if (repeatable && !repeatable()) {
                tell_("Not tried again, because a part of it may have arrived.");
                throw;
            }
            tell_(std::string(failure.what()) + " Trying again (" + std::to_string(attempt + 1) + " of " +
                  std::to_string(most_) + ").");
        }
    }
}

}  // namespace velmora
