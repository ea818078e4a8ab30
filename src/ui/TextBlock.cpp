#include "ui/TextBlock.h"

#include "ui/TextLine.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace tarvin {

namespace {

constexpr double lineSpacing = 1;

double blockHeight(qsizetype lines, const TextStyle& style)
{
    return static_cast<double>(lines) * (lineHeight(style) + lineSpacing) - lineSpacing;
}

} // namespace

QStringList wrappedLines(const QString& text, const TextStyle& style, double width)
{
    QStringList lines;
    for (const QString& paragraph : text.split(u'\n')) {
        QString line;
        for (const QString& word : paragraph.split(u' ')) {
            QString longer = line.isEmpty() ? word : line + u' ' + word;
            if (!line.isEmpty() && textWidth(longer, style) > width) {
                lines += std::exchange(line, word);
                continue;
            }
            line = std::move(longer);
        }
        lines += line;
    }
    return lines;
}

TextBlock::TextBlock(const QString& text, const TextStyle& style, const Colour& colour, QWidget* parent)
    : QLabel(text, parent)
    , m_style(style)
    , m_colour(colour)
{
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    // Able to grow, because what it wants is worked out for one line.
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void TextBlock::setColour(const Colour& colour)
{
    m_colour = colour;
    update();
}

int TextBlock::heightForWidth(int width) const
{
    return static_cast<int>(std::ceil(blockHeight(wrappedLines(text(), m_style, width).size(), m_style)));
}

QSize TextBlock::sizeHint() const
{
    const int width = static_cast<int>(std::ceil(textWidth(text(), m_style)));
    return {width, heightForWidth(width)};
}

QSize TextBlock::minimumSizeHint() const
{
    return {0, static_cast<int>(std::ceil(lineHeight(m_style)))};
}

void TextBlock::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QStringList lines = wrappedLines(text(), m_style, width());
    double top = (height() - blockHeight(lines.size(), m_style)) / 2;
    for (const QString& line : lines) {
        drawText(painter, QRectF(0, top, width(), lineHeight(m_style)), alignment() & Qt::AlignHorizontal_Mask, line,
            m_style, m_colour);
        top += lineHeight(m_style) + lineSpacing;
    }
}

} // namespace tarvin
