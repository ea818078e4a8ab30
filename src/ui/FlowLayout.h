#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace tarvin {

/// Puts things beside each other, each as wide as it wants, and begins a new line where the next one does not fit.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(int spacing, QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    /// All in one line.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& box) override;

private:
    enum class Placing : std::uint8_t { tryOnly, place };
    /// @return the height taken
    int layOut(const QRect& box, Placing placing) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
    int m_spacing;
};

} // namespace tarvin
