#include "model/ActionSearch.h"
#include "studio/applications/ApplicationSearch.h"

#include <benchmark/benchmark.h>

// What one keystroke in a search field of the Studio costs, by the length of the list and the text typed so far.

namespace tarvin {

namespace {

QList<InstalledApplication> applications(int count)
{
    const QStringList words{QStringLiteral("Visual"), QStringLiteral("Studio"), QStringLiteral("Terminal"),
        QStringLiteral("Café"), QStringLiteral("Music"), QStringLiteral("Editor"), QStringLiteral("System Monitor")};
    QList<InstalledApplication> list;
    for (int number = 0; number < count; ++number) {
        const QString name = QStringLiteral("%1 %2 %3").arg(words[number % 7], words[(number / 7) % 7]).arg(number);
        list.append({.name = name,
            .bundleIdentifier = QStringLiteral("org.example.vendor%1.Application%2").arg(number % 50).arg(number),
            .path = QStringLiteral("/usr/share/applications/%1.desktop").arg(number),
            .icon = QStringLiteral("icon%1").arg(number)});
    }
    return list;
}

/// Texts that find nearly all, some, and none of the list.
const QStringList& typed()
{
    static const QStringList texts{QStringLiteral("e"), QStringLiteral("stud"), QStringLiteral("no such application")};
    return texts;
}

void rankedApplications(benchmark::State& state)
{
    const ApplicationSearch search(applications(static_cast<int>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(search.ranked(typed()[state.range(1)]));
}

void containingApplications(benchmark::State& state)
{
    const ApplicationSearch search(applications(static_cast<int>(state.range(0))));
    for (auto _ : state)
        benchmark::DoNotOptimize(search.containing(typed()[state.range(1)]));
}

void rankedActions(benchmark::State& state)
{
    const QStringList texts{QStringLiteral("m"), QStringLiteral("mute"), QStringLiteral("turn the display off now")};
    for (auto _ : state)
        benchmark::DoNotOptimize(searchActions(texts[state.range(0)]));
}

BENCHMARK(rankedApplications)->ArgNames({"applications", "text"})->ArgsProduct({{200, 2000}, {0, 1, 2}});
BENCHMARK(containingApplications)->ArgNames({"applications", "text"})->ArgsProduct({{200, 2000}, {0, 1, 2}});
BENCHMARK(rankedActions)->ArgName("text")->DenseRange(0, 2);

} // namespace

} // namespace tarvin

BENCHMARK_MAIN();
