#pragma once

#include "platform/ports/ApplicationControl.h"

namespace tarvin::macos {

/// Applications by the system's workspace. What cannot be opened is reported to nobody. Main thread only.
class MacApplicationControl final : public ApplicationControl
{
public:
    [[nodiscard]] std::optional<QString> pathOfApplication(const QString& bundleIdentifier) const override;
    [[nodiscard]] bool exists(const QString& path) const override;
    void openApplication(const QString& path) override;
    void openPath(const QString& path) override;
    [[nodiscard]] std::optional<QString> executableOf(ProcessIdentifier process) const override;
    bool forceTerminate(ProcessIdentifier process) override;
    /// What the system tells changes on a later turn of the run loop, so the answer is false right after the end of an
    /// application was asked for.
    [[nodiscard]] bool isTerminated(ProcessIdentifier process) const override;
    void kill(ProcessIdentifier process) override;
};

} // namespace tarvin::macos
