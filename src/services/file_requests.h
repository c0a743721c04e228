// What FTRAN and FILE have in common: the events, the requests' form, reading and writing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "link/frame_sender.h"
#include "link/server_state.h"
#include "link/server_window.h"
#include "services/open_file.h"
#include "services/service_codes.h"
#include "services/service_handler.h"
#include "transfers/transfers.h"

namespace velmora {

/// A service over the open file. Each data message is one request: an operation byte and its argument. It is
/// answered with one DATA frame, or refused with a DISCON frame carrying one code, after which the service
/// ends. Whenever the service ends, for whatever reason, the file is closed.
class FileRequests : public ServiceHandler {
  public:
    void handle(std::int32_t& code, std::string& payload) override;

  protected:
    /// All must outlive this object; the file may be shared with other services.
    FileRequests(FrameSender& sender, ServerWindow& window, OpenFile& file, Transfers& transfers)
        : sender_(sender), window_(window), file_(file), transfers_(transfers) {}

    /// The service was opened; the empty reply has not been sent yet.
    virtual void begin() {}

    // The requests. Each is given what follows the operation byte, and answers or refuses it.
    virtual void open(std::string_view argument) = 0;
    virtual void close() = 0;
    virtual void write(std::string_view argument) = 0;
    virtual void read(std::string_view argument) = 0;
    /// A service that cannot seek knows no such operation.
    virtual void seek(std::string_view) { refuse(kCodeInvalidRequest); }

    /// Answers; false when the port refused the bytes.
    bool reply(std::string_view data);
    /// Refuses and ends the service.
    void refuse(int code);
    void end() { ended_ = true; }

    /// Tells of the file that is asked for, before it is opened.
    void announce(const Transfer& transfer) { transfers_.ask(transfer); }
    /// Replies to a successful open, then shows the file and what is done to it.
    void replyOpened(std::string_view header, ServerState state, const std::string& path);
    /// Closes the file and forgets its name.
    void closeFile();

    /// Makes sure of what was written and replies empty; false when it is not saved, which was told as a
    /// refusal.
    bool saveAndReply();
    /// Writes a record and replies empty; false when it was refused.
    bool writeAndReply(std::string_view record);
    /// Reads a record of up to the maximum in the argument's first byte and replies with it. Returns
    /// kCodeNone or the code with which it was refused.
    ServiceCode readAndReply(std::string_view argument);

    ServerWindow& window() { return window_; }
    OpenFile& file() { return file_; }

  private:
    /// Hands a request to its function; an operation that is none is refused.
    void request(std::uint8_t operation, std::string_view argument);
    ServiceCode readRecord(std::string_view argument, std::string& record);
    /// Bytes that are still to be read behind the position; nothing where that cannot be told.
    std::optional<std::uint64_t> bytesLeft() const;
    /// As the statistics count a record: a line has an end of two bytes.
    std::size_t countOf(std::string_view record) const { return record.size() + (file_.textMode() ? 2 : 0); }

    FrameSender& sender_;
    ServerWindow& window_;
    OpenFile& file_;
    Transfers& transfers_;
    bool ended_ = false;
};

/// The byte at `offset` as a number. Requires: it lies in `bytes`.
inline int byteAt(std::string_view bytes, std::size_t offset) {
    return static_cast<unsigned char>(bytes[offset]);
}

}  // namespace velmora
