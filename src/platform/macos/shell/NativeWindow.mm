#include "platform/macos/shell/NativeWindow.h"

#include <QWidget>

namespace tarvin::macos {

NSWindow* nativeWindow(const QWidget& widget)
{
    // The toolkit's number of a window is the address of the view in it, which the toolkit owns.
    NSView* const view = (__bridge NSView*)reinterpret_cast<void*>(widget.effectiveWinId());
    return view.window;
}

} // namespace tarvin::macos
