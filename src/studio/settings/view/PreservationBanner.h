#pragma once

#include <QWidget>

namespace tarvin {

/// Says that what the user has customised stays, whatever is switched off.
class PreservationBanner : public QWidget
{
    Q_OBJECT

public:
    explicit PreservationBanner(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvin
