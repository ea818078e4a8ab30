// What the sheet with the installed applications costs when there are 2,000 of them: a keystroke in its search field
// with all that is painted anew, a step of scrolling, and how soon the sheet is there. Drawn into memory.

#include "app/core/NoToolPanelWindows.h"
#include "app/core/SharedObjects.h"
#include "app/core/StudioEditing.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "studio/applications/view/AddAppSheet.h"
#include "studio/applications/view/ApplicationIcons.h"
#include "studio/applications/view/ApplicationListView.h"
#include "ui/InterfaceStyle.h"
#include "ui/Sheet.h"

#include <QApplication>
#include <QImage>
#include <QScrollBar>

#include <benchmark/benchmark.h>

namespace {

using namespace tarvin;

constexpr int applicationCount = 2000;

/// A sheet over a window, with every icon that it asks for.
class Presentation
{
public:
    Presentation()
    {
        const QStringList words{QStringLiteral("Visual"), QStringLiteral("Studio"), QStringLiteral("Terminal"),
            QStringLiteral("Café"), QStringLiteral("Music"), QStringLiteral("Editor"), QStringLiteral("Monitor")};
        for (int number = 0; number < applicationCount; ++number) {
            const QString name = QStringLiteral("%1 %2 %3").arg(words[number % 7], words[(number / 7) % 7]).arg(number);
            m_platform.applicationFolders().install(ApplicationFolder::applications,
                {.path = QStringLiteral("/Applications/%1.app").arg(number),
                    .bundleIdentifier = QStringLiteral("org.example.application%1").arg(number),
                    .displayName = name,
                    .icon = QStringLiteral("icon%1").arg(number % 40)});
        }
        m_window.resize(700, 600);
    }

    AddAppSheet& present()
    {
        const Sheet* const sheet = Sheet::present(m_window, [this](Sheet::Close close) {
            return new AddAppSheet(m_editing.addApplication(std::move(close)), m_icons);
        });
        return dynamic_cast<AddAppSheet&>(sheet->panel());
    }
    void finishScan() { m_platform.scheduler().runPosted(); }
    void takeAway() { delete Sheet::over(m_window); }

private:
    simulated::SimulatedPlatform m_platform;
    NoToolPanelWindows m_panels;
    SharedObjects m_objects{m_platform.ports(), m_panels};
    StudioEditing m_editing{m_platform.ports(), m_objects};
    ApplicationIcons m_icons{m_platform.scheduler(), [](const QString& /*icon*/, int pixels) {
                                 QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
                                 image.fill(Qt::darkCyan);
                                 return image;
                             }};
    QWidget m_window;
};

QImage canvas(const QWidget& widget, int scale)
{
    QImage image(widget.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    return image;
}

/// @param state scale, and which text is typed: one that finds nearly all, some, or none
void keystroke(benchmark::State& state)
{
    const QStringList texts{QStringLiteral("e"), QStringLiteral("stud"), QStringLiteral("no such application")};
    Presentation presentation;
    AddAppSheet& sheet = presentation.present();
    presentation.finishScan();
    QImage image = canvas(sheet, static_cast<int>(state.range(0)));
    sheet.render(&image);
    presentation.finishScan(); // the icons too
    const QString text = texts[state.range(1)];
    for ([[maybe_unused]] auto _ : state) {
        sheet.searchField().setText(text);
        sheet.render(&image);
        state.PauseTiming();
        sheet.searchField().clear();
        sheet.render(&image);
        state.ResumeTiming();
    }
}
BENCHMARK(keystroke)->ArgNames({"scale", "text"})->ArgsProduct({{1, 2}, {0, 1, 2}})->Unit(benchmark::kMillisecond);

/// One step of the wheel: all rows that show are painted.
void scrollStep(benchmark::State& state)
{
    Presentation presentation;
    AddAppSheet& sheet = presentation.present();
    presentation.finishScan();
    ApplicationListView& list = sheet.list();
    QImage image = canvas(list, static_cast<int>(state.range(0)));
    list.render(&image);
    presentation.finishScan();
    for ([[maybe_unused]] auto _ : state) {
        QScrollBar& bar = *list.verticalScrollBar();
        bar.setValue(bar.value() == bar.maximum() ? 0 : bar.value() + 48);
        list.render(&image);
    }
}
BENCHMARK(scrollStep)->ArgName("scale")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// From the wish to the first picture, without the scan.
void present(benchmark::State& state)
{
    Presentation presentation;
    for ([[maybe_unused]] auto _ : state) {
        AddAppSheet& sheet = presentation.present();
        QImage image = canvas(sheet, 1);
        sheet.render(&image);
        state.PauseTiming();
        presentation.takeAway();
        state.ResumeTiming();
    }
}
BENCHMARK(present)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    InterfaceStyle::install();
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
