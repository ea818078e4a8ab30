#pragma once

#include <QString>

#include <optional>

namespace tarvin {

/// The address that is meant by what the user wrote: over https unless it says http or https itself, whatever other
/// scheme it has; the default address for nothing or blanks. Nothing for a text that makes no address.
[[nodiscard]] std::optional<QString> webAddress(const std::optional<QString>& written);

/// The page of the web assistant, with a question if there is one.
[[nodiscard]] QString assistantAddress(const QString& question);

} // namespace tarvin
