#pragma once

#include <QWidget>

namespace tarvin {

/// What the two colours of the keys mean, each shown on a tiny keycap.
class KeyLegend : public QWidget
{
    Q_OBJECT

public:
    explicit KeyLegend(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace tarvin
