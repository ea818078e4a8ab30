#include "tapd/main/Options.h"

#include "tapd/protocol/Frames.h"

#include <charconv>
#include <string_view>

namespace tarvin::tapd {

std::optional<Options> parseOptions(std::span<char* const> arguments)
{
    Options options{.socketPath = defaultSocketPath, .user = std::nullopt};
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        const bool hasValue = i + 1 < arguments.size();
        if (argument == "--help") {
            options.isHelpWanted = true;
        } else if (argument == "--version") {
            options.isVersionWanted = true;
        } else if (argument == "--socket" && hasValue) {
            options.socketPath = arguments[++i];
        } else if (argument == "--user" && hasValue) {
            const std::string_view digits = arguments[++i];
            uid_t user = 0;
            const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), user);
            if (error != std::errc() || end != digits.data() + digits.size())
                return std::nullopt;
            options.user = user;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

} // namespace tarvin::tapd
