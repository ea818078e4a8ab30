#include "platform/linux/functions/ForceQuitDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHideEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tarvin::functions {

using namespace std::chrono_literals;

namespace {

constexpr auto refreshInterval = 1s;
constexpr int processRole = Qt::UserRole;

struct Row
{
    QString name;
    ProcessIdentifier process = 0;
    friend bool operator==(const Row&, const Row&) = default;
};

Row rowOf(const QListWidgetItem& item)
{
    return {item.text(), item.data(processRole).toInt()};
}

} // namespace

ForceQuitDialog::ForceQuitDialog(Workspace& workspace, ApplicationControl& control, Scheduler& scheduler)
    : m_workspace(workspace)
    , m_control(control)
    , m_scheduler(scheduler)
    , m_list(new QListWidget(this))
    , m_forceQuit(new QPushButton(QStringLiteral("Force Quit"), this))
{
    setWindowTitle(QStringLiteral("Force Quit Applications"));
    auto* const explanation = new QLabel(
        QStringLiteral("Choose the application that does not respond. What it has not saved is lost."), this);
    explanation->setWordWrap(true);
    m_list->setAccessibleName(QStringLiteral("Running applications"));
    m_forceQuit->setAutoDefault(false);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_forceQuit, QDialogButtonBox::ActionRole);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(380, 320);

    connect(m_forceQuit, &QPushButton::clicked, this, &ForceQuitDialog::endChosen);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemSelectionChanged, this,
        [this] { m_forceQuit->setEnabled(!m_list->selectedItems().isEmpty()); });
}

void ForceQuitDialog::showList()
{
    m_list->clear();
    refresh();
    m_refreshing = m_scheduler.startRepeating(refreshInterval, [this] { refresh(); });
    show();
    m_list->setFocus();
}

void ForceQuitDialog::hideEvent(QHideEvent* event)
{
    m_refreshing.reset();
    QDialog::hideEvent(event);
}

void ForceQuitDialog::refresh()
{
    std::vector<Row> rows;
    for (const RunningApplication& application : m_workspace.runningApplications()) {
        const bool isListed = application.activationPolicy == ActivationPolicy::regular
            && application.processIdentifier > 0 && application.processIdentifier != QCoreApplication::applicationPid();
        if (isListed)
            rows.push_back({application.localizedName, application.processIdentifier});
    }
    std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        const int order = a.name.localeAwareCompare(b.name);
        return order != 0 ? order < 0 : a.process < b.process;
    });
    // Rows that stay keep the choice and the reader's place.
    for (int i = m_list->count() - 1; i >= 0; --i) {
        if (std::find(rows.begin(), rows.end(), rowOf(*m_list->item(i))) == rows.end())
            delete m_list->takeItem(i);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int place = static_cast<int>(i);
        if (m_list->item(place) && rowOf(*m_list->item(place)) == rows[i])
            continue;
        auto* const item = new QListWidgetItem(rows[i].name);
        item->setData(processRole, rows[i].process);
        m_list->insertItem(place, item);
    }
    m_forceQuit->setEnabled(!m_list->selectedItems().isEmpty());
}

void ForceQuitDialog::endChosen()
{
    const QList<QListWidgetItem*> chosen = m_list->selectedItems();
    for (const QListWidgetItem* const item : chosen)
        m_control.forceTerminate(item->data(processRole).toInt());
    m_list->clearSelection();
}

} // namespace tarvin::functions
