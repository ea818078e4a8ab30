#include "studio/StudioTexts.h"

#include "ui/Palette.h"

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::orange;
using palette::white;

StatusMessage groupMessage(QStringView name, int count, int available, bool isEnabled, const QString& tooltip)
{
    StatusMessage message;
    message.text = QStringLiteral("%1: %2/%3").arg(name).arg(count).arg(available);
    if (!isEnabled)
        message.text += QStringLiteral(" (Paused)");
    message.dotSize = 4.5;
    if (count == 0) {
        message.dot = white.at(0.25);
        message.textColour = white.at(0.55);
    } else {
        message.dot = message.textColour = isEnabled ? mintTeal.at(0.9) : orange.at(0.9);
    }
    message.tooltip = tooltip.arg(count).arg(available);
    return message;
}

/// True while the Dock shows the program always, so that there is no background to speak of.
bool isBackgroundOff(StartupDockMode mode)
{
    return mode == StartupDockMode::showInDock;
}

} // namespace

StatusMessage profileMessage(qsizetype mappingCount, QStringView profileName)
{
    return {.text = QStringLiteral("%1 customized for %2").arg(mappingCount).arg(profileName),
        .textColour = white.at(0.75),
        .dot = mappingCount > 0 ? mintTeal : white.at(0.3)};
}

StatusMessage functionKeysMessage(int customizedCount, bool isEnabled)
{
    return groupMessage(u"F1–F12", customizedCount, 12, isEnabled,
        QStringLiteral("Function keys (F1–F12) customization status: %1 customized of %2 available."));
}

StatusMessage otherKeysMessage(int customizedCount, bool isEnabled)
{
    return groupMessage(u"Other", customizedCount, 5, isEnabled,
        QStringLiteral(
            "Other customizable keys (Caps Lock, Globe/Fn, Right Option, Right Command): %1 customized of %2 "
            "available."));
}

StatusMessage engineMessage(bool isRunning)
{
    return {.text = isRunning ? QStringLiteral("Physical Interception Active")
                              : QStringLiteral("Waiting for Authorization"),
        .textColour = white.at(0.6),
        .dot = isRunning ? mintTeal : orange};
}

HookStatus hookStatus(bool isInterceptionEnabled, bool isEngineRunning)
{
    const bool isOn = isInterceptionEnabled;
    return {.label = isOn ? QStringLiteral("Custom Keys") : QStringLiteral("Apple Defaults"),
        .labelColour = isOn ? mintTeal : white.at(0.65),
        .dot = isOn && isEngineRunning ? mintTeal : white.at(0.5),
        .fill = isOn ? mintTeal.at(0.06) : white.at(0.03),
        .stroke = isOn ? mintTeal.at(0.35) : white.at(0.08),
        .tooltip = isOn ? QStringLiteral("Tarvin active: Custom keys trigger")
                        : QStringLiteral("Tarvin off: Apple factory defaults active")};
}

QString backgroundTooltip(StartupDockMode mode, BackgroundBehavior behavior)
{
    const QString name = isBackgroundOff(mode) ? QStringLiteral("Off (Standard Dock)") : title(behavior).toString();
    return QStringLiteral("Background Running Mode: %1 • Click to configure").arg(name);
}

QString backgroundFooterText(StartupDockMode mode, BackgroundBehavior behavior)
{
    const QString word = isBackgroundOff(mode) ? QStringLiteral("OFF") : tag(behavior).toString();
    return QStringLiteral("Background: %1 (Zero Power)").arg(word);
}

Symbol backgroundFooterSymbol(StartupDockMode mode)
{
    return isBackgroundOff(mode) ? Symbol(u"dock.rectangle") : Symbol(u"bolt.shield.fill");
}

Symbol backgroundButtonSymbol(StartupDockMode mode)
{
    return isBackgroundOff(mode) ? Symbol(u"dock.rectangle") : Symbol(u"menubar.rectangle");
}

QString backlightTooltip(QStringView percentText)
{
    return QStringLiteral("Keyboard Backlight: %1 (Click to cycle)").arg(percentText);
}

QString soundTooltip(bool isSoundEnabled)
{
    return isSoundEnabled ? QStringLiteral("Key Click Sound: Active (Click to Mute)")
                          : QStringLiteral("Key Click Sound: Muted (Click to Unmute)");
}

Symbol soundSymbol(bool isSoundEnabled)
{
    return isSoundEnabled ? Symbol(u"speaker.wave.2.fill") : Symbol(u"speaker.slash.fill");
}

QString resetTooltip(QStringView profileName)
{
    return QStringLiteral("Reset all function keys for %1 to Apple defaults").arg(profileName);
}

} // namespace tarvin
