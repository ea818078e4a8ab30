// Paints the tool panels into pictures, for people to look at: paint_panels FOLDER. The scale is that of the toolkit,
// QT_SCALE_FACTOR.

#include "tools/clipboard/view/ClipboardHistoryView.h"
#include "tools/ring/view/ActionsRingView.h"
#include "tools/scratchpad/ScratchpadNote.h"
#include "tools/scratchpad/view/QuickScratchpadView.h"
#include "tools/support/ClipboardDesktop.h"
#include "ui/InterfaceStyle.h"
#include "ui/TextField.h"

#include <QApplication>
#include <QPainter>

#include <cstdio>
#include <tuple>

namespace tarvin::test {
namespace {

void paint(PanelWindow& panel, const QString& file)
{
    panel.fadeIn(std::chrono::milliseconds(0));
    QApplication::processEvents();
    constexpr int margin = 40;
    const double scale = panel.devicePixelRatioF();
    const QSize size = panel.size() + QSize(2 * margin, 2 * margin);
    QImage picture(size * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    QPainter painter(&picture);
    QLinearGradient ground(0, 0, size.width(), size.height());
    ground.setColorAt(0, QColor(140, 146, 156));
    ground.setColorAt(1, QColor(64, 70, 80));
    painter.fillRect(QRect(QPoint(), size), ground);
    painter.drawPixmap(margin, margin, panel.grab());
    painter.end();
    if (!picture.save(file))
        std::fprintf(stderr, "%s could not be written\n", qPrintable(file));
    panel.hide();
}

struct Clip
{
    QStringView text;
    int minutesBefore;
    bool isPinned = false;
};

constexpr Clip clips[] = {
    {u"https://docs.example.org/keyboard/layout#grid", 18},
    {u"Best regards,\nThe product design team", 22, true},
    {u"git rebase --interactive HEAD~4", 29},
    {u"const keyWidth = (units) => keyUnit * units + gap * (units - 1);", 48},
    {u"hello@example.org", 63, true},
    {u"The meeting moved to Thursday at 14:30; the room stays the same.", 80},
    {u"#00F0B5", 87},
    {u"ssh build@ci.example.org", 95},
    {u"ticket 4711", 96},
    {u"tenth", 97},
    {u"eleventh", 98},
};

void fill(ClipboardDesktop& desktop)
{
    const auto eleven = desktop.platform.scheduler().now();
    std::ignore = desktop.history();
    for (auto clip = std::rbegin(clips); clip != std::rend(clips); ++clip) {
        desktop.platform.scheduler().setNow(eleven - std::chrono::minutes(clip->minutesBefore));
        desktop.copy(clip->text.toString());
        if (clip->isPinned)
            desktop.history().togglePin(desktop.history().items().first());
    }
}

void run(const QString& folder)
{
    const auto hasCompositor = [] { return true; };
    ClipboardDesktop desktop;
    ClipboardHistoryView clipboard(
        desktop.history(), [](const ClipboardItem&) {}, hasCompositor);
    paint(clipboard, folder + u"/clipboard-empty.png"_qs);
    desktop.platform.scheduler().setNow(
        std::chrono::sys_days(std::chrono::year(2026) / 1 / 15) + std::chrono::hours(11));
    fill(desktop);
    paint(clipboard, folder + u"/clipboard-panel.png"_qs);
    auto* const search = clipboard.findChild<TextField*>();
    search->setText(u"th"_qs);
    paint(clipboard, folder + u"/clipboard-search.png"_qs);
    search->setText(u"nowhere"_qs);
    paint(clipboard, folder + u"/clipboard-nothing.png"_qs);

    ScratchpadNote note(desktop.ports.preferences, desktop.pasteboard(), desktop.ports.scheduler);
    QuickScratchpadView scratchpad(note, hasCompositor);
    paint(scratchpad, folder + u"/scratchpad-empty.png"_qs);
    note.setText(u"Keyboard ideas\n\n- F5  clipboard history\n- F8  actions ring\n"
                 "- Caps Lock  chain: copy, wait 200 ms, new tab\n\n"
                 "curl -s https://api.example.org/v1/status | jq .\n\n"
                 "Call back before Thursday; bring the two wide keycaps."_qs);
    paint(scratchpad, folder + u"/scratchpad.png"_qs);
    note.copyAll();
    paint(scratchpad, folder + u"/scratchpad-copied.png"_qs);

    ActionsRingView ring([](const ConfiguredAction&) {}, hasCompositor);
    paint(ring, folder + u"/ring.png"_qs);
    ActionsRingView plainRing([](const ConfiguredAction&) {}, [] { return false; });
    paint(plainRing, folder + u"/ring-without-compositor.png"_qs);
}

} // namespace
} // namespace tarvin::test

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::fprintf(stderr, "usage: paint_panels FOLDER\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argumentCount, arguments);
    tarvin::InterfaceStyle::install();
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    tarvin::test::run(QString::fromLocal8Bit(arguments[1]));
    return 0;
}
