#pragma once

#include <QWidget>

namespace tarvin {

/// Says that the permission is missing, and leads to where it is given.
class AccessibilityWarningBanner : public QWidget
{
    Q_OBJECT

public:
    explicit AccessibilityWarningBanner(QWidget* parent = nullptr);

Q_SIGNALS:
    void authorizeRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvin
