#include "tools/scratchpad/view/QuickScratchpadView.h"

#include "tools/scratchpad/QuickScratchpadManager.h"
#include "ui/Palette.h"
#include "ui/TextLabel.h"

#include <QPlainTextEdit>
#include <QTextDocument>

#include <chrono>

namespace tarvin {

namespace {

constexpr QSize plateSize(static_cast<int>(QuickScratchpadManager::traits.size.width),
    static_cast<int>(QuickScratchpadManager::traits.size.height));

constexpr TextStyle copyText{.size = 10, .weight = TextWeight::semibold, .face = TextFace::rounded};
constexpr TextStyle clearText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr TextStyle noteText{.size = 12, .weight = TextWeight::regular, .face = TextFace::fixedWidth};
constexpr TextStyle counterText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr TextStyle hintText{.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded};
constexpr Colour footerFill{0.08, 0.08, 0.10};
constexpr Colour editorFill{0.07, 0.07, 0.09};

constexpr int editorMargin = 12;
/// Between the edge of the editor and its text.
constexpr int textMargin = 7;
constexpr int editorTop = ToolPlate::headerHeight + ToolPlate::hairlineHeight;
constexpr int footerTop = plateSize.height() - ToolPlate::footerHeight;

constexpr Motion feedbackMotion = Motion::easeInOut(std::chrono::milliseconds(200));
constexpr Colour plainCopy = palette::white.at(0.8);
constexpr Colour confirmedCopy = palette::mintTeal;

ButtonLook copyLook(const Colour& colour)
{
    return {.height = 20,
        .radius = 6,
        .inset = 8,
        .symbolSize = 10,
        .spacing = 4,
        .text = copyText,
        .symbolColour = colour,
        .textColour = colour,
        .fill = palette::white.at(0.08),
        .hoveredFill = palette::white.at(0.13),
        .stroke = palette::white.at(0)};
}

} // namespace

QuickScratchpadView::QuickScratchpadView(ScratchpadNote& note, std::function<bool()> hasCompositor)
    : ToolPlate(plateSize, {.symbol = Symbol(u"note.text.badge.plus"), .title = tr("Quick Scratchpad")},
        std::move(hasCompositor))
    , m_note(note)
    , m_editor(new QPlainTextEdit(&content()))
    , m_copy(new OutlinedButton({}, &content()))
    , m_feedback(0, [this] { colourCopyButton(); })
    , m_counters(new TextLabel({}, counterText, palette::white.at(0.45), &content()))
{
    auto* const clear = new OutlinedButton(plainTextLook(clearText, palette::white.at(0.45), 6, 20), &content());
    clear->setText(tr("Clear"));
    addToHeader(*clear);
    colourCopyButton();
    showFeedback();
    addToHeader(*m_copy);

    addBand({.top = footerTop - hairlineHeight, .height = hairlineHeight, .fill = palette::white.at(0.08)});
    addBand({.top = footerTop, .height = footerHeight, .fill = footerFill});
    auto* const hint =
        new TextLabel(tr("Auto-saved  •  Press Esc to close"), hintText, palette::white.at(0.35), &content());
    hint->adjustSize();
    hint->move(plateSize.width() - sideInset - hint->width(), footerTop + (footerHeight - hint->height()) / 2);

    m_editor->setGeometry(editorMargin, editorTop + editorMargin, plateSize.width() - 2 * editorMargin,
        footerTop - hairlineHeight - editorTop - 2 * editorMargin);
    m_editor->setFrameShape(QFrame::NoFrame);
    m_editor->setFont(fontOf(noteText));
    m_editor->document()->setDocumentMargin(textMargin);
    m_editor->setAccessibleName(tr("Note"));
    m_editor->setTabChangesFocus(false);
    QPalette colours = m_editor->palette();
    colours.setColor(QPalette::Base, editorFill);
    colours.setColor(QPalette::Text, palette::white.at(0.95));
    m_editor->setPalette(colours);

    connect(m_editor, &QPlainTextEdit::textChanged, this, [this] { m_note.setText(m_editor->toPlainText()); });
    connect(&m_note, &ScratchpadNote::textChanged, this, &QuickScratchpadView::showText);
    connect(&m_note, &ScratchpadNote::copiedFeedbackChanged, this, &QuickScratchpadView::showFeedback);
    connect(m_copy, &QAbstractButton::clicked, this, [this] { m_note.copyAll(); });
    connect(clear, &QAbstractButton::clicked, this, [this] { m_note.clear(); });
    connect(this, &ToolPlate::appeared, this, [this] { m_editor->setFocus(); });
    showText();
}

void QuickScratchpadView::showText()
{
    if (m_editor->toPlainText() != m_note.text())
        m_editor->setPlainText(m_note.text());
    m_counters->setText(noteCounters(m_note.text()));
    m_counters->adjustSize();
    m_counters->move(sideInset, footerTop + (footerHeight - m_counters->height()) / 2);
}

void QuickScratchpadView::showFeedback()
{
    const bool isCopied = m_note.copiedFeedback();
    const int right = m_copy->geometry().right();
    m_feedback.animateTo(isCopied ? 1 : 0, feedbackMotion);
    m_copy->setSymbol(isCopied ? Symbol(u"checkmark") : Symbol(u"doc.on.doc"));
    m_copy->setText(isCopied ? tr("Copied!") : tr("Copy All"));
    m_copy->adjustSize();
    m_copy->move(right + 1 - m_copy->width(), m_copy->y());
}

void QuickScratchpadView::colourCopyButton()
{
    const auto mix = [part = m_feedback.value()](double from, double to) { return from + (to - from) * part; };
    m_copy->setLook(copyLook({mix(plainCopy.red, confirmedCopy.red), mix(plainCopy.green, confirmedCopy.green),
        mix(plainCopy.blue, confirmedCopy.blue), mix(plainCopy.opacity, confirmedCopy.opacity)}));
}

} // namespace tarvin
