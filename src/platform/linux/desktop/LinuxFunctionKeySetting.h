#pragma once

#include "platform/ports/FunctionKeySetting.h"

namespace tarvin::desktop {

/// The top-row mode of Apple keyboards: the parameter `fnmode` of the kernel module `hid_apple`. The kernel gives it to
/// root alone, so it is available only where the administrator opened it to the user.
///
/// The parameter is 2 when the top row sends plain function keys, and also 0, where the fn key means nothing; 1 and 3
/// prefer the printed functions. Going back restores the value that was there before, where this object changed it.
class LinuxFunctionKeySetting : public FunctionKeySetting
{
public:
    explicit LinuxFunctionKeySetting(QString parameterPath = defaultPath());

    [[nodiscard]] static QString defaultPath();

    [[nodiscard]] bool isAvailable() const override;
    /// "1" for plain function keys, "0" otherwise, and a line end, whatever number the kernel uses.
    [[nodiscard]] ToolOutcome readByTool() override;
    [[nodiscard]] ToolOutcome writeByTool(bool dedicated) override;
    /// The kernel acts on the first writing; there is no second place and nobody to tell.
    void setPreferenceValue(bool) override { }
    void synchronizePreference() override { }
    void announceChange() override { }

private:
    const QString m_path;
    std::optional<QByteArray> m_previousValue; ///< of the other mode, before we changed it
};

} // namespace tarvin::desktop
