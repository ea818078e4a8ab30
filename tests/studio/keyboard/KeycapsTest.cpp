#include "studio/keyboard/Keycaps.h"

#include "interception/KeyIdentifier.h"
#include "model/FKey.h"

#include "support/QtPrinters.h"

#include <QSet>
#include <QStringList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

using testing::ElementsAre;

namespace {

QStringList idsOf(KeyboardRow row)
{
    QStringList ids;
    for (const Keycap& keycap : keycaps) {
        if (keycap.row == row)
            ids += keycap.id.toString();
    }
    return ids;
}

const Keycap& keycapNamed(QStringView id)
{
    for (const Keycap& keycap : keycaps) {
        if (keycap.id == id)
            return keycap;
    }
    throw std::invalid_argument("no such keycap");
}

} // namespace

TEST(Keycaps, standInTheRowsOfALaptop)
{
    EXPECT_EQ(idsOf(KeyboardRow::heroFunction).join(u' '), u"esc F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12 touch_id"_qs);
    EXPECT_EQ(idsOf(KeyboardRow::number).join(u' '), u"` 1 2 3 4 5 6 7 8 9 0 - = delete"_qs);
    EXPECT_EQ(idsOf(KeyboardRow::qwerty).join(u' '), u"tab Q W E R T Y U I O P [ ] \\"_qs);
    EXPECT_EQ(idsOf(KeyboardRow::home).join(u' '), u"caps lock A S D F G H J K L ; ' return"_qs);
    EXPECT_EQ(idsOf(KeyboardRow::bottomAlpha).join(u' '), u"shift_left Z X C V B N M , . / shift_right"_qs);
    EXPECT_EQ(idsOf(KeyboardRow::modifier).join(u' '),
        u"FnGlobe control option_left command_left space RightCommand RightOption arrow_left arrow_up arrow_down arrow_right"_qs);
}

TEST(Keycaps, haveNamesOfTheirOwn)
{
    QSet<QString> ids;
    for (const Keycap& keycap : keycaps)
        ids += keycap.id.toString();
    EXPECT_EQ(static_cast<std::size_t>(ids.size()), keycapCount);
}

TEST(Keycaps, sixteenAreLive)
{
    int live = 0;
    for (const FKey key : allFKeys) {
        const bool isDrawn = isFunctionRowKey(key) || key == FKey::capsLock || key == FKey::fnGlobe
            || key == FKey::rightCommand || key == FKey::rightOption;
        EXPECT_EQ(keycapOf(key).has_value(), isDrawn) << rawValue(key).toString().toStdString();
        live += isDrawn;
    }
    EXPECT_EQ(live, 16);
}

TEST(Keycaps, everyPressThatIsReportedMovesOne)
{
    for (KeyCode code = 0; code < 128; ++code) {
        const auto id = keyIdentifier(code);
        const auto isDrawn = [&](const Keycap& keycap) { return isPressNamed(keycap, *id); };
        if (!id || id == u"Section" || (id->startsWith(u'F') && id->mid(1).toInt() > 12))
            continue;
        EXPECT_EQ(std::count_if(keycaps.begin(), keycaps.end(), isDrawn), 1) << id->toString().toStdString();
    }
}

TEST(Keycaps, capsLockGoesByTwoNames)
{
    const Keycap& capsLock = keycaps[*keycapOf(FKey::capsLock)];
    EXPECT_TRUE(isPressNamed(capsLock, u"caps lock"));
    EXPECT_TRUE(isPressNamed(capsLock, u"CapsLock"));
    EXPECT_FALSE(isPressNamed(capsLock, u"A"));
    EXPECT_FALSE(isPressNamed(keycapNamed(u"A"), u"CapsLock"));
}

TEST(Keycaps, onlyFAndJHaveABar)
{
    QStringList withBar;
    for (const Keycap& keycap : keycaps) {
        if (hasTactileNub(keycap))
            withBar += keycap.id.toString();
    }
    EXPECT_THAT(withBar, ElementsAre(u"F"_qs, u"J"_qs));
}

TEST(Keycaps, wordedKeysHaveTheirIconAtTheirSide)
{
    const auto check = [](QStringView id, Symbol icon, KeycapAlignment alignment, QStringView label) {
        EXPECT_EQ(keycapNamed(id).icon, icon) << id.toString().toStdString();
        EXPECT_EQ(keycapNamed(id).alignment, alignment) << id.toString().toStdString();
        EXPECT_EQ(keycapNamed(id).label, label);
    };
    check(u"delete", Symbol(u"delete.left"), KeycapAlignment::trailing, u"delete");
    check(u"tab", Symbol(u"arrow.right.to.line"), KeycapAlignment::leading, u"tab");
    check(u"return", Symbol(u"return"), KeycapAlignment::trailing, u"return");
    check(u"shift_left", Symbol(u"arrow.up"), KeycapAlignment::leading, u"shift");
    check(u"shift_right", Symbol(u"arrow.up"), KeycapAlignment::trailing, u"shift");
    check(u"control", Symbol(u"control"), KeycapAlignment::leading, u"control");
    check(u"option_left", Symbol(u"option"), KeycapAlignment::leading, u"option");
    check(u"command_left", Symbol(u"command"), KeycapAlignment::trailing, u"command");
    check(u"FnGlobe", Symbol(u"globe"), KeycapAlignment::leading, u"fn");
    check(u"RightCommand", Symbol(u"command"), KeycapAlignment::leading, u"command");
    check(u"RightOption", Symbol(u"option"), KeycapAlignment::trailing, u"option");
    EXPECT_EQ(keycapNamed(u"esc").alignment, KeycapAlignment::topLeading);
}

} // namespace tarvin
