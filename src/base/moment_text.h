// Moments as texts of a given form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/clock.h"

namespace velmora {

/// A universal time for programs (ISO 8601).
constexpr std::string_view kIsoForm = "yyyy-MM-ddThh:mm:ssZ";
/// A time for people.
constexpr std::string_view kStampForm = "yyyy-MM-dd hh:mm:ss";

/// A moment in a form, in which runs of these letters stand for numbers with as many digits: y year, M month,
/// d day, h hour, m minute, s second. Everything else stands for itself.
std::string momentText(const DateTime& moment, std::string_view form);

/// The moment in a text of a form; nothing for any other text and for moments that are on no calendar. What
/// the form does not have is that of a new DateTime.
std::optional<DateTime> momentIn(std::string_view text, std::string_view form);

}  // namespace velmora
