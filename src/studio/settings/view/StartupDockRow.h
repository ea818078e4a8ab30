#pragma once

#include "shell/StartupDockMode.h"
#include "ui/PaintedButton.h"

#include <QStringList>

namespace tarvin {

/// One of the choices of what the program does at start-up: a radio button with a title, a chip and a description.
class StartupDockRow : public PaintedButton
{
    Q_OBJECT

public:
    static constexpr int rowWidth = 520;

    explicit StartupDockRow(StartupDockMode mode, QWidget* parent = nullptr);

    [[nodiscard]] StartupDockMode mode() const { return m_mode; }
    void setSelected(bool selected);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintRadio(QPainter& painter) const;

    const StartupDockMode m_mode;
    const QStringList m_lines; ///< of the description
    AnimatedValue m_selection; ///< from 0 to 1, selected
};

} // namespace tarvin
