#pragma once

#include "fuzz/support/Chance.h"
#include "fuzz/support/FuzzedKeyboard.h"
#include "interception/support/InterceptionDesktop.h"

#include <string>

namespace tarvin::test {

/// What a user and the system do in between, at random. All of it follows from the seed.
class FuzzedSession
{
public:
    explicit FuzzedSession(std::uint64_t seed);

    void mapEverything() { keyboard.map(FKeySet::all()); }
    /// Presses, repeats or releases one of the keys.
    void useTheKeyboard();
    /// Another application comes forward, perhaps our own.
    void switchApplication();
    /// A key is customised, or is not any more, in one of the profiles, which is the one being edited from then on.
    void editAMapping();
    void changePermission();
    /// The system switches one of the taps off, with or without a word.
    void switchATapOff();
    /// An event with random content, often close to one that means something.
    [[nodiscard]] InputEvent anyEvent();
    void wait(std::uint64_t longestMilliseconds);

    /// The keys that the funnel takes for held, without Caps Lock. That goes by turns: whether its flags-changed event
    /// ends a press or begins one depends on what the funnel believes, so it may stay held until it is pressed again.
    [[nodiscard]] FKeySet heldInTheFunnel();
    /// Whatever came before: with everything customised and switched on, each key fires once at its next press and is
    /// free after its release.
    void expectThatNoKeyIsStuck();

    Chance chance;
    InterceptionDesktop desktop;
    FuzzedKeyboard keyboard{desktop, chance};
};

/// The keys' names, for a message.
[[nodiscard]] std::string names(FKeySet keys);

} // namespace tarvin::test
