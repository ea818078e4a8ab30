#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "profiles/MappingFile.h"
#include "support/AllocationCounter.h"

#include <benchmark/benchmark.h>

#include <memory>

// What the decision about one key costs, by the number of customised keys and of profiles. Each figure stands beside
// the number of allocations of one query; for `runtimeCustomConfig` with a known front application that has to be 0.

namespace tarvin {

namespace {

/// The front application is that of the last profile, which a search from the start would find last.
class Desktop
{
public:
    Desktop(int mappedKeys, int profileCount)
    {
        KeyMappings mappings;
        for (int order = 0; order < mappedKeys; ++order)
            mappings.emplace(allFKeys[static_cast<std::size_t>(order)], record());
        ProfileMappings stored{{AppProfile::global().id, mappings}};
        for (int number = 1; number < profileCount; ++number)
            stored.emplace(identifier(number), mappings);

        simulated::SimulatedFiles& files = m_platform.files();
        files.stage(
            files.applicationSupportDirectory() + QStringLiteral("/profiles_mappings.json"), encodeMappings(stored));
        m_profile = std::make_unique<KeyProfile>(files, m_platform.preferences(), m_platform.workspace(),
            m_platform.console(), m_platform.uuids(), [](KeyAction) {});
        for (int number = 1; number < profileCount; ++number)
            m_profile->addAppProfile(identifier(number), identifier(number), QStringLiteral("app.fill"));
        m_last = identifier(profileCount - 1);
    }

    void bringToFront(const QString& bundleIdentifier)
    {
        RunningApplication application;
        application.processIdentifier = 100;
        application.bundleIdentifiers = QStringList{bundleIdentifier};
        m_platform.workspace().announceActivation(application);
    }
    [[nodiscard]] KeyProfile& profile() { return *m_profile; }
    [[nodiscard]] const QString& lastIdentifier() const { return m_last; }

    [[nodiscard]] static ConfiguredAction record()
    {
        ConfiguredAction record(KeyAction::textSnippet);
        record.textSnippet = QStringLiteral("typed by a key");
        return record;
    }

private:
    [[nodiscard]] static QString identifier(int number)
    {
        return QStringLiteral("com.example.application%1").arg(number);
    }

    simulated::SimulatedPlatform m_platform;
    std::unique_ptr<KeyProfile> m_profile;
    QString m_last;
};

/// Runs the body for the measured time and reports how often it allocated each time.
template <typename Body> void measure(benchmark::State& state, const Body& body)
{
    std::uint64_t allocations = 0;
    for (auto _ : state) {
        const std::uint64_t before = allocationCount();
        body();
        allocations += allocationCount() - before;
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocations), benchmark::Counter::kAvgIterations);
}

void queryOfAKnownFront(benchmark::State& state)
{
    Desktop desktop(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    desktop.bringToFront(desktop.lastIdentifier());
    const KeyProfile& profile = desktop.profile();
    std::size_t order = 0;
    measure(state, [&] {
        benchmark::DoNotOptimize(profile.runtimeCustomConfig(allFKeys[order]));
        order = order + 1 == fKeyCount ? 0 : order + 1;
    });
}

void queryOfAnUnknownFront(benchmark::State& state)
{
    Desktop desktop(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const KeyProfile& profile = desktop.profile();
    measure(state, [&] { benchmark::DoNotOptimize(profile.runtimeCustomConfig(FKey::f1)); });
}

void changeOfTheFrontApplication(benchmark::State& state)
{
    Desktop desktop(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    bool isLast = false;
    measure(state, [&] {
        isLast = !isLast;
        desktop.bringToFront(isLast ? desktop.lastIdentifier() : QStringLiteral("com.example.unlisted"));
    });
}

void grid(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"keys", "profiles"})->ArgsProduct({{1, 24}, {1, 10, 1000}});
}

BENCHMARK(queryOfAKnownFront)->Apply(grid);
BENCHMARK(queryOfAnUnknownFront)->Apply(grid);
BENCHMARK(changeOfTheFrontApplication)->Apply(grid);

} // namespace

} // namespace tarvin

BENCHMARK_MAIN();
