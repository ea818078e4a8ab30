#include "studio/cards/ActionChainCard.h"

#include "platform/ports/UuidGenerator.h"
#include "studio/recorder/ShortcutPresets.h"

namespace tarvin {

namespace {

constexpr std::int64_t newDelayMs = 200;

ActionChainStep made(NewChainStep step, UuidGenerator& uuids)
{
    ActionChainStep added{.id = uuids.next(), .delayMs = newDelayMs};
    switch (step) {
    case NewChainStep::shortcut: {
        constexpr std::uint16_t keyCodeOfC = 8;
        added.type = ActionChainStepType::shortcut;
        added.customShortcut = makeShortcut(EventFlags::command, keyCodeOfC, QStringLiteral("C"), uuids);
        return added;
    }
    case NewChainStep::delay:
        added.type = ActionChainStepType::delay;
        return added;
    case NewChainStep::text:
        added.type = ActionChainStepType::textSnippet;
        added.textSnippet = QStringLiteral("console.log()");
        return added;
    }
    return added;
}

} // namespace

QList<ChainStepRow> chainStepRows(const ConfiguredAction& config)
{
    QList<ChainStepRow> rows;
    for (const ActionChainStep& step : config.chainSteps)
        rows.append({QString::number(rows.size() + 1), icon(step.type), step.displayLabel()});
    return rows;
}

void removeChainStep(const KeyRecord& record, qsizetype index)
{
    if (index < 0 || index >= record.config().chainSteps.size())
        return;
    record.change([index](ConfiguredAction& config) { config.chainSteps.removeAt(index); });
}

void appendChainStep(const KeyRecord& record, NewChainStep step, UuidGenerator& uuids)
{
    record.change([&](ConfiguredAction& config) { config.chainSteps.append(made(step, uuids)); });
}

} // namespace tarvin
