#pragma once

#include "platform/ports/Console.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

class SimulatedConsole final : public Console
{
public:
    explicit SimulatedConsole(EffectLog& log)
        : m_log(log)
    { }

    void printLine(const QString& line) override { m_log.record(ConsoleLine{line}); }

private:
    EffectLog& m_log;
};

} // namespace tarvin::simulated
