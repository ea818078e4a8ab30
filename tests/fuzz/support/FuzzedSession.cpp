#include "fuzz/support/FuzzedSession.h"

#include "interception/support/InputEvents.h"

#include <gtest/gtest.h>

namespace tarvin::test {

using namespace std::chrono_literals;

FuzzedSession::FuzzedSession(std::uint64_t seed)
    : chance(seed)
{
    desktop.manager();
}

void FuzzedSession::useTheKeyboard()
{
    const FKey key = chance.oneOf(allFKeys);
    if (!keyboard.heldKeys().contains(key))
        keyboard.press(key);
    else if (chance.percent(30))
        keyboard.repeat(key);
    else
        keyboard.release(key);
}

void FuzzedSession::switchApplication()
{
    const auto bringForward = [this](ProcessIdentifier process, const QString& identifier) {
        desktop.platform.workspace().setFrontmost(
            {.processIdentifier = process, .bundleIdentifiers = {identifier}, .localizedName = identifier});
    };
    switch (chance.below(3)) {
    case 0:
        desktop.platform.appShell().becomeActive();
        break;
    case 1:
        bringForward(7, QStringLiteral("com.apple.Safari"));
        break;
    default:
        bringForward(8, QStringLiteral("org.example.Other"));
    }
}

void FuzzedSession::editAMapping()
{
    desktop.profile.setCurrentProfile(chance.oneOf(AppProfile::presets()));
    const FKey key = chance.oneOf(allFKeys);
    if (chance.percent(60))
        keyboard.map({key});
    else
        desktop.profile.resetToDefault(key);
}

void FuzzedSession::changePermission()
{
    desktop.platform.permission().setTrusted(chance.percent(70));
    desktop.manager().checkPermissionAndStart();
}

void FuzzedSession::switchATapOff()
{
    const TapLocation location = chance.percent(50) ? TapLocation::hid : TapLocation::session;
    if (chance.percent(50))
        desktop.platform.inputTaps().disableBySystem(location);
    else
        desktop.platform.inputTaps().disableSilently(location);
}

InputEvent FuzzedSession::anyEvent()
{
    constexpr auto types = std::to_array({InputEventType::keyDown, InputEventType::keyUp, InputEventType::flagsChanged,
        InputEventType::systemDefined, InputEventType::tapDisabledByTimeout, InputEventType::tapDisabledByUserInput});
    constexpr std::uint64_t plausibleKeyCodes = 190;
    constexpr std::uint64_t plausibleMediaTypes = 24;
    InputEvent event{.type = chance.oneOf(types),
        .keyCode = static_cast<KeyCode>(chance.percent(90) ? chance.below(plausibleKeyCodes) : chance.bits()),
        .flags = static_cast<EventFlags>(chance.bits() & chance.bits()),
        .autorepeat = chance.percent(20) ? 1 : 0,
        .userData = chance.percent(10) ? selfPostedMarker : 0};
    if (chance.percent(80)) {
        const auto data1 = static_cast<std::uint32_t>(
            chance.percent(50) ? chance.below(plausibleMediaTypes) << 16 | 0x0A00 | chance.below(2) : chance.bits());
        event.systemDefined = SystemDefinedFields{static_cast<std::int16_t>(7 + chance.below(3)), data1};
    }
    return event;
}

void FuzzedSession::wait(std::uint64_t longestMilliseconds)
{
    desktop.advance(std::chrono::milliseconds(chance.below(longestMilliseconds + 1)));
}

FKeySet FuzzedSession::heldInTheFunnel()
{
    FKeySet held = desktop.manager().pressLedger().pressedPhysicalKeys();
    held.remove(FKey::capsLock);
    return held;
}

void FuzzedSession::expectThatNoKeyIsStuck()
{
    desktop.profile.setCurrentProfile(AppProfile::global());
    desktop.profile.setInterceptionEnabled(true);
    desktop.profile.setFunctionKeysEnabled(true);
    desktop.profile.setOtherKeysEnabled(true);
    mapEverything();
    desktop.advance(1s);
    for (const FKey key : allFKeys) {
        const int before = keyboard.firings(key);
        desktop.hid(7, hidUsageOf(key), 1);
        EXPECT_EQ(keyboard.firings(key), before + 1) << names({key});
        desktop.hid(7, hidUsageOf(key), 0);
    }
    EXPECT_TRUE(desktop.manager().pressLedger().pressedPhysicalKeys().empty()) << desktop.held();
}

std::string names(FKeySet keys)
{
    QStringList texts;
    for (const FKey key : keys)
        texts += rawValue(key).toString();
    return texts.join(u' ').toStdString();
}

} // namespace tarvin::test
