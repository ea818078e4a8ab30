#pragma once

#include "platform/linux/services/AnswerWatch.h"
#include "platform/linux/services/Buses.h"
#include "platform/ports/DisplayBrightness.h"
#include "platform/ports/Scheduler.h"

namespace tarvin::services {

/// The light behind the built-in display: read from the kernel's files, changed by the login manager, which lets the
/// user of the session do so without a password.
class Backlight : public DisplayBrightness
{
public:
    enum class Step { down, up };

    /// @param folder with a folder for each light, as the kernel has it
    Backlight(Scheduler& scheduler, Buses::Provider systemBus, AnswerWatch& answers, TellUser tellUser,
        QString folder = defaultFolder());

    [[nodiscard]] static QString defaultFolder();

    [[nodiscard]] std::optional<double> current() const override;

    /// A sixteenth of the full brightness. The last step down leaves enough to see by. Happens on a later turn, so what
    /// `current` tells in this one is the brightness before. Main thread.
    void change(Step step);

private:
    struct Light
    {
        QString name;
        unsigned level = 0;
        unsigned full = 0;
    };

    [[nodiscard]] std::optional<Light> light() const;
    void changeNow(Step step);

    Scheduler& m_scheduler;
    Buses::Provider m_systemBus;
    AnswerWatch& m_answers;
    TellUser m_tellUser;
    const QString m_folder;
};

/// The level one step away; pure, for tests.
[[nodiscard]] unsigned steppedLevel(unsigned level, unsigned full, Backlight::Step step);

} // namespace tarvin::services
