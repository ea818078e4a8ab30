#pragma once

#include <QString>

#include <optional>

namespace tarvin {

/// The registration that makes the system open the program at login. Main thread only.
class LoginItem
{
public:
    virtual ~LoginItem() = default;
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// @return the system's words for a refusal, nothing on success
    [[nodiscard]] virtual std::optional<QString> enable() = 0;
    /// @return as `enable`
    [[nodiscard]] virtual std::optional<QString> disable() = 0;
};

} // namespace tarvin
