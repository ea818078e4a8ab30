#include "studio/cards/view/ActionChainBody.h"

#include "studio/cards/ActionChainCard.h"
#include "studio/cards/view/FollowRecord.h"
#include "ui/FlowLayout.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/SpringColumn.h"
#include "ui/Symbols.h"
#include "ui/TextLine.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace tarvin {

namespace {

constexpr int rowHeight = 28;
constexpr int rowSpacing = 5;
constexpr int addingGap = 3; // more than between rows
constexpr Motion changeMotion = Motion::spring(0.25, 0.8);
constexpr double rowRadius = 6;
constexpr double inset = 8;
constexpr double numberWidth = 14;
constexpr double spacing = 6;
constexpr double symbolSize = 10;
constexpr TextStyle numberText{.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle labelText{.size = 11, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr Colour clear = palette::white.at(0);

constexpr ButtonLook trashLook{.height = 20,
    .radius = 5,
    .inset = 4,
    .symbolSize = 10,
    .spacing = 0,
    .text = {},
    .symbolColour = palette::white.at(0.35),
    .textColour = clear,
    .fill = clear,
    .hoveredFill = palette::white.at(0.08),
    .stroke = clear};

constexpr ButtonLook addLook{.height = 22,
    .radius = 11,
    .inset = 9,
    .symbolSize = 10,
    .spacing = 4,
    .text = {.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded},
    .symbolColour = palette::mintTeal,
    .textColour = palette::mintTeal,
    .fill = palette::mintTeal.at(0.12),
    .hoveredFill = palette::mintTeal.at(0.2),
    .stroke = clear};

} // namespace

/// One step: its number, what it is and does, and the button that removes it.
class ActionChainBody::StepRow : public QWidget
{
public:
    StepRow()
        : m_trash(new OutlinedButton(trashLook))
    {
        setFixedHeight(rowHeight);
        m_trash->setSymbol(Symbol(u"trash"));
        auto* const row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 5, 0);
        row->addStretch();
        row->addWidget(m_trash);
    }

    void show(const ChainStepRow& step)
    {
        m_step = step;
        setAccessibleName(QStringLiteral("Step %1: %2").arg(step.number, step.label));
        m_trash->setAccessibleName(QStringLiteral("Remove step %1").arg(step.number));
        QWidget::show();
        update();
    }

    [[nodiscard]] QAbstractButton& trash() const { return *m_trash; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QRectF box = rect();
        fillPlate(painter, box, rowRadius, palette::white.at(0.04));
        double left = inset;
        drawText(painter, {left, 0, numberWidth, box.height()}, Qt::AlignLeft, m_step.number, numberText,
            palette::white.at(0.45));
        left += numberWidth;
        const double symbolBox = symbolSize * symbolBoxPerSize;
        drawSymbol(painter, Symbol::namedOrPlaceholder(m_step.symbol), {left + symbolBox / 2, box.center().y()},
            symbolSize, palette::mintTeal.toQColor());
        left += symbolBox + spacing;
        const double room = m_trash->x() - spacing - left;
        drawText(painter, {left, 0, room, box.height()}, Qt::AlignLeft, elidedText(m_step.label, labelText, room),
            labelText, palette::white.at(0.85));
    }

private:
    ChainStepRow m_step;
    OutlinedButton* m_trash;
};

ActionChainBody::ActionChainBody(const KeyRecord& record, UuidGenerator& uuids, QWidget* parent)
    : QWidget(parent)
    , m_record(record)
    , m_column(new SpringColumn(rowSpacing, changeMotion, this))
{
    auto* const adding = new FlowLayout(6);
    for (const NewChainStepRow& row : newChainStepRows) {
        auto* const button = new OutlinedButton(addLook);
        button->setText(row.buttonText.toString());
        connect(button, &QAbstractButton::clicked, this,
            [this, &uuids, step = row.step] { appendChainStep(m_record, step, uuids); });
        adding->addWidget(button);
    }
    m_column->setContentsMargins(0, 4, 0, 2);
    auto* const below = new QVBoxLayout;
    below->setContentsMargins(0, addingGap, 0, 0);
    below->addLayout(adding);
    m_column->addLayout(below);
    followRecord(*this, m_record, &ActionChainBody::refresh);
}

void ActionChainBody::refresh()
{
    const SpringColumn::Change change(*m_column);
    const QList<ChainStepRow> steps = chainStepRows(m_record.config());
    std::size_t index = 0;
    for (const ChainStepRow& step : steps)
        rowAt(index++).show(step);
    for (; index < m_rows.size(); ++index)
        m_rows[index]->hide();
}

ActionChainBody::StepRow& ActionChainBody::rowAt(std::size_t index)
{
    if (index == m_rows.size()) {
        auto* const row = new StepRow;
        connect(&row->trash(), &QAbstractButton::clicked, this,
            [this, index] { removeChainStep(m_record, static_cast<qsizetype>(index)); });
        m_column->insertWidget(static_cast<int>(index), row);
        m_rows.push_back(row);
    }
    return *m_rows[index];
}

} // namespace tarvin
