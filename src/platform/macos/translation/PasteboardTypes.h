#pragma once

namespace tarvin::macos {

/// The mark that password managers put beside a secret text, by an agreement among the makers of clipboard tools
/// (nspasteboard.org). Its content does not matter.
inline constexpr const char* concealedType = "org.nspasteboard.ConcealedType";

} // namespace tarvin::macos
