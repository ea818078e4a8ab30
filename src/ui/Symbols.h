#pragma once

#include "ui/SymbolTable.h"

#include <QPainterPath>
#include <QPointF>

#include <optional>
#include <stdexcept>

class QBrush;
class QPainter;

namespace tarvin {

/// A symbol of size n fills a box of this times n.
inline constexpr double symbolBoxPerSize = 1.2;

/// A symbol that can be drawn. Made from a text in the code it is looked up by the compiler, which refuses a name that
/// has no glyph.
class Symbol
{
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a name in the code is the symbol
    consteval Symbol(QStringView name)
        : m_row(symbolRowOf(name))
    {
        if (m_row == symbolRows.size())
            throw std::invalid_argument("no glyph for this name");
    }

    /// The symbol of a name that is known only at run time.
    [[nodiscard]] static std::optional<Symbol> named(QStringView name)
    {
        const std::size_t row = symbolRowOf(name);
        return row == symbolRows.size() ? std::nullopt : std::optional(Symbol(Row{row}));
    }
    /// The same; a name from outside that nobody knows gives the sign of any application.
    [[nodiscard]] static Symbol namedOrPlaceholder(QStringView name)
    {
        return named(name).value_or(Symbol(u"app.fill"));
    }

    [[nodiscard]] constexpr std::size_t row() const { return m_row; }
    bool operator==(const Symbol&) const = default;

private:
    struct Row
    {
        std::size_t number;
    };
    constexpr explicit Symbol(Row row)
        : m_row(row.number)
    { }

    std::size_t m_row;
};

/// The outline in a box of 256 by 256, made at the first call. Main thread only.
[[nodiscard]] const QPainterPath& symbolPath(Symbol symbol);

/// Draws the symbol around a point. Main thread only.
/// @param size as of a text beside it
void drawSymbol(QPainter& painter, Symbol symbol, const QPointF& centre, double size, const QBrush& brush);
void drawSymbol(QPainter& painter, Symbol symbol, const QPointF& centre, double size, const QColor& colour);

/// The blurred image of the symbol, to lie under it. Made once for each size and scale, and kept. Main thread only.
/// @param sigma of the Gaussian
void drawSymbolShadow(
    QPainter& painter, Symbol symbol, const QPointF& centre, double size, double sigma, const QColor& colour);

} // namespace tarvin
