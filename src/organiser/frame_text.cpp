#include "organiser/frame_text.h"

#include "base/byte_text.h"
#include "link/crc.h"
#include "link/frames.h"

namespace velmora {

std::string frameText(std::string_view frame) {
    Crc crc;
    crc.load_CRCtable();
    const auto parsed = parseFrame(crc, frame);
    if (!parsed) {
        return "damaged " + hexDump(frame);
    }
    const std::string sequence = std::to_string(parsed->sequence);
    switch (static_cast<FrameType>(parsed->type)) {
        case FrameType::Ack:
            return "ACK " + sequence;
        case FrameType::Discon:
            return "DISCON " + hexDump(parsed->data);
        case FrameType::Connect:
            return "CONNECT";
        case FrameType::Data:
            return "DATA " + sequence + " len=" + std::to_string(parsed->data.size()) +
                   (parsed->data.empty() ? "" : " ") + hexEscaped(parsed->data);
    }
    return "unknown type " + std::to_string(parsed->type) + " " + hexDump(parsed->data);
}

}  // namespace velmora
