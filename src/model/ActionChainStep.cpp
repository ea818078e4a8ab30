#include "model/ActionChainStep.h"

#include "model/OptionalText.h"
#include "model/TextLength.h"

#include <QStringBuilder>

namespace tarvin {

namespace {

QString shortcutLabel(const std::optional<CustomShortcut>& shortcut)
{
    const QString keys = shortcut ? shortcut->displayString() : QString();
    return keys.isEmpty() ? u"Shortcut"_qs : u"Shortcut: " % keys;
}

QString textLabel(const std::optional<QString>& text)
{
    if (!hasText(text))
        return u"Insert Text"_qs;
    return u"Text: \"" % cutText(*text, 16, 14) % u'"';
}

QString addressLabel(const std::optional<QString>& address)
{
    return hasText(address) ? u"URL: " % *address : u"Open URL"_qs;
}

} // namespace

QString ActionChainStep::displayLabel() const
{
    switch (type) {
    case ActionChainStepType::shortcut:
        return shortcutLabel(customShortcut);
    case ActionChainStepType::delay:
        return u"Wait " % QString::number(delayMs) % u"ms";
    case ActionChainStepType::textSnippet:
        return textLabel(textSnippet);
    case ActionChainStepType::openURL:
        return addressLabel(customURL);
    case ActionChainStepType::keyAction:
        return keyAction ? u"Action: " % title(*keyAction) : u"Action"_qs;
    }
    Q_UNREACHABLE();
}

} // namespace tarvin
