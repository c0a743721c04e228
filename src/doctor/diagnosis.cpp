#include "doctor/diagnosis.h"

#include <array>
#include <cstddef>

namespace velmora {

void Findings::add(StepFinding finding) {
    all_.push_back(std::move(finding));
    if (observer_ != nullptr) {
        observer_->found(all_.back());
    }
}

std::string_view nameOf(DoctorStep step) {
    constexpr std::array<std::string_view, 10> kNames = {"device", "adapter",   "settings",    "modem-lines",
                                                         "echo",   "listening", "other-rates", "other-forms",
                                                         "modem",  "link"};
    return kNames.at(static_cast<std::size_t>(step));
}

std::string_view nameOf(StepStatus status) {
    constexpr std::array<std::string_view, 4> kNames = {"well", "noted", "fault", "unknown"};
    return kNames.at(static_cast<std::size_t>(status));
}

}  // namespace velmora
