#pragma once

#include "platform/linux/windows/WorkArea.h"
#include "platform/ports/Screens.h"

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::windows {

/// The monitors of an X session, asked for anew at each call, in a handful of round trips.
///
/// What panels leave free comes from the first of these that is there: the areas of single monitors that GNOME's
/// manager tells, the manager's work area where there is one monitor only, the struts of the windows.
class RandrScreens : public Screens
{
public:
    /// @param pixelsPerPoint how many pixels of the server one logical point of the toolkit has
    explicit RandrScreens(desktop::XConnection& connection, double pixelsPerPoint = 1);

    [[nodiscard]] std::vector<Screen> screens() const override;
    /// The monitor with the centre of the active window, or the first where no window is active.
    [[nodiscard]] std::optional<Screen> mainScreen() const override;

private:
    [[nodiscard]] std::vector<PixelRect> monitors() const;
    [[nodiscard]] std::vector<PixelRect> freeAreas(const std::vector<PixelRect>& monitors) const;
    [[nodiscard]] std::vector<PixelRect> areasOfMonitors() const;
    [[nodiscard]] std::optional<PixelRect> workArea() const;
    [[nodiscard]] std::vector<Strut> struts(const PixelRect& wholeScreen) const;
    [[nodiscard]] std::uint32_t currentDesktop() const;
    [[nodiscard]] PixelRect wholeScreen() const;
    [[nodiscard]] Rect inPoints(const PixelRect& rect) const;

    desktop::XConnection& m_connection;
    double m_pixelsPerPoint;
};

} // namespace tarvin::windows
