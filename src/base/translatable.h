// Texts that windows show in the user's language.
#pragma once

namespace velmora {

/// The text as it is, marked for the files of translations. Whoever shows it looks it up under `context`.
constexpr const char* translatable([[maybe_unused]] const char* context, const char* text) {
    return text;
}

}  // namespace velmora
