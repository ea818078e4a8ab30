#pragma once

#include <chrono>
#include <functional>

namespace tarvin::endtoend {

/// How long a test waits for what is bound to happen, on a machine that is busy with other things.
inline constexpr std::chrono::milliseconds patience{30000};

/// Waits until the condition holds, looking again every millisecond; the Qt event loop, if there is one, runs
/// meanwhile.
/// @return whether it held within the limit
[[nodiscard]] bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit = patience);

} // namespace tarvin::endtoend
