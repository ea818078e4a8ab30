#include "model/CustomShortcut.h"

#include <QStringList>

namespace tarvin {

QString CustomShortcut::displayString() const
{
    QStringList parts;
    if (control)
        parts << u"⌃"_qs;
    if (option)
        parts << u"⌥"_qs;
    if (shift)
        parts << u"⇧"_qs;
    if (command)
        parts << u"⌘"_qs;
    if (!keyDisplay.isEmpty())
        parts << keyDisplay.toUpper();
    return parts.join(u' ');
}

} // namespace tarvin
