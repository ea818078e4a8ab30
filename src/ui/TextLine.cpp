#include "ui/TextLine.h"

#include "ui/Symbols.h"

#include <QFontMetricsF>
#include <QPainter>

#include <array>
#include <optional>
#include <vector>

namespace tarvin {

namespace {

/// Where the baseline stands below the middle of a line's box, as a part of the size: with it capitals and small
/// letters together look centred.
constexpr double baselineBelowMiddle = 0.345;
constexpr double lineHeightPerSize = 1.2;
/// The size of a sign drawn as a symbol, as a part of the text's, and the room on either side of it.
constexpr double signSize = 0.8;
constexpr double signSpace = 0.06;

struct Sign
{
    QStringView text;
    Symbol symbol;
};
constexpr auto signs = std::to_array<Sign>({
    {u"⌘", Symbol(u"command")},
    {u"⌥", Symbol(u"option")},
    {u"⇧", Symbol(u"shift")},
    {u"⌃", Symbol(u"control")},
    {u"⇪", Symbol(u"capslock.fill")},
    {u"🌐", Symbol(u"globe")},
    {u"➔", Symbol(u"arrow.right")},
});

/// The sign that the text begins with; null for any other.
const Sign* signAtFront(QStringView text)
{
    for (const Sign& sign : signs) {
        if (text.startsWith(sign.text))
            return &sign;
    }
    return nullptr;
}

struct Piece
{
    QString text;
    std::optional<Symbol> symbol; ///< drawn instead of the text
    double width = 0;
};

double scaleOf(const TextStyle& style)
{
    return style.size / referenceFontSize;
}

std::vector<Piece> piecesOf(const QString& text, const TextStyle& style)
{
    const QFontMetricsF metrics(referenceFont(style));
    std::vector<Piece> pieces;
    QString run;
    const auto endRun = [&] {
        if (!run.isEmpty())
            pieces.push_back(
                {.text = run, .symbol = std::nullopt, .width = metrics.horizontalAdvance(run) * scaleOf(style)});
        run.clear();
    };
    qsizetype place = 0;
    while (place < text.size()) {
        const Sign* const sign =
            style.face == TextFace::rounded ? signAtFront(QStringView(text).sliced(place)) : nullptr;
        if (!sign) {
            run += text[place];
            ++place;
            continue;
        }
        endRun();
        pieces.push_back(
            {.text = {}, .symbol = sign->symbol, .width = style.size * (signSize * symbolBoxPerSize + 2 * signSpace)});
        place += sign->text.size();
    }
    endRun();
    return pieces;
}

double widthOf(const std::vector<Piece>& pieces)
{
    double width = 0;
    for (const Piece& piece : pieces)
        width += piece.width;
    return width;
}

} // namespace

double textWidth(const QString& text, const TextStyle& style)
{
    return widthOf(piecesOf(text, style));
}

double lineHeight(const TextStyle& style)
{
    return style.size * lineHeightPerSize;
}

QString elidedText(const QString& text, const TextStyle& style, double width)
{
    if (textWidth(text, style) <= width)
        return text;
    // By halves, because what users paste may be long.
    const auto candidate = [&text](qsizetype length) { return text.first(length).trimmed() + QChar(u'…'); };
    qsizetype fitting = 0;
    qsizetype tooLong = text.size();
    while (tooLong - fitting > 1) {
        const qsizetype middle = (fitting + tooLong) / 2;
        (textWidth(candidate(middle), style) <= width ? fitting : tooLong) = middle;
    }
    return fitting > 0 ? candidate(fitting) : QString();
}

void drawText(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& text,
    const TextStyle& style, const QColor& colour)
{
    const std::vector<Piece> pieces = piecesOf(text, style);
    double x = box.left();
    if (alignment & Qt::AlignRight)
        x = box.right() - widthOf(pieces);
    else if (alignment & Qt::AlignHCenter)
        x = box.center().x() - widthOf(pieces) / 2;
    double middle = box.center().y();
    if (alignment & Qt::AlignTop)
        middle = box.top() + lineHeight(style) / 2;
    else if (alignment & Qt::AlignBottom)
        middle = box.bottom() - lineHeight(style) / 2;

    painter.save();
    painter.setFont(referenceFont(style));
    painter.setPen(colour);
    painter.translate(x, middle);
    painter.scale(scaleOf(style), scaleOf(style));
    double along = 0;
    for (const Piece& piece : pieces) {
        const double width = piece.width / scaleOf(style);
        if (piece.symbol)
            drawSymbol(painter, *piece.symbol, {along + width / 2, 0}, referenceFontSize * signSize, colour);
        else
            painter.drawText(QPointF(along, referenceFontSize * baselineBelowMiddle), piece.text);
        along += width;
    }
    painter.restore();
}

} // namespace tarvin
