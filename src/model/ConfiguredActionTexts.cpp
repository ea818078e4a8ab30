#include "model/ConfiguredAction.h"
#include "model/OptionalText.h"
#include "model/TextLength.h"

#include <QStringBuilder>

namespace tarvin {

namespace {

QString quoted(const QString& text)
{
    return u'"' % text % u'"';
}

QString joinedDisplayStrings(const QList<CustomShortcut>& shortcuts)
{
    QStringList texts;
    for (const CustomShortcut& shortcut : shortcuts)
        texts << shortcut.displayString();
    return texts.join(u" + ");
}

/// What stands before the first slash once the scheme is taken away.
QString hostOf(QString address)
{
    address.remove(u"https://"_qs).remove(u"http://"_qs);
    return address.section(u'/', 0, 0);
}

QString captureTitle(const ConfiguredAction& record)
{
    return u"Screen capture (" % rawValue(record.screenCaptureMode) % u" → " % rawValue(record.screenCaptureDestination)
        % u')';
}

QString shortcutTitle(const ConfiguredAction& record)
{
    const QList<CustomShortcut> shortcuts = record.allShortcuts();
    if (shortcuts.isEmpty())
        return u"Keyboard shortcut"_qs;
    if (shortcuts.size() == 1)
        return u"Shortcut (" % shortcuts.first().displayString() % u')';
    return u"Shortcut [" % QString::number(shortcuts.size()) % u" keys (" % shortLabel(record.multiKeyMode) % u"): "
        % joinedDisplayStrings(shortcuts) % u']';
}

QStringList shortcutLines(const ConfiguredAction& record)
{
    const QList<CustomShortcut> shortcuts = record.allShortcuts();
    if (shortcuts.isEmpty())
        return {u"Shortcut"_qs, u"Press to record"_qs};
    if (shortcuts.size() == 1)
        return {u"Shortcut"_qs, shortcuts.first().displayString()};
    return {QString::number(shortcuts.size()) % u" Keys (" % shortLabel(record.multiKeyMode) % u')',
        cutText(joinedDisplayStrings(shortcuts), 16, 14)};
}

} // namespace

QString ConfiguredAction::displayTitle() const
{
    // Few actions have more to say than their title, so the others share the default.
    switch (action) {
    case KeyAction::screenCapture:
        return captureTitle(*this);
    case KeyAction::keyboardShortcut:
        return shortcutTitle(*this);
    case KeyAction::openApplication:
        return hasText(customAppName) ? u"Open Application (" % *customAppName % u')' : u"Open Application"_qs;
    case KeyAction::openWebURL:
        return hasText(customURL) ? u"Open URL (" % *customURL % u')' : u"Open Website URL"_qs;
    case KeyAction::textSnippet:
        return hasText(textSnippet) ? u"Text Snippet (" % quoted(cutText(*textSnippet, 14, 12)) % u')'
                                    : u"Insert Text Snippet"_qs;
    case KeyAction::clipboardHistory:
        return u"Clipboard History"_qs;
    case KeyAction::quickAppFlip:
        return hasText(quickFlipCompanionAppName) ? u"Quick-Flip (" % *quickFlipCompanionAppName % u')'
                                                  : u"Quick-Flip Apps"_qs;
    case KeyAction::actionChain:
        return u"Action Chain (" % QString::number(chainSteps.size()) % u" Steps)";
    case KeyAction::floatingScratchpad:
        return u"Quick Scratchpad"_qs;
    case KeyAction::forceQuit:
        return forceQuitMode == ForceQuitMode::systemDialog ? u"Force Quit (System Dialog ⌥⌘⎋)"_qs
                                                            : u"Force Quit (Frontmost App)"_qs;
    default:
        return title(action).toString();
    }
}

QStringList ConfiguredAction::summaryLines() const
{
    switch (action) {
    case KeyAction::screenCapture:
        return {u"Screen capture"_qs, u"Capture"_qs, rawValue(screenCaptureMode) % u" to",
            rawValue(screenCaptureDestination).toString()};
    case KeyAction::toggleMicMute:
        return {u"Microphone"_qs, u"Mute Toggle"_qs};
    case KeyAction::showActionsRing:
        return {u"Actions Ring"_qs, u"Quick Menu"_qs};
    case KeyAction::keyboardShortcut:
        return shortcutLines(*this);
    case KeyAction::openApplication:
        return {u"Open App"_qs, hasText(customAppName) ? *customAppName : u"Select App"_qs};
    case KeyAction::openWebURL:
        return {u"Open Website"_qs, hasText(customURL) ? hostOf(*customURL) : u"Enter URL"_qs};
    case KeyAction::aiAssistant:
        return {u"AI Assistant"_qs, u"Prompt Selection"_qs};
    case KeyAction::textSnippet:
        return {u"Insert Text"_qs, hasText(textSnippet) ? quoted(cutText(*textSnippet, 12, 10)) : u"Custom text"_qs};
    case KeyAction::clipboardHistory:
        return {u"Clipboard"_qs, u"History HUD"_qs};
    case KeyAction::quickAppFlip:
        return {u"Quick-Flip"_qs, quickFlipCompanionAppName.value_or(u"Recent Apps"_qs)};
    case KeyAction::actionChain:
        return {u"Action Chain"_qs, QString::number(chainSteps.size()) % u" Steps"};
    case KeyAction::floatingScratchpad:
        return {u"Scratchpad"_qs, u"Floating HUD"_qs};
    case KeyAction::snapWindowLeft:
        return {u"Snap Window"_qs, u"Left Half"_qs};
    case KeyAction::snapWindowRight:
        return {u"Snap Window"_qs, u"Right Half"_qs};
    case KeyAction::snapWindowMaximize:
        return {u"Snap Window"_qs, u"Maximize (Not Full Screen)"_qs};
    case KeyAction::forceQuit:
        return {u"Force Quit"_qs,
            forceQuitMode == ForceQuitMode::systemDialog ? u"System Dialog (⌥⌘⎋)"_qs : u"Frontmost App"_qs};
    case KeyAction::restart:
        return {u"Restart Mac"_qs, u"Reboot System"_qs};
    case KeyAction::shutDown:
        return {u"Shut Down"_qs, u"Power Off Mac"_qs};
    case KeyAction::sleepDevice:
        return {u"Sleep Mac"_qs, u"System Standby"_qs};
    case KeyAction::sleepDisplay:
        return {u"Sleep Display"_qs, u"Screen Off"_qs};
    case KeyAction::toggleFullscreen:
        return {u"Full Screen"_qs, u"Toggle Space"_qs};
    default:
        return {title(action).toString()};
    }
}

} // namespace tarvin
