#pragma once

#include "platform/ports/Files.h"
#include "platform/posix/FileCalls.h"

namespace tarvin::posix {

/// The failure that errno names now.
[[nodiscard]] FileError lastFileError();

/// Replaces the content of the file, or creates it, mode 0600 in both cases. Any thread.
///
/// The content goes to a temporary file in the same folder, on the disk first, which then takes the file's name. So the
/// path holds the old content or the new one, whole, wherever the process or the machine stops. A failure leaves the
/// old content and no temporary file; a machine that stops can leave one behind, hidden.
///
/// A symbolic link stays a link: the file it leads to is replaced, or created, in the folder of that file.
[[nodiscard]] std::optional<FileError> writeFileAtomically(
    FileCalls& calls, const QString& path, const QByteArray& content);

} // namespace tarvin::posix
