#pragma once

#include "model/ConfiguredAction.h"
#include "ui/PanelWindow.h"

#include <functional>

namespace tarvin {

/// The content of the ring: a disc with six actions around a button that closes it. It takes the mouse alone, no key.
class ActionsRingView : public PanelWindow
{
    Q_OBJECT

public:
    static constexpr int discSide = 310;

    ActionsRingView(const std::function<void(const ConfiguredAction&)>& onSelect, std::function<bool()> hasCompositor);

Q_SIGNALS:
    /// The user wants the ring closed.
    void dismissed();

private:
    class CentreButton;
    class ItemButton;
};

} // namespace tarvin
