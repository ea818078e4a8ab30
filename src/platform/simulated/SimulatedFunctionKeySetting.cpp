#include "platform/simulated/SimulatedFunctionKeySetting.h"

namespace tarvin::simulated {

namespace {

QString settingKey()
{
    return QStringLiteral("com.apple.keyboard.fnState");
}

} // namespace

ToolOutcome SimulatedFunctionKeySetting::readByTool()
{
    launch({QStringLiteral("read"), QStringLiteral("-g"), settingKey()});
    return {m_launchError, m_launchError ? QByteArray() : m_storedText};
}

ToolOutcome SimulatedFunctionKeySetting::writeByTool(bool dedicated)
{
    const QString word = dedicated ? QStringLiteral("true") : QStringLiteral("false");
    launch({QStringLiteral("write"), QStringLiteral("-g"), settingKey(), QStringLiteral("-bool"), word});
    if (!m_launchError)
        m_storedText = dedicated ? "1\n" : "0\n";
    return {m_launchError, {}};
}

void SimulatedFunctionKeySetting::setPreferenceValue(bool dedicated)
{
    m_log.expectMainThread("FunctionKeySetting::setPreferenceValue");
    m_storedText = dedicated ? "1\n" : "0\n";
    m_log.record(SystemPreferenceSet{settingKey(), dedicated});
}

void SimulatedFunctionKeySetting::synchronizePreference()
{
    m_log.expectMainThread("FunctionKeySetting::synchronizePreference");
    m_log.record(SystemPreferenceSynchronized{});
}

void SimulatedFunctionKeySetting::announceChange()
{
    m_log.expectMainThread("FunctionKeySetting::announceChange");
    m_log.record(ChangeAnnounced{QStringLiteral("com.apple.keyboard.fnStateChanged")});
}

void SimulatedFunctionKeySetting::launch(const QStringList& arguments)
{
    m_log.expectMainThread("FunctionKeySetting, the tool");
    m_log.record(ToolLaunched{QStringLiteral("/usr/bin/defaults"), arguments, m_launchError});
}

} // namespace tarvin::simulated
