#include "platform/macos/panels/MacFloatingPanel.h"

#include "platform/macos/shell/MacAppShell.h"
#include "platform/macos/shell/NativeWindow.h"
#include "platform/macos/translation/PanelStyle.h"
#include "ui/PanelWindow.h"

#include <QRectF>

#include <utility>

namespace tarvin::macos {

static_assert(NSWindowStyleMaskNonactivatingPanel == PanelStyle{}.styleMask);
static_assert((NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorFullScreenAuxiliary)
    == panelStyleOf({.spaces = PanelSpaces::all}).collectionBehavior);

MacFloatingPanel::MacFloatingPanel(
    PanelWindow& view, const PanelTraits& traits, MacAppShell& shell, std::function<void()> onCloseRequested)
    : m_view(view)
    , m_traits(traits)
    , m_window(shell.addWindow(view, AppWindowKind::panel, std::move(onCloseRequested)))
    , m_frame{{}, traits.size}
{
    // The toolkit's tool windows are panels, and go away with the program's activity unless it is told otherwise.
    m_view.setAttribute(Qt::WA_MacAlwaysShowToolWindow, m_traits.deactivation == PanelDeactivation::stays);
    // Makes the window now, hidden, so that its alpha can be set before it is shown.
    (void)m_view.winId();
    applyTraits();
}

void MacFloatingPanel::setFrame(const Rect& frame)
{
    m_frame = frame;
    m_view.centrePlateIn(QRectF(frame.origin.x, frame.origin.y, frame.size.width, frame.size.height));
}

void MacFloatingPanel::setAlpha(double alpha)
{
    // By the animator too: a value that is set past it leaves a fade under way to run on.
    fadeTo(alpha, std::chrono::milliseconds(0));
}

void MacFloatingPanel::fadeTo(double alpha, std::chrono::milliseconds duration)
{
    NSWindow* const window = nativeWindow(m_view);
    const std::chrono::duration<double> seconds = duration;
    [NSAnimationContext runAnimationGroup:^(NSAnimationContext* context) {
        context.duration = seconds.count();
        [window animator].alphaValue = alpha;
    }];
}

void MacFloatingPanel::makeKeyAndOrderFront()
{
    m_window.setVisible();
    // The toolkit has its own idea of a tool window's level, and may have followed it just now.
    applyTraits();
    m_window.makeKeyAndOrderFront();
}

void MacFloatingPanel::orderOut()
{
    m_window.orderOut();
}

void MacFloatingPanel::applyTraits()
{
    NSWindow* const window = nativeWindow(m_view);
    const PanelStyle style = panelStyleOf(m_traits);
    if ([window isKindOfClass:NSPanel.class]) {
        // Of no use to a window that is none, and refused by it.
        NSPanel* const panel = static_cast<NSPanel*>(window);
        panel.styleMask |= style.styleMask;
        panel.floatingPanel = YES;
    }
    window.level = style.level;
    window.collectionBehavior = style.collectionBehavior;
    window.hidesOnDeactivate = style.hidesOnDeactivate;
    window.backgroundColor = NSColor.clearColor;
    window.opaque = NO;
    // The view paints its own.
    window.hasShadow = NO;
}

} // namespace tarvin::macos
