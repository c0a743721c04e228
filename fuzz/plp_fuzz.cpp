// The link driven by any events, from each of its states. Frames are built around the input, so that its
// check does not keep the fuzzer out; garbage, late timers, failing ports and stops inside the link's calls
// come along.
//
// Input: a byte for the first state, then events, each a byte for its kind and what that kind reads.
#include <cstdint>
#include <string>

#include "input.h"
#include "require.h"
#include "support/link_rig.h"

namespace {

using namespace velmora;
using fuzz::Input;
using fuzz::require;
using test::milliseconds;

class Life : private test::LinkRig {
  public:
    explicit Life(Input input) : input_(input) {
        port.onSend = [this](const std::string&) { interrupt(); };
        port.onRead = [this] { interrupt(); };
        yield.onYield = [this] { interrupt(); };
        window.onState = [this](std::int32_t) { interrupt(); };
        window.onWarning = [this] { interrupt(); };
        services.onEvent = [this](std::int32_t& code, std::string& payload) { serve(code, payload); };
    }

    void live() {
        constexpr LinkState kStates[] = {LinkState::Idle, LinkState::WaitLink, LinkState::Linking,
                                         LinkState::Ready, LinkState::WaitAck};
        const LinkState first = kStates[input_.byte() % 5];
        bringTo(first);
        require(plp.linkState() == first);
        while (!input_.atEnd()) {
            event();
            require(plp.isConsistent());
            require((window.current > Offline) == port.open);
            forget();
            port.input.resize(std::min<std::size_t>(port.input.size(), 4096));
        }
    }

  private:
    void event() {
        switch (input_.byte() % 12) {
            case 0:
            case 1:
            case 2: {
                const std::uint8_t typeAndSequence = input_.byte();
                const std::string data = input_.bytes(input_.byte());
                port.input +=
                    frame(static_cast<FrameType>(typeAndSequence & 0xF8U), typeAndSequence & 7U, data);
                time.advance(milliseconds(20));
                break;
            }
            case 3:
                port.input += input_.bytes(input_.byte());
                time.advance(milliseconds(20));
                break;
            case 4:
                time.advance(milliseconds(4 * input_.byte()));
                break;
            case 5:
                time.advance(milliseconds(30'000));
                break;
            case 6:
                fail(input_.byte());
                time.advance(milliseconds(520));
                port.sendError.reset();
                port.readError.reset();
                port.countError.reset();
                break;
            case 7:
                deed_ = input_.byte() % 4;
                callsUntilDeed_ = input_.byte() % 8;
                break;
            case 8:
                port.emptyReads = input_.byte() % 3;
                break;
            case 9:
                reply_ = input_.byte();
                break;
            case 10:
                act(input_.byte() % 4);
                break;
            default:
                port.input += std::string(1024U * (input_.byte() % 4), 'x');
                break;
        }
    }
    void fail(std::uint8_t how) {
        const CommError error((how & 4U) != 0 ? 0 : kCommFailed, "gone", "port");
        switch (how & 3U) {
            case 0:
                port.sendError = error;
                break;
            case 1:
                port.readError = error;
                break;
            default:
                port.countError = error;
                break;
        }
    }
    void act(int deed) {
        if ((deed & 1) != 0 && window.current > Offline && !stopping) {
            stop();
        }
        if ((deed & 2) != 0 && window.current <= Offline) {
            start();
        }
    }
    void interrupt() {
        if (deed_ != 0 && callsUntilDeed_-- == 0) {
            const int deed = deed_;
            deed_ = 0;
            act(deed);
        }
    }
    void serve(std::int32_t code, const std::string& payload) {
        interrupt();
        if (code == PLP_EV_RESET && (reply_ & 16U) == 0) {
            return;
        }
        for (unsigned i = 0; i < (reply_ & 3U); ++i) {
            plp.PLP_Send((reply_ & 4U) != 0 ? FrameType::Discon : FrameType::Data, payload);
        }
    }

    Input input_;
    int deed_ = 0;
    int callsUntilDeed_ = 0;
    std::uint8_t reply_ = 1;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Life(Input(data, size)).live();
    return 0;
}
