#include "studio/cards/ChoiceGroups.h"

#include <cstddef>

namespace tarvin {

namespace {

/// One row for each enumerator, under its stored name.
template <typename Enumeration, std::size_t count>
ChoiceGroup group(QStringView heading, const std::array<Enumeration, count>& choices,
    Enumeration ConfiguredAction::*field, KeyAction action, const KeyRecord& record)
{
    ChoiceGroup made{.heading = heading.toString(),
        .rows = {},
        .selected = static_cast<qsizetype>(record.config().*field),
        .choose = [&record, choices, field, action](qsizetype row) {
            if (row < 0 || row >= static_cast<qsizetype>(count))
                return;
            record.change([&](ConfiguredAction& config) {
                config.*field = choices[static_cast<std::size_t>(row)];
                config.action = action;
            });
        }};
    for (const Enumeration choice : choices)
        made.rows += rawValue(choice).toString();
    return made;
}

} // namespace

QList<ChoiceGroup> choiceGroups(ParameterCard card, const KeyRecord& record)
{
    switch (card) {
    case ParameterCard::screenCapture:
        return {group(u"CAPTURE", allScreenCaptureModes, &ConfiguredAction::screenCaptureMode, KeyAction::screenCapture,
                    record),
            group(u"SAVE TO", allScreenCaptureDestinations, &ConfiguredAction::screenCaptureDestination,
                KeyAction::screenCapture, record)};
    case ParameterCard::forceQuit:
        return {group(u"BEHAVIOR", allForceQuitModes, &ConfiguredAction::forceQuitMode, KeyAction::forceQuit, record)};
    case ParameterCard::openApplication:
    case ParameterCard::openWebURL:
    case ParameterCard::keyboardShortcut:
    case ParameterCard::textSnippet:
    case ParameterCard::clipboardHistory:
    case ParameterCard::quickAppFlip:
    case ParameterCard::actionChain:
    case ParameterCard::floatingScratchpad:
        return {};
    }
    return {};
}

} // namespace tarvin
