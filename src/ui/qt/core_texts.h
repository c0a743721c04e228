// What the code below the windows says, in the user's language.
#pragma once

#include <QString>
#include <span>

namespace velmora {

/// The sentences, as patterns: %1 to %6 stand for a name, a number or a reason of the system, %7 and %8 for a
/// whole number and nothing else, which is grouped as the language does, %9 for a sentence that is one of
/// these itself. The places of a pattern go up.
std::span<const char* const> coreSentences();

/// A text of the core in the user's language: line by line, and sentence by sentence where it has several.
/// What is none of coreSentences() stays as it is, and in English all does.
QString coreText(const QString& english);

}  // namespace velmora
