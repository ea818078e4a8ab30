#include "studio/applications/ApplicationSearch.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarvin {

namespace {

QString comparable(QStringView text)
{
    return text.toString().normalized(QString::NormalizationForm_C).toLower();
}

QStringList wordsOf(const QString& text)
{
    QStringList words;
    QString word;
    for (const QChar character : text) {
        if (character.isLetterOrNumber() || character.isMark() || character.isSurrogate()) {
            word += character;
        } else if (!word.isEmpty()) {
            words += std::exchange(word, {});
        }
    }
    if (!word.isEmpty())
        words += word;
    return words;
}

} // namespace

ApplicationTexts searchTexts(const InstalledApplication& application)
{
    QString name = comparable(application.name);
    QStringList words = wordsOf(name);
    return {.name = std::move(name),
        .bundleIdentifier = comparable(application.bundleIdentifier),
        .nameWords = std::move(words)};
}

int applicationScore(const ApplicationTexts& texts, QStringView query)
{
    if (texts.name == query)
        return 1000;
    if (texts.name.startsWith(query))
        return 600;
    if (std::ranges::any_of(texts.nameWords, [query](const QString& word) { return word.startsWith(query); }))
        return 450;
    if (texts.name.contains(query))
        return 300;
    if (texts.bundleIdentifier.contains(query))
        return 150;
    return 0;
}

ApplicationSearch::ApplicationSearch(QList<InstalledApplication> applications)
    : m_applications(std::move(applications))
{
    m_texts.reserve(static_cast<std::size_t>(m_applications.size()));
    std::ranges::transform(std::as_const(m_applications), std::back_inserter(m_texts), searchTexts);
}

QList<InstalledApplication> ApplicationSearch::containing(QStringView typed) const
{
    const QString query = comparable(typed.trimmed());
    if (query.isEmpty())
        return m_applications;
    QList<InstalledApplication> found;
    for (std::size_t index = 0; index < m_texts.size(); ++index) {
        const ApplicationTexts& texts = m_texts[index];
        if (texts.name.contains(query) || texts.bundleIdentifier.contains(query))
            found.append(m_applications[static_cast<qsizetype>(index)]);
    }
    return found;
}

QList<InstalledApplication> ApplicationSearch::ranked(QStringView typed) const
{
    const QString query = comparable(typed.trimmed());
    if (query.isEmpty())
        return m_applications;
    std::vector<std::pair<int, qsizetype>> matches;
    for (std::size_t index = 0; index < m_texts.size(); ++index) {
        if (const int score = applicationScore(m_texts[index], query); score > 0)
            matches.emplace_back(score, static_cast<qsizetype>(index));
    }
    // The list is sorted by name already.
    std::ranges::stable_sort(matches, [](const auto& left, const auto& right) { return left.first > right.first; });
    QList<InstalledApplication> found;
    found.reserve(static_cast<qsizetype>(matches.size()));
    for (const auto& [score, index] : matches)
        found.append(m_applications[index]);
    return found;
}

} // namespace tarvin
