#pragma once

#include <QString>
#include <QStringView>

namespace tarvin {

/// The number of characters as a reader counts them: a letter with its accents, a flag or a
/// family emoji is one.
[[nodiscard]] qsizetype userPerceivedLength(QStringView text);

/// The first @p count characters as a reader counts them, or all of @p text if it has no more.
[[nodiscard]] QStringView firstUserPerceived(QStringView text, qsizetype count);

/// @p text as it stands if it has no more than @p whole characters as a reader counts them,
/// otherwise its first @p kept and three dots.
[[nodiscard]] QString cutText(QStringView text, qsizetype whole, qsizetype kept);

} // namespace tarvin
