// From asking for a link to ending it: the frame around every service that the Organiser uses.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "organiser/organiser_link.h"
#include "services/service_codes.h"

namespace velmora {

/// Most bytes of a file or a record in one message, as on the handheld.
constexpr std::size_t kMostData = 250;

/// Byte strings of `bytes` in order, each of 1 to kMostData bytes.
std::vector<std::string> inChunks(std::string_view bytes);

/// Brings the link up, opens a service by its name and returns the server's answer.
std::string openService(OrganiserLink& link, std::string_view name);

/// One request whose reply must be empty or exactly `expected`; anything else throws Unexpected.
void requestExpecting(OrganiserLink& link, std::string_view request, std::string_view expected);

/// One request; nothing when the server ends the link with `endCode` instead of a reply.
std::optional<std::string> requestUntil(OrganiserLink& link, std::string_view request, int endCode);

/// Runs requests that a server which knows of the transfer cannot call invalid. When it does, it has lost the
/// link in between (its farewell did not arrive) and took the request for the name of a service: Lost.
template <typename Action>
auto amidTransfer(Action action) {
    try {
        return action();
    } catch (const LinkFailure& failure) {
        if (failure.kind() == LinkFailure::Kind::Refused && failure.code() == kCodeInvalidRequest) {
            throw LinkFailure::lost();
        }
        throw;
    }
}

/// Repeats whole conversations whose link broke. A transfer that ends because the server drops the link (end
/// of file) cannot be told from a broken link when that last frame is lost, so it is simply done again.
class Attempts {
  public:
    using Tell = std::function<void(const std::string&)>;

    /// `most` at least 1. `link` must outlive this; `tell` takes a sentence before each further try.
    Attempts(OrganiserLink& link, int most, Tell tell);

    /// Runs a conversation on a link of its own and ends the link. `repeatable` is asked after a loss: when
    /// it answers false, a second try could do harm (records appended twice) and the failure goes on.
    /// LinkFailure and LineError go on when no try is left.
    void run(const std::function<void()>& conversation, const std::function<bool()>& repeatable = {});

  private:
    OrganiserLink& link_;
    int most_;
    Tell tell_;
};

}  // namespace velmora
