#include "ui/FlowLayout.h"
#include "ui/Palette.h"
#include "ui/SpringColumn.h"
#include "ui/TextBlock.h"
#include "ui/TextLine.h"

#include <QHBoxLayout>
#include <QSpacerItem>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <type_traits>

namespace tarvin {

namespace {

QWidget* block(int width, int height)
{
    auto* const widget = new QWidget;
    widget->setFixedSize(width, height);
    return widget;
}

class SpringColumnTest : public testing::Test
{
protected:
    SpringColumnTest()
    {
        column->setContentsMargins(1, 2, 3, 4);
        for (QWidget* const widget : widgets)
            column->addWidget(widget);
        window.resize(100, 200);
    }

    void hide(int index)
    {
        const SpringColumn::Change change(*column);
        widgets[index]->hide();
    }
    [[nodiscard]] QList<int> tops() const
    {
        QList<int> all;
        for (const QWidget* const widget : widgets)
            all += widget->isHidden() ? -1 : widget->y();
        return all;
    }
    [[nodiscard]] bool comesToRest() const
    {
        return QTest::qWaitFor([this] { return !column->isMoving(); });
    }

    QWidget window;
    SpringColumn* column = new SpringColumn(5, Motion::spring(0.05, 0.8), &window);
    QList<QWidget*> widgets{block(50, 10), block(50, 20), block(50, 30)};
};

TEST_F(SpringColumnTest, thingsStandBelowEachOtherAndHiddenOnesTakeNoRoom)
{
    window.show();
    EXPECT_EQ(tops(), (QList<int>{2, 17, 42}));
    EXPECT_EQ(column->heightForWidth(100), 2 + 10 + 5 + 20 + 5 + 30 + 4);
    EXPECT_EQ(column->sizeHint().width(), 54);
    widgets[0]->hide();
    QTest::qWait(0);
    EXPECT_EQ(tops(), (QList<int>{-1, 2, 27}));
}

TEST_F(SpringColumnTest, aChangeBeginsWhereThingsAreAndEndsWhereTheyBelong)
{
    window.show();
    const int before = column->heightForWidth(100);
    hide(1);
    EXPECT_TRUE(column->isMoving());
    EXPECT_EQ(tops(), (QList<int>{2, -1, 42}));
    EXPECT_EQ(column->heightForWidth(100), before);
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(tops(), (QList<int>{2, -1, 17}));
    EXPECT_EQ(column->heightForWidth(100), before - 25);
}

TEST_F(SpringColumnTest, whatComesUnfolds)
{
    window.show();
    {
        const SpringColumn::Change change(*column);
        widgets += block(50, 40);
        column->insertWidget(0, widgets.back());
        widgets.back()->show();
    }
    EXPECT_EQ(tops(), (QList<int>{2, 17, 42, 2}));
    EXPECT_EQ(widgets.back()->mask().boundingRect().height(), 1);
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(tops(), (QList<int>{47, 62, 87, 2}));
    EXPECT_TRUE(widgets.back()->mask().isEmpty()) << "nothing is cut off any more";
}

TEST_F(SpringColumnTest, whatNobodySeesDoesNotMove)
{
    hide(1);
    EXPECT_FALSE(column->isMoving());
    window.show();
    EXPECT_EQ(tops(), (QList<int>{2, -1, 17}));
}

TEST_F(SpringColumnTest, aChangeOfNothingStartsNothing)
{
    window.show();
    {
        const SpringColumn::Change change(*column);
        widgets[1]->hide();
        widgets[1]->show();
    }
    EXPECT_FALSE(column->isMoving());
}

/// A gap that counts how often one has gone.
class CountedGap : public QSpacerItem
{
public:
    explicit CountedGap(int& gone)
        : QSpacerItem(1, 1)
        , m_gone(gone)
    { }
    ~CountedGap() override { ++m_gone; }
    Q_DISABLE_COPY_MOVE(CountedGap)

private:
    int& m_gone;
};

/// The two layouts that are the program's own.
template <typename Layout> class OwningLayout : public testing::Test
{
protected:
    static Layout* make(QWidget& widget)
    {
        if constexpr (std::is_same_v<Layout, SpringColumn>)
            return new SpringColumn(0, Motion::spring(0.05, 0.8), &widget);
        else
            return new FlowLayout(0, &widget);
    }
};
using OwnLayouts = testing::Types<FlowLayout, SpringColumn>;
TYPED_TEST_SUITE(OwningLayout, OwnLayouts);

TYPED_TEST(OwningLayout, layoutsWithinGoWithIt)
{
    int gone = 0;
    {
        QWidget widget;
        auto* const layout = this->make(widget);
        for (int i = 0; i < 3; ++i) {
            auto* const within = new QHBoxLayout;
            within->addItem(new CountedGap(gone));
            layout->addItem(within);
            within->setParent(layout);
            layout->addItem(new CountedGap(gone));
        }
    }
    EXPECT_EQ(gone, 6);
}

TEST(FlowLayoutTest, beginsANewLineWhereTheNextThingDoesNotFit)
{
    QWidget window;
    auto* const flow = new FlowLayout(4, &window);
    const QList<QWidget*> widgets{block(30, 10), block(30, 12), block(50, 10)};
    for (QWidget* const widget : widgets)
        flow->addWidget(widget);
    EXPECT_EQ(flow->sizeHint(), QSize(118, 12));
    EXPECT_EQ(flow->heightForWidth(118), 12);
    EXPECT_EQ(flow->heightForWidth(117), 26);
    EXPECT_EQ(flow->heightForWidth(1), 10 + 4 + 12 + 4 + 10);
    window.resize(70, 60);
    window.show();
    EXPECT_EQ(widgets[1]->pos(), QPoint(34, 0));
    EXPECT_EQ(widgets[2]->pos(), QPoint(0, 16));
    widgets[0]->hide();
    QTest::qWait(0);
    EXPECT_EQ(widgets[1]->pos(), QPoint(0, 0));
}

TEST(TextBlockTest, linesAreBrokenBetweenWords)
{
    constexpr TextStyle style{.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded};
    const QString text = u"one two three"_qs;
    const double room = textWidth(u"one two"_qs, style) + 1;
    EXPECT_EQ(wrappedLines(text, style, 1000), QStringList{text});
    EXPECT_EQ(wrappedLines(text, style, room), (QStringList{u"one two"_qs, u"three"_qs}));
    EXPECT_EQ(wrappedLines(text, style, 1), (QStringList{u"one"_qs, u"two"_qs, u"three"_qs}));
    EXPECT_EQ(wrappedLines(u"one\ntwo"_qs, style, 1000), (QStringList{u"one"_qs, u"two"_qs}));
}

TEST(TextBlockTest, isAsHighAsItsLines)
{
    constexpr TextStyle style{.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded};
    const TextBlock label(u"one two three"_qs, style, palette::white);
    EXPECT_EQ(label.heightForWidth(1000), 12);
    EXPECT_EQ(label.heightForWidth(1), 38);
}

} // namespace

} // namespace tarvin
