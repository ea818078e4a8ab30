#include "profiles/AppProfile.h"

#include <QHashFunctions>
#include <QJsonObject>

namespace tarvin {

namespace {

namespace field {
constexpr QLatin1StringView id("id");
constexpr QLatin1StringView name("name");
constexpr QLatin1StringView bundleIdentifier("bundleIdentifier");
constexpr QLatin1StringView iconName("iconName");
} // namespace field

} // namespace

AppProfile AppProfile::global()
{
    return {u"global"_qs, u"All Applications"_qs, std::nullopt, u"globe"_qs};
}

AppProfile AppProfile::safari()
{
    return {u"safari"_qs, u"Safari"_qs, u"com.apple.Safari"_qs, u"safari.fill"_qs};
}

AppProfile AppProfile::xcode()
{
    return {u"xcode"_qs, u"Xcode"_qs, u"com.apple.dt.Xcode"_qs, u"hammer.fill"_qs};
}

AppProfile AppProfile::terminal()
{
    return {u"terminal"_qs, u"Terminal"_qs, u"com.apple.Terminal"_qs, u"terminal.fill"_qs};
}

AppProfile AppProfile::finder()
{
    return {u"finder"_qs, u"Finder"_qs, u"com.apple.finder"_qs, u"folder.fill"_qs};
}

QList<AppProfile> AppProfile::presets()
{
    return {global(), safari(), xcode(), terminal(), finder()};
}

std::size_t qHash(const AppProfile& profile, std::size_t seed) noexcept
{
    return qHashMulti(seed, profile.id, profile.name, profile.bundleIdentifier.has_value(),
        profile.bundleIdentifier.value_or(QString()), profile.iconName);
}

QJsonValue toJson(const AppProfile& profile)
{
    QJsonObject object{
        {field::id, profile.id},
        {field::name, profile.name},
        {field::iconName, profile.iconName},
    };
    if (profile.bundleIdentifier)
        object.insert(field::bundleIdentifier, *profile.bundleIdentifier);
    return object;
}

std::optional<AppProfile> appProfileFromJson(const QJsonValue& value)
{
    const QJsonValue id = value[field::id];
    const QJsonValue name = value[field::name];
    const QJsonValue bundleIdentifier = value[field::bundleIdentifier];
    const QJsonValue iconName = value[field::iconName];
    const bool isForAll = bundleIdentifier.isUndefined() || bundleIdentifier.isNull();
    if (!id.isString() || !name.isString() || !iconName.isString() || !(isForAll || bundleIdentifier.isString()))
        return std::nullopt;
    return AppProfile{id.toString(), name.toString(),
        isForAll ? std::nullopt : std::optional(bundleIdentifier.toString()), iconName.toString()};
}

} // namespace tarvin
