#include "model/ActionSearch.h"

#include <QCollator>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

namespace tarvin {

namespace {

/// What a search compares with, of one action. Everything is lower case and composed.
struct SearchTexts
{
    QString title;
    QString subtitle;
    QString heading;
    QString storedName; ///< with blanks for the underscores
    QString acronym; ///< the first letters of the title's words
    QStringList titleWords;
    QStringList subtitleWords;
    QStringList keywords;
    QStringList keywordWords;
};

QString comparable(QStringView text)
{
    return text.toString().normalized(QString::NormalizationForm_C).toLower();
}

/// Everything between two letters or digits separates them; marks belong to their letter.
QStringList wordsOf(const QString& text)
{
    QStringList words;
    QString word;
    for (const QChar character : text) {
        if (character.isLetterOrNumber() || character.isMark()) {
            word += character;
        } else if (!word.isEmpty()) {
            words += word;
            word.clear();
        }
    }
    if (!word.isEmpty())
        words += word;
    return words;
}

SearchTexts textsOf(KeyAction action)
{
    SearchTexts texts{
        .title = comparable(title(action)),
        .subtitle = comparable(subtitle(action)),
        .heading = comparable(rawValue(category(action))),
        .storedName = comparable(rawValue(action)).replace(u'_', u' '),
        .acronym = {},
        .titleWords = {},
        .subtitleWords = {},
        .keywords = {},
        .keywordWords = {},
    };
    texts.titleWords = wordsOf(texts.title);
    texts.subtitleWords = wordsOf(texts.subtitle);
    for (const QString& word : std::as_const(texts.titleWords))
        texts.acronym += word.front();
    for (const QStringView keyword : keywords(action)) {
        texts.keywords += comparable(keyword);
        texts.keywordWords += wordsOf(texts.keywords.last());
    }
    return texts;
}

const SearchTexts& searchTexts(KeyAction action)
{
    static const std::vector<SearchTexts> all = [] {
        std::vector<SearchTexts> texts;
        texts.reserve(allKeyActions.size());
        std::ranges::transform(allKeyActions, std::back_inserter(texts), textsOf);
        return texts;
    }();
    return all[static_cast<std::size_t>(action)];
}

bool anyStartsWith(const QStringList& texts, const QString& beginning)
{
    return std::ranges::any_of(texts, [&](const QString& text) { return text.startsWith(beginning); });
}

bool anyContains(const QStringList& texts, const QString& part)
{
    return std::ranges::any_of(texts, [&](const QString& text) { return text.contains(part); });
}

bool isAcronym(const SearchTexts& texts, const QString& token)
{
    return texts.acronym == token || (token.size() >= 2 && texts.acronym.startsWith(token));
}

/// What one word of the query is worth. The first rung that holds counts, also where a later one is worth more.
std::optional<int> tokenValue(const SearchTexts& texts, const QString& token)
{
    if (texts.titleWords.contains(token))
        return 1000;
    if (texts.keywordWords.contains(token))
        return 850;
    if (anyStartsWith(texts.titleWords, token))
        return 750;
    if (anyStartsWith(texts.keywordWords, token) || anyStartsWith(texts.keywords, token))
        return 650;
    if (texts.subtitleWords.contains(token))
        return 500;
    if (anyStartsWith(texts.subtitleWords, token))
        return 400;
    if (texts.heading.contains(token))
        return 300;
    if (isAcronym(texts, token))
        return 450;
    if (texts.storedName.contains(token))
        return 250;
    if (texts.title.contains(token))
        return 200;
    if (anyContains(texts.keywords, token))
        return 180;
    if (texts.subtitle.contains(token))
        return 120;
    return std::nullopt;
}

/// What the words of a query earn when they stand together in one text.
int phraseBonus(const SearchTexts& texts, const QString& query)
{
    if (texts.title.contains(query))
        return 1000;
    if (anyContains(texts.keywords, query))
        return 800;
    if (texts.subtitle.contains(query))
        return 400;
    return 0;
}

int scoreOfTokens(const SearchTexts& texts, const QString& query, const QStringList& tokens)
{
    constexpr int allFoundBonus = 1200;
    constexpr int missingDiscount = 400;
    constexpr qsizetype longQuery = 4; // so many words must all be found

    int sum = 0;
    qsizetype found = 0;
    for (const QString& token : tokens) {
        if (const std::optional<int> value = tokenValue(texts, token)) {
            sum += *value;
            ++found;
        }
    }
    if (tokens.size() == 1)
        return sum;
    if (found == tokens.size())
        return sum + allFoundBonus + phraseBonus(texts, query);
    if (found > 0 && tokens.size() < longQuery)
        return std::max(sum - missingDiscount, 0);
    return 0;
}

/// @param query trimmed, comparable and not empty
int scoreOf(const SearchTexts& texts, const QString& query, const QStringList& tokens)
{
    if (texts.title == query)
        return 3000;
    if (texts.keywords.contains(query))
        return 2600;
    if (texts.title.startsWith(query))
        return 2200;
    return scoreOfTokens(texts, query, tokens);
}

struct Query
{
    explicit Query(QStringView typed)
        : text(comparable(typed.trimmed()))
        , tokens(text.simplified().split(u' ', Qt::SkipEmptyParts))
    { }

    QString text;
    QStringList tokens; ///< none for a blank query
};

} // namespace

int searchScore(KeyAction action, QStringView text)
{
    const Query query(text);
    return query.tokens.isEmpty() ? 0 : scoreOf(searchTexts(action), query.text, query.tokens);
}

QList<ActionMatch> searchActions(QStringView text)
{
    QList<ActionMatch> matches;
    const Query query(text);
    if (query.tokens.isEmpty())
        return matches;
    for (const KeyAction action : allConfigurableKeyActions) {
        if (const int score = scoreOf(searchTexts(action), query.text, query.tokens); score > 0)
            matches.append({action, score});
    }
    QCollator titles;
    titles.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::stable_sort(matches, [&titles](const ActionMatch& left, const ActionMatch& right) {
        if (left.score != right.score)
            return left.score > right.score;
        return titles.compare(title(left.action), title(right.action)) < 0;
    });
    return matches;
}

} // namespace tarvin
