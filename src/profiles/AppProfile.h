#pragma once

#include <QJsonValue>
#include <QList>
#include <QMetaType>
#include <QString>

#include <cstddef>
#include <optional>

namespace tarvin {

/// The identity of one profile: a set of mappings for one application, or for all.
struct AppProfile
{
    QString id; ///< the key under which the profile's mappings are stored
    QString name; ///< as shown
    std::optional<QString> bundleIdentifier; ///< the application it is for; absent: for all of them
    QString iconName; ///< name in the symbol font

    bool operator==(const AppProfile&) const = default;

    [[nodiscard]] static AppProfile global();
    [[nodiscard]] static AppProfile safari();
    [[nodiscard]] static AppProfile xcode();
    [[nodiscard]] static AppProfile terminal();
    [[nodiscard]] static AppProfile finder();
    /// The profiles of every launch, the one for all applications first.
    [[nodiscard]] static QList<AppProfile> presets();
};

[[nodiscard]] std::size_t qHash(const AppProfile& profile, std::size_t seed = 0) noexcept;

/// The fields under their own names; an absent bundle identifier is left out.
[[nodiscard]] QJsonValue toJson(const AppProfile& profile);
/// Absent if @p value is not an object, or if a field other than the bundle identifier is missing or any is no text.
[[nodiscard]] std::optional<AppProfile> appProfileFromJson(const QJsonValue& value);

} // namespace tarvin

Q_DECLARE_METATYPE(tarvin::AppProfile)
