// BOOT: machine code from the PC, relocated to where the Organiser wants it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/files.h"
#include "link/frame_sender.h"
#include "link/server_window.h"
#include "services/file_name_mapper.h"
#include "services/service_handler.h"
#include "transfers/transfers.h"

namespace velmora {

/// Takes the name of a boot file (without ".bin"), answers with the length of its code, takes the load
/// address, and answers it and every later message with an address and the next 200 bytes of code. When no
/// code is left, a DISCON frame of reason 0 ends the service. All must outlive this object.
class BootService : public ServiceHandler {
  public:
    BootService(FrameSender& sender, ServerWindow& window, Files& files, Transfers& transfers,
                const FileNameMapper& names)
        : sender_(sender), window_(window), files_(files), transfers_(transfers), names_(names) {}

    void handle(std::int32_t& code, std::string& payload) override;

  private:
    enum class State { Idle, AwaitName, AwaitAddress, Sending };

    void takeMessage(std::string_view payload);
    void loadFile(std::string_view name);
    void relocate(std::string_view payload);
    void sendChunk();
    /// Ends the service with a DISCON frame of this reason.
    void finish(int reason);

    FrameSender& sender_;
    ServerWindow& window_;
    Files& files_;
    Transfers& transfers_;
    const FileNameMapper& names_;

    State state_ = State::Idle;
    bool ended_ = false;
    std::string code_;           ///< what is still to be sent
    std::string relocations_;    ///< the table as read
    std::uint32_t address_ = 0;  ///< of the next chunk
};

}  // namespace velmora
