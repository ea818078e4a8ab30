#include "interception/EventTapManager.h"
#include "interception/RuntimeLog.h"
#include "interception/TriggerNotice.h"
#include "interception/support/InputEvents.h"
#include "interception/support/Recorders.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "support/AllocationCounter.h"

#include <benchmark/benchmark.h>

// What one keyboard event costs until its verdict, by the number of customised keys and of profiles. The action of a
// key that fires is not part of it.

namespace tarvin::bench {

namespace {

constexpr FKey customisedKey = FKey::f1;

/// The interception with the first keys customised, the same in each of the profiles, and another application in front.
class Router
{
public:
    explicit Router(const benchmark::State& state)
        : m_profile(m_platform.files(), m_platform.preferences(), m_platform.workspace(), m_platform.console(),
            m_platform.uuids(), [](KeyAction) {})
        , m_log(m_platform.files(), m_platform.scheduler())
        , m_notice(m_platform.scheduler())
        , m_manager({m_profile, m_actions, m_studio, m_feedback, m_notice, m_log, m_platform.inputTaps(),
              m_platform.permission(), m_platform.appShell(), m_platform.scheduler()})
    {
        KeyMappings mappings;
        for (std::int64_t key = 0; key < state.range(0); ++key)
            mappings.emplace(allFKeys[static_cast<std::size_t>(key)], ConfiguredAction(KeyAction::copy));
        m_profile.setCurrentMappings(mappings);
        for (std::int64_t number = 1; number < state.range(1); ++number) {
            const QString name = QStringLiteral("org.example.application%1").arg(number);
            m_profile.addAppProfile(name, name, QStringLiteral("app.fill"));
            m_profile.setCurrentMappings(mappings);
        }
        m_platform.workspace().setFrontmost({.processIdentifier = 7,
            .bundleIdentifiers = {QStringLiteral("org.example.application%1").arg(state.range(1) - 1)},
            .localizedName = QStringLiteral("Example")});
    }

    EventTapManager& operator*() { return m_manager; }
    EventTapManager* operator->() { return &m_manager; }
    /// Opens the Studio and gives it the keyboard.
    void showStudio()
    {
        m_studio.visible = true;
        m_platform.appShell().becomeActive();
    }

private:
    class NoActions final : public ActionSink
    {
        void execute(const ConfiguredAction&) override { }
    };
    class NoFeedback final : public KeyFeedback
    {
        void triggerKeyPress(const QString& keyId, PressSound) override { benchmark::DoNotOptimize(keyId.size()); }
        void releaseKey(const QString& keyId) override { benchmark::DoNotOptimize(keyId.size()); }
    };

    simulated::SimulatedPlatform m_platform;
    KeyProfile m_profile;
    NoActions m_actions;
    test::RecordedStudio m_studio;
    NoFeedback m_feedback;
    RuntimeLog m_log;
    TriggerNotice m_notice;
    EventTapManager m_manager;
};

void measure(benchmark::State& state, Router& router, const InputEvent& event)
{
    InputEvent fresh = event;
    const std::uint64_t before = allocationCount();
    for (auto _ : state) {
        benchmark::DoNotOptimize(fresh);
        benchmark::DoNotOptimize(router->handleEvent(fresh));
    }
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocationCount() - before), benchmark::Counter::kAvgIterations);
}

void plainKey(benchmark::State& state)
{
    Router router(state);
    measure(state, router, test::keyDown(test::keyA));
}

/// The key is shown on the drawn keyboard.
void plainKeyInTheStudio(benchmark::State& state)
{
    Router router(state);
    router.showStudio();
    measure(state, router, test::keyDown(test::keyA));
}

void eventOfOurOwn(benchmark::State& state)
{
    Router router(state);
    measure(state, router, test::selfPosted(test::keyDown(customisedKey)));
}

void repeatOfACustomisedKey(benchmark::State& state)
{
    Router router(state);
    measure(state, router, test::keyRepeat(customisedKey));
}

/// The report of a press that another path has told already; virtual time stands still.
void laterReportOfACustomisedKey(benchmark::State& state)
{
    Router router(state);
    router->triggerPhysicalKey(customisedKey, TriggerSource::ioHid);
    measure(state, router, test::keyDown(customisedKey));
}

void releaseOfACustomisedKey(benchmark::State& state)
{
    Router router(state);
    measure(state, router, test::keyUp(customisedKey));
}

void repeatOfACustomisedMediaKey(benchmark::State& state)
{
    Router router(state);
    measure(state, router, test::mediaRepeat(test::mediaBrightnessDown));
}

void keysAndProfiles(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgNames({"keys", "profiles"})->ArgsProduct({{1, 12, 24}, {1, 10, 1000}});
}

} // namespace

BENCHMARK(plainKey)->Apply(keysAndProfiles);
BENCHMARK(plainKeyInTheStudio)->Args({1, 1});
BENCHMARK(eventOfOurOwn)->Args({1, 1});
BENCHMARK(repeatOfACustomisedKey)->Apply(keysAndProfiles);
BENCHMARK(laterReportOfACustomisedKey)->Apply(keysAndProfiles);
BENCHMARK(releaseOfACustomisedKey)->Args({24, 10});
BENCHMARK(repeatOfACustomisedMediaKey)->Args({24, 10});

} // namespace tarvin::bench

BENCHMARK_MAIN();
