#pragma once

#include "studio/keyboard/KeycapPainter.h"

namespace tarvin {

/// What stands on the face of a keycap: label, icon, marker, lamp, nub, sensor.
void paintKeycapContent(
    QPainter& painter, const Keycap& keycap, const QRectF& face, const KeycapLook& look, const KeycapContent& content);

} // namespace tarvin
