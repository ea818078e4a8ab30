#pragma once

#include "model/ActionChainStep.h"
#include "model/ActionParameters.h"
#include "model/FKey.h"
#include "model/KeyAction.h"

#include <QJsonValue>
#include <QString>

#include <concepts>
#include <optional>
#include <type_traits>

namespace tarvin {

/// An enumeration whose JSON form is its stored name.
template <typename Enumeration>
concept Vocabulary = std::is_enum_v<Enumeration> && requires(Enumeration value)
{
    {
        rawValue(value)
        } -> std::same_as<QStringView>;
};

template <Vocabulary Enumeration> [[nodiscard]] QJsonValue toJson(Enumeration value)
{
    return rawValue(value).toString();
}

/// Absent unless @p value is a string that @p lookup knows.
template <Vocabulary Enumeration>
[[nodiscard]] std::optional<Enumeration> vocabularyFromJson(
    const QJsonValue& value, std::optional<Enumeration> (*lookup)(QStringView) noexcept)
{
    return value.isString() ? lookup(value.toString()) : std::nullopt;
}

[[nodiscard]] inline std::optional<FKey> fKeyFromJson(const QJsonValue& value)
{
    return vocabularyFromJson(value, fKeyFromRawValue);
}

[[nodiscard]] inline std::optional<KeyAction> keyActionFromJson(const QJsonValue& value)
{
    return vocabularyFromJson(value, keyActionFromRawValue);
}

[[nodiscard]] inline std::optional<ActionCategory> actionCategoryFromJson(const QJsonValue& value)
{
    return vocabularyFromJson(value, actionCategoryFromRawValue);
}

} // namespace tarvin
