// tarvin-press [--device NAME] STEP...: presses keys on the display of the environment, as if by hand.
//
// A step is +KEY (down), -KEY (up) or a pause such as 40ms. KEY is a name of the key code table: f5, a, rightOption.
// The device is the keyboard of Xvfb if none is named.

#include "endtoend/support/PhysicalKeyboard.h"
#include "platform/keycodes/KeyCodeTable.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <variant>
#include <vector>

namespace {

using tarvin::endtoend::PhysicalKeyboard;
using Pause = std::chrono::milliseconds;
using Step = std::variant<Pause, PhysicalKeyboard::Step>;

Step readStep(std::string_view text)
{
    if (text.starts_with('+') || text.starts_with('-')) {
        const auto row = std::ranges::find(tarvin::keyCodeTable, text.substr(1), &tarvin::KeyCodeRow::name);
        if (row == tarvin::keyCodeTable.end() || !tarvin::xKeycodeOf(*row))
            throw std::invalid_argument("no such key: " + std::string(text));
        return text.front() == '+' ? tarvin::endtoend::down(row->evdevCode) : tarvin::endtoend::up(row->evdevCode);
    }
    Pause::rep count = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, failure] = std::from_chars(text.data(), end, count);
    if (failure != std::errc() || std::string_view(rest, end) != "ms")
        throw std::invalid_argument("no such step: " + std::string(text));
    return Pause(count);
}

void play(std::vector<std::string_view> arguments)
{
    std::string device = "Xvfb keyboard";
    if (arguments.size() >= 2 && arguments.front() == "--device") {
        device = arguments[1];
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    std::vector<Step> steps;
    std::ranges::transform(arguments, std::back_inserter(steps), readStep);

    const char* const display = std::getenv("DISPLAY");
    PhysicalKeyboard keyboard(display != nullptr ? display : "", device);
    for (const Step& step : steps) {
        if (const auto* const pause = std::get_if<Pause>(&step))
            std::this_thread::sleep_for(*pause);
        else
            keyboard.play({std::get<PhysicalKeyboard::Step>(step)});
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    try {
        play({arguments + 1, arguments + argumentCount});
        return EXIT_SUCCESS;
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "tarvin-press: %s\n", problem.what());
        return EXIT_FAILURE;
    }
}
