#include "serial/terminal_settings_posix.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace velmora {

namespace {

constexpr std::array<std::pair<std::uint32_t, speed_t>, 30> kRates = {{
    {50, B50},           {75, B75},           {110, B110},         {134, B134},         {150, B150},
    {200, B200},         {300, B300},         {600, B600},         {1200, B1200},       {1800, B1800},
    {2400, B2400},       {4800, B4800},       {9600, B9600},       {19200, B19200},     {38400, B38400},
    {57600, B57600},     {115200, B115200},   {230400, B230400},   {460800, B460800},   {500000, B500000},
    {576000, B576000},   {921600, B921600},   {1000000, B1000000}, {1152000, B1152000}, {1500000, B1500000},
    {2000000, B2000000}, {2500000, B2500000}, {3000000, B3000000}, {3500000, B3500000}, {4000000, B4000000},
}};

constexpr int kFewestDataBits = 5;
constexpr std::array<tcflag_t, 4> kSizes = {CS5, CS6, CS7, CS8};

void makeRaw(termios& block) {
    cfmakeraw(&block);
    block.c_iflag &= ~static_cast<tcflag_t>(IXOFF | IXANY | INPCK);
    block.c_cflag &= ~static_cast<tcflag_t>(CRTSCTS);
    block.c_cflag |= CREAD | CLOCAL | HUPCL;
    block.c_cc[VMIN] = 0;
    block.c_cc[VTIME] = 0;
}

/// False for a rate that the block has no place for.
bool applyBaud(termios& block, std::uint32_t baud) {
    const auto* const rate =
        std::find_if(kRates.begin(), kRates.end(), [baud](const auto& entry) { return entry.first == baud; });
    if (rate == kRates.end()) {
        return false;
    }
    // Neither refuses a rate that has a name.
    cfsetispeed(&block, rate->second);
    cfsetospeed(&block, rate->second);
    return true;
}

void applyParity(termios& block, Parity parity) {
    tcflag_t flags = 0;
    switch (parity) {
        case Parity::None:
            break;
        case Parity::Odd:
            flags = PARENB | PARODD;
            break;
        case Parity::Even:
            flags = PARENB;
            break;
        case Parity::Mark:
            flags = PARENB | CMSPAR | PARODD;
            break;
        case Parity::Space:
            flags = PARENB | CMSPAR;
            break;
    }
    block.c_cflag &= ~static_cast<tcflag_t>(PARENB | PARODD | CMSPAR);
    block.c_cflag |= flags;
}

void applyDataBits(termios& block, int dataBits) {
    block.c_cflag &= ~static_cast<tcflag_t>(CSIZE);
    block.c_cflag |= kSizes.at(static_cast<std::size_t>(dataBits - kFewestDataBits));
}

/// With five data bits the hardware makes one and a half stop bits of CSTOPB.
void applyStopBits(termios& block, StopBits stopBits) {
    if (stopBits == StopBits::One) {
        block.c_cflag &= ~static_cast<tcflag_t>(CSTOPB);
    } else {
        block.c_cflag |= CSTOPB;
    }
}

Parity parityOf(tcflag_t flags) {
    if ((flags & PARENB) == 0) {
        return Parity::None;
    }
    const bool odd = (flags & PARODD) != 0;
    if ((flags & CMSPAR) != 0) {
        return odd ? Parity::Mark : Parity::Space;
    }
    return odd ? Parity::Odd : Parity::Even;
}

}  // namespace

bool applyLineSettings(termios& block, const LineSettings& line) {
    makeRaw(block);
    const bool named = applyBaud(block, line.baud);
    applyParity(block, line.parity);
    applyDataBits(block, line.dataBits);
    applyStopBits(block, line.stopBits);
    return named;
}

LineSettings lineSettingsOf(const termios& block) {
    LineSettings line;
    const auto* const rate = std::find_if(kRates.begin(), kRates.end(), [&block](const auto& entry) {
        return entry.second == cfgetospeed(&block);
    });
    line.baud = rate == kRates.end() ? 0 : rate->first;
    line.parity = parityOf(block.c_cflag);
    line.dataBits = static_cast<int>(std::find(kSizes.begin(), kSizes.end(), block.c_cflag & CSIZE) -
                                     kSizes.begin() + kFewestDataBits);
    const StopBits longer = line.dataBits == kFewestDataBits ? StopBits::OneAndHalf : StopBits::Two;
    line.stopBits = (block.c_cflag & CSTOPB) != 0 ? longer : StopBits::One;
    return line;
}

}  // namespace velmora
