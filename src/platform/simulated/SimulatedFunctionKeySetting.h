#pragma once

#include "platform/ports/FunctionKeySetting.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

/// The function key setting with the tool that reads and writes it.
class SimulatedFunctionKeySetting final : public FunctionKeySetting
{
public:
    explicit SimulatedFunctionKeySetting(EffectLog& log)
        : m_log(log)
    { }

    [[nodiscard]] bool isAvailable() const override { return m_available; }
    [[nodiscard]] ToolOutcome readByTool() override;
    [[nodiscard]] ToolOutcome writeByTool(bool dedicated) override;
    void setPreferenceValue(bool dedicated) override;
    void synchronizePreference() override;
    void announceChange() override;

    void setAvailable(bool available) { m_available = available; }
    /// What the tool prints when it reads; empty where the setting was never made.
    void setStoredText(const QByteArray& text) { m_storedText = text; }
    /// Why the tool does not start from now on; nothing lets it start.
    void setLaunchError(std::optional<QString> words) { m_launchError = std::move(words); }
    [[nodiscard]] QByteArray storedText() const { return m_storedText; }

private:
    void launch(const QStringList& arguments);

    EffectLog& m_log;
    bool m_available = true;
    QByteArray m_storedText;
    std::optional<QString> m_launchError;
};

} // namespace tarvin::simulated
