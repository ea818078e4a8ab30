#include "studio/picker/view/RowBadges.h"

#include "studio/cards/CardHeader.h"
#include "ui/Palette.h"

namespace tarvin {

namespace {

constexpr TextStyle rowBadgeText{.size = 8, .weight = TextWeight::heavy, .face = TextFace::rounded};
constexpr TextStyle cardBadgeText{.size = 8.5, .weight = TextWeight::bold, .face = TextFace::rounded};

Pill pill(const QString& text, const TextStyle& style, const Colour& textColour, const Colour& fill)
{
    return {
        .text = text, .style = style, .textColour = textColour, .fill = fill, .insetX = 5, .insetY = 1.5, .radius = 4};
}

} // namespace

std::optional<Pill> badgeOf(const PickerRow& row, const ConfiguredAction& config)
{
    if (row.card) {
        const QString words = badge(*row.card, config);
        if (words.isEmpty())
            return std::nullopt;
        return pill(words, cardBadgeText, palette::mintTeal, palette::mintTeal.at(0.15));
    }
    const QString words = text(row.badge).toString();
    switch (row.badge) {
    case RowBadge::none:
        return std::nullopt;
    case RowBadge::newAction:
        return pill(words, rowBadgeText, palette::black, palette::green);
    case RowBadge::assistant:
        return pill(words, rowBadgeText, palette::black, palette::mintTeal);
    }
    return std::nullopt;
}

} // namespace tarvin
