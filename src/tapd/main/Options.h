#pragma once

#include <sys/types.h>

#include <optional>
#include <span>
#include <string>

namespace tarvin::tapd {

/// What the command line says.
struct Options
{
    std::string socketPath;
    std::optional<uid_t> user; ///< who counts as the user of the seat
    bool isHelpWanted = false;
    bool isVersionWanted = false;
};

inline constexpr const char* usage = R"(Usage: tarvin-tapd [--socket PATH] [--user UID]

Takes the keys that Tarvin customises from the keyboards of this machine and gives all others to the system.

  --socket PATH  where Tarvin is waited for, unless the service manager says it (/run/tarvin/tapd.sock)
  --user UID     serves this user, instead of whoever has the active session of the seat
  --version, --help

Backspace, Escape and Enter held together for half a second give the keyboards back.
)";

/// Empty for a command line that makes no sense.
[[nodiscard]] std::optional<Options> parseOptions(std::span<char* const> arguments);

} // namespace tarvin::tapd
