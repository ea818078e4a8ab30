#pragma once

#include "platform/simulated/ActionEffects.h"
#include "platform/simulated/JsonLine.h"

namespace tarvin::simulated {

// What each effect of an action is called.

[[nodiscard]] inline QStringView nameOf(const SystemKeyPosted&)
{
    return u"systemKeyPosted";
}
[[nodiscard]] inline QStringView nameOf(const LoginWindowAsked&)
{
    return u"loginWindowEvent";
}
[[nodiscard]] inline QStringView nameOf(const AppleMenuPressed&)
{
    return u"appleMenu";
}
[[nodiscard]] inline QStringView nameOf(const WindowAttributeSet&)
{
    return u"windowAttribute";
}
[[nodiscard]] inline QStringView nameOf(const WindowButtonPressed&)
{
    return u"windowButton";
}
[[nodiscard]] inline QStringView nameOf(const ApplicationOpened&)
{
    return u"applicationOpened";
}
[[nodiscard]] inline QStringView nameOf(const PathOpened&)
{
    return u"pathOpened";
}
[[nodiscard]] inline QStringView nameOf(const ApplicationForceQuit&)
{
    return u"forceTerminate";
}
[[nodiscard]] inline QStringView nameOf(const ProcessKilled&)
{
    return u"kill";
}

// And what its line tells beyond its name.

void addFields(JsonLine& line, const SystemKeyPosted& posted);
void addFields(JsonLine& line, const LoginWindowAsked& asked);
void addFields(JsonLine& line, const AppleMenuPressed& pressed);
void addFields(JsonLine& line, const WindowAttributeSet& set);
void addFields(JsonLine& line, const WindowButtonPressed& pressed);
void addFields(JsonLine& line, const ApplicationOpened& opened);
void addFields(JsonLine& line, const PathOpened& opened);
void addFields(JsonLine& line, const ApplicationForceQuit& quit);
void addFields(JsonLine& line, const ProcessKilled& killed);

} // namespace tarvin::simulated
