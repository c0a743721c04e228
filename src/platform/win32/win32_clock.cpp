#include "platform/win32/win32_clock.h"

#include <windows.h>

namespace velmora {
namespace {

SYSTEMTIME localNow() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return now;
}

DateTime dateTimeOf(const SYSTEMTIME& system) {
    DateTime time;
    time.year = system.wYear;
    time.month = system.wMonth;
    time.day = system.wDay;
    time.hour = system.wHour;
    time.minute = system.wMinute;
    time.second = system.wSecond;
    return time;
}

}  // namespace

DateTime Win32Clock::localTime() const {
    return dateTimeOf(localNow());
}

DateTime Win32Clock::universalTime() const {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    return dateTimeOf(now);
}

double Win32Clock::secondsSinceMidnight() const {
    const SYSTEMTIME now = localNow();
    return now.wHour * 3600.0 + now.wMinute * 60.0 + now.wSecond + now.wMilliseconds / 1000.0;
}

std::chrono::microseconds Win32Clock::monotonic() const {
    return std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace velmora
