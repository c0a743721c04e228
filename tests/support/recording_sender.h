// A sender of frames that only remembers.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "link/frame_sender.h"

namespace velmora::test {

class RecordingSender : public FrameSender {
  public:
    struct Frame {
        FrameType type;
        std::string data;

        friend bool operator==(const Frame&, const Frame&) = default;
    };
    bool PLP_Send(FrameType type, std::string_view data) override {
        frames.push_back({type, std::string(data)});
        // A copy, since what runs may set another.
        if (const std::function<void()> action = onSend) {
            action();
        }
        return works;
    }

    std::vector<Frame> frames;
    std::function<void()> onSend;  ///< runs inside every send, as pending events do
    bool works = true;             ///< false: the port refuses
};

}  // namespace velmora::test
