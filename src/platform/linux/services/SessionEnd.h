#pragma once

#include "platform/linux/services/AnswerWatch.h"
#include "platform/linux/services/Buses.h"
#include "platform/ports/SystemCommands.h"

namespace tarvin::services {

/// The end of the session with a restart or with the machine's end. The desktop's session manager is asked, which lets
/// applications save first; where there is none, the login manager.
class SessionEnd : public LoginWindow
{
public:
    SessionEnd(Buses buses, AnswerWatch& answers, TellUser tellUser);

    void send(PowerEvent event) override;

private:
    enum class Outcome { taken, refused, nobodyThere };
    [[nodiscard]] Outcome askSessionManager(PowerEvent event) const;

    Buses m_buses;
    AnswerWatch& m_answers;
    TellUser m_tellUser;
};

} // namespace tarvin::services
