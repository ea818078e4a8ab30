#include "tools/clipboard/view/ClipRow.h"

#include "tools/panel/view/ToolPlate.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/TextLine.h"

#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

constexpr double sideInset = 10;
constexpr double topInset = 8;
constexpr double spacing = 10;
constexpr double radius = 8;

constexpr double badgeSide = 18;
constexpr double badgeRadius = 4;
constexpr double dotSide = 6;
constexpr double dotTop = 6;
constexpr TextStyle badgeText{.size = 10, .weight = TextWeight::bold, .face = TextFace::fixedWidth};

constexpr double textLeft = sideInset + badgeSide + spacing;
constexpr TextStyle previewText{.size = 11, .weight = TextWeight::medium, .face = TextFace::fixedWidth};
/// The face is taller than the rounded one.
constexpr double previewLine = 14.5;
constexpr double lineSpacing = 3;
constexpr TextStyle factText{.size = 9, .weight = TextWeight::regular, .face = TextFace::rounded};
constexpr double factSpacing = 8;

constexpr double pinSize = 11;
constexpr double deleteSize = 10;
/// The small buttons take clicks a little around their symbols.
constexpr double buttonRoom = 20;
constexpr double buttonTop = 6;
constexpr double deleteMiddle = ClipRow::rowWidth - sideInset - deleteSize * symbolBoxPerSize / 2;
constexpr double pinMiddle =
    ClipRow::rowWidth - sideInset - deleteSize * symbolBoxPerSize - spacing - pinSize * symbolBoxPerSize / 2;
constexpr double textRight = pinMiddle - pinSize * symbolBoxPerSize / 2 - spacing;

void place(QWidget& button, double middle)
{
    button.setGeometry(static_cast<int>(std::lround(middle - buttonRoom / 2)), static_cast<int>(buttonTop),
        static_cast<int>(buttonRoom), static_cast<int>(buttonRoom));
}

} // namespace

QStringList clipPreviewLines(const QString& preview)
{
    constexpr double width = textRight - textLeft;
    if (textWidth(preview, previewText) <= width)
        return {preview};
    const double advance = textWidth(u"x"_qs, previewText);
    const auto most = static_cast<qsizetype>(width / advance);
    qsizetype end = preview.lastIndexOf(u' ', most);
    if (end <= 0)
        end = most;
    return {preview.first(end), elidedText(preview.sliced(end).trimmed(), previewText, width)};
}

ClipRow::ClipRow(QWidget* parent)
    : PaintedButton(parent)
    , m_pin(new OutlinedButton({}, this))
    , m_delete(new OutlinedButton(plainSymbolLook(deleteSize, palette::white.at(0.3), buttonRoom), this))
{
    place(*m_pin, pinMiddle);
    place(*m_delete, deleteMiddle);
    m_delete->setSymbol(Symbol(u"trash"));
    m_delete->setTip(tr("Delete"));
    connect(m_pin, &QAbstractButton::clicked, this, &ClipRow::pinClicked);
    connect(m_delete, &QAbstractButton::clicked, this, &ClipRow::deleteClicked);
}

void ClipRow::show(const ClipboardItem& item, const ClipText& text, qsizetype index)
{
    m_lines = clipPreviewLines(text.preview);
    m_length = text.length;
    m_time = text.time;
    m_badge = clipBadge(index);
    m_isPinned = item.isPinned;
    m_pin->setLook(plainSymbolLook(pinSize, m_isPinned ? palette::mintTeal : palette::white.at(0.3), buttonRoom));
    m_pin->setSymbol(m_isPinned ? Symbol(u"pin.fill") : Symbol(u"pin"));
    m_pin->setTip(m_isPinned ? tr("Unpin") : tr("Pin"));
    setAccessibleName(text.preview);
    setAccessibleDescription(m_length + u", "_qs + m_time);
    resize(sizeHint());
    update();
}

QSize ClipRow::sizeHint() const
{
    const double previewHeight = previewLine * static_cast<double>(std::max<qsizetype>(m_lines.size(), 1));
    const double height = 2 * topInset + previewHeight + lineSpacing + lineHeight(factText);
    return {rowWidth, static_cast<int>(std::lround(height))};
}

void ClipRow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), radius, palette::white.at(0.04 + 0.03 * hover()));
    strokePlate(painter, rect(), radius, 1, m_isPinned ? palette::mintTeal.at(0.3) : palette::white.at(0.04));
    drawFocusRing(painter, rect(), radius);

    if (m_badge.isEmpty()) {
        fillPlate(painter, QRectF(sideInset + (badgeSide - dotSide) / 2, topInset + dotTop, dotSide, dotSide),
            dotSide / 2, palette::white.at(0.15));
    } else {
        const QRectF badge(sideInset, topInset, badgeSide, badgeSide);
        fillPlate(painter, badge, badgeRadius, palette::mintTeal.at(0.15));
        drawText(painter, badge, Qt::AlignCenter, m_badge, badgeText, palette::mintTeal);
    }

    double top = topInset;
    for (const QString& line : m_lines) {
        drawText(painter, QRectF(textLeft, top, textRight - textLeft, previewLine), Qt::AlignLeft, line, previewText,
            palette::white.at(0.9));
        top += previewLine;
    }
    top += lineSpacing;
    double left = textLeft;
    const auto drawFact = [&](const QString& text, double opacity) {
        const double width = textWidth(text, factText);
        drawText(painter, QRectF(left, top, width, lineHeight(factText)), Qt::AlignLeft, text, factText,
            palette::white.at(opacity));
        left += width + factSpacing;
    };
    drawFact(m_length, 0.4);
    drawFact(u"•"_qs, 0.2);
    drawFact(m_time, 0.4);
}

} // namespace tarvin
