// What it costs to show the Studio: the first frame, a frame of a key that moves, a frame of a window that is resized;
// and its action picker: until it shows, a keystroke in its search, a step of its list. Run without a display it draws
// into memory; with QT_QPA_PLATFORM=xcb and DISPLAY it shows real windows.

#include "app/StudioEditors.h"
#include "app/StudioMaking.h"
#include "app/core/NoToolPanelWindows.h"
#include "app/core/SharedObjects.h"
#include "interception/EventTapManager.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "studio/StudioBody.h"
#include "studio/StudioWindow.h"
#include "studio/keyboard/KeyButton.h"
#include "studio/keyboard/MacBookAirKeyboardView.h"
#include "studio/picker/view/ActionPickerView.h"
#include "studio/picker/view/PickerList.h"
#include "ui/InterfaceStyle.h"
#include "ui/TextField.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QScrollBar>

#include <benchmark/benchmark.h>

namespace {

using namespace tarvin;

/// The managers with a dozen mappings, on a desktop in memory.
class Managers
{
public:
    Managers()
    {
        KeyProfile& profile = m_objects.keyProfile();
        for (const FKey key : {FKey::f1, FKey::f2, FKey::f3, FKey::f5, FKey::f6, FKey::f8, FKey::f9, FKey::f12,
                 FKey::capsLock, FKey::fnGlobe, FKey::rightCommand, FKey::rightOption})
            profile.setAction(KeyAction::clipboardHistory, key);
        m_objects.eventTapManager().start();
    }

    std::unique_ptr<StudioWindow> makeWindow()
    {
        return makeStudioWindow(m_objects, m_editors.surfaces(), [] {});
    }
    QWidget* makePicker(FKey key)
    {
        return m_editors.surfaces().makeActionPicker(key, [] {});
    }

private:
    simulated::SimulatedPlatform m_platform;
    NoToolPanelWindows m_panels;
    SharedObjects m_objects{m_platform.ports(), m_panels};
    StudioEditors m_editors{m_platform.ports(), m_objects};
};

/// Tells when a widget has been painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

    bool isPainted = false;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return false;
    }
};

/// Until the toolkit has painted the first frame, keyboard and all, and sent it off.
void showUntilPainted(StudioWindow& window)
{
    const PaintWatch watch(window.content().body().keyboard());
    window.show();
    while (!watch.isPainted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Once per process: fonts, symbols, shadows and the window are made.
void firstFrameEver(benchmark::State& state)
{
    static Managers managers;
    static std::unique_ptr<StudioWindow> window;
    for ([[maybe_unused]] auto _ : state) {
        window = managers.makeWindow();
        showUntilPainted(*window);
    }
    window->hide();
}
BENCHMARK(firstFrameEver)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

/// A window that was hidden comes back.
void laterFirstFrame(benchmark::State& state)
{
    Managers managers;
    const auto window = managers.makeWindow();
    showUntilPainted(*window);
    for ([[maybe_unused]] auto _ : state) {
        window->hide();
        showUntilPainted(*window);
    }
}
BENCHMARK(laterFirstFrame)->UseRealTime()->Unit(benchmark::kMillisecond);

/// Everything, into an image of that scale.
void paintWindow(benchmark::State& state)
{
    Managers managers;
    const auto window = managers.makeWindow();
    window->ensurePolished();
    QImage image(window->size() * static_cast<double>(state.range(0)), QImage::Format_RGB32);
    image.setDevicePixelRatio(static_cast<double>(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        window->render(&image);
}
BENCHMARK(paintWindow)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// What is painted again at each step of a key's way down, at that scale.
void paintMovingKey(benchmark::State& state)
{
    Managers managers;
    const auto window = managers.makeWindow();
    window->ensurePolished();
    MacBookAirKeyboardView& view = window->content().body().keyboard();
    const QRect key = view.button(*keycapOf(FKey::f5)).geometry();
    const double reach = keycapReach(view.drawnKey(*keycapOf(FKey::f5)).look());
    const QRect region = QRectF(key).adjusted(-reach, -reach, reach, reach).toAlignedRect();
    QImage image(view.size() * static_cast<double>(state.range(0)), QImage::Format_RGB32);
    image.setDevicePixelRatio(static_cast<double>(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        view.render(&image, region.topLeft(), region, QWidget::DrawChildren);
}
BENCHMARK(paintMovingKey)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// Layout and painting for one more width.
void resizeStep(benchmark::State& state)
{
    Managers managers;
    const auto window = managers.makeWindow();
    window->ensurePolished();
    int width = 1200;
    QImage image(QSize(1400, 800), QImage::Format_RGB32);
    for ([[maybe_unused]] auto _ : state) {
        width = width == 1200 ? 1203 : 1200;
        window->resize(width, 800);
        window->render(&image);
    }
}
BENCHMARK(resizeStep)->Unit(benchmark::kMillisecond);

/// From the click on a key until the picker's first frame, which waits for the first step of its way in.
void openPicker(benchmark::State& state)
{
    Managers managers;
    const auto window = managers.makeWindow();
    showUntilPainted(*window);
    MacBookAirKeyboardView& keyboard = window->content().body().keyboard();
    for ([[maybe_unused]] auto _ : state) {
        keyboard.setSelectedKey(FKey::f5);
        const PaintWatch watch(*window->content().actionPicker());
        while (!watch.isPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.PauseTiming();
        keyboard.setSelectedKey(std::nullopt);
        while (window->content().actionPicker())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.ResumeTiming();
    }
}
BENCHMARK(openPicker)->UseRealTime()->Unit(benchmark::kMillisecond);

/// The picker alone, at once: made, laid out and painted into an image of that scale.
void makeAndPaintPicker(benchmark::State& state)
{
    Managers managers;
    const QSize size(330, 800);
    QImage image(size * static_cast<double>(state.range(0)), QImage::Format_RGB32);
    image.setDevicePixelRatio(static_cast<double>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        const std::unique_ptr<QWidget> picker(managers.makePicker(FKey::f5));
        picker->resize(size);
        picker->render(&image);
    }
}
BENCHMARK(makeAndPaintPicker)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// A picker to work with, painted once.
class OpenPicker
{
public:
    OpenPicker()
        : picker(dynamic_cast<ActionPickerView*>(m_managers.makePicker(FKey::f5)))
    {
        picker->resize(image.size());
        picker->render(&image);
    }

private:
    Managers m_managers;

public:
    QImage image{330, 800, QImage::Format_RGB32};
    std::unique_ptr<ActionPickerView> picker;
};

/// One more letter in the search: found, laid out and painted.
void typeIntoPicker(benchmark::State& state)
{
    const OpenPicker open;
    QImage image = open.image;
    const QStringList texts{QStringLiteral("m"), QStringLiteral("mu"), QStringLiteral("mut"), QString()};
    int step = 0;
    for ([[maybe_unused]] auto _ : state) {
        open.picker->searchField().setText(texts[step++ % texts.size()]);
        open.picker->render(&image);
    }
}
BENCHMARK(typeIntoPicker)->Unit(benchmark::kMillisecond);

/// One step of the wheel over the list, with everything in the pane painted again.
void scrollPicker(benchmark::State& state)
{
    const OpenPicker open;
    QImage image = open.image;
    QScrollBar& bar = *open.picker->list().verticalScrollBar();
    for ([[maybe_unused]] auto _ : state) {
        bar.setValue(bar.value() >= bar.maximum() ? 0 : bar.value() + 60);
        open.picker->render(&image);
    }
}
BENCHMARK(scrollPicker)->Unit(benchmark::kMillisecond);

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
