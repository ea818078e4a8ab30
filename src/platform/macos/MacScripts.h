#pragma once

#include "platform/ports/Script.h"

namespace tarvin::macos {

/// Compiles and runs the source of a script in this process. Called on a background queue, several at once where
/// several queues ask for it.
class MacScripts final : public Scripts
{
public:
    [[nodiscard]] std::optional<ScriptResult> run(const Script& script) override;
};

} // namespace tarvin::macos
