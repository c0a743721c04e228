#include "doctor/doctor_report.h"

#include <array>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <string_view>

#include "base/system_text.h"

namespace velmora {

std::string findingLine(const StepFinding& finding) {
    constexpr std::array<std::string_view, 4> kMarks = {"ok     ", "note   ", "FAULT  ", "?      "};
    return "  " + std::string(kMarks.at(static_cast<std::size_t>(finding.status))) + finding.text;
}

std::string verdictText(const Verdict& verdict) {
    const CauseWords& words = wordsOf(verdict.cause);
    std::string text(words.finding);
    if (verdict.cause == Cause::None) {
        return text + '\n';
    }
    if (!verdict.detail.empty()) {
        text += ' ' + verdict.detail;
    }
    return text + "\nWhat helps: " + std::string(words.advice) + "\nCause: " + std::string(words.name) +
           ", " + std::to_string(verdict.confidence) + " % sure\n";
}

std::string diagnosisAsJson(const std::string& port, const Diagnosis& diagnosis) {
    using Json = nlohmann::ordered_json;
    const CauseWords& words = wordsOf(diagnosis.verdict.cause);
    Json object;
    object["port"] = utf8OfSystemText(port);
    object["cause"] = words.name;
    object["confidence"] = diagnosis.verdict.confidence;
    object["finding"] = words.finding;
    object["detail"] = utf8OfSystemText(diagnosis.verdict.detail);
    object["advice"] = words.advice;
    Json findings = Json::array();
    for (const StepFinding& finding : diagnosis.findings) {
        Json entry;
        entry["step"] = nameOf(finding.step);
        entry["status"] = nameOf(finding.status);
        entry["text"] = utf8OfSystemText(finding.text);
        findings.push_back(std::move(entry));
    }
    object["findings"] = std::move(findings);
    constexpr int kIndent = 2;
    return object.dump(kIndent, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace velmora
