#pragma once

#include "platform/ports/Script.h"

#include <mutex>

namespace tarvin::macos {

/// Compiles and runs the source of a script in this process. Called on a background queue; one script runs at a time.
///
/// The documentation wants scripts on the main thread. Some of these wait for other applications, for a minute in the
/// worst case, and the main thread decides about every key; so they run beside it, and never two at once.
class MacScripts final : public Scripts
{
public:
    [[nodiscard]] std::optional<ScriptResult> run(const Script& script) override;

private:
    std::mutex m_oneAtATime;
};

} // namespace tarvin::macos
