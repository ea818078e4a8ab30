#include "studio/settings/view/StartupDockSection.h"

#include "studio/settings/SettingsSheetModel.h"
#include "studio/settings/view/StartupDockRow.h"
#include "ui/Palette.h"
#include "ui/Pill.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>

namespace tarvin {

namespace {

constexpr int gap = 10;

Pill headingText()
{
    return {.text = startupDockHeading.toString(),
        .style = {.size = 10, .weight = TextWeight::black, .face = TextFace::rounded},
        .textColour = palette::white.at(0.45),
        .fill = palette::white.at(0),
        .insetX = 4,
        .insetY = 4,
        .radius = 0,
        .letterSpacing = 0.8};
}

class Heading : public QLabel
{
public:
    Heading()
        : QLabel(startupDockHeading.toString())
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override { return headingText().size().toSize(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        drawPill(painter, {0, 0}, headingText());
    }
};

} // namespace

StartupDockSection::StartupDockSection(SettingsSheetModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(gap);
    column->addWidget(new Heading);
    for (const StartupDockMode mode : allStartupDockModes) {
        auto* const row = new StartupDockRow(mode);
        m_rows[static_cast<std::size_t>(mode)] = row;
        // Assistive technology and the arrow keys choose without a click.
        connect(row, &QAbstractButton::toggled, this, [this, mode](bool isOn) {
            if (isOn && m_model.startupDockMode() != mode)
                m_model.setStartupDockMode(mode);
        });
        column->addWidget(row);
    }
    connect(&m_model, &SettingsSheetModel::changed, this, &StartupDockSection::follow);
    follow();
}

void StartupDockSection::follow()
{
    for (const StartupDockMode mode : allStartupDockModes)
        row(mode).setSelected(mode == m_model.startupDockMode());
}

} // namespace tarvin
