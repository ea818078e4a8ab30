#pragma once

#include "platform/ports/SystemCommands.h"

namespace tarvin::macos {

/// Runs the system's own tools. Called on a background queue; failures are dropped.
class MacSystemCommands final : public SystemCommands
{
public:
    void run(const SystemCommand& command) override;
};

/// Speaks to the login window by an Apple event. Called on a background queue; errors are dropped.
class MacLoginWindow final : public LoginWindow
{
public:
    void send(PowerEvent event) override;
};

} // namespace tarvin::macos
