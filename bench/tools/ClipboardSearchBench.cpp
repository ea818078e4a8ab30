#include "tools/clipboard/ClipboardSearch.h"

#include <benchmark/benchmark.h>

// What one keystroke in the search field of the clipboard panel costs: the search through a full history of long texts,
// of which none holds what is searched, so that every text is read to its end.

namespace tarvin {
namespace {

constexpr int clipCount = 40;
constexpr qsizetype clipLength = 100'000;

QList<ClipboardItem> clipsOf(const QString& sentence)
{
    QList<ClipboardItem> clips;
    for (int number = 0; number < clipCount; ++number) {
        QString text = QString::number(number);
        while (text.size() < clipLength)
            text += sentence;
        clips.append({.id = QUuid::createUuid(), .text = text.first(clipLength), .timestamp = {}});
    }
    return clips;
}

void keystroke(benchmark::State& state, const QString& sentence, const QString& searchText)
{
    const QList<ClipboardItem> clips = clipsOf(sentence);
    ClipboardSearch search;
    search.prepare(clips);
    for (auto _ : state)
        benchmark::DoNotOptimize(search.filteredItems(clips, searchText));
    state.SetLabel(QStringLiteral("%1 × %2 characters").arg(clipCount).arg(clipLength).toStdString());
}

/// What the showing of the panel does ahead of the first keystroke.
void preparation(benchmark::State& state, const QString& sentence)
{
    const QList<ClipboardItem> clips = clipsOf(sentence);
    for (auto _ : state) {
        ClipboardSearch search;
        search.prepare(clips);
    }
}

const QString english = QStringLiteral("The quick brown fox jumps over the lazy dog; ");
const QString german = QStringLiteral("Zwölf Boxkämpfer jagen Viktor quer über den großen Deich; ");

BENCHMARK_CAPTURE(keystroke, commonLetterFirst, english, QStringLiteral("exx"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, rareLetterFirst, english, QStringLiteral("Zebra crossing"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keystroke, accents, german, QStringLiteral("übermorgen"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(preparation, english, english)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(preparation, accents, german)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tarvin

BENCHMARK_MAIN();
