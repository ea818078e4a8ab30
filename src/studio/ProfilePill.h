#pragma once

#include "profiles/AppProfile.h"
#include "ui/PaintedButton.h"

#include <functional>

namespace tarvin {

/// One profile in the dock. What lies on the active pill is drawn black, also while the pill is on its way.
class ProfilePill : public PaintedButton
{
    Q_OBJECT

public:
    static constexpr int pillHeight = 26;

    /// @param shownName the name as the dock has it
    /// @param activePill where the active pill is now, in the dock
    ProfilePill(
        const AppProfile& profile, const QString& shownName, std::function<QRectF()> activePill, QWidget* parent);

    [[nodiscard]] const AppProfile& profile() const { return m_profile; }
    void setCompact(bool compact);
    void setCurrent(bool current);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] bool showsName() const { return !m_isCompact || isChecked(); }
    void paintContent(QPainter& painter, const QColor& colour) const;

    AppProfile m_profile;
    std::function<QRectF()> m_activePill;
    bool m_isCompact = false;
};

} // namespace tarvin
