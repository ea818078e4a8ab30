#pragma once

#include <QPainterPath>
#include <QStringView>

namespace tarvin {

/// The outline that the path data of an SVG file describe: all commands, absolute and relative. Reading ends at the
/// first thing that is no path data; what was read so far stands.
[[nodiscard]] QPainterPath pathFromSvg(QStringView data);

} // namespace tarvin
