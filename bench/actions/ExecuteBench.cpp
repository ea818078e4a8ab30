#include "actions/support/FullRecord.h"
#include "actions/support/PerformingDesktop.h"
#include "actions/usage/ActionUsageTracker.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

// How long each action holds the thread that calls `execute`, which is the time that a key press waits. The desktop is
// simulated, so this is the program's own share; what it starts runs later and is not counted. Beside the mean stands
// the time that 99 of 100 calls keep to; the rest is whatever else the machine does.

namespace tarvin {

namespace {

using namespace std::chrono_literals;

void execute(benchmark::State& state, KeyAction action)
{
    test::PerformingDesktop desktop;
    ActionUsageTracker usage(
        desktop.ports.files, desktop.ports.preferences, desktop.ports.console, desktop.ports.scheduler);
    // As in a program that has been used for long.
    for (const KeyAction used : allKeyActions)
        usage.recordUsage(used);
    const ConfiguredAction record = test::fullRecord(action);
    std::vector<double> times;
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        usage.recordUsage(action);
        desktop.actions.executor.execute(record);
        const std::chrono::duration<double> held = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(held.count());
        times.push_back(held.count());
        desktop.platform.scheduler().advance(10s);
        desktop.platform.effects().clear();
    }
    const auto place = times.begin() + static_cast<std::ptrdiff_t>(times.size() * 99 / 100);
    std::nth_element(times.begin(), place, times.end());
    state.counters["p99_us"] = *place * 1e6;
}

} // namespace

} // namespace tarvin

int main(int argumentCount, char** arguments)
{
    for (const tarvin::KeyAction action : tarvin::allKeyActions) {
        benchmark::RegisterBenchmark(tarvin::rawValue(action).toString().toUtf8().constData(), tarvin::execute, action)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
