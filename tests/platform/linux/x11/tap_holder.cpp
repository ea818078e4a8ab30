// Holds a session tap on the given keys and prints what it sees, until it is ended from outside.
// Arguments: the display, then the stored names of the keys.

#include "endtoend/support/MainQueue.h"
#include "model/FKey.h"
#include "platform/linux/x11/EventText.h"
#include "platform/linux/x11/InputThread.h"
#include "platform/linux/x11/X11InputTaps.h"

#include <cstdio>

int main(int argumentCount, char** arguments)
{
    using namespace tarvin;
    if (argumentCount < 3)
        return 2;
    endtoend::MainQueue queue;
    x11::InputThread thread(queue, arguments[1], [](const QString&) {});
    x11::X11InputTaps taps(thread);
    FKeySet keys;
    for (int index = 2; index < argumentCount; ++index) {
        if (const auto key = fKeyFromRawValue(QString::fromUtf8(arguments[index])))
            keys.insert(*key);
    }
    const auto tap = taps.createTap(TapLocation::session, [](const InputEvent& event) {
        std::puts(x11::textOf(event).c_str());
        std::fflush(stdout);
        return EventVerdict::consume;
    });
    if (!tap)
        return 1;
    tap->attachToMainLoop();
    tap->enable();
    taps.publishConsumedKeys(keys, SummonShortcut::released);
    thread.settle();
    std::puts("ready");
    std::fflush(stdout);
    constexpr std::chrono::hours forever{1};
    queue.runFor(forever);
}
