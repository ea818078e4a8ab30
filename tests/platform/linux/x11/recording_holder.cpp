// Holds the keyboard of the given display as a recorder does and prints what it gets, until it is ended from outside.

#include "endtoend/support/MainQueue.h"
#include "platform/linux/x11/InputThread.h"
#include "platform/linux/x11/X11KeyRecording.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argumentCount, char** arguments)
{
    using namespace tarvin;
    if (argumentCount != 2)
        return 2;
    const QCoreApplication application(argumentCount, arguments);
    endtoend::MainQueue queue;
    x11::InputThread thread(queue, arguments[1], [](const QString&) {});
    x11::X11KeyRecording recording(thread, arguments[1]);
    const auto session = recording.start(
        [](const PressedKey& key) {
            std::printf("%d:%s\n", key.keyCode, qUtf8Printable(key.characters));
            std::fflush(stdout);
            return RecordingVerdict::swallow;
        },
        [] {});
    if (!session)
        return 1;
    thread.settle();
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
