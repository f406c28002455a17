#pragma once

#include <cstdint>

namespace gatewise {

/// A flag of the session: -1 true, 0 false.
using Flag = std::int16_t;
inline constexpr Flag kTrue = -1;
inline constexpr Flag kFalse = 0;

} // namespace gatewise
