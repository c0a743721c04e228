#include "doctor/doctor_report.h"

#include <array>
#include <cstddef>
#include <nlohmann/json.hpp>

#include "base/system_text.h"

namespace velmora {

std::string_view markOf(StepStatus status) {
    constexpr std::array<std::string_view, 4> kMarks = {"ok", "note", "FAULT", "?"};
    return kMarks.at(static_cast<std::size_t>(status));
}

std::string findingLine(const StepFinding& finding) {
    constexpr std::size_t kMarkWidth = 7;
    std::string mark(markOf(finding.status));
    mark.resize(kMarkWidth, ' ');
    return "  " + mark + finding.text;
}

std::string findingWithDetail(const Verdict& verdict) {
    return std::string(wordsOf(verdict.cause).finding) + (verdict.detail.empty() ? "" : ' ' + verdict.detail);
}

std::string verdictText(const Verdict& verdict) {
    std::string text = findingWithDetail(verdict) + '\n';
    if (verdict.cause == Cause::None) {
        return text;
    }
    const CauseWords& words = wordsOf(verdict.cause);
    return text + "What helps: " + std::string(words.advice) + "\nCause: " + std::string(words.name) + ", " +
           std::to_string(verdict.confidence) + " % sure\n";
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
