#pragma once

#include "studio/applications/InstalledApplication.h"

#include <QList>
#include <QStringList>
#include <QStringView>

#include <vector>

namespace tarvin {

/// What a search compares with, of one application; all in lower case.
struct ApplicationTexts
{
    QString name;
    QString bundleIdentifier;
    QStringList nameWords;
};

/// How well @p query finds an application: 0 is not at all.
/// @param query trimmed and in lower case
[[nodiscard]] int applicationScore(const ApplicationTexts& texts, QStringView query);

[[nodiscard]] ApplicationTexts searchTexts(const InstalledApplication& application);

/// A list of applications, sorted by name, with the searches in it. What a search compares with is worked out once, so
/// that typing never waits for a long list.
class ApplicationSearch
{
public:
    ApplicationSearch() = default;
    explicit ApplicationSearch(QList<InstalledApplication> applications);

    [[nodiscard]] const QList<InstalledApplication>& applications() const { return m_applications; }
    /// Those whose name or bundle identifier contains the text, in the order of the list; all for a blank text.
    [[nodiscard]] QList<InstalledApplication> containing(QStringView typed) const;
    /// Those that the text finds, best first, equals in the order of the list; all for a blank text.
    [[nodiscard]] QList<InstalledApplication> ranked(QStringView typed) const;

private:
    QList<InstalledApplication> m_applications;
    std::vector<ApplicationTexts> m_texts; ///< of each application
};

} // namespace tarvin
