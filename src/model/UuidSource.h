#pragma once

#include <QString>
#include <QStringView>
#include <QUuid>

#include <functional>
#include <optional>

namespace tarvin {

/// Where fresh identities come from. A simulation hands in its own, so that a run can be repeated.
using UuidSource = std::function<QUuid()>;

/// The stored form: 8-4-4-4-12 hexadecimal digits in upper case, without braces.
[[nodiscard]] QString uuidText(const QUuid& id);

/// Accepts exactly the 8-4-4-4-12 form, in either case; absent for anything else.
[[nodiscard]] std::optional<QUuid> uuidFromText(QStringView text);

} // namespace tarvin
