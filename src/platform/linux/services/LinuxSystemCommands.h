#pragma once

#include "platform/linux/services/AnswerWatch.h"
#include "platform/linux/services/Buses.h"
#include "platform/ports/SystemCommands.h"

namespace tarvin::services {

class ScreenSaver;

/// The system commands of a Linux desktop. The end of the session is asked for at `SessionEnd`; the command for it is
/// the second road to the same and stays silent.
class LinuxSystemCommands : public SystemCommands
{
public:
    /// Takes a picture of the screen; tells the user itself where it can't.
    using Capture = std::function<void(const CaptureScreen&)>;

    LinuxSystemCommands(
        Buses::Provider systemBus, AnswerWatch& answers, TellUser tellUser, ScreenSaver& screenSaver, Capture capture);

    void run(const SystemCommand& command) override;

private:
    void sleep() const;

    Buses::Provider m_systemBus;
    AnswerWatch& m_answers;
    TellUser m_tellUser;
    ScreenSaver& m_screenSaver;
    Capture m_capture;
};

} // namespace tarvin::services
