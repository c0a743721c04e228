#include "shrinker.h"

#include <algorithm>

namespace velmora::simulation {
namespace {

/// Leaves out parts of a list, larger ones first. `listOf` finds the list in a plan.
template <typename ListOf>
bool leaveOut(Plan& plan, ListOf listOf, const std::function<bool(const Plan&)>& fails) {
    bool left = false;
    for (std::size_t size = std::max<std::size_t>(listOf(plan).size() / 2, 1);; size /= 2) {
        for (std::size_t at = 0; at < listOf(plan).size();) {
            Plan smaller = plan;
            auto& list = listOf(smaller);
            const std::size_t end = std::min(at + size, list.size());
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(at),
                       list.begin() + static_cast<std::ptrdiff_t>(end));
            if (fails(smaller)) {
                plan = std::move(smaller);
                left = true;
            } else {
                at += size;
            }
        }
        if (size <= 1) {
            return left;
        }
    }
}

}  // namespace

Plan shrink(Plan plan, const std::function<bool(const Plan&)>& fails) {
    for (bool smaller = true; smaller;) {
        smaller = leaveOut(
            plan, [](Plan & all) -> auto& { return all.steps; }, fails);
        for (std::size_t i = 0; i < plan.steps.size(); ++i) {
            smaller = leaveOut(
                          plan, [i](Plan & all) -> auto& { return all.steps[i].faults; }, fails) ||
                      smaller;
        }
    }
    return plan;
}

}  // namespace velmora::simulation
