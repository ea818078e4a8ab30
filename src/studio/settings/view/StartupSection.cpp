#include "studio/settings/view/StartupSection.h"

#include "studio/settings/SettingsSheetModel.h"
#include "studio/settings/view/CrossFade.h"
#include "studio/settings/view/SettingsCard.h"
#include "studio/settings/view/SettingsColours.h"
#include "studio/settings/view/StartupDockSection.h"

#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::mintTeal;

constexpr auto presenceMotion = Motion::easeInOut(std::chrono::milliseconds(200));
constexpr int gap = 14;
constexpr int side = 20;
/// How far above its place the lower part comes from.
constexpr QPoint wayIn{0, -12};

SettingsCardLook openAtStartupLook()
{
    return {.title = openAtStartupTitle.toString(),
        .description = openAtStartupDescription.toString(),
        .padding = 16,
        .tileSize = 44,
        .symbolSize = 22,
        .titleSize = 14};
}

Pill defaultChip()
{
    return {.text = openAtStartupChip.toString(),
        .style = {.size = 9, .weight = TextWeight::black, .face = TextFace::rounded},
        .textColour = mintTeal,
        .fill = mintTeal.at(0.15),
        .insetX = 5,
        .insetY = 1.5,
        .radius = 4};
}

} // namespace

StartupSection::StartupSection(SettingsSheetModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_openAtStartup(new SettingsCard(openAtStartupLook()))
    , m_dockBehavior(new StartupDockSection(model))
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(side, gap, side, gap);
    column->setSpacing(gap);
    column->addWidget(m_openAtStartup);
    column->addWidget(m_dockBehavior);
    column->addStretch();
    connect(m_openAtStartup, &SettingsCard::switched, this, [this](bool isOn) { m_model.setOpenAtStartup(isOn); });
    connect(&m_model, &SettingsSheetModel::changed, this, &StartupSection::follow);
    follow();
}

void StartupSection::follow()
{
    const bool isOn = m_model.openAtStartup();
    m_openAtStartup->show(
        {.symbol = Symbol(u"power.circle.fill"), .isOn = isOn, .isActive = isOn, .chips = {defaultChip()}});
    showDockBehavior(m_model.showsStartupDockBehavior());
}

void StartupSection::showDockBehavior(bool isShown)
{
    if (m_dockBehavior->isHidden() != isShown)
        return;
    const bool isMoving = isVisible();
    QPixmap before;
    QPixmap after;
    if (isMoving && !isShown)
        before = CrossFade::pictureOf(*m_dockBehavior);
    m_dockBehavior->setVisible(isShown);
    if (!isMoving)
        return;
    if (isShown) {
        layout()->activate();
        after = CrossFade::pictureOf(*m_dockBehavior);
    }
    CrossFade::play(*this, m_dockBehavior->geometry(),
        {.before = before, .after = after, .way = isShown ? wayIn : -wayIn, .ground = settingscolours::body},
        presenceMotion);
}

} // namespace tarvin
