#pragma once

#include "ui/AnimatedValue.h"

#include <QWidget>

#include <vector>

namespace tarvin {

class KeyProfile;
class OutlinedButton;
class ProfilePill;

/// The profiles side by side. The pill under the current one glides to the next that is chosen.
class AppProfileFloatingDock : public QWidget
{
    Q_OBJECT

public:
    /// @param profile outlives the dock
    explicit AppProfileFloatingDock(KeyProfile& profile, QWidget* parent = nullptr);

    /// Shows the names of the profiles that are not current, or their symbols alone.
    void setCompact(bool compact);
    /// Where the pills need more than this the dock scrolls, by the wheel and to the current profile.
    void setRoom(int width);
    /// As wide as all of it.
    [[nodiscard]] int fullWidth() const;
    [[nodiscard]] QSize sizeHint() const override;
    /// Where the active pill is drawn now, among the pills.
    [[nodiscard]] QRectF activePill() const;

Q_SIGNALS:
    void addRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void makePills();
    void followCurrentProfile();
    void layOut();
    void scrollTo(int offset);
    void scrollToCurrentPill();
    void glide(bool isAnimated);
    [[nodiscard]] ProfilePill* currentPill() const;

    KeyProfile& m_profile;
    QWidget* m_strip; ///< cuts off what is scrolled out
    std::vector<ProfilePill*> m_pills; ///< owned by the strip
    OutlinedButton* m_plus;
    bool m_isCompact = false;
    int m_room = QWIDGETSIZE_MAX;
    int m_scroll = 0;
    AnimatedValue m_pillLeft;
    AnimatedValue m_pillWidth;
};

} // namespace tarvin
