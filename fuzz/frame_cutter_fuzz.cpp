// Any bytes in any portions: what is cut are frames, and the portions make no difference.
//
// Input: a byte for the capacity, a byte for the portions, then the stream.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frames.h"
#include "require.h"

namespace {

using namespace velmora;
using fuzz::require;

/// Header in front; at the end the trailer, whose DLE is the last of an odd run, and two check bytes.
void requireFrame(std::string_view frame, std::size_t capacity) {
    require(frame.size() >= kHeaderLength + kTrailerLength && frame.size() <= capacity);
    require(frame.substr(0, kHeaderLength) == "\x16\x10\x02");
    const std::size_t etx = frame.size() - 3;
    require(frame[etx] == kEtx);
    std::size_t run = 0;
    while (frame[etx - 1 - run] == kDle) {
        ++run;
    }
    require(run % 2 == 1);
}

std::vector<std::string> cut(std::string_view stream, std::size_t portion, std::size_t capacity) {
    FrameCutter cutter(capacity);
    std::vector<std::string> frames;
    std::size_t given = 0;
    while (!stream.empty()) {
        const std::string_view bytes = stream.substr(0, portion);
        stream.remove_prefix(bytes.size());
        given += bytes.size();
        cutter.append(bytes);
        while (const auto frame = cutter.next()) {
            requireFrame(*frame, capacity);
            frames.emplace_back(*frame);
        }
        require(cutter.heldBytes() <= capacity);
    }
    std::size_t accounted = cutter.droppedBytes() + cutter.heldBytes();
    for (const std::string& frame : frames) {
        accounted += frame.size();
    }
    require(accounted == given);
    return frames;
}

const Crc& crc() {
    static const Crc loaded = [] {
        Crc made;
        made.load_CRCtable();
        return made;
    }();
    return loaded;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const std::size_t capacity = data[0] < 200 ? 8U + data[0] : FrameCutter::kCapacity;
    const std::size_t portion = 1U + data[1];
    const std::string stream(data + 2, data + size);

    const auto whole = cut(stream, stream.size() + 1, capacity);
    require(cut(stream, portion, capacity) == whole);
    require(cut(stream, 1, capacity) == whole);
    for (const std::string& frame : whole) {
        parseFrame(crc(), frame);
    }

    // Whatever is stuffed into a frame comes out of it, behind any garbage that holds no header.
    const std::string wire = buildFrame(crc(), FrameType::Data, 1, stream);
    const auto own = cut("\x16\x10\x16" + wire, portion, FrameCutter::kCapacity);
    if (wire.size() <= FrameCutter::kCapacity) {
        require(own.size() == 1 && own[0] == wire);
        const auto parsed = parseFrame(crc(), own[0]);
        require(parsed && parsed->data == stream && parsed->sequence == 1);
    } else {
        require(own.empty() || own[0] != wire);
    }
    return 0;
}
