#include "app/simulate/Simulation.h"

#include "app/simulate/OutputWriter.h"
#include "app/simulate/Program.h"
#include "app/simulate/ScenarioReader.h"
#include "app/simulate/Stage.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace tarvin::simulate {

namespace {

/// One play: the desktop, the program on it and what is written down of both.
class Play
{
public:
    /// Runs the lines to the end, or to the first that cannot be carried out.
    /// @return the line and what was wrong with it
    std::optional<std::pair<int, QString>> run(const std::vector<ScenarioLine>& lines)
    {
        for (const ScenarioLine& line : lines) {
            if (line.needsProgram)
                startProgram();
            m_platform.scheduler().advanceTo(line.at);
            if (m_platform.appShell().isTerminated())
                return std::pair(line.number, u"the program has ended; expected nothing more"_qs);
            if (const Problem problem = perform(line.instruction))
                return std::pair(line.number, *problem);
            m_platform.scheduler().runPosted();
        }
        startProgram();
        if (lines.empty() || !std::holds_alternative<EndRun>(lines.back().instruction))
            letThingsHappen();
        m_output.collect(m_platform.effects());
        return std::nullopt;
    }

    [[nodiscard]] const QByteArray& output() const { return m_output.text(); }

private:
    void startProgram()
    {
        if (m_started)
            return;
        m_started = true;
        m_program.start();
        m_platform.scheduler().runPosted();
    }

    Problem perform(const Instruction& instruction)
    {
        return std::visit(
            [this](const auto& kind) -> Problem {
                if constexpr (requires { m_stage.apply(kind); })
                    return m_stage.apply(kind);
                else if constexpr (requires { m_program.apply(kind); })
                    return m_program.apply(kind);
                else
                    return direct(kind);
            },
            instruction);
    }

    Problem direct(const SelectOutput& selected)
    {
        m_output.collect(m_platform.effects());
        m_output.select(selected.kinds);
        return std::nullopt;
    }
    // Their work is done by their place in the scenario.
    static Problem direct(const StartProgram&) { return std::nullopt; }
    static Problem direct(const EndRun&) { return std::nullopt; }

    void letThingsHappen()
    {
        simulated::SimulatedScheduler& scheduler = m_platform.scheduler();
        const simulated::VirtualTime latest = scheduler.virtualTime() + longestAftermath;
        while (!m_platform.appShell().isTerminated()) {
            const std::optional<simulated::VirtualTime> next = scheduler.nextDueOnce();
            if (!next || *next > latest)
                break;
            scheduler.advanceTo(*next);
        }
    }

    simulated::SimulatedPlatform m_platform;
    OutputWriter m_output{m_platform.files().applicationSupportDirectory() + u"/runtime.log"_qs};
    Stage m_stage{m_platform};
    Program m_program{m_platform};
    bool m_started = false;
};

} // namespace

SimulationResult simulate(const QString& name, const QByteArray& text)
{
    const Scenario scenario = readScenario(name, text);
    if (!scenario.errors.isEmpty())
        return {.errors = scenario.errors};
    Play play;
    if (const auto problem = play.run(scenario.lines))
        return {.errors = {errorAt(name, problem->first, problem->second)}};
    return {.output = play.output()};
}

} // namespace tarvin::simulate
