#include "studio/keyboard/KeyboardGeometry.h"

#include <algorithm>

namespace tarvin {

namespace {

constexpr double wellInset = 10; // of the well, left and right in the chassis
constexpr double wellBottomInset = 12;
constexpr double keysInset = 12; // of the keys in the well, on all sides
constexpr double horizontalInsets = 2 * (wellInset + keysInset);
constexpr double smallestInnerWidth = 320;
constexpr double smallestKeyUnit = 32;
constexpr double heightPerUnit = 0.88;
constexpr double smallestKeyHeight = 28;
constexpr double largestKeyHeight = 39;

constexpr double headerInset = 18;
constexpr double headerTop = 12;
constexpr double headerBottom = 10;
constexpr double headerMarkSize = 11;
constexpr double headerContentHeight = headerMarkSize * symbolBoxPerSize;
constexpr double headerHeight = headerTop + headerContentHeight + headerBottom;
constexpr double dotSize = 4;
constexpr QSizeF speakerSize{72, 4.5};

constexpr double smallestContainerWidth = 320;
constexpr double widthJitter = 1;

QRectF around(const QPointF& middle, const QSizeF& size)
{
    return {middle - QPointF(size.width() / 2, size.height() / 2), size};
}

std::array<QRectF, keycapCount> keycapBoxes(const QPointF& topLeft, double unit, double height)
{
    std::array<QRectF, keycapCount> boxes;
    const double step = unit + interKeyGap;
    const double half = (height - interKeyGap) * 0.5;
    double x = topLeft.x();
    KeyboardRow row = KeyboardRow::heroFunction;
    for (std::size_t index = 0; index < keycapCount; ++index) {
        const Keycap& keycap = keycaps[index];
        if (keycap.row != row) {
            row = keycap.row;
            x = topLeft.x();
        }
        const double y = topLeft.y() + static_cast<double>(row) * (height + interKeyGap);
        if (keycap.kind == KeycapKind::arrow) {
            boxes[index] = {x + keycap.cell.column * step, y + keycap.cell.line * (half + interKeyGap), unit, half};
            continue;
        }
        const double width = keyWidth(unit, keycap.units);
        boxes[index] = {x, y, width, height};
        x += width + interKeyGap;
    }
    return boxes;
}

} // namespace

double keyUnit(double containerWidth)
{
    const double inner = std::max(containerWidth - horizontalInsets, smallestInnerWidth);
    return std::max((inner - (totalRowUnits - 1) * interKeyGap) / totalRowUnits, smallestKeyUnit);
}

double keyWidth(double keyUnit, double units)
{
    return keyUnit * units + interKeyGap * (units - 1);
}

double keyHeight(double keyUnit)
{
    return std::clamp(keyUnit * heightPerUnit, smallestKeyHeight, largestKeyHeight);
}

double followedContainerWidth(double containerWidth, double reported)
{
    if (reported <= smallestContainerWidth || std::abs(reported - containerWidth) <= widthJitter)
        return containerWidth;
    return reported;
}

KeyboardGeometry keyboardGeometry(double containerWidth)
{
    KeyboardGeometry geometry;
    geometry.keyUnit = keyUnit(containerWidth);
    geometry.keyHeight = keyHeight(geometry.keyUnit);
    const double rowWidth = keyWidth(geometry.keyUnit, totalRowUnits);
    const double rowsHeight = keyboardRowCount * geometry.keyHeight + (keyboardRowCount - 1) * interKeyGap;
    const double width = std::max(containerWidth, rowWidth + horizontalInsets);
    const double wellHeight = rowsHeight + 2 * keysInset;

    geometry.chassis = {0, 0, width, headerHeight + wellHeight + wellBottomInset};
    const double headerMiddle = headerTop + headerContentHeight / 2;
    geometry.headerDot = around({headerInset + dotSize / 2, headerMiddle}, {dotSize, dotSize});
    geometry.speakerSlot = around({width / 2, headerMiddle}, speakerSize);
    geometry.headerMark = {width - headerInset - headerContentHeight / 2, headerMiddle};
    geometry.well = {wellInset, headerHeight, width - 2 * wellInset, wellHeight};
    const QPointF keysTopLeft(width / 2 - rowWidth / 2, headerHeight + keysInset);
    geometry.keycaps = keycapBoxes(keysTopLeft, geometry.keyUnit, geometry.keyHeight);
    return geometry;
}

} // namespace tarvin
