#include "studio/cards/CardHeader.h"

#include "studio/cards/TextCards.h"

namespace tarvin {

QString badge(ParameterCard card, const ConfiguredAction& config)
{
    switch (card) {
    case ParameterCard::keyboardShortcut: {
        const qsizetype count = config.allShortcuts().size();
        return count == 0 ? QString() : QStringLiteral("%1 KEYS").arg(count);
    }
    case ParameterCard::actionChain:
        return QStringLiteral("%1 STEPS").arg(config.chainSteps.size());
    case ParameterCard::quickAppFlip:
        return QStringLiteral("INSTANT");
    case ParameterCard::screenCapture:
    case ParameterCard::openApplication:
    case ParameterCard::openWebURL:
    case ParameterCard::textSnippet:
    case ParameterCard::clipboardHistory:
    case ParameterCard::floatingScratchpad:
    case ParameterCard::forceQuit:
        return {};
    }
    return {};
}

void chooseCard(ParameterCard card, const KeyRecord& record)
{
    record.change([card](ConfiguredAction& config) {
        config.action = actionOf(card);
        if (const TextCard* const textCard = textCardOf(card); textCard != nullptr)
            fillIn(*textCard, config);
    });
}

} // namespace tarvin
