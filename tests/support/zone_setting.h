// A time zone for the length of a test.
#pragma once

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace velmora::test {

/// Sets TZ for the C library and puts the old value back.
class ZoneSetting {
  public:
    explicit ZoneSetting(const std::string& zone) {
        if (const char* old = std::getenv("TZ")) {
            old_ = old;
        }
        setenv("TZ", zone.c_str(), 1);
        tzset();
    }
    ZoneSetting(const ZoneSetting&) = delete;
    ZoneSetting& operator=(const ZoneSetting&) = delete;
    ~ZoneSetting() {
        if (old_) {
            setenv("TZ", old_->c_str(), 1);
        } else {
            unsetenv("TZ");
        }
        tzset();
    }

  private:
    std::optional<std::string> old_;
};

/// An instant from a universal date and time.
inline std::chrono::system_clock::time_point utc(int year, unsigned month, unsigned day, int hour = 0,
                                                 int minute = 0, int second = 0) {
    using namespace std::chrono;
    return sys_days(std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day)) + hours(hour) +
           minutes(minute) + seconds(second);
}

}  // namespace velmora::test
