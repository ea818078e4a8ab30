#pragma once

#include <QString>

#include <optional>

namespace tarvin {

/// An absent text and an empty one say the same in a record, though both are kept as they were stored.
[[nodiscard]] inline bool hasText(const std::optional<QString>& text) noexcept
{
    return text && !text->isEmpty();
}

} // namespace tarvin
