#include "actions/system/AppleMenuItem.h"

#include "platform/ports/AppleMenu.h"

#include <algorithm>

namespace tarvin {

namespace {

QString normalised(QString title)
{
    return title.remove(u'…').trimmed().toLower();
}

bool says(const QString& title, const QString& target)
{
    return normalised(title) == normalised(target) || title.toLower().startsWith(target.toLower());
}

} // namespace

std::optional<qsizetype> findMenuItem(const QStringList& titles, const QStringList& targetTitles)
{
    const auto found = std::ranges::find_if(titles, [&](const QString& title) {
        return std::ranges::any_of(targetTitles, [&](const QString& target) { return says(title, target); });
    });
    return found == titles.end() ? std::nullopt : std::optional(found - titles.begin());
}

void triggerAppleMenuActionViaAccessibility(AppleMenu& menu, const QStringList& targetTitles)
{
    const std::optional<QStringList> titles = menu.itemTitles();
    if (!titles)
        return;
    if (const std::optional<qsizetype> index = findMenuItem(*titles, targetTitles))
        menu.press(*index);
}

} // namespace tarvin
