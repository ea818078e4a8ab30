#pragma once

#include "platform/ports/FunctionKeySetting.h"

namespace tarvin::macos {

/// The global setting of the top row: by the defaults tool, by the preferences of any application, and by the
/// notification that tells of it. Main thread only.
class MacFunctionKeySetting final : public FunctionKeySetting
{
public:
    [[nodiscard]] bool isAvailable() const override { return true; }
    [[nodiscard]] ToolOutcome readByTool() override;
    [[nodiscard]] ToolOutcome writeByTool(bool dedicated) override;
    void setPreferenceValue(bool dedicated) override;
    void synchronizePreference() override;
    void announceChange() override;
};

} // namespace tarvin::macos
