#include "serial/bit_sampling.h"

#include <cstddef>
#include <cstdint>

namespace velmora {
namespace {

/// Stop bits may be one and a half, so half a bit is the least that a level lasts.
constexpr int kHalves = 2;

bool isOdd(unsigned value) {
    bool odd = false;
    for (; value != 0; value &= value - 1) {
        odd = !odd;
    }
    return odd;
}

/// The parity bit that belongs to some data bits; there is one unless the parity is None.
bool parityBit(Parity parity, unsigned value) {
    switch (parity) {
        case Parity::Odd:
            return !isOdd(value);
        case Parity::Even:
            return isOdd(value);
        case Parity::Space:
            return false;
        case Parity::Mark:
        case Parity::None:
            break;
    }
    return true;
}

unsigned dataMask(const LineSettings& line) {
    return (1U << static_cast<unsigned>(line.dataBits)) - 1U;
}

/// The line while the bytes are sent. Time runs in steps of which a sender's half bit takes as many as the
/// receiver's rate counts, so that both sides' bits are whole numbers of them.
class Levels {
  public:
    Levels(std::string_view bytes, const LineSettings& sender, std::uint32_t receiverRate)
        : halfBit_(receiverRate) {
        add(true, kHalves);
        for (const char byte : bytes) {
            const unsigned value = static_cast<unsigned char>(byte) & dataMask(sender);
            add(false, kHalves);
            for (int bit = 0; bit < sender.dataBits; ++bit) {
                add((value >> static_cast<unsigned>(bit) & 1U) != 0, kHalves);
            }
            if (sender.parity != Parity::None) {
                add(parityBit(sender.parity, value), kHalves);
            }
            add(true, stopHalves(sender.stopBits));
        }
    }

    bool at(std::int64_t time) const {
        const auto index = static_cast<std::size_t>(time / halfBit_);
        return index >= levels_.size() || levels_[index];
    }
    bool over(std::int64_t time) const { return static_cast<std::size_t>(time / halfBit_) >= levels_.size(); }
    /// The first moment, from `time` on, at which the line has the level; the end when it never has.
    std::int64_t next(bool level, std::int64_t time) const {
        while (!over(time) && at(time) != level) {
            time = (time / halfBit_ + 1) * halfBit_;
        }
        return time;
    }

  private:
    void add(bool level, int halves) {
        levels_.insert(levels_.end(), static_cast<std::size_t>(halves), level);
    }

    std::int64_t halfBit_;
    std::vector<bool> levels_;
};

/// A receiver's bit after bit, each read in its middle.
class BitReader {
  public:
    BitReader(const Levels& levels, std::int64_t edge, std::int64_t bit)
        : levels_(levels), middle_(edge + bit / kHalves), bit_(bit) {}

    bool take() {
        const bool level = levels_.at(middle_);
        anyHigh_ = anyHigh_ || level;
        middle_ += bit_;
        return level;
    }
    bool anyHigh() const { return anyHigh_; }
    /// When the last bit was read.
    std::int64_t lastRead() const { return middle_ - bit_; }

  private:
    const Levels& levels_;
    std::int64_t middle_;
    std::int64_t bit_;
    bool anyHigh_ = false;
};

SampledByte readByte(BitReader& reader, const LineSettings& receiver) {
    SampledByte byte;
    unsigned value = 0;
    for (int bit = 0; bit < receiver.dataBits; ++bit) {
        value |= static_cast<unsigned>(reader.take()) << static_cast<unsigned>(bit);
    }
    byte.value = static_cast<char>(value);
    if (receiver.parity != Parity::None) {
        byte.parityError = reader.take() != parityBit(receiver.parity, value);
    }
    byte.framingError = !reader.take();
    byte.lineBreak = !reader.anyHigh();
    return byte;
}

}  // namespace

std::vector<SampledByte> sampledBytes(std::string_view bytes, const LineSettings& sender,
                                      const LineSettings& receiver) {
    const Levels levels(bytes, sender, receiver.baud);
    const std::int64_t bit = std::int64_t{kHalves} * sender.baud;
    std::vector<SampledByte> sampled;
    std::int64_t time = 0;
    while (true) {
        const std::int64_t edge = levels.next(false, levels.next(true, time));
        if (levels.over(edge)) {
            return sampled;
        }
        BitReader reader(levels, edge, bit);
        const bool startGone = reader.take();
        if (!startGone) {
            sampled.push_back(readByte(reader, receiver));
        }
        time = reader.lastRead();
    }
}

std::string sampledValues(std::string_view bytes, const LineSettings& sender, const LineSettings& receiver) {
    std::string values;
    for (const SampledByte& byte : sampledBytes(bytes, sender, receiver)) {
        values += byte.value;
    }
    return values;
}

}  // namespace velmora
