#include "studio/recorder/view/PresetStrip.h"

#include "ui/OutlinedButton.h"

#include <QHBoxLayout>
#include <QScrollBar>
#include <QWheelEvent>

#include <cstdlib>

namespace tarvin {

namespace {

using palette::white;

constexpr int pillHeight = 20;
constexpr int barRoom = 10; // for the scroll bar
constexpr ButtonLook pillLook{.height = pillHeight,
    .radius = 6,
    .inset = 7,
    .symbolSize = 10,
    .spacing = 0,
    .text = {.size = 9.5, .weight = TextWeight::medium, .face = TextFace::rounded},
    .symbolColour = white.at(0.8),
    .textColour = white.at(0.8),
    .fill = white.at(0.06),
    .hoveredFill = white.at(0.12),
    .stroke = white.at(0.1)};

} // namespace

PresetStrip::PresetStrip(QWidget* parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setAutoFillBackground(false);
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    for (const ShortcutPreset& preset : shortcutPresets) {
        auto* const pill = new OutlinedButton(pillLook);
        const QString title = preset.title.toString();
        pill->setText(title);
        pill->setAccessibleName(title); // a text alone would be read without its ampersand
        pill->installEventFilter(this);
        connect(pill, &QAbstractButton::clicked, this, [this, &preset] { Q_EMIT presetChosen(preset); });
        layout->addWidget(pill);
    }
    setWidget(row);
    row->setAutoFillBackground(false);
}

QSize PresetStrip::sizeHint() const
{
    return {200, pillHeight + barRoom};
}

bool PresetStrip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        ensureWidgetVisible(qobject_cast<QWidget*>(watched), 0, 0);
    return QScrollArea::eventFilter(watched, event);
}

void PresetStrip::wheelEvent(QWheelEvent* event)
{
    // Up and down is for what the strip stands in.
    const QPoint angle = event->angleDelta();
    if (std::abs(angle.x()) > std::abs(angle.y()))
        QScrollArea::wheelEvent(event);
    else
        event->ignore();
}

} // namespace tarvin
