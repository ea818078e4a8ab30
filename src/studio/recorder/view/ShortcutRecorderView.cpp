#include "studio/recorder/view/ShortcutRecorderView.h"

#include "studio/recorder/RecorderTexts.h"
#include "studio/recorder/view/KeyRow.h"
#include "studio/recorder/view/PlaybackModeSelector.h"
#include "studio/recorder/view/PresetStrip.h"
#include "studio/recorder/view/RecordingBanner.h"
#include "ui/ConfirmButton.h"
#include "ui/FlowLayout.h"
#include "ui/OutlinedButton.h"
#include "ui/SpringColumn.h"
#include "ui/TextBlock.h"
#include "ui/TextLabel.h"

#include <QAccessible>
#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::red;
using palette::white;

constexpr int inset = 4;
constexpr int spacing = 10;
constexpr int actionSpacing = 6;
constexpr Motion changeMotion = Motion::spring(0.25, 0.8);
constexpr Motion feedbackMotion = Motion::easeInOut(std::chrono::milliseconds(350));
constexpr Colour clear = white.at(0);

constexpr ButtonLook addLook{.height = 25,
    .radius = 6,
    .inset = 10,
    .symbolSize = 11,
    .spacing = 5,
    .text = {.size = 11, .weight = TextWeight::semibold, .face = TextFace::rounded},
    .symbolColour = mintTeal,
    .textColour = mintTeal,
    .fill = mintTeal.at(0.12),
    .hoveredFill = mintTeal.at(0.2),
    .stroke = mintTeal.at(0.4)};

constexpr ButtonLook sequenceLook{.height = 25,
    .radius = 6,
    .inset = 8,
    .symbolSize = 10,
    .spacing = 5,
    .text = {.size = 10.5, .weight = TextWeight::medium, .face = TextFace::rounded},
    .symbolColour = white.at(0.75),
    .textColour = white.at(0.75),
    .fill = white.at(0.06),
    .hoveredFill = white.at(0.12),
    .stroke = clear};

constexpr ButtonLook clearLook{.height = 25,
    .radius = 6,
    .inset = 6,
    .symbolSize = 10,
    .spacing = 0,
    .text = {.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded},
    .symbolColour = clear,
    .textColour = red.at(0.5),
    .fill = clear,
    .hoveredFill = red.at(0.12),
    .stroke = clear};

constexpr ButtonLook testLook{.height = 22,
    .radius = 6,
    .inset = 10,
    .symbolSize = 10,
    .spacing = 5,
    .text = {.size = 10, .weight = TextWeight::semibold, .face = TextFace::rounded},
    .symbolColour = mintTeal,
    .textColour = mintTeal,
    .fill = mintTeal.at(0.12),
    .hoveredFill = mintTeal.at(0.2),
    .stroke = mintTeal.at(0.35)};

constexpr TextStyle presetsHeadingText{.size = 8.5, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle refusalText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr TextStyle hintText{.size = 9.5, .weight = TextWeight::regular, .face = TextFace::rounded};

} // namespace

ShortcutRecorderView::ShortcutRecorderView(ShortcutRecorder& recorder, QWidget* parent)
    : QWidget(parent)
    , m_recorder(&recorder)
    , m_column(new SpringColumn(spacing, changeMotion, this))
    , m_mode(new PlaybackModeSelector)
    , m_banner(new RecordingBanner)
    , m_add(new OutlinedButton(addLook))
    , m_sequence(new OutlinedButton(sequenceLook))
    , m_clear(new OutlinedButton(clearLook))
    , m_refusal(new TextBlock(recorder_texts::keyboardRefused.toString(), refusalText, palette::orange))
    , m_test(new ConfirmButton(testLook, {.confirming = feedbackMotion, .returning = feedbackMotion}))
{
    connect(m_mode, &PlaybackModeSelector::modeChosen, &recorder, &ShortcutRecorder::setPlaybackMode);
    connect(m_banner, &RecordingBanner::done, &recorder, &ShortcutRecorder::stopRecording);
    m_add->setSymbol(Symbol(u"plus.circle.fill"));
    connect(m_add, &QAbstractButton::clicked, this, [this] { record(ShortcutRecorder::State::appendingOne, 0); });
    m_sequence->setSymbol(Symbol(u"record.circle"));
    m_sequence->setText(recorder_texts::recordSequence.toString());
    m_sequence->setTip(recorder_texts::recordSequenceTooltip.toString());
    connect(
        m_sequence, &QAbstractButton::clicked, this, [this] { record(ShortcutRecorder::State::appendingSequence, 0); });
    m_clear->setText(recorder_texts::clear.toString());
    connect(m_clear, &QAbstractButton::clicked, &recorder, &ShortcutRecorder::clear);
    connect(m_test, &QAbstractButton::clicked, &recorder, &ShortcutRecorder::test);
    auto* const strip = new PresetStrip;
    connect(strip, &PresetStrip::presetChosen, &recorder, &ShortcutRecorder::apply);

    auto* const actions = new FlowLayout(actionSpacing);
    actions->addWidget(m_add);
    actions->addWidget(m_sequence);
    actions->addWidget(m_clear);
    auto* const presets = new QVBoxLayout;
    presets->setSpacing(5);
    presets->addWidget(new TextLabel(recorder_texts::presetsHeading.toString(), presetsHeadingText, white.at(0.35)));
    presets->addWidget(strip);
    auto* const hint = new TextBlock(recorder_texts::hint.toString(), hintText, white.at(0.42));
    for (TextBlock* const text : {m_refusal, hint})
        text->setContentsMargins(2, 2, 2, 2);

    m_column->setContentsMargins(inset, inset, inset, inset);
    m_column->addWidget(m_mode);
    m_column->addWidget(m_banner);
    m_column->addLayout(actions);
    m_column->addWidget(m_refusal);
    m_column->addLayout(presets);
    m_column->addWidget(m_test);
    m_column->addWidget(hint);
    connect(&recorder, &ShortcutRecorder::changed, this, &ShortcutRecorderView::refresh);
    refresh();
}

