#include "organiser/file_requests.h"

#include <utility>

#include "organiser/conversation.h"

namespace velmora {

std::string openRequest(FileMode mode, int kind, std::string_view name) {
    std::string request{kOpen, static_cast<char>(mode), static_cast<char>(kind)};
    return request.append(name);
}

std::string readRequest(std::size_t maximum) {
    return {kRead, static_cast<char>(maximum)};
}

void writeAndClose(OrganiserLink& link, Progress& progress, std::string_view what,
                   const std::vector<std::string>& messages, std::string_view unit, WriteState& state) {
    const ProgressScope scope(progress, what, messages.size(), unit);
    amidTransfer([&] {
        std::size_t done = 0;
        for (const std::string& message : messages) {
            state.sentData = true;
            requestExpecting(link, std::string(1, kWrite) + message, "");
            progress.advance(++done);
        }
        requestExpecting(link, std::string(1, kClose), "");
    });
}

std::vector<std::string> readToEnd(OrganiserLink& link, Progress& progress, std::string_view what,
                                   std::size_t maximum, std::string_view unit) {
    const ProgressScope scope(progress, what, 0, unit);
    const std::string request = readRequest(maximum);
    return amidTransfer([&] {
        std::vector<std::string> messages;
        while (auto message = requestUntil(link, request, kCodeEndOfFile)) {
            messages.push_back(*std::move(message));
            progress.advance(messages.size());
        }
        return messages;
    });
}

}  // namespace velmora
