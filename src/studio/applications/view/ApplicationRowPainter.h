#pragma once

#include "ui/Fonts.h"
#include "ui/Palette.h"
#include "ui/Symbols.h"

#include <QMargins>
#include <QPixmap>
#include <QString>

#include <optional>

namespace tarvin {

/// How the rows of a list of applications look. Sizes in logical pixels.
struct ApplicationRowLook
{
    QMargins margins{20, 12, 20, 12}; ///< around all rows
    int height = 43;
    int spacing = 6; ///< between rows
    int inset = 10; ///< left and right in a row
    int iconSize = 28;
    double iconRadius = 6;
    int iconGap = 10; ///< between the icon and the texts
    double radius = 8;
    TextStyle name{.size = 13, .weight = TextWeight::semibold, .face = TextFace::rounded};
    Colour nameColour = palette::white;
    /// The identifier below the name; absent where the name stands alone.
    std::optional<TextStyle> detail = TextStyle{.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded};
    Colour detailColour = palette::white.at(0.45);
    Colour fill = palette::white.at(0.03);
    Colour markedFill = palette::white.at(0.07); ///< under the pointer or proposed
    Colour chosenFill = palette::white.at(0.03);
    /// At the right of each row.
    std::optional<Symbol> sign{};
    /// At the right of the row of the chosen application.
    std::optional<Symbol> chosenSign{};
    double signSize = 14;
    Colour signColour = palette::mintTeal.at(0.75);
    Colour markedSignColour = palette::mintTeal;
};

/// What a row shows at this moment.
struct ApplicationRowState
{
    QString name;
    QString detail;
    QPixmap icon; ///< null: a placeholder
    bool isMarked = false;
    bool isChosen = false;
    bool hasFocus = false;
};

/// @param box of the row without margins and spacing
void paintApplicationRow(
    QPainter& painter, const QRectF& box, const ApplicationRowLook& look, const ApplicationRowState& row);

} // namespace tarvin
