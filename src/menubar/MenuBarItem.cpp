#include "menubar/MenuBarItem.h"

#include "menubar/MenuBarIcon.h"
#include "shell/MenuBarExtraView.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QSystemTrayIcon>

#include <algorithm>

namespace tarvin {

namespace {

/// An ampersand would mark the letter behind it as a shortcut.
QString labelOf(const MenuEntry& entry)
{
    return QString(entry.text).replace(u'&', QStringLiteral("&&"));
}

/// Whether the two menus differ only in what an entry can change in place.
bool haveSameShape(const QList<MenuEntry>& left, const QList<MenuEntry>& right)
{
    return std::ranges::equal(left, right, [](const MenuEntry& one, const MenuEntry& other) {
        return one.kind == other.kind && one.command == other.command && haveSameShape(one.children, other.children);
    });
}

void bringUpToDate(QAction& action, const MenuEntry& entry)
{
    if (entry.kind == MenuEntryKind::divider)
        return;
    action.setText(labelOf(entry));
    action.setEnabled(entry.isEnabled);
    if (action.isCheckable())
        action.setChecked(entry.isChecked);
}

void bringUpToDate(const QMenu& menu, const QList<MenuEntry>& entries)
{
    const QList<QAction*> actions = menu.actions();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        bringUpToDate(*actions.at(i), entries.at(i));
        if (const QMenu* const submenu = actions.at(i)->menu())
            bringUpToDate(*submenu, entries.at(i).children);
    }
}

} // namespace

MenuBarItem::MenuBarItem(MenuBarExtraView& content)
    : m_content(content)
    , m_menu(std::make_unique<QMenu>())
    , m_icon(std::make_unique<QSystemTrayIcon>(menuBarIcon()))
{
    update();
    connect(&m_content, &MenuBarExtraView::entriesChanged, this, &MenuBarItem::updateSoon);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // The other reasons have the panel show the menu by itself.
        if (reason == QSystemTrayIcon::Trigger)
            m_menu->popup(QCursor::pos());
    });
    m_icon->setToolTip(QStringLiteral("Tarvin"));
    m_icon->setContextMenu(m_menu.get());
    m_icon->show();
}

MenuBarItem::~MenuBarItem() = default;

void MenuBarItem::updateSoon()
{
    // Later: an entry that is just being clicked must not go away under the click.
    if (m_updatePending)
        return;
    m_updatePending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_updatePending = false;
            update();
        },
        Qt::QueuedConnection);
}

void MenuBarItem::update()
{
    const QList<MenuEntry> entries = m_content.entries();
    if (haveSameShape(entries, m_shown))
        bringUpToDate(*m_menu, entries);
    else
        rebuild(*m_menu, entries);
    m_shown = entries;
}

void MenuBarItem::rebuild(QMenu& menu, const QList<MenuEntry>& entries)
{
    menu.clear();
    // The actions of submenus are the submenus' own, and clearing leaves those alone.
    qDeleteAll(menu.findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
    for (const MenuEntry& entry : entries)
        bringUpToDate(*addEntry(menu, entry), entry);
}

QAction* MenuBarItem::addEntry(QMenu& menu, const MenuEntry& entry)
{
    switch (entry.kind) {
    case MenuEntryKind::divider:
        return menu.addSeparator();
    case MenuEntryKind::submenu: {
        auto* const submenu = new QMenu(&menu);
        for (const MenuEntry& child : entry.children) {
            QAction* const action = addEntry(*submenu, child);
            // One of them holds, which the menu marks as it marks toggles.
            action->setCheckable(true);
            bringUpToDate(*action, child);
        }
        return menu.addMenu(submenu);
    }
    case MenuEntryKind::toggle:
    case MenuEntryKind::button:
        break;
    }
    QAction* const action = menu.addAction(QString());
    action->setCheckable(entry.kind == MenuEntryKind::toggle);
    connect(action, &QAction::triggered, this, [this, command = entry.command] {
        m_content.perform(command);
        // The click has moved the mark by itself; the present state decides.
        updateSoon();
    });
    return action;
}

} // namespace tarvin
