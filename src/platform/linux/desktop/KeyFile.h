#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <functional>

namespace tarvin::desktop {

/// One line `Key=value` of a file in the format of desktop entries, with the group it stands in. All three views end
/// with the call that gives them.
struct KeyFileLine
{
    QByteArrayView group;
    QByteArrayView key; ///< with its locale in brackets, if it has one
    QByteArrayView value; ///< as it stands, escapes included
};

/// Reads a file of groups and keys (desktop entries, `mimeapps.list`) line by line, without a copy. Comments, blank
/// lines and lines that are no entry are passed over. The visitor answers false to stop.
void readKeyFile(QByteArrayView content, const std::function<bool(const KeyFileLine&)>& visit);

/// A value of type string with its escapes resolved: `\s`, `\n`, `\t`, `\r` and `\\`.
[[nodiscard]] QString unescapedValue(QByteArrayView value);

/// The opposite, for writing.
[[nodiscard]] QString escapedValue(const QString& value);

/// A value of type list: parts end with a semicolon, `\;` is a semicolon within a part, empty parts are dropped.
[[nodiscard]] QStringList listValue(QByteArrayView value);

} // namespace tarvin::desktop
