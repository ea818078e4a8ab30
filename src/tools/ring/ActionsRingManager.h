#pragma once

#include "tools/panel/FadingPanel.h"
#include "tools/ring/RingItem.h"

#include "model/ConfiguredAction.h"

#include <functional>

namespace tarvin {

class Pointer;

/// The ring of six actions that opens under the pointer. Main thread only.
///
/// It goes away when another application becomes the active one, and is still taken for visible then: the next press of
/// its key closes what is gone already, and only the one after it shows the ring again.
class ActionsRingManager final : public FadingPanel
{
    Q_OBJECT

public:
    static constexpr PanelTraits traits{
        .size = {340, 340}, .spaces = PanelSpaces::current, .deactivation = PanelDeactivation::goesAway};

    /// @param execute performs what was chosen and counts the use
    ActionsRingManager(
        Collaborators collaborators, const Pointer& pointer, std::function<void(const ConfiguredAction&)> execute);

    /// Opens the ring with its middle at the pointer, also where part of it lies off the screen then.
    void show() override;
    /// Closes the ring and performs the action at once, while the ring still fades.
    void select(const ConfiguredAction& action);

private:
    const Pointer& m_pointer;
    std::function<void(const ConfiguredAction&)> m_execute;
};

} // namespace tarvin
