#pragma once

#include "studio/cards/KeyRecord.h"

#include <QList>
#include <QString>

#include <array>
#include <cstdint>

namespace tarvin {

class UuidGenerator;

/// The steps that the card can add.
enum class NewChainStep : std::uint8_t { shortcut, delay, text };

struct NewChainStepRow
{
    NewChainStep step;
    QStringView buttonText;
};

inline constexpr auto newChainStepRows = std::to_array<NewChainStepRow>({
    {NewChainStep::shortcut, u"+ Shortcut"},
    {NewChainStep::delay, u"+ 200ms Delay"},
    {NewChainStep::text, u"+ Text"},
});

/// One row of the list of steps.
struct ChainStepRow
{
    QString number; ///< counted from one
    QStringView symbol;
    QString label;
    friend bool operator==(const ChainStepRow&, const ChainStepRow&) = default;
};

[[nodiscard]] QList<ChainStepRow> chainStepRows(const ConfiguredAction& config);
/// Nothing for a place outside the list.
void removeChainStep(const KeyRecord& record, qsizetype index);
void appendChainStep(const KeyRecord& record, NewChainStep step, UuidGenerator& uuids);

} // namespace tarvin
