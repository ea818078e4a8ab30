#pragma once

#include "model/RawValueRows.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarvin {

enum class SymbolTurn : std::uint8_t { none, mirrored, quarter };

/// One outline in a box of 256 by 256: a file of the symbol set, or a drawing of our own where the set has none.
struct SymbolGlyph
{
    QStringView file{}; ///< as the symbol set names it; the build embeds every file that is named here
    QStringView outline{}; ///< path data; holes run against the clock
    double scale = 1;
    double x = 128; ///< where its middle comes to lie
    double y = 128;
    SymbolTurn turn = SymbolTurn::none;

    [[nodiscard]] constexpr bool isEmpty() const { return file.isEmpty() && outline.isEmpty(); }
};

/// How the symbol of a name is drawn: the base, less the cut, with the addition.
struct SymbolRow
{
    QStringView name;
    SymbolGlyph base;
    SymbolGlyph cut{};
    SymbolGlyph add{};
};

/// By name, so that it can be searched.
inline constexpr auto symbolRows = std::to_array<SymbolRow>({
    // clang-format off
    {.name = u"antenna.radiowaves.left.and.right", .base = {.file = u"bold/broadcast-bold.svg"}},
    {.name = u"app.fill", .base = {.outline = u"M84,36H172A48,48,0,0,1,220,84V172A48,48,0,0,1,172,220H84A48,48,0,0,1,36,172V84A48,48,0,0,1,84,36Z"}},
    {.name = u"applelogo", .base = {.file = u"fill/apple-logo-fill.svg"}},
    {.name = u"arrow.backward", .base = {.file = u"bold/arrow-left-bold.svg"}},
    {.name = u"arrow.clockwise", .base = {.file = u"bold/arrow-clockwise-bold.svg"}},
    {.name = u"arrow.counterclockwise", .base = {.file = u"bold/arrow-counter-clockwise-bold.svg"}},
    {.name = u"arrow.left.arrow.right.circle.fill", .base = {.file = u"fill/circle-fill.svg"}, .cut = {.file = u"bold/arrows-left-right-bold.svg", .scale = 0.6}},
    {.name = u"arrow.left.to.line", .base = {.file = u"bold/arrow-line-left-bold.svg"}},
    {.name = u"arrow.right", .base = {.file = u"bold/arrow-right-bold.svg"}},
    {.name = u"arrow.right.circle.fill", .base = {.file = u"fill/arrow-circle-right-fill.svg"}},
    {.name = u"arrow.right.to.line", .base = {.file = u"bold/arrow-line-right-bold.svg"}},
    {.name = u"arrow.triangle.2.circlepath", .base = {.file = u"bold/arrows-clockwise-bold.svg"}},
    {.name = u"arrow.up", .base = {.file = u"bold/arrow-up-bold.svg"}},
    {.name = u"arrow.up.forward.app.fill", .base = {.file = u"fill/arrow-square-up-right-fill.svg"}},
    {.name = u"arrow.up.left.and.arrow.down.right", .base = {.outline = u"M56.5,39.5L120.5,103.5A12,12,0,0,1,103.5,120.5L39.5,56.5A12,12,0,0,1,56.5,39.5ZM60,48L60,96A12,12,0,0,1,36,96L36,48A12,12,0,0,1,60,48ZM48,36L96,36A12,12,0,0,1,96,60L48,60A12,12,0,0,1,48,36ZM199.5,216.5L135.5,152.5A12,12,0,0,1,152.5,135.5L216.5,199.5A12,12,0,0,1,199.5,216.5ZM196,208L196,160A12,12,0,0,1,220,160L220,208A12,12,0,0,1,196,208ZM208,220L160,220A12,12,0,0,1,160,196L208,196A12,12,0,0,1,208,220Z"}},
    {.name = u"arrow.up.left.and.arrow.down.right.square.fill", .base = {.file = u"fill/square-fill.svg"}, .cut = {.outline = u"M56.5,39.5L120.5,103.5A12,12,0,0,1,103.5,120.5L39.5,56.5A12,12,0,0,1,56.5,39.5ZM60,48L60,96A12,12,0,0,1,36,96L36,48A12,12,0,0,1,60,48ZM48,36L96,36A12,12,0,0,1,96,60L48,60A12,12,0,0,1,48,36ZM199.5,216.5L135.5,152.5A12,12,0,0,1,152.5,135.5L216.5,199.5A12,12,0,0,1,199.5,216.5ZM196,208L196,160A12,12,0,0,1,220,160L220,208A12,12,0,0,1,196,208ZM208,220L160,220A12,12,0,0,1,160,196L208,196A12,12,0,0,1,208,220Z", .scale = 0.62}},
    {.name = u"arrow.uturn.backward", .base = {.file = u"bold/arrow-u-up-left-bold.svg"}},
    {.name = u"arrow.uturn.forward", .base = {.file = u"bold/arrow-u-up-right-bold.svg"}},
    {.name = u"arrowtriangle.down.fill", .base = {.outline = u"M36,60H220A12,12,0,0,1,229.6,79.2L137.6,201.9A12,12,0,0,1,118.4,201.9L26.4,79.2A12,12,0,0,1,36,60Z"}},
    {.name = u"backward.fill", .base = {.file = u"fill/rewind-fill.svg"}},
    {.name = u"battery.100", .base = {.outline = u"M34,72H190A26,26,0,0,1,216,98V158A26,26,0,0,1,190,184H34A26,26,0,0,1,8,158V98A26,26,0,0,1,34,72ZM36,88A12,12,0,0,0,24,100V156A12,12,0,0,0,36,168H188A12,12,0,0,0,200,156V100A12,12,0,0,0,188,88ZM236,108H236A8,8,0,0,1,244,116V140A8,8,0,0,1,236,148H236A8,8,0,0,1,228,140V116A8,8,0,0,1,236,108ZM42,100H182A6,6,0,0,1,188,106V150A6,6,0,0,1,182,156H42A6,6,0,0,1,36,150V106A6,6,0,0,1,42,100Z"}},
    {.name = u"battery.100.bolt", .base = {.outline = u"M34,72H190A26,26,0,0,1,216,98V158A26,26,0,0,1,190,184H34A26,26,0,0,1,8,158V98A26,26,0,0,1,34,72ZM36,88A12,12,0,0,0,24,100V156A12,12,0,0,0,36,168H188A12,12,0,0,0,200,156V100A12,12,0,0,0,188,88ZM236,108H236A8,8,0,0,1,244,116V140A8,8,0,0,1,236,148H236A8,8,0,0,1,228,140V116A8,8,0,0,1,236,108ZM42,100H182A6,6,0,0,1,188,106V150A6,6,0,0,1,182,156H42A6,6,0,0,1,36,150V106A6,6,0,0,1,42,100Z"}, .cut = {.file = u"fill/lightning-fill.svg", .scale = 0.62, .x = 112}, .add = {.file = u"fill/lightning-fill.svg", .scale = 0.36, .x = 112}},
    {.name = u"battery.25", .base = {.outline = u"M34,72H190A26,26,0,0,1,216,98V158A26,26,0,0,1,190,184H34A26,26,0,0,1,8,158V98A26,26,0,0,1,34,72ZM36,88A12,12,0,0,0,24,100V156A12,12,0,0,0,36,168H188A12,12,0,0,0,200,156V100A12,12,0,0,0,188,88ZM236,108H236A8,8,0,0,1,244,116V140A8,8,0,0,1,236,148H236A8,8,0,0,1,228,140V116A8,8,0,0,1,236,108ZM42,100H68A6,6,0,0,1,74,106V150A6,6,0,0,1,68,156H42A6,6,0,0,1,36,150V106A6,6,0,0,1,42,100Z"}},
    {.name = u"battery.50", .base = {.outline = u"M34,72H190A26,26,0,0,1,216,98V158A26,26,0,0,1,190,184H34A26,26,0,0,1,8,158V98A26,26,0,0,1,34,72ZM36,88A12,12,0,0,0,24,100V156A12,12,0,0,0,36,168H188A12,12,0,0,0,200,156V100A12,12,0,0,0,188,88ZM236,108H236A8,8,0,0,1,244,116V140A8,8,0,0,1,236,148H236A8,8,0,0,1,228,140V116A8,8,0,0,1,236,108ZM42,100H106A6,6,0,0,1,112,106V150A6,6,0,0,1,106,156H42A6,6,0,0,1,36,150V106A6,6,0,0,1,42,100Z"}},
    {.name = u"battery.75", .base = {.outline = u"M34,72H190A26,26,0,0,1,216,98V158A26,26,0,0,1,190,184H34A26,26,0,0,1,8,158V98A26,26,0,0,1,34,72ZM36,88A12,12,0,0,0,24,100V156A12,12,0,0,0,36,168H188A12,12,0,0,0,200,156V100A12,12,0,0,0,188,88ZM236,108H236A8,8,0,0,1,244,116V140A8,8,0,0,1,236,148H236A8,8,0,0,1,228,140V116A8,8,0,0,1,236,108ZM42,100H144A6,6,0,0,1,150,106V150A6,6,0,0,1,144,156H42A6,6,0,0,1,36,150V106A6,6,0,0,1,42,100Z"}},
    {.name = u"bell.slash.fill", .base = {.file = u"fill/bell-slash-fill.svg"}},
    {.name = u"bolt.fill", .base = {.file = u"fill/lightning-fill.svg"}},
    {.name = u"bolt.horizontal.fill", .base = {.file = u"fill/lightning-fill.svg", .turn = SymbolTurn::quarter}},
    {.name = u"bolt.shield.fill", .base = {.file = u"fill/shield-fill.svg"}, .cut = {.file = u"fill/lightning-fill.svg", .scale = 0.52}},
    {.name = u"bolt.slash.fill", .base = {.file = u"fill/lightning-slash-fill.svg"}},
    {.name = u"camera.viewfinder", .base = {.file = u"bold/corners-out-bold.svg", .scale = 1.22}, .add = {.file = u"fill/camera-fill.svg", .scale = 0.62}},
    {.name = u"capslock.fill", .base = {.file = u"fill/arrow-fat-line-up-fill.svg"}},
    {.name = u"character.cursor.ibeam", .base = {.outline = u"M8.8,199.8L64.8,51.8A12,12,0,0,1,87.2,60.2L31.2,208.2A12,12,0,0,1,8.8,199.8ZM87.2,51.8L143.2,199.8A12,12,0,0,1,120.8,208.2L64.8,60.2A12,12,0,0,1,87.2,51.8ZM44,140L108,140A12,12,0,0,1,108,164L44,164A12,12,0,0,1,44,140ZM212,44L212,212A12,12,0,0,1,188,212L188,44A12,12,0,0,1,212,44ZM168,28L232,28A12,12,0,0,1,232,52L168,52A12,12,0,0,1,168,28ZM168,204L232,204A12,12,0,0,1,232,228L168,228A12,12,0,0,1,168,204Z"}},
    {.name = u"checkmark", .base = {.file = u"bold/check-bold.svg"}},
    {.name = u"checkmark.circle.fill", .base = {.file = u"fill/check-circle-fill.svg"}},
    {.name = u"checkmark.shield.fill", .base = {.file = u"fill/shield-check-fill.svg"}},
    {.name = u"checkmark.square", .base = {.file = u"bold/check-square-bold.svg"}},
    {.name = u"chevron.down", .base = {.file = u"bold/caret-down-bold.svg"}},
    {.name = u"chevron.left", .base = {.file = u"bold/caret-left-bold.svg"}},
    {.name = u"chevron.right", .base = {.file = u"bold/caret-right-bold.svg"}},
    {.name = u"chevron.up", .base = {.file = u"bold/caret-up-bold.svg"}},
    {.name = u"circle.grid.cross", .base = {.outline = u"M94,44A34,34,0,0,1,162,44A34,34,0,0,1,94,44ZM114,44A14,14,0,0,0,142,44A14,14,0,0,0,114,44ZM178,128A34,34,0,0,1,246,128A34,34,0,0,1,178,128ZM198,128A14,14,0,0,0,226,128A14,14,0,0,0,198,128ZM94,212A34,34,0,0,1,162,212A34,34,0,0,1,94,212ZM114,212A14,14,0,0,0,142,212A14,14,0,0,0,114,212ZM10,128A34,34,0,0,1,78,128A34,34,0,0,1,10,128ZM30,128A14,14,0,0,0,58,128A14,14,0,0,0,30,128ZM112,128A16,16,0,0,1,144,128A16,16,0,0,1,112,128Z"}},
    {.name = u"circle.grid.cross.fill", .base = {.outline = u"M92,44A36,36,0,0,1,164,44A36,36,0,0,1,92,44ZM176,128A36,36,0,0,1,248,128A36,36,0,0,1,176,128ZM92,212A36,36,0,0,1,164,212A36,36,0,0,1,92,212ZM8,128A36,36,0,0,1,80,128A36,36,0,0,1,8,128ZM110,128A18,18,0,0,1,146,128A18,18,0,0,1,110,128Z"}},
    {.name = u"clock.arrow.circlepath", .base = {.file = u"bold/clock-counter-clockwise-bold.svg"}},
    {.name = u"command", .base = {.file = u"bold/command-bold.svg"}},
    {.name = u"command.square", .base = {.outline = u"M74,22H182A52,52,0,0,1,234,74V182A52,52,0,0,1,182,234H74A52,52,0,0,1,22,182V74A52,52,0,0,1,74,22ZM78,44A34,34,0,0,0,44,78V178A34,34,0,0,0,78,212H178A34,34,0,0,0,212,178V78A34,34,0,0,0,178,44Z"}, .add = {.file = u"bold/command-bold.svg", .scale = 0.62}},
    {.name = u"command.square.fill", .base = {.outline = u"M74,22H182A52,52,0,0,1,234,74V182A52,52,0,0,1,182,234H74A52,52,0,0,1,22,182V74A52,52,0,0,1,74,22Z"}, .cut = {.file = u"bold/command-bold.svg", .scale = 0.66}},
    {.name = u"control", .base = {.file = u"bold/caret-up-bold.svg", .y = 104}},
    {.name = u"cursorarrow.rays", .base = {.file = u"bold/cursor-click-bold.svg"}},
    {.name = u"delete.forward", .base = {.file = u"bold/backspace-bold.svg", .turn = SymbolTurn::mirrored}},
    {.name = u"delete.left", .base = {.file = u"bold/backspace-bold.svg"}},
    {.name = u"display", .base = {.file = u"bold/desktop-bold.svg"}},
    {.name = u"doc.on.clipboard", .base = {.file = u"bold/clipboard-text-bold.svg"}},
    {.name = u"doc.on.clipboard.fill", .base = {.file = u"fill/clipboard-text-fill.svg"}},
    {.name = u"doc.on.doc", .base = {.file = u"bold/copy-bold.svg"}},
    {.name = u"doc.text.magnifyingglass", .base = {.file = u"bold/file-magnifying-glass-bold.svg"}},
    {.name = u"dock.rectangle", .base = {.file = u"bold/rectangle-bold.svg"}, .add = {.outline = u"M88,152L168,152A12,12,0,0,1,168,176L88,176A12,12,0,0,1,88,152Z"}},
    {.name = u"exclamationmark.shield.fill", .base = {.file = u"fill/shield-warning-fill.svg"}},
    {.name = u"eye.slash.fill", .base = {.file = u"fill/eye-slash-fill.svg"}},
    {.name = u"f.cursive", .base = {.file = u"bold/function-bold.svg", .scale = 1.12}},
    {.name = u"folder", .base = {.file = u"bold/folder-bold.svg"}},
    {.name = u"folder.fill", .base = {.file = u"fill/folder-fill.svg"}},
    {.name = u"forward.fill", .base = {.file = u"fill/fast-forward-fill.svg"}},
    {.name = u"function", .base = {.file = u"bold/function-bold.svg"}},
    {.name = u"gearshape", .base = {.file = u"bold/gear-six-bold.svg"}},
    {.name = u"gearshape.fill", .base = {.file = u"fill/gear-six-fill.svg"}},
    {.name = u"globe", .base = {.file = u"bold/globe-bold.svg"}},
    {.name = u"hammer.fill", .base = {.file = u"fill/hammer-fill.svg"}},
    {.name = u"keyboard", .base = {.file = u"bold/keyboard-bold.svg"}},
    {.name = u"keyboard.fill", .base = {.file = u"fill/keyboard-fill.svg"}},
    {.name = u"light.recessed.fill", .base = {.outline = u"M38,40H218A14,14,0,0,1,232,54V54A14,14,0,0,1,218,68H38A14,14,0,0,1,24,54V54A14,14,0,0,1,38,40ZM64,84H192A64,52,0,0,1,64,84ZM139,164L139,208A11,11,0,0,1,117,208L117,164A11,11,0,0,1,139,164ZM78.5,159L48.5,195A11,11,0,0,1,31.5,181L61.5,145A11,11,0,0,1,78.5,159ZM194.5,145L224.5,181A11,11,0,0,1,207.5,195L177.5,159A11,11,0,0,1,194.5,145Z"}},
    {.name = u"link", .base = {.file = u"bold/link-bold.svg"}},
    {.name = u"link.circle.fill", .base = {.file = u"fill/circle-fill.svg"}, .cut = {.file = u"bold/link-bold.svg", .scale = 0.62}},
    {.name = u"lock.fill", .base = {.file = u"fill/lock-simple-fill.svg"}},
    {.name = u"macwindow.badge.plus", .base = {.file = u"bold/browser-bold.svg"}, .cut = {.outline = u"M140,192A60,60,0,0,1,260,192A60,60,0,0,1,140,192Z"}, .add = {.outline = u"M166,180L234,180A12,12,0,0,1,234,204L166,204A12,12,0,0,1,166,180ZM212,158L212,226A12,12,0,0,1,188,226L188,158A12,12,0,0,1,212,158Z"}},
    {.name = u"macwindow.on.rectangle", .base = {.file = u"bold/browsers-bold.svg"}},
    {.name = u"magnifyingglass", .base = {.file = u"bold/magnifying-glass-bold.svg"}},
    {.name = u"magnifyingglass.light", .base = {.file = u"light/magnifying-glass-light.svg"}},
    {.name = u"menubar.rectangle", .base = {.file = u"bold/browser-bold.svg"}},
    {.name = u"mic.fill", .base = {.file = u"fill/microphone-fill.svg"}},
    {.name = u"mic.slash.fill", .base = {.file = u"fill/microphone-slash-fill.svg"}},
    {.name = u"minus.rectangle", .base = {.file = u"bold/rectangle-bold.svg"}, .add = {.outline = u"M92,116L164,116A12,12,0,0,1,164,140L92,140A12,12,0,0,1,92,116Z"}},
    {.name = u"moon.fill", .base = {.file = u"fill/moon-fill.svg"}},
    {.name = u"moon.zzz.fill", .base = {.file = u"fill/moon-fill.svg", .scale = 0.88, .x = 112, .y = 142}, .cut = {.outline = u"M158,14H234A12,12,0,0,1,246,26V106A12,12,0,0,1,234,118H158A12,12,0,0,1,146,106V26A12,12,0,0,1,158,14Z"}, .add = {.outline = u"M168,26L220,26A10,10,0,0,1,220,46L168,46A10,10,0,0,1,168,26ZM227.6,42.5L175.6,102.5A10,10,0,0,1,160.4,89.5L212.4,29.5A10,10,0,0,1,227.6,42.5ZM168,86L220,86A10,10,0,0,1,220,106L168,106A10,10,0,0,1,168,86Z"}},
    {.name = u"note.text", .base = {.file = u"bold/note-bold.svg"}},
    {.name = u"note.text.badge.plus", .base = {.file = u"bold/note-bold.svg"}, .cut = {.outline = u"M146,52A58,58,0,0,1,262,52A58,58,0,0,1,146,52Z"}, .add = {.outline = u"M170,40L238,40A12,12,0,0,1,238,64L170,64A12,12,0,0,1,170,40ZM216,18L216,86A12,12,0,0,1,192,86L192,18A12,12,0,0,1,216,18Z"}},
    {.name = u"option", .base = {.file = u"bold/option-bold.svg"}},
    {.name = u"paragraphsign", .base = {.file = u"bold/paragraph-bold.svg"}},
    {.name = u"pause.fill", .base = {.file = u"fill/pause-fill.svg"}},
    {.name = u"pencil", .base = {.file = u"bold/pencil-simple-bold.svg"}},
    {.name = u"pin", .base = {.file = u"bold/push-pin-bold.svg"}},
    {.name = u"pin.fill", .base = {.file = u"fill/push-pin-fill.svg"}},
    {.name = u"play.fill", .base = {.file = u"fill/play-fill.svg"}},
    {.name = u"playpause.fill", .base = {.file = u"fill/play-pause-fill.svg"}},
    {.name = u"plus", .base = {.file = u"bold/plus-bold.svg"}},
    {.name = u"plus.circle.fill", .base = {.file = u"fill/plus-circle-fill.svg"}},
    {.name = u"plus.square", .base = {.file = u"bold/plus-square-bold.svg"}},
    {.name = u"power", .base = {.file = u"bold/power-bold.svg"}},
    {.name = u"power.circle.fill", .base = {.file = u"fill/circle-fill.svg"}, .cut = {.file = u"bold/power-bold.svg", .scale = 0.58}},
    {.name = u"powersleep", .base = {.file = u"bold/moon-bold.svg"}},
    {.name = u"record.circle", .base = {.file = u"bold/radio-button-bold.svg"}},
    {.name = u"record.circle.fill", .base = {.outline = u"M20,128A108,108,0,0,1,236,128A108,108,0,0,1,20,128ZM44,128A84,84,0,0,0,212,128A84,84,0,0,0,44,128ZM64,128A64,64,0,0,1,192,128A64,64,0,0,1,64,128Z"}},
    {.name = u"rectangle.3.group.fill", .base = {.outline = u"M36,44H128A16,16,0,0,1,144,60V132A16,16,0,0,1,128,148H36A16,16,0,0,1,20,132V60A16,16,0,0,1,36,44ZM36,164H128A16,16,0,0,1,144,180V196A16,16,0,0,1,128,212H36A16,16,0,0,1,20,196V180A16,16,0,0,1,36,164ZM176,44H220A16,16,0,0,1,236,60V196A16,16,0,0,1,220,212H176A16,16,0,0,1,160,196V60A16,16,0,0,1,176,44Z"}},
    {.name = u"rectangle.lefthalf.filled", .base = {.file = u"bold/rectangle-bold.svg"}, .add = {.outline = u"M40,56H128V200H40A12,12,0,0,1,28,188V68A12,12,0,0,1,40,56Z"}},
    {.name = u"rectangle.righthalf.filled", .base = {.file = u"bold/rectangle-bold.svg"}, .add = {.outline = u"M40,56H128V200H40A12,12,0,0,1,28,188V68A12,12,0,0,1,40,56Z", .turn = SymbolTurn::mirrored}},
    {.name = u"restart", .base = {.file = u"bold/arrow-clockwise-bold.svg"}},
    {.name = u"return", .base = {.file = u"bold/arrow-elbow-down-left-bold.svg"}},
    {.name = u"safari.fill", .base = {.file = u"fill/compass-fill.svg"}},
    {.name = u"scissors", .base = {.file = u"bold/scissors-bold.svg"}},
    {.name = u"shift", .base = {.file = u"bold/arrow-fat-up-bold.svg"}},
    {.name = u"slider.horizontal.3", .base = {.outline = u"M36,50L136,50A10,10,0,0,1,136,70L36,70A10,10,0,0,1,36,50ZM184,50L220,50A10,10,0,0,1,220,70L184,70A10,10,0,0,1,184,50ZM134,60A26,26,0,0,1,186,60A26,26,0,0,1,134,60ZM151,60A9,9,0,0,0,169,60A9,9,0,0,0,151,60ZM36,118L68,118A10,10,0,0,1,68,138L36,138A10,10,0,0,1,36,118ZM116,118L220,118A10,10,0,0,1,220,138L116,138A10,10,0,0,1,116,118ZM66,128A26,26,0,0,1,118,128A26,26,0,0,1,66,128ZM83,128A9,9,0,0,0,101,128A9,9,0,0,0,83,128ZM36,186L152,186A10,10,0,0,1,152,206L36,206A10,10,0,0,1,36,186ZM200,186L220,186A10,10,0,0,1,220,206L200,206A10,10,0,0,1,200,186ZM150,196A26,26,0,0,1,202,196A26,26,0,0,1,150,196ZM167,196A9,9,0,0,0,185,196A9,9,0,0,0,167,196Z"}},
    {.name = u"sparkle", .base = {.file = u"fill/sparkle-fill.svg"}},
    {.name = u"sparkles", .base = {.outline = u"M104,40Q116,112,188,128Q116,144,104,216Q92,144,20,128Q92,112,104,40ZM196,24Q201,53,230,60Q201,67,196,96Q191,67,162,60Q191,53,196,24ZM204,164Q208,186,230,192Q208,198,204,220Q200,198,178,192Q200,186,204,164Z"}},
    {.name = u"speaker.slash.fill", .base = {.file = u"fill/speaker-slash-fill.svg"}},
    {.name = u"speaker.wave.1.fill", .base = {.file = u"fill/speaker-low-fill.svg"}},
    {.name = u"speaker.wave.2.fill", .base = {.file = u"fill/speaker-high-fill.svg"}},
    {.name = u"speaker.wave.3.fill", .base = {.file = u"fill/speaker-high-fill.svg"}},
    {.name = u"square.grid.2x2", .base = {.file = u"bold/squares-four-bold.svg"}},
    {.name = u"sun.max.fill", .base = {.file = u"fill/sun-fill.svg"}},
    {.name = u"sun.min.fill", .base = {.file = u"fill/sun-dim-fill.svg"}},
    {.name = u"terminal.fill", .base = {.file = u"fill/terminal-window-fill.svg"}},
    {.name = u"trash", .base = {.file = u"bold/trash-bold.svg"}},
    {.name = u"xmark", .base = {.file = u"bold/x-bold.svg"}},
    {.name = u"xmark.circle", .base = {.file = u"bold/x-circle-bold.svg"}},
    {.name = u"xmark.circle.fill", .base = {.file = u"fill/x-circle-fill.svg"}},
    {.name = u"xmark.octagon.fill", .base = {.file = u"fill/octagon-fill.svg"}, .cut = {.file = u"bold/x-bold.svg", .scale = 0.55}},
    {.name = u"xmark.square", .base = {.file = u"bold/x-square-bold.svg"}},
    // clang-format on
});

static_assert([] {
    for (std::size_t row = 1; row < symbolRows.size(); ++row) {
        if (characters(symbolRows[row - 1].name) >= characters(symbolRows[row].name))
            return false;
    }
    return true;
}());

/// The number of rows for a name that is not among them.
[[nodiscard]] constexpr std::size_t symbolRowOf(QStringView name)
{
    std::size_t first = 0;
    std::size_t last = symbolRows.size();
    while (first < last) {
        const std::size_t middle = (first + last) / 2;
        if (characters(symbolRows[middle].name) < characters(name))
            first = middle + 1;
        else
            last = middle;
    }
    const bool isFound = first < symbolRows.size() && characters(symbolRows[first].name) == characters(name);
    return isFound ? first : symbolRows.size();
}

} // namespace tarvin
