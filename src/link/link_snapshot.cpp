#include "link/link_snapshot.h"

#include "link/frames.h"
#include "link/plp.h"

namespace velmora {
namespace {

bool numbersFit(const LinkSnapshot& link) {
    const auto within = [](int number, int last) { return number >= 0 && number <= last; };
    constexpr int kLastSequence = static_cast<int>(kSequenceModulus) - 1;
    return within(link.sendSequence, kLastSequence) && within(link.receiveSequence, kLastSequence) &&
           within(link.resendBudget, kMaxResends);
}

bool waitFits(const LinkSnapshot& link) {
    if (link.portFailed || link.state == LinkState::Idle || link.state == LinkState::Linking) {
        return !link.wait;
    }
    if (link.state == LinkState::Ready) {
        // Off once the silence was answered with a repeated acknowledgement.
        return !link.wait || *link.wait == kSilenceTime;
    }
    return link.wait && *link.wait >= kAnswerTime;
}

}  // namespace

bool fitsTogether(const LinkSnapshot& link) {
    if (!link.hasPort) {
        return !link.hasTimer && link.state == LinkState::Idle;
    }
    return link.hasTimer && numbersFit(link) && (link.polled || !link.served) && waitFits(link);
}

}  // namespace velmora
