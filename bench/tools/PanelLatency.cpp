// How long it takes from the press of a key until a place on the screen looks different:
// panel_latency KEYCODE X Y. Prints milliseconds, or nothing if nothing changes within two seconds. The key is pressed
// on the physical-like keyboard of the server that DISPLAY names, and released again.

#include "endtoend/support/PhysicalKeyboard.h"
#include "endtoend/support/XClient.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

using namespace tarvin::endtoend;
using Clock = std::chrono::steady_clock;

std::uint32_t pixelAt(const XClient& client, std::int16_t x, std::int16_t y)
{
    const XOwned<xcb_get_image_reply_t> image(xcb_get_image_reply(
        client.get(), xcb_get_image(client.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, client.root(), x, y, 1, 1, ~0U), nullptr));
    return image ? *reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get())) : 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 4)
        return 2;
    const char* const display = std::getenv("DISPLAY");
    const XClient client(display != nullptr ? display : "");
    const auto x = static_cast<std::int16_t>(std::atoi(arguments[2]));
    const auto y = static_cast<std::int16_t>(std::atoi(arguments[3]));
    PhysicalKeyboard keyboard(display != nullptr ? display : "", "Xvfb keyboard");
    const std::uint32_t before = pixelAt(client, x, y);
    const auto begin = Clock::now();
    keyboard.press(static_cast<std::uint16_t>(std::atoi(arguments[1])));
    while (Clock::now() - begin < std::chrono::seconds(2)) {
        if (pixelAt(client, x, y) != before) {
            std::printf("%.1f\n", std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
            break;
        }
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    keyboard.release(static_cast<std::uint16_t>(std::atoi(arguments[1])));
}
