#include "studio/applications/view/AddAppSheet.h"

#include "app/core/StudioEditing.h"
#include "studio/applications/view/ApplicationIcons.h"
#include "studio/applications/view/ApplicationListView.h"
#include "studio/applications/view/NoApplicationsView.h"
#include "studio/support/StudioDesktop.h"
#include "support/QtPrinters.h"
#include "ui/Sheet.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

class AddAppSheetView : public testing::Test
{
protected:
    AddAppSheetView()
    {
        for (const QString& name :
            {u"Safari"_qs, u"Terminal"_qs, u"Visual Studio Code"_qs, u"Terminator"_qs, u"Mail"_qs})
            desktop.platform.applicationFolders().install(ApplicationFolder::applications,
                {.path = QStringLiteral("/Applications/%1.app").arg(name),
                    .bundleIdentifier = QStringLiteral("com.apple.") + name.section(u' ', 0, 0),
                    .icon = name});
        window.resize(600, 600);
        window.show();
    }
    void SetUp() override
    {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        present();
    }

    void present()
    {
        const Sheet* const shown = Sheet::present(window,
            [this](Sheet::Close close) { return new AddAppSheet(editing.addApplication(std::move(close)), icons); });
        sheet = dynamic_cast<AddAppSheet*>(&shown->panel());
    }
    void finishScan() { desktop.platform.scheduler().runPosted(); }
    void type(const QString& text) const { QTest::keyClicks(&sheet->searchField(), text); }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const InstalledApplication& application : sheet->list().applications())
            names += application.name;
        return names;
    }
    [[nodiscard]] QStringList shownTexts() const
    {
        QStringList texts;
        const auto labels = sheet->findChildren<QLabel*>();
        for (const QLabel* const label : labels) {
            if (label->isVisible())
                texts += label->text();
        }
        return texts;
    }
    [[nodiscard]] QAbstractButton* button(const QString& name) const
    {
        const auto buttons = sheet->findChildren<QAbstractButton*>();
        for (QAbstractButton* const candidate : buttons) {
            if (QAccessible::queryAccessibleInterface(candidate)->text(QAccessible::Name) == name)
                return candidate;
        }
        throw std::invalid_argument("no button " + name.toStdString());
    }

    test::StudioDesktop desktop;
    StudioEditing editing{desktop.platform.ports(), desktop.objects};
    ApplicationIcons icons{
        desktop.platform.scheduler(), [](const QString& /*icon*/, int /*pixels*/) { return QImage(); }};
    QWidget window;
    AddAppSheet* sheet = nullptr;
};

} // namespace

TEST_F(AddAppSheetView, hasItsSizeAndTheKeyboardInTheSearchField)
{
    EXPECT_EQ(sheet->size(), QSize(440, 480));
    EXPECT_TRUE(sheet->searchField().hasFocus());
    EXPECT_EQ(sheet->searchField().placeholderText(), u"Search installed applications...");
    EXPECT_EQ(sheet->searchField().geometry(), QRect(20, 50, 400, 32));
    EXPECT_THAT(shownTexts(), Contains(u"Add Application Profile"_qs));
}

TEST_F(AddAppSheetView, theEmptyStateShowsWhileTheListIsLoading)
{
    EXPECT_TRUE(sheet->emptyState().isVisible());
    EXPECT_FALSE(sheet->list().isVisible());
    EXPECT_THAT(shownTexts(), Contains(u"No applications found"_qs));
    EXPECT_FALSE(button(u"Clear Search"_qs)->isVisible());
    finishScan();
    EXPECT_FALSE(sheet->emptyState().isVisible());
    EXPECT_TRUE(sheet->list().isVisible());
    EXPECT_THAT(
        names(), ElementsAre(u"Mail"_qs, u"Safari"_qs, u"Terminal"_qs, u"Terminator"_qs, u"Visual Studio Code"_qs));
}

TEST_F(AddAppSheetView, theBestMatchStandsFirst)
{
    finishScan();
    type(u"term"_qs);
    EXPECT_THAT(names(), ElementsAre(u"Terminal"_qs, u"Terminator"_qs));
    sheet->searchField().setText(u"  SAFARI "_qs);
    EXPECT_THAT(names(), ElementsAre(u"Safari"_qs));
    sheet->searchField().setText(u"code"_qs);
    EXPECT_THAT(names(), ElementsAre(u"Visual Studio Code"_qs));
}

TEST_F(AddAppSheetView, aSearchWithoutResultSaysForWhatAndCanBeCleared)
{
    finishScan();
    type(u" no such thing "_qs);
    EXPECT_TRUE(sheet->emptyState().isVisible());
    EXPECT_EQ(sheet->emptyState().shownDetail(), u"No installed apps match \"no such thing\"");
    button(u"Clear Search"_qs)->click();
    EXPECT_EQ(sheet->searchField().text(), QString());
    EXPECT_EQ(names().size(), 5);
    EXPECT_TRUE(sheet->searchField().hasFocus());
}

