// What an examination has found, as text for people and for programs.
#pragma once

#include <string>
#include <string_view>

#include "doctor/diagnosis.h"

namespace velmora {

/// How a step went, as reports mark it: "ok", "note", "FAULT" or "?".
std::string_view markOf(StepStatus status);

/// One line for a step, without a line end: "  ok     The device is set to 9600 baud."
std::string findingLine(const StepFinding& finding);

/// The cause and what the line shows of it, one or two sentences.
std::string findingWithDetail(const Verdict& verdict);

/// The cause and what helps, a few lines that end in a line end.
std::string verdictText(const Verdict& verdict);

/// One JSON object (RFC 8259) in UTF-8 with a line end: "port", "cause" (its fixed name, "none" for a line
/// that is well), "confidence" (0 to 100), "finding", "detail" (what this line shows, may be empty),
/// "advice", and "findings", an array of objects with "step", "status" ("well", "noted", "fault", "unknown")
/// and "text".
std::string diagnosisAsJson(const std::string& port, const Diagnosis& diagnosis);

}  // namespace velmora