ShortcutRecorderView::~ShortcutRecorderView()
{
    endOwnRecording();
}

void ShortcutRecorderView::hideEvent(QHideEvent* event)
{
    endOwnRecording();
    QWidget::hideEvent(event);
}

void ShortcutRecorderView::record(ShortcutRecorder::State state, qsizetype index)
{
    switch (state) {
    case ShortcutRecorder::State::idle:
        return;
    case ShortcutRecorder::State::appendingOne:
        m_recorder->recordOne();
        break;
    case ShortcutRecorder::State::appendingSequence:
        m_recorder->recordSequence();
        break;
    case ShortcutRecorder::State::reRecording:
        m_recorder->reRecord(index);
        break;
    }
    if (m_recorder->isRecording())
        m_ownRecording = m_recorder->recordingNumber();
}

void ShortcutRecorderView::endOwnRecording()
{
    if (m_recorder && m_recorder->recordingNumber() == m_ownRecording)
        m_recorder->stopRecording();
}

void ShortcutRecorderView::refresh()
{
    if (!m_recorder)
        return;
    const SpringColumn::Change change(*m_column);
    const QWidget* const focused = focusWidget();
    refreshRows();
    m_banner->setText(m_recorder->bannerText().toString());
    m_banner->setVisible(m_recorder->isRecording());
    refreshActions();
    refreshRefusal();
    // What had the focus may have gone; then it is for what ends the recording, or for what begins another.
    if (isAncestorOf(focused) && !focused->isVisibleTo(this))
        (m_recorder->isRecording() ? m_banner->doneButton() : *m_add).setFocus(Qt::OtherFocusReason);
}

void ShortcutRecorderView::refreshRows()
{
    const QList<CustomShortcut> shortcuts = m_recorder->shortcuts();
    const std::optional<qsizetype> target = m_recorder->recordingTargetIndex();
    if (m_recorder->showsPlaybackMode())
        m_mode->show(m_recorder->playbackMode(), shortcuts.size());
    else
        m_mode->hide();
    std::size_t index = 0;
    for (const CustomShortcut& shortcut : shortcuts) {
        const bool isTarget = target == static_cast<qsizetype>(index);
        rowAt(index++).show(shortcut, isTarget ? KeyRow::State::recordingAnew : KeyRow::State::recorded);
    }
    for (; index < m_rows.size(); ++index)
        m_rows[index]->hide();
}

void ShortcutRecorderView::refreshActions()
{
    m_add->setText(recorder_texts::addKey(m_recorder->shortcuts().size()).toString());
    m_add->updateGeometry();
    m_sequence->setVisible(m_recorder->offersSequence());
    m_clear->setVisible(m_recorder->offersClear());
    m_test->setVisible(m_recorder->offersTest());
    m_test->showText(m_recorder->testText(),
        m_recorder->hasTestFeedback() ? ConfirmButton::Says::confirmation : ConfirmButton::Says::offer);
}

void ShortcutRecorderView::refreshRefusal()
{
    const bool isNew = m_recorder->isKeyboardRefused() && m_refusal->isHidden();
    m_refusal->setVisible(m_recorder->isKeyboardRefused());
    if (isNew) {
        QAccessibleEvent alert(m_refusal, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

KeyRow& ShortcutRecorderView::rowAt(std::size_t index)
{
    if (index == m_rows.size()) {
        auto* const row = new KeyRow(static_cast<qsizetype>(index));
        connect(row, &KeyRow::reRecordWanted, this,
            [this, index] { record(ShortcutRecorder::State::reRecording, static_cast<qsizetype>(index)); });
        connect(row, &KeyRow::removeWanted, this, [this, index] {
            if (m_recorder)
                m_recorder->remove(static_cast<qsizetype>(index));
        });
        // Below the selector of the mode.
        m_column->insertWidget(1 + static_cast<int>(index), row);
        m_rows.push_back(row);
    }
    return *m_rows[index];
}

} // namespace tarvin