TEST_F(AddAppSheetView, aLongSearchIsShownAsFarAsItFits)
{
    finishScan();
    sheet->searchField().setText(QString(3000, u'x'));
    EXPECT_TRUE(sheet->emptyState().shownDetail().endsWith(u'…'));
    EXPECT_LE(sheet->emptyState().shownDetail().size(), 100);
    EXPECT_EQ(sheet->size(), QSize(440, 480));
}

TEST_F(AddAppSheetView, searchAndReturnAddTheProfileSelectItAndClose)
{
    finishScan();
    type(u"mai"_qs);
    QTest::keyClick(&sheet->searchField(), Qt::Key_Return);
    EXPECT_EQ(desktop.profile.currentProfile(),
        (AppProfile{u"com.apple.Mail"_qs, u"Mail"_qs, u"com.apple.Mail"_qs, u"app.fill"_qs}));
    EXPECT_EQ(Sheet::over(window), nullptr);
}

TEST_F(AddAppSheetView, returnWithoutASearchAddsNothing)
{
    finishScan();
    const qsizetype before = desktop.profile.availableProfiles().size();
    QTest::keyClick(&sheet->searchField(), Qt::Key_Return);
    EXPECT_EQ(desktop.profile.availableProfiles().size(), before);
    EXPECT_NE(Sheet::over(window), nullptr);
}

TEST_F(AddAppSheetView, aClickOnARowAddsItsApplication)
{
    finishScan();
    ApplicationListView& list = sheet->list();
    const QRect row = list.visualRect(list.model()->index(3, 0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {200, row.top() + 20});
    EXPECT_EQ(desktop.profile.currentProfile().name, u"Terminator");
    EXPECT_EQ(Sheet::over(window), nullptr);
}

TEST_F(AddAppSheetView, anApplicationThatHasAProfileOnlyCloses)
{
    for (int time = 0; time < 2; ++time) {
        if (time > 0)
            present();
        finishScan();
        EXPECT_THAT(names(), Contains(u"Mail"_qs)) << "it isn't hidden";
        type(u"mail"_qs);
        QTest::keyClick(&sheet->searchField(), Qt::Key_Return);
        EXPECT_EQ(Sheet::over(window), nullptr);
        EXPECT_EQ(desktop.profile.availableProfiles().size(), AppProfile::presets().size() + 1);
    }
}

TEST_F(AddAppSheetView, anApplicationWithAPresetGetsASecondProfile)
{
    finishScan();
    type(u"safari"_qs);
    QTest::keyClick(&sheet->searchField(), Qt::Key_Return);
    EXPECT_EQ(desktop.profile.currentProfile().id, u"com.apple.Safari");
    EXPECT_TRUE(desktop.profile.availableProfiles().contains(AppProfile::safari()));
}

TEST_F(AddAppSheetView, escapeAndTheCrossAddNothing)
{
    finishScan();
    type(u"mail"_qs);
    QTest::keyClick(&sheet->searchField(), Qt::Key_Escape);
    EXPECT_EQ(Sheet::over(window), nullptr);
    present();
    EXPECT_EQ(sheet->searchField().text(), QString()) << "each presentation starts anew";
    button(u"Close"_qs)->click();
    EXPECT_EQ(Sheet::over(window), nullptr);
    EXPECT_EQ(desktop.profile.availableProfiles().size(), AppProfile::presets().size());
}

TEST_F(AddAppSheetView, mayCloseWhileTheScanRuns)
{
    button(u"Close"_qs)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    finishScan();
    EXPECT_EQ(Sheet::over(window), nullptr);
}

TEST_F(AddAppSheetView, everythingIsReachedByTheKeyboard)
{
    finishScan();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(sheet->list().hasFocus());
    EXPECT_EQ(sheet->list().currentIndex().row(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(button(u"Close"_qs)->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(sheet->searchField().hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(Sheet::over(window), nullptr) << "Esc closes from the list too";
}

TEST_F(AddAppSheetView, assistiveTechnologyFindsNamesAndRoles)
{
    finishScan();
    QAccessibleInterface* const dialog = QAccessible::queryAccessibleInterface(sheet);
    EXPECT_EQ(dialog->role(), QAccessible::Dialog);
    EXPECT_EQ(dialog->text(QAccessible::Name), u"Add Application Profile");
    QAccessibleInterface* const field = QAccessible::queryAccessibleInterface(&sheet->searchField());
    EXPECT_EQ(field->role(), QAccessible::EditableText);
    EXPECT_EQ(field->text(QAccessible::Name), u"Search installed applications...");
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&sheet->list());
    EXPECT_EQ(list->text(QAccessible::Name), u"Installed applications");
    ASSERT_EQ(list->childCount(), 5);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), u"Safari");
}

} // namespace tarvin
