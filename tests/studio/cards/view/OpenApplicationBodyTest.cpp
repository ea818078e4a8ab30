#include "studio/cards/view/OpenApplicationBody.h"

#include "studio/applications/view/ApplicationListView.h"
#include "studio/cards/view/CardScene.h"
#include "studio/support/Controls.h"
#include "support/QtPrinters.h"
#include "ui/TextField.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

using test::buttonNamed;
using test::hasButton;
using testing::Contains;

class OpenApplicationBodyTest : public testing::Test
{
protected:
    OpenApplicationBodyTest()
    {
        scene.install(u"Paint"_qs, u"org.example.paint"_qs, Qt::blue);
        scene.install(u"Abacus"_qs, u"org.example.sums"_qs, Qt::green);
        scene.record.choose(KeyAction::openApplication);
        body = std::make_unique<OpenApplicationBody>(scene.record, scene.openApplication, scene.icons, nullptr);
        body->resize(268, 320);
    }

    void show()
    {
        body->show();
        QApplication::setActiveWindow(body.get());
        scene.settle();
    }
    [[nodiscard]] ApplicationListView& list() const { return *body->findChild<ApplicationListView*>(); }
    [[nodiscard]] TextField& search() const { return *body->findChild<TextField*>(); }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const InstalledApplication& application : list().applications())
            names += application.name;
        return names;
    }
    void choose(int row)
    {
        QTest::qWait(0);
        QTest::mouseClick(
            list().viewport(), Qt::LeftButton, {}, list().visualRect(list().model()->index(row, 0)).center());
    }

    test::CardScene scene;
    std::unique_ptr<OpenApplicationBody> body;
};

TEST_F(OpenApplicationBodyTest, theListIsReadWhenTheCardIsFirstShown)
{
    scene.settle();
    EXPECT_EQ(scene.platform.applicationFolders().readings(), 0);
    show();
    EXPECT_EQ(names(), (QStringList{u"Abacus"_qs, u"Paint"_qs}));
    const int readings = scene.platform.applicationFolders().readings();
    body->hide();
    show();
    EXPECT_EQ(scene.platform.applicationFolders().readings(), readings);
}

TEST_F(OpenApplicationBodyTest, withoutAnApplicationItAsksForOne)
{
    show();
    EXPECT_THAT(test::shownTexts(*body), Contains(u"Select any application bundle from your Mac"_qs));
    EXPECT_FALSE(hasButton(*body, u"Change"_qs));
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(search().placeholderText(), u"Search installed apps...");
    EXPECT_TRUE(hasButton(*body, u"Browse..."_qs));
}

TEST_F(OpenApplicationBodyTest, aClickInTheListChoosesAndClosesIt)
{
    show();
    choose(1);
    EXPECT_EQ(scene.config().action, KeyAction::openApplication);
    EXPECT_EQ(scene.config().customAppName, u"Paint");
    EXPECT_EQ(scene.config().customAppBundleId, u"org.example.paint");
    EXPECT_EQ(scene.config().customAppPath, u"/Applications/Paint.app");
    EXPECT_FALSE(list().isVisible());
    EXPECT_THAT(test::shownTexts(*body), Contains(u"Paint"_qs));
    EXPECT_THAT(
        test::shownTexts(*body), Contains(u"Press F5 on your keyboard to instantly launch or switch to Paint"_qs));
}

TEST_F(OpenApplicationBodyTest, changeOpensTheListAgain)
{
    show();
    choose(1);
    buttonNamed(*body, u"Change"_qs).click();
    EXPECT_TRUE(list().isVisible());
    choose(0);
    EXPECT_EQ(scene.config().customAppName, u"Abacus");
    EXPECT_FALSE(list().isVisible());
}

TEST_F(OpenApplicationBodyTest, whatIsTypedFilters)
{
    show();
    search().setFocus();
    QTest::keyClicks(&search(), u"SUM"_qs);
    EXPECT_EQ(names(), QStringList{u"Abacus"_qs});
    QTest::keyClick(&search(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(scene.config().customAppBundleId, u"org.example.sums");
}

TEST_F(OpenApplicationBodyTest, theChosenOneIsMarked)
{
    show();
    choose(1);
    buttonNamed(*body, u"Change"_qs).click();
    EXPECT_EQ(list().model()->index(1, 0).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_NE(list().model()->index(0, 0).data(Qt::CheckStateRole), Qt::Checked);
}

TEST_F(OpenApplicationBodyTest, itFollowsWhatOthersWrite)
{
    show();
    choose(1);
    scene.profile.resetToDefault(FKey::f5);
    EXPECT_TRUE(list().isVisible());
    EXPECT_THAT(test::shownTexts(*body), Contains(u"Select any application bundle from your Mac"_qs));
}

TEST_F(OpenApplicationBodyTest, theSearchIsThatOfTheCardAndNotOfTheBody)
{
    show();
    scene.openApplication.setSearchText(u"pai"_qs);
    EXPECT_EQ(search().text(), u"pai");
    EXPECT_EQ(names(), QStringList{u"Paint"_qs});
}

TEST_F(OpenApplicationBodyTest, browseUsesTheDialogOfTheSystem)
{
    show();
    buttonNamed(*body, u"Browse..."_qs).click();
    buttonNamed(*body, u"Browse..."_qs).click();
    EXPECT_EQ(body->fileDialog(), nullptr);
    EXPECT_EQ(scene.platform.applicationChooser().openCount(), 1);
    scene.platform.applicationChooser().choose(u"/Applications/Paint.app"_qs);
    EXPECT_EQ(scene.config().customAppPath, u"/Applications/Paint.app");
    EXPECT_FALSE(list().isVisible());
    EXPECT_THAT(test::shownTexts(*body), Contains(u"Paint"_qs));
}

TEST_F(OpenApplicationBodyTest, withoutADialogOfTheSystemBrowseOffersTheFilesOfThePlatform)
{
    scene.platform.applicationChooser().setMissing(true);
    show();
    buttonNamed(*body, u"Browse..."_qs).click();
    ASSERT_NE(body->fileDialog(), nullptr);
    QFileDialog& dialog = *body->fileDialog();
    EXPECT_EQ(dialog.windowTitle(), u"Select Application");
    EXPECT_THAT(test::shownTexts(dialog), Contains(u"Choose an application to assign to F5"_qs));
    EXPECT_EQ(dialog.nameFilters(), QStringList{u"*.app"_qs});
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    buttonNamed(*body, u"Browse..."_qs).click();
    EXPECT_EQ(body->findChildren<QFileDialog*>().size(), 1);
    Q_EMIT dialog.fileSelected(u"/etc/passwd"_qs);
    EXPECT_EQ(scene.config().customAppName, std::nullopt);
    Q_EMIT dialog.fileSelected(u"/Applications/Paint.app"_qs);
    EXPECT_EQ(scene.config().customAppName, u"Paint");
    dialog.reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(0);
    EXPECT_EQ(body->fileDialog(), nullptr);
}

TEST_F(OpenApplicationBodyTest, theIconIsReadOffTheMainThreadAndShown)
{
    show();
    choose(1);
    const auto middle = [&] { return body->grab().toImage().pixelColor(12, 4 + 13); };
    EXPECT_NE(middle(), QColor(Qt::blue));
    scene.settle();
    EXPECT_EQ(middle(), QColor(Qt::blue));
}

} // namespace

} // namespace tarvin
