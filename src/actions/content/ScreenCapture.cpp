#include "actions/content/ScreenCapture.h"

#include "platform/ports/Scheduler.h"
#include "platform/ports/SystemCommands.h"
#include "platform/ports/UserEnvironment.h"

#include <QDateTime>

#include <chrono>

namespace tarvin {

ScreenCapture::ScreenCapture(SystemCommands& commands, const UserEnvironment& user, Scheduler& scheduler)
    : m_commands(commands)
    , m_user(user)
    , m_scheduler(scheduler)
{ }

void ScreenCapture::executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination)
{
    CaptureScreen command{.mode = mode, .file = std::nullopt};
    switch (destination) {
    case ScreenCaptureDestination::clipboard:
        break;
    case ScreenCaptureDestination::file:
        command.file = pathForNow();
        break;
    }
    m_scheduler.runInBackground(
        BackgroundQueue::userInitiated, [&commands = m_commands, command] { commands.run(command); });
}

QString ScreenCapture::pathForNow() const
{
    const Scheduler::WallClock now = m_scheduler.now();
    const auto local = now.time_since_epoch() + m_user.utcOffset(now);
    const auto milliseconds = std::chrono::floor<std::chrono::milliseconds>(local);
    const QString date =
        QDateTime::fromMSecsSinceEpoch(milliseconds.count(), Qt::UTC).toString(u"yyyy-MM-dd 'at' HH.mm.ss"_qs);
    return u"%1/Screen Shot %2.png"_qs.arg(m_user.desktopDirectory(), date);
}

} // namespace tarvin
