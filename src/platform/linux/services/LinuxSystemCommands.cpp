#include "platform/linux/services/LinuxSystemCommands.h"

#include "platform/linux/services/LoginManager.h"
#include "platform/linux/services/ScreenSaver.h"

namespace tarvin::services {

namespace {

const QString sleepName = QStringLiteral("Sleep");

} // namespace

LinuxSystemCommands::LinuxSystemCommands(
    Buses::Provider systemBus, AnswerWatch& answers, TellUser tellUser, ScreenSaver& screenSaver, Capture capture)
    : m_systemBus(std::move(systemBus))
    , m_answers(answers)
    , m_tellUser(std::move(tellUser))
    , m_screenSaver(screenSaver)
    , m_capture(std::move(capture))
{ }

void LinuxSystemCommands::run(const SystemCommand& command)
{
    struct Performer
    {
        const LinuxSystemCommands& commands;
        void operator()(const SleepNow&) const { commands.sleep(); }
        void operator()(const DisplaySleepNow&) const { commands.m_screenSaver.blankDisplays(); }
        void operator()(const RequestPowerEvent&) const { }
        void operator()(const CaptureScreen& wish) const { commands.m_capture(wish); }
    };
    std::visit(Performer{*this}, command);
}

void LinuxSystemCommands::sleep() const
{
    const QDBusConnection bus = m_systemBus();
    if (!bus.isConnected()) {
        m_tellUser(notAvailable(sleepName));
        return;
    }
    // The argument lets the user be asked for a password where that is needed.
    m_answers.tellOfRefusal(
        bus.asyncCall(callOf(loginManager, u"Suspend", {true}), longestAnswerMilliseconds), sleepName);
}

} // namespace tarvin::services
