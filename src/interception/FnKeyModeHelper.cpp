#include "interception/FnKeyModeHelper.h"

#include "platform/ports/Console.h"
#include "platform/ports/FunctionKeySetting.h"

#include <tuple>

namespace tarvin {

FnKeyModeHelper::FnKeyModeHelper(FunctionKeySetting& setting, Console& console)
    : m_setting(setting)
    , m_console(console)
{
    m_isDedicatedKeyMode = readCurrentState();
}

bool FnKeyModeHelper::readCurrentState()
{
    if (!m_setting.isAvailable())
        return false;
    const ToolOutcome outcome = m_setting.readByTool();
    if (outcome.launchError) {
        m_console.printLine(QStringLiteral("[Tarvin] Failed to read fnState: ") + *outcome.launchError);
        return false;
    }
    // What is not UTF-8 leaves a replacement character in the text, so it equals neither word.
    const QString text = QString::fromUtf8(outcome.standardOutput).trimmed();
    return text == u"1" || text.toLower() == u"true";
}

void FnKeyModeHelper::setDedicatedKeyMode(bool dedicated)
{
    if (!dedicated) {
        restoreAppleDefaults();
        return;
    }
    setPublishedMode(true);
    if (!m_setting.isAvailable())
        return;
    if (const auto error = m_setting.writeByTool(true).launchError) {
        m_console.printLine(QStringLiteral("[Tarvin] Failed to write fnState: ") + *error);
        return;
    }
    writeThroughPreferences(true);
    m_console.printLine(QStringLiteral("[Tarvin] Set fnState to dedicated function keys."));
}

void FnKeyModeHelper::restoreAppleDefaults()
{
    setPublishedMode(false);
    if (!m_setting.isAvailable())
        return;
    std::ignore = m_setting.writeByTool(false);
    writeThroughPreferences(false);
    m_console.printLine(
        QStringLiteral("[Tarvin] Successfully restored macOS keyboard to 100% Apple factory defaults."));
}

void FnKeyModeHelper::setPublishedMode(bool dedicated)
{
    if (m_isDedicatedKeyMode == dedicated)
        return;
    m_isDedicatedKeyMode = dedicated;
    Q_EMIT dedicatedKeyModeChanged();
}

void FnKeyModeHelper::writeThroughPreferences(bool dedicated)
{
    m_setting.setPreferenceValue(dedicated);
    m_setting.synchronizePreference();
    m_setting.announceChange();
}

} // namespace tarvin
