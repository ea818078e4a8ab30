#include "studio/settings/view/SettingsTabBar.h"

#include "studio/settings/view/SettingsTabButton.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>

namespace tarvin {

namespace {

constexpr int insetX = 20;
constexpr int insetY = 10;
constexpr int gap = 8;

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object)
{
    auto* const bar = qobject_cast<SettingsTabBar*>(object);
    return bar ? new QAccessibleWidget(bar, QAccessible::PageTabList) : nullptr;
}

} // namespace

SettingsTabBar::SettingsTabBar(QWidget* parent)
    : QWidget(parent)
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(makeAccessible), true);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(insetX, insetY, insetX, insetY);
    row->setSpacing(gap);
    for (const SettingsTabRow& each : settingsTabRows) {
        auto* const button = new SettingsTabButton(each.tab);
        m_buttons[static_cast<std::size_t>(each.tab)] = button;
        // Assistive technology and the arrow keys choose without a click.
        connect(button, &QAbstractButton::toggled, this, [this, tab = each.tab](bool isOn) {
            if (isOn)
                Q_EMIT tabChosen(tab);
        });
        row->addWidget(button);
    }
    row->addStretch();
}

void SettingsTabBar::setSelected(SettingsTab tab) const
{
    for (const SettingsTabRow& each : settingsTabRows)
        button(each.tab).setSelected(each.tab == tab);
}

} // namespace tarvin
