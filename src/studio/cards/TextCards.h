#pragma once

#include "model/DefaultTexts.h"
#include "studio/cards/KeyRecord.h"
#include "studio/cards/ParameterCard.h"

#include <QString>

#include <array>
#include <optional>

namespace tarvin {

/// A card whose body is one text field.
struct TextCard
{
    ParameterCard card;
    QStringView symbol; ///< in front of the field
    QStringView prompt;
    QStringView fieldName; ///< of the field, for assistive technology
    /// What the field holds until the user writes something.
    QStringView defaultText;
    std::optional<QString> ConfiguredAction::*field; ///< where the record keeps the text
};

inline constexpr auto textCards = std::to_array<TextCard>({
    {ParameterCard::openWebURL, u"globe", u"https://...", u"Website address", defaultWebAddress,
        &ConfiguredAction::customURL},
    {ParameterCard::textSnippet, u"character.cursor.ibeam", u"Enter text or signature...", u"Text to insert",
        defaultSnippet, &ConfiguredAction::textSnippet},
});

/// Null for a card without a text field.
[[nodiscard]] constexpr const TextCard* textCardOf(ParameterCard card) noexcept
{
    for (const TextCard& each : textCards) {
        if (each.card == card)
            return &each;
    }
    return nullptr;
}

/// What the field shows.
[[nodiscard]] inline QString fieldText(const TextCard& card, const ConfiguredAction& config)
{
    return (config.*card.field).value_or(card.defaultText.toString());
}

/// Stores what the field holds, at each change of it; the field may be emptied.
inline void setFieldText(const TextCard& card, const KeyRecord& record, const QString& text)
{
    record.change([&](ConfiguredAction& config) { config.*card.field = text; });
}

/// Gives the record the default text if it has none.
inline void fillIn(const TextCard& card, ConfiguredAction& config)
{
    if ((config.*card.field).value_or(QString()).isEmpty())
        config.*card.field = card.defaultText.toString();
}

} // namespace tarvin
