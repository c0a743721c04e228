// From a plan that breaks a promise to the least that breaks one.
#pragma once

#include <functional>

#include "plan.h"

namespace velmora::simulation {

/// Leaves out steps and faults for as long as `fails` holds for what is left. Requires: it holds for `plan`.
Plan shrink(Plan plan, const std::function<bool(const Plan&)>& fails);

}  // namespace velmora::simulation
