#include "studio/recorder/view/PlaybackModeSelector.h"

#include "studio/recorder/RecorderTexts.h"
#include "ui/PaintedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Symbols.h"
#include "ui/TextBlock.h"
#include "ui/TextLabel.h"
#include "ui/TextLine.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr int inset = 8;
constexpr double radius = 7;
constexpr double buttonRadius = 6;
constexpr double buttonInsetX = 10;
constexpr double buttonInsetY = 5;
constexpr double symbolSize = 10;
constexpr double symbolSpacing = 5;
constexpr Motion choiceMotion = Motion::spring(0.25, 0.8);
constexpr TextStyle headingText{.size = 9, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle buttonText{.size = 11, .weight = TextWeight::semibold, .face = TextFace::rounded};
constexpr TextStyle explanationText{.size = 9.5, .weight = TextWeight::regular, .face = TextFace::rounded};

} // namespace

/// One of the two. Its colours go over when the other one is chosen.
class PlaybackModeSelector::ModeButton : public PaintedButton
{
public:
    explicit ModeButton(MultiKeyPlaybackMode mode)
        : m_symbol(Symbol::namedOrPlaceholder(tarvin::icon(mode)))
        , m_chosen(0, [this] { update(); })
    {
        setText(tarvin::title(mode).toString());
        setCheckable(true);
        setAutoExclusive(true);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(this, &QAbstractButton::toggled, this, [this](bool isChosen) {
            if (isVisible())
                m_chosen.animateTo(isChosen ? 1 : 0, choiceMotion);
            else
                m_chosen.jumpTo(isChosen ? 1 : 0);
        });
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return {static_cast<int>(std::ceil(2 * buttonInsetX + contentWidth())),
            static_cast<int>(std::ceil(2 * buttonInsetY + lineHeight(buttonText)))};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QRectF box = rect();
        const double chosen = m_chosen.value();
        fillPlate(painter, box, buttonRadius, mixed(white.at(0.06 + 0.04 * hover()), mintTeal, chosen));
        strokePlate(painter, box, buttonRadius, 1, mixed(white.at(0.1), mintTeal, chosen));
        const Colour colour = mixed(white.at(0.8), palette::black, chosen);
        double left = box.center().x() - contentWidth() / 2;
        const double symbolBox = symbolSize * symbolBoxPerSize;
        drawSymbol(painter, m_symbol, {left + symbolBox / 2, box.center().y()}, symbolSize, colour.toQColor());
        left += symbolBox + symbolSpacing;
        drawText(painter, box.adjusted(left, 0, 0, 0), Qt::AlignLeft, text(), buttonText, colour);
        drawFocusRing(painter, box, buttonRadius);
    }

private:
    [[nodiscard]] double contentWidth() const
    {
        return symbolSize * symbolBoxPerSize + symbolSpacing + textWidth(text(), buttonText);
    }

    Symbol m_symbol;
    AnimatedValue m_chosen;
};

PlaybackModeSelector::PlaybackModeSelector(QWidget* parent)
    : QWidget(parent)
    , m_heading(new TextLabel({}, headingText, white.at(0.45)))
    , m_explanation(new TextBlock({}, explanationText, white.at(0.45)))
{
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(6);
    for (const MultiKeyPlaybackMode mode : allMultiKeyPlaybackModes) {
        auto* const button = new ModeButton(mode);
        // Not the click: assistive technology chooses without one.
        connect(button, &QAbstractButton::toggled, this, [this, mode](bool isChosen) {
            if (isChosen && mode != m_shown)
                Q_EMIT modeChosen(mode);
        });
        buttons->addWidget(button);
        m_buttons[static_cast<std::size_t>(mode)] = button;
    }
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(inset, inset, inset, inset);
    column->setSpacing(6);
    column->addWidget(m_heading);
    column->addLayout(buttons);
    column->addWidget(m_explanation);
}

void PlaybackModeSelector::show(MultiKeyPlaybackMode mode, qsizetype keyCount)
{
    m_heading->setText(recorder_texts::playbackHeading(keyCount));
    m_explanation->setText(recorder_texts::playbackExplanation(mode, keyCount));
    m_shown = mode;
    m_buttons[static_cast<std::size_t>(mode)]->setChecked(true);
    QWidget::show();
}

void PlaybackModeSelector::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), radius, white.at(0.04));
}

} // namespace tarvin
