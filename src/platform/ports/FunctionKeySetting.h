#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvin {

/// How the run of the tool behind the setting ended.
struct ToolOutcome
{
    std::optional<QString> launchError; ///< the tool did not start, or the setting can't be reached; in words
    QByteArray standardOutput;
};

/// The system setting that decides whether the top row sends F1 to F12 or its printed functions. Every call blocks
/// until the system has answered. Main thread only.
class FunctionKeySetting
{
public:
    virtual ~FunctionKeySetting() = default;
    /// False where the platform, or this keyboard, has no such setting; the other calls are then never made.
    [[nodiscard]] virtual bool isAvailable() const = 0;
    /// Reads the stored value: "1" or "true" mean plain function keys.
    [[nodiscard]] virtual ToolOutcome readByTool() = 0;
    [[nodiscard]] virtual ToolOutcome writeByTool(bool dedicated) = 0;
    /// Writes the value a second time, through the settings interface, for any application.
    virtual void setPreferenceValue(bool dedicated) = 0;
    virtual void synchronizePreference() = 0;
    /// Tells whoever listens that the setting changed.
    virtual void announceChange() = 0;
};

} // namespace tarvin
