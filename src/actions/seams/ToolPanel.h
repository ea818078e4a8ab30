#pragma once

namespace tarvin {

/// A floating panel of the program's own. Main thread only.
class ToolPanel
{
public:
    virtual ~ToolPanel() = default;
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void show() = 0;
    virtual void hide() = 0;
};

} // namespace tarvin
