#pragma once

#include "shell/MenuEntry.h"

#include <QObject>

#include <memory>

class QAction;
class QMenu;
class QSystemTrayIcon;

namespace tarvin {

class MenuBarExtraView;

/// The program's item in the panel and its menu, which always shows the present state. Made when the desktop has a
/// place for it: the toolkit looks only once. Main thread only.
class MenuBarItem : public QObject
{
    Q_OBJECT

public:
    /// @param content outlives the item
    explicit MenuBarItem(MenuBarExtraView& content);
    ~MenuBarItem() override;
    Q_DISABLE_COPY_MOVE(MenuBarItem)

    /// The native menu, for tests.
    [[nodiscard]] QMenu& menu() { return *m_menu; }

private:
    void update();
    void updateSoon();
    void rebuild(QMenu& menu, const QList<MenuEntry>& entries);
    QAction* addEntry(QMenu& menu, const MenuEntry& entry);

    MenuBarExtraView& m_content;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    QList<MenuEntry> m_shown;
    bool m_updatePending = false;
};

} // namespace tarvin
