#pragma once

#include "project/project_record.h"

#include <array>

namespace lanterra {

inline constexpr int requiredFieldCount = 20;

/// The boxes that must be filled in before a run, and that are disabled during it, in the order of the check.
/// txtLimit stands in it twice, which only repeats its test. The description may stay empty and is not among
/// them.
std::array<TextBox *, requiredFieldCount> BindRequiredFields(ProjectRecord &record);

} // namespace lanterra
