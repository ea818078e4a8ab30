#pragma once

#import <AppKit/AppKit.h>

class QWidget;

namespace tarvin::macos {

/// The window that shows a top-level widget; nil for one that was never shown. Asked for anew each time, because the
/// toolkit makes another one when the kind of a window changes. Not owned. Main thread only.
[[nodiscard]] NSWindow* nativeWindow(const QWidget& widget);

} // namespace tarvin::macos
