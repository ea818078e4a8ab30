#pragma once

#include <QString>
#include <QStringList>

namespace tarvin::desktop {

/// The words of an `Exec` value (escapes of the string type already resolved): quotes and the backslashes in them are
/// taken away, field codes such as `%U` are dropped and `%%` is a percent sign.
[[nodiscard]] QStringList splitExecLine(const QString& exec);

/// One argument as an `Exec` line wants it: in double quotes with a backslash before `"`, `` ` ``, `$` and `\`, percent
/// signs doubled. A plain word stays as it is.
[[nodiscard]] QString quotedExecArgument(const QString& argument);

} // namespace tarvin::desktop
