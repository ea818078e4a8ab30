#pragma once

#include "model/ConfiguredAction.h"

namespace tarvin::test {

/// A record with every parameter that its action may ask for.
[[nodiscard]] inline ConfiguredAction fullRecord(KeyAction action)
{
    const CustomShortcut shortcut{.command = true, .keyCode = 8, .keyDisplay = u"C"_qs};
    ConfiguredAction config(action);
    config.customShortcuts = {shortcut, shortcut};
    config.textSnippet = u"text"_qs;
    config.customURL = u"example.org"_qs;
    config.customAppBundleId = u"com.example.mail"_qs;
    config.quickFlipCompanionBundleId = u"com.example.mail"_qs;
    config.chainSteps = {ActionChainStep{.type = ActionChainStepType::shortcut, .customShortcut = shortcut},
        ActionChainStep{.type = ActionChainStepType::textSnippet, .textSnippet = u"text"_qs}};
    return config;
}

} // namespace tarvin::test
