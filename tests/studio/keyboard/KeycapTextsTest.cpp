#include "studio/keyboard/KeycapTexts.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvin {

namespace {

const Keycap& keycapOfKey(FKey key)
{
    return keycaps[*keycapOf(key)];
}

const Keycap& keycapNamed(QStringView id)
{
    for (const Keycap& keycap : keycaps) {
        if (keycap.id == id)
            return keycap;
    }
    throw std::invalid_argument("no such keycap");
}

constexpr KeycapMapping plain{.isCustomized = false, .isActive = true, .actionTitle = u"Dictation"};
constexpr KeycapMapping mapped{.isCustomized = true, .isActive = true, .actionTitle = u"Clipboard History"};
constexpr KeycapMapping pausedMapping{.isCustomized = true, .isActive = false, .actionTitle = u"Clipboard History"};

struct TooltipRow
{
    FKey key;
    QStringView plain;
    QStringView customized;
    QStringView paused;
};

void PrintTo(const TooltipRow& row, std::ostream* out)
{
    *out << rawValue(row.key).toString().toStdString();
}

class LiveTooltips : public testing::TestWithParam<TooltipRow>
{ };

} // namespace

TEST_P(LiveTooltips, tellTheKeyAndItsState)
{
    const TooltipRow& row = GetParam();
    EXPECT_EQ(keycapTooltip(keycapOfKey(row.key), plain), row.plain);
    EXPECT_EQ(keycapTooltip(keycapOfKey(row.key), mapped), row.customized);
    EXPECT_EQ(keycapTooltip(keycapOfKey(row.key), pausedMapping), row.paused);
}

INSTANTIATE_TEST_SUITE_P(Keys, LiveTooltips,
    testing::Values(TooltipRow{FKey::f5, u"F5 • Customizable Function Key (Click to customize • Turns Mint Teal)",
                        u"F5 • Customized: Clipboard History (Mint Teal)",
                        u"F5 • Custom (Paused): Clipboard History — Function keys deactivated"},
        TooltipRow{FKey::f12, u"F12 • Customizable Function Key (Click to customize • Turns Mint Teal)",
            u"F12 • Customized: Clipboard History (Mint Teal)",
            u"F12 • Custom (Paused): Clipboard History — Function keys deactivated"},
        TooltipRow{FKey::fnGlobe, u"Function / Globe (fn 🌐) • Customizable Key (Click to customize • Turns Mint Teal)",
            u"Function / Globe (fn 🌐) • Customized: Clipboard History (Mint Teal)",
            u"Function / Globe (fn 🌐) • Custom (Paused): Clipboard History — Other keys deactivated"},
        TooltipRow{FKey::rightCommand, u"Right Command (⌘) • Customizable Key (Click to customize • Turns Mint Teal)",
            u"Right Command (⌘) • Customized: Clipboard History (Mint Teal)",
            u"Right Command (⌘) • Custom (Paused): Clipboard History — Other keys deactivated"},
        TooltipRow{FKey::rightOption, u"Right Option (⌥) • Customizable Key (Click to customize • Turns Mint Teal)",
            u"Right Option (⌥) • Customized: Clipboard History (Mint Teal)",
            u"Right Option (⌥) • Custom (Paused): Clipboard History — Other keys deactivated"},
        TooltipRow{FKey::capsLock, u"Caps Lock • Customizable Key (Click to customize • Turns Mint Teal)",
            u"Caps Lock • Customized: Clipboard History (Mint Teal)",
            u"Caps Lock • Custom (Paused): Clipboard History — Other keys deactivated"}));

TEST(KeycapTexts, standardKeysSayWhatTheyAre)
{
    EXPECT_EQ(keycapTooltip(keycapNamed(u"A"), {}), u"A • Standard typing key"_qs);
    EXPECT_EQ(keycapTooltip(keycapNamed(u"control"), {}), u"control • Standard typing key"_qs);
    EXPECT_EQ(keycapTooltip(keycapNamed(u"shift_left"), {}), u"shift • Standard typing key"_qs);
    EXPECT_EQ(keycapTooltip(keycapNamed(u"shift_right"), {}), u"shift • Standard typing key"_qs);
    EXPECT_EQ(keycapTooltip(keycapNamed(u"arrow_up"), {}), u"Arrow key • Standard navigation key"_qs);
}

TEST(KeycapTexts, theSpaceBarAndTouchIDHaveNoTooltip)
{
    EXPECT_EQ(keycapTooltip(keycapNamed(u"space"), {}), QString());
    EXPECT_EQ(keycapTooltip(keycapNamed(u"touch_id"), {}), QString());
}

TEST(KeycapTexts, areSpokenWithStateAndAction)
{
    EXPECT_EQ(keycapSpokenText(keycapOfKey(FKey::f5), mapped), u"F5, customised: Clipboard History"_qs);
    EXPECT_EQ(keycapSpokenText(keycapOfKey(FKey::f5), plain), u"F5, customisable: Dictation"_qs);
    EXPECT_EQ(keycapSpokenText(keycapOfKey(FKey::capsLock), pausedMapping),
        u"Caps Lock, customised, paused: Clipboard History"_qs);
    EXPECT_EQ(keycapSpokenText(keycapNamed(u"shift_left"), {}), u"left shift"_qs);
    EXPECT_EQ(keycapSpokenText(keycapNamed(u"Q"), {}), u"Q"_qs);
    for (const Keycap& keycap : keycaps)
        EXPECT_FALSE(keycapSpokenText(keycap, plain).isEmpty());
}

} // namespace tarvin
