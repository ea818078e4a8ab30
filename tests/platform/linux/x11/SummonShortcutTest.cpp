#include "platform/linux/x11/InputSession.h"

#include <gtest/gtest.h>

namespace tarvin::x11 {

namespace {

class Summon : public InputSession
{ };

/// The keys around the shortcut that the application has every right to, without the one that covers them.
std::string withoutBlankKeys(std::string keys)
{
    for (auto at = keys.find(" +#"); at != std::string::npos; at = keys.find(" +#"))
        keys.erase(at, keys.find(" -#") - at + std::string(" -#NNN").size());
    return keys;
}

TEST_P(Summon, theShortcutIsTakenFromTheApplication)
{
    startTap();
    customise({}, SummonShortcut::taken);
    keyboard->chord({KEY_LEFTALT, KEY_LEFTMETA, KEY_K});
    EXPECT_EQ(takeSeen(), "+k/OM -k/OM");
    EXPECT_EQ(withoutBlankKeys(takeClientKeys()), "+leftOption +leftCommand -leftCommand -leftOption");
}

TEST_P(Summon, otherModifiersDoNotMatter)
{
    startTap();
    customise({}, SummonShortcut::taken);
    keyboard->chord({KEY_LEFTSHIFT, KEY_LEFTCTRL, KEY_RIGHTALT, KEY_RIGHTMETA, KEY_K});
    keyboard->tap(KEY_CAPSLOCK);
    keyboard->tap(KEY_NUMLOCK);
    keyboard->chord({KEY_LEFTALT, KEY_LEFTMETA, KEY_K});
    EXPECT_EQ(takeSeen(), "+k/SCOM -k/SCOM +k/OM -k/OM");
}

TEST_P(Summon, oneOfTheTwoModifiersIsNotEnough)
{
    startTap();
    customise({}, SummonShortcut::taken);
    keyboard->chord({KEY_LEFTALT, KEY_K});
    keyboard->chord({KEY_LEFTMETA, KEY_K});
    keyboard->tap(KEY_K);
    EXPECT_EQ(takeSeen(), "");
    EXPECT_EQ(takeClientKeys(), "+leftOption +k -k -leftOption +leftCommand +k -k -leftCommand +k -k");
}

TEST_P(Summon, withoutTheWishForItTheShortcutIsTheApplications)
{
    startTap();
    customise({}, SummonShortcut::taken);
    customise({}, SummonShortcut::released);
    keyboard->chord({KEY_LEFTALT, KEY_LEFTMETA, KEY_K});
    EXPECT_EQ(takeSeen(), "");
    EXPECT_EQ(takeClientKeys(), "+leftOption +leftCommand +k -k -leftCommand -leftOption");
}

/// Makes Super hold another real modifier than on every usual layout.
void moveSuperToAnotherModifier(const std::string& display)
{
    constexpr std::size_t modifierCount = 8;
    constexpr std::size_t third = 5;
    constexpr std::size_t fourth = 6;
    const endtoend::XClient client(display);
    const endtoend::XOwned<xcb_get_modifier_mapping_reply_t> reply(
        xcb_get_modifier_mapping_reply(client.get(), xcb_get_modifier_mapping(client.get()), nullptr));
    ASSERT_TRUE(reply);
    const std::size_t width = reply->keycodes_per_modifier;
    xcb_keycode_t* const first = xcb_get_modifier_mapping_keycodes(reply.get());
    std::vector<xcb_keycode_t> keycodes(first, first + modifierCount * width);
    std::swap_ranges(keycodes.begin() + static_cast<std::ptrdiff_t>(third * width),
        keycodes.begin() + static_cast<std::ptrdiff_t>(fourth * width),
        keycodes.begin() + static_cast<std::ptrdiff_t>(fourth * width));
    const endtoend::XOwned<xcb_set_modifier_mapping_reply_t> outcome(xcb_set_modifier_mapping_reply(client.get(),
        xcb_set_modifier_mapping(client.get(), static_cast<std::uint8_t>(width), keycodes.data()), nullptr));
    ASSERT_TRUE(outcome && outcome->status == XCB_MAPPING_STATUS_SUCCESS);
}

TEST_P(Summon, theShortcutFollowsTheModifiers)
{
    startTap();
    customise({}, SummonShortcut::taken);
    moveSuperToAnotherModifier(server->display());
    settle();
    keyboard->chord({KEY_LEFTALT, KEY_LEFTMETA, KEY_K});
    EXPECT_EQ(takeSeen(), "+k/OM -k/OM");
    EXPECT_EQ(withoutBlankKeys(takeClientKeys()), "+leftOption +leftCommand -leftCommand -leftOption");
}

TEST_P(Summon, theShortcutFollowsTheKeymap)
{
    startTap();
    customise({}, SummonShortcut::taken);
    server->setLayout("us", "", "altwin:swap_alt_win");
    settle();
    keyboard->chord({KEY_LEFTALT, KEY_LEFTMETA, KEY_K});
    EXPECT_EQ(takeSeen(), "+k/OM -k/OM");
    // Where the right Alt key selects a third level it is Option all the same.
    server->setLayout("de");
    settle();
    keyboard->chord({KEY_RIGHTALT, KEY_LEFTMETA, KEY_K});
    EXPECT_EQ(takeSeen(), "+k/OM -k/OM");
}

TEST_P(Summon, aModifierAroundATakenKeyIsNotMistakenForATapOfItsOwn)
{
    startTap();
    customise({FKey::f5}, SummonShortcut::taken);
    keyboard->press(KEY_LEFTMETA);
    keyboard->tap(KEY_F5);
    settle();
    keyboard->release(KEY_LEFTMETA);
    const std::string keys = takeClientKeys();
    // Something was pressed in between, and it means nothing.
    EXPECT_EQ(keys.substr(0, 15), "+leftCommand +#") << keys;
    EXPECT_EQ(withoutBlankKeys(keys), "+leftCommand -leftCommand");
}

} // namespace

INSTANTIATE_TEST_SUITE_P(OnServer, Summon, allServers, serverName);

} // namespace tarvin::x11
