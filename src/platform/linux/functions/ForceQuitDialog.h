#pragma once

#include "platform/ports/ApplicationControl.h"
#include "platform/ports/Scheduler.h"
#include "platform/ports/Workspace.h"

#include <QDialog>

class QListWidget;
class QPushButton;

namespace tarvin::functions {

/// The list of applications that can be forced to quit. Nothing is chosen at first, so that no key alone ends
/// anything; Escape closes it.
class ForceQuitDialog : public QDialog
{
    Q_OBJECT

public:
    ForceQuitDialog(Workspace& workspace, ApplicationControl& control, Scheduler& scheduler);

    /// Shows the list as it is now, and keeps it current while it is shown. Bringing it to the front is the caller's.
    void showList();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void refresh();
    void endChosen();

    Workspace& m_workspace;
    ApplicationControl& m_control;
    Scheduler& m_scheduler;
    QListWidget* m_list;
    QPushButton* m_forceQuit;
    std::unique_ptr<Timer> m_refreshing;
};

} // namespace tarvin::functions
