// The serial port as the link and the port test see it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace velmora {

/// Numbers of the errors that a port raises.
enum CommErrorNumber : std::int32_t {
    kCommFailed = -1,               ///< anything else; the description is the full one
    kCommInvalidSettings = 380,     ///< "Invalid port settings"
    kCommSettingsWhileOpen = 8000,  ///< "Port already open"
    kCommInvalidPort = 8002,        ///< "Invalid port number"
    kCommAlreadyOpen = 8005,        ///< "Port already open"
    kCommNotOpen = 8018,            ///< "Port not open"
};

/// An error raised by a port: number, description and the operation in which it arose.
class CommError : public std::exception {
  public:
    CommError(std::int32_t number, std::string description, std::string source)
        : number_(number), description_(std::move(description)), source_(std::move(source)) {}

    std::int32_t number() const { return number_; }
    const std::string& description() const { return description_; }
    const std::string& source() const { return source_; }
    const char* what() const noexcept override { return description_.c_str(); }

  private:
    std::int32_t number_;
    std::string description_;
    std::string source_;
};

/// A serial port with the properties and methods of a communications control. Every member that fails
/// throws a CommError. Pending events of the user interface may run inside Send and GetInput.
class SerialPort {
  public:
    virtual ~SerialPort() = default;

    /// Opens COM<CommPort> with Settings. 8005 when this object has it open or another program holds it, 8002
    /// when there is no such port, 380 for settings that the port refuses, -1 otherwise.
    virtual bool OpenPort() = 0;
    /// Closes an open port; true in any case.
    virtual bool ClosePort() = 0;
    /// Writes all bytes. 8018 when not open.
    virtual bool Send(std::string_view data) = 0;
    /// Reads up to `maximum` of the bytes that wait, without waiting for more; `text` may end up empty.
    virtual bool GetInput(std::size_t maximum, std::string& text) = 0;

    virtual std::int16_t CommPort() const = 0;
    virtual void setCommPort(std::int16_t number) = 0;
    /// Mode string, for example "9600,N,8,1". Setting it while the port is open raises 8000.
    virtual const std::string& Settings() const = 0;
    virtual void setSettings(const std::string& settings) = 0;
    virtual bool PortOpen() const = 0;
    virtual void setPortOpen(bool open) = 0;
    /// Bytes that wait in the input queue.
    virtual std::int16_t InBufferCount() = 0;
    virtual bool DTREnable() const = 0;
    virtual void setDTREnable(bool enable) = 0;
    virtual bool RTSEnable() const = 0;
    virtual void setRTSEnable(bool enable) = 0;
};

}  // namespace velmora
