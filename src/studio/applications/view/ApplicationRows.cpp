#include "studio/applications/view/ApplicationRows.h"

namespace tarvin {

void ApplicationRows::setApplications(const QList<InstalledApplication>& applications)
{
    beginResetModel();
    m_applications = applications;
    endResetModel();
}

void ApplicationRows::setChosen(const QString& bundleIdentifier)
{
    if (m_chosen == bundleIdentifier)
        return;
    m_chosen = bundleIdentifier;
    if (!m_applications.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

bool ApplicationRows::isChosen(int row) const
{
    return !m_chosen.isEmpty() && m_applications[row].bundleIdentifier == m_chosen;
}

int ApplicationRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_applications.size());
}

QVariant ApplicationRows::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return m_applications[index.row()].name;
    case Qt::AccessibleDescriptionRole:
        return m_applications[index.row()].bundleIdentifier;
    case Qt::CheckStateRole:
        return isChosen(index.row()) ? QVariant(Qt::Checked) : QVariant();
    default:
        return {};
    }
}

} // namespace tarvin
