// Reads a keyboard and writes what it read to a device of its own: the least that a program in between can do. The
// daemon is measured against it.
//
//   vm-bare-loop /dev/input/eventN

#include <fcntl.h>
#include <linux/input.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2)
        return 2;
    const int keyboard = open(arguments[1], O_RDWR | O_CLOEXEC);
    const int output = open("/dev/uinput", O_RDWR | O_CLOEXEC);
    int clock = CLOCK_MONOTONIC;
    if (keyboard < 0 || output < 0 || ioctl(keyboard, EVIOCSCLOCKID, &clock) != 0)
        return 1;
    for (const int type : {EV_KEY, EV_MSC})
        ioctl(output, UI_SET_EVBIT, type);
    constexpr int lastKey = 248;
    for (int code = KEY_ESC; code < lastKey; ++code)
        ioctl(output, UI_SET_KEYBIT, code);
    ioctl(output, UI_SET_MSCBIT, MSC_SCAN);
    uinput_setup setup{};
    setup.id.bustype = BUS_USB;
    std::strcpy(setup.name, "Bare loop");
    if (ioctl(output, UI_DEV_SETUP, &setup) != 0 || ioctl(output, UI_DEV_CREATE) != 0
        || ioctl(keyboard, EVIOCGRAB, 1) != 0)
        return 1;
    std::array<input_event, 64> events{};
    for (;;) {
        const ssize_t size = read(keyboard, events.data(), sizeof events);
        if (size <= 0 || write(output, events.data(), static_cast<std::size_t>(size)) != size)
            return 1;
    }
}
