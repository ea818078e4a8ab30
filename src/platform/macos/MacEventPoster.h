#pragma once

#include "platform/ports/EventPoster.h"

namespace tarvin::macos {

/// Posts events into the stream of the window server. Keystrokes of every origin are the system's own, so none is
/// translated. Main thread only.
class MacEventPoster final : public EventPoster
{
public:
    [[nodiscard]] bool canMakeKey(KeyCode keyCode) const override;
    void postKey(const SyntheticKey& key, TapLocation location) override;
    [[nodiscard]] bool canMakeClick() const override;
    void postSecondaryClick(const SyntheticClick& click, TapLocation location) override;
};

} // namespace tarvin::macos
