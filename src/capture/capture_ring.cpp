#include "capture/capture_ring.h"

namespace velmora {
namespace {

std::size_t costOf(const CapturedPacket& packet) {
    std::size_t cost = sizeof(CapturedPacket) + packet.bytes.size();
    for (const std::string& comment : packet.comments) {
        cost += sizeof(std::string) + comment.size();
    }
    return cost;
}

}  // namespace

void CaptureRing::addPort(const CapturedPort& port) {
    ports_.push_back(port);
    if (packets_.empty() && ports_.size() > 1) {
        ports_.pop_front();  // nothing passed over it
        ++firstPort_;
    }
}

void CaptureRing::addPacket(const CapturedPacket& packet) {
    packets_.push_back(packet);
    packets_.back().port = firstPort_ + ports_.size() - 1;
    held_ += costOf(packet);
    while (held_ > capacity_ && packets_.size() > 1) {
        dropOldest();
    }
}

void CaptureRing::dropOldest() {
    held_ -= costOf(packets_.front());
    packets_.pop_front();
    while (firstPort_ < packets_.front().port) {
        ports_.pop_front();
        ++firstPort_;
    }
}

Capture CaptureRing::capture() const {
    Capture capture;
    capture.ports.assign(ports_.begin(), ports_.end());
    capture.packets.assign(packets_.begin(), packets_.end());
    for (CapturedPacket& packet : capture.packets) {
        packet.port -= firstPort_;
    }
    return capture;
}

}  // namespace velmora
