#pragma once

#include "ui/AnimatedValue.h"

#include <QLayout>
#include <QRect>

#include <memory>
#include <optional>
#include <vector>

namespace tarvin {

/// Puts things below each other, each as wide as the column and as high as it wants to be at that width. A change of
/// what is there moves: the rest slides to its new places, what comes unfolds, and the height of the whole follows.
class SpringColumn : public QLayout
{
    Q_OBJECT

public:
    /// @param parent becomes the widget that is laid out, without margins
    SpringColumn(int spacing, const Motion& motion, QWidget* parent);
    ~SpringColumn() override;

    /// Whatever is shown, hidden or given another height while one of these lives moves to its new place at its end. At
    /// once where nobody sees it.
    class Change
    {
    public:
        explicit Change(SpringColumn& column);
        ~Change();
        Q_DISABLE_COPY_MOVE(Change)

    private:
        SpringColumn& m_column;
    };

    void insertWidget(int index, QWidget* widget);
    void addLayout(QLayout* layout);
    [[nodiscard]] bool isMoving() const { return m_progress.state() == QAbstractAnimation::Running; }

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(m_items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& box) override;

private:
    struct Place
    {
        int top;
        int height;
        bool operator==(const Place&) const = default;
    };
    struct Item
    {
        std::unique_ptr<QLayoutItem> item;
        std::optional<Place> shown; ///< where it is to be seen now; absent while it is not there
        std::optional<Place> before; ///< where the movement began
        std::optional<Place> atChange; ///< where it was to be seen when the change under way began
    };
    /// Of each item, absent for what is not there; from the top of the margin.
    [[nodiscard]] std::vector<std::optional<Place>> places(int width) const;
    [[nodiscard]] int restingHeight(int width) const;
    void beginChange();
    void endChange();
    void step();
    void place(const QRect& box);

    std::vector<Item> m_items;
    QRect m_box; ///< the last one; the layout's own is forgotten at each change
    int m_spacing;
    Motion m_motion;
    AnimatedValue m_progress; ///< from 0 to 1
    int m_heightBefore = 0; ///< where the movement began
    std::vector<std::optional<Place>> m_placesAtChange; ///< at rest, when the change under way began
    int m_heightAtChange = 0;
};

} // namespace tarvin
