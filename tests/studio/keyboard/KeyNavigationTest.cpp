#include "studio/keyboard/KeyNavigation.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

FKey towards(FKey from, Qt::Key arrow)
{
    const KeyboardGeometry geometry = keyboardGeometry(1204);
    return *keycaps[liveKeyTowards(geometry, *keycapOf(from), arrow)].key;
}

} // namespace

TEST(KeyNavigation, goesAlongTheFunctionRowAndStopsAtItsEnds)
{
    EXPECT_EQ(towards(FKey::f1, Qt::Key_Right), FKey::f2);
    EXPECT_EQ(towards(FKey::f12, Qt::Key_Left), FKey::f11);
    EXPECT_EQ(towards(FKey::f12, Qt::Key_Right), FKey::f12);
    EXPECT_EQ(towards(FKey::f1, Qt::Key_Left), FKey::f1);
    EXPECT_EQ(towards(FKey::f5, Qt::Key_Up), FKey::f5);
}

TEST(KeyNavigation, goesDownToTheNextRowWithALiveKeyAndUpAgain)
{
    EXPECT_EQ(towards(FKey::f5, Qt::Key_Down), FKey::capsLock);
    EXPECT_EQ(towards(FKey::capsLock, Qt::Key_Down), FKey::fnGlobe);
    EXPECT_EQ(towards(FKey::fnGlobe, Qt::Key_Right), FKey::rightCommand);
    EXPECT_EQ(towards(FKey::rightCommand, Qt::Key_Right), FKey::rightOption);
    EXPECT_EQ(towards(FKey::rightOption, Qt::Key_Up), FKey::capsLock);
    EXPECT_EQ(towards(FKey::capsLock, Qt::Key_Up), FKey::f1);
    EXPECT_EQ(towards(FKey::rightOption, Qt::Key_Down), FKey::rightOption);
}

TEST(KeyNavigation, reachesEveryLiveKey)
{
    for (const Keycap& keycap : keycaps) {
        if (!keycap.key || keycap.key == FKey::f1)
            continue;
        bool isReached = false;
        for (const Keycap& from : keycaps) {
            for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
                isReached =
                    isReached || (from.key && from.key != keycap.key && towards(*from.key, arrow) == keycap.key);
        }
        EXPECT_TRUE(isReached) << keycap.id.toString().toStdString();
    }
}

} // namespace tarvin
