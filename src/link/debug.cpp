#include "link/debug.h"

#include "base/byte_text.h"
#include "link/frames.h"

namespace velmora {
namespace {

constexpr std::string_view kHeader("\x16\x10\x02", kHeaderLength);
constexpr std::size_t kDataIndex = kTypeIndex + 1;
constexpr std::size_t kFrameOverhead = kDataIndex + kTrailerLength;

/// Calls `visit` with each of the words, in capitals, that "," separates.
template <typename Visit>
void forEachCategory(std::string_view categories, Visit visit) {
    while (true) {
        const std::size_t comma = categories.find(',');
        visit(upperCase(categories.substr(0, comma)));
        if (comma == std::string_view::npos) {
            return;
        }
        categories.remove_prefix(comma + 1);
    }
}

bool hasCategory(std::string_view categories, std::string_view wanted) {
    bool found = false;
    forEachCategory(categories, [&](const std::string& category) { found = found || category == wanted; });
    return found;
}

/// The data of an entry: a frame described, any other text as it reads.
std::string dataText(std::string_view data) {
    return data.substr(0, kHeaderLength) == kHeader ? describeFrame(data) : hexEscaped(data);
}

}  // namespace

std::string describeFrame(std::string_view frame) {
    std::string text;
    if (frame.size() > kTypeIndex) {
        const int type = static_cast<unsigned char>(frame[kTypeIndex]);
        constexpr int kDiscon = static_cast<int>(FrameType::Discon);
        constexpr int kConnect = static_cast<int>(FrameType::Connect);
        constexpr int kData = static_cast<int>(FrameType::Data);
        if (type < static_cast<int>(kSequenceModulus)) {
            text = std::to_string(type) + " ACK";
        } else if (type == kDiscon) {
            text = "DISCON\t";
        } else if (type == kConnect) {
            return "CONNECT";
        } else {
            const long length = static_cast<long>(frame.size()) - static_cast<long>(kFrameOverhead);
            text = std::to_string(type - kData) + " DATA\tlen=" + std::to_string(length) + "\t";
        }
    }
    if (frame.size() > kFrameOverhead) {
        text += hexEscaped(frame.substr(kDataIndex, frame.size() - kFrameOverhead));
    }
    return text;
}

std::string linkStateName(LinkState state) {
    switch (state) {
        case LinkState::Idle:
            return "idle      ";
        case LinkState::WaitLink:
            return "wait link ";
        case LinkState::Linking:
            return "linking   ";
        case LinkState::Ready:
            return "ready     ";
        case LinkState::WaitAck:
            return "wait_ack  ";
    }
    return std::string(10, ' ');  // unreachable: every state is above
}

void Debug::trace(std::string_view categories, std::string_view label, std::string_view data) {
    if (!sink_.logging()) {
        return;
    }
    const bool polling = polling_.covers(categories, label, data, state());
    if (!wanted(categories)) {
        return;
    }
    if (polling) {
        sink_.addPollingLine(line(categories, label, data));
    } else {
        sink_.addline(line(categories, label, data));
    }
}

bool Debug::wanted(std::string_view categories) {
    bool any = false;
    // Every category is asked for, so that the sink meets all of them.
    forEachCategory(categories,
                    [&](const std::string& category) { any = sink_.categoryEnabled(category) || any; });
    return any;
}

std::string Debug::line(std::string_view categories, std::string_view label, std::string_view data) const {
    const bool repeatsAFrame = label == "recv" || label == "resend";
    const bool stateAlone = label.empty() && data.empty() && hasCategory(categories, "STATE");
    if (stateAlone || (!repeatsAFrame && hasCategory(categories, "STATUS"))) {
        return hexEscaped(label) + "\tStatus=" + linkStateName(state());
    }
    return hexEscaped(label) + " \t" + dataText(data);
}

}  // namespace velmora
