#pragma once

#include "studio/applications/InstalledApplication.h"

#include <QAbstractListModel>
#include <QList>

namespace tarvin {

/// Applications as the rows of a list: the name, with the identifier as its description.
class ApplicationRows : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setApplications(const QList<InstalledApplication>& applications);
    [[nodiscard]] const QList<InstalledApplication>& applications() const { return m_applications; }
    /// The row of that application reads as checked; none does for an empty identifier.
    void setChosen(const QString& bundleIdentifier);
    [[nodiscard]] bool isChosen(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<InstalledApplication> m_applications;
    QString m_chosen;
};

} // namespace tarvin
