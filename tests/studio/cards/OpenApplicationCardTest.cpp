#include "studio/cards/OpenApplicationCard.h"

#include "platform/simulated/SimulatedApplicationFolders.h"
#include "studio/cards/CardDesktop.h"
#include "support/SignalCount.h"

namespace tarvin {

namespace {

class OpenApplication : public CardDesktop
{
protected:
    OpenApplication()
    {
        folders.install(ApplicationFolder::applications,
            {.path = u"/Applications/Paint.app"_qs, .bundleIdentifier = u"org.example.paint"_qs});
        folders.install(ApplicationFolder::userApplications,
            {.path = u"/home/me/Applications/Abacus.app"_qs, .bundleIdentifier = u"org.example.sums"_qs});
    }

    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const InstalledApplication& application : card.filteredInstalledApps())
            names += application.name;
        return names;
    }

    void load()
    {
        card.load();
        desktop.scheduler().runPosted();
    }

    simulated::SimulatedApplicationFolders folders;
    [[nodiscard]] OpenApplicationCard::Collaborators collaborators()
    {
        return {.folders = folders,
            .applications = desktop.applicationControl(),
            .chooser = chooser,
            .scheduler = desktop.scheduler()};
    }

    simulated::SimulatedApplicationChooser& chooser = desktop.applicationChooser();
    OpenApplicationCard card{record, collaborators()};
};

TEST_F(OpenApplication, theListIsReadOnceAndOffTheMainThread)
{
    card.load();
    EXPECT_EQ(folders.readings(), 0);
    EXPECT_EQ(names(), QStringList());
    desktop.scheduler().runPosted();
    EXPECT_EQ(names(), (QStringList{u"Abacus"_qs, u"Paint"_qs}));
    load();
    EXPECT_EQ(folders.readings(), 4);
}

TEST_F(OpenApplication, theListIsThereUntilAnApplicationIsChosen)
{
    load();
    EXPECT_FALSE(card.hasApplication());
    EXPECT_TRUE(card.showsList());
    card.choose(card.filteredInstalledApps().first());
    EXPECT_TRUE(card.hasApplication());
    EXPECT_FALSE(card.showsList());
}

TEST_F(OpenApplication, changeOpensTheListAndAChoiceClosesIt)
{
    load();
    card.choose(card.filteredInstalledApps().first());
    EXPECT_EQ(card.changeSymbol(), u"arrow.triangle.2.circlepath");
    card.toggleList();
    EXPECT_TRUE(card.showsList());
    EXPECT_EQ(card.changeSymbol(), u"chevron.up");
    card.choose(card.filteredInstalledApps().last());
    EXPECT_FALSE(card.showsList());
}

TEST_F(OpenApplication, aChoiceWritesTheActionWithNameIdentifierAndPath)
{
    load();
    const test::SignalCount changes(card, &OpenApplicationCard::changed);
    card.choose(card.filteredInstalledApps().first());
    EXPECT_EQ(config().action, KeyAction::openApplication);
    EXPECT_EQ(config().customAppName, u"Abacus");
    EXPECT_EQ(config().customAppBundleId, u"org.example.sums");
    EXPECT_EQ(config().customAppPath, u"/home/me/Applications/Abacus.app");
    EXPECT_EQ(card.chosenBundleIdentifier(), u"org.example.sums");
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(OpenApplication, aSearchForPartOfABundleIdentifierFindsTheApplication)
{
    load();
    card.setSearchText(u" SUMS\n"_qs);
    EXPECT_EQ(names(), QStringList{u"Abacus"_qs});
    card.setSearchText(u"AIN"_qs);
    EXPECT_EQ(names(), QStringList{u"Paint"_qs});
    card.setSearchText(u"  "_qs);
    EXPECT_EQ(names().size(), 2);
}

TEST_F(OpenApplication, theHintNamesKeyAndApplication)
{
    EXPECT_EQ(card.pressHint(), u"Press F5 on your keyboard to instantly launch or switch to your application");
    load();
    card.choose(card.filteredInstalledApps().first());
    EXPECT_EQ(card.pressHint(), u"Press F5 on your keyboard to instantly launch or switch to Abacus");
    EXPECT_EQ(card.fileDialogMessage(), u"Choose an application to assign to F5");
}

TEST_F(OpenApplication, aFileIsChosenIfItIsAnApplicationWithAnIdentifier)
{
    folders.install(ApplicationFolder::applications, {.path = u"/Applications/Nameless.app"_qs});
    card.chooseFile(u"/Applications/Nameless.app"_qs);
    card.chooseFile(u"/etc/passwd"_qs);
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
    card.chooseFile(u"/Applications/Paint.app"_qs);
    EXPECT_EQ(card.applicationName(), u"Paint");
}

TEST_F(OpenApplication, theSystemsDialogIsToldWhatItIsFor)
{
    EXPECT_TRUE(card.browse());
    EXPECT_EQ(chooser.request(),
        (ApplicationRequest{.title = u"Select Application"_qs,
            .message = u"Choose an application to assign to F5"_qs,
            .startFolder = u"/Applications"_qs}));
}

TEST_F(OpenApplication, whatIsChosenInTheSystemsDialogIsWritten)
{
    EXPECT_TRUE(card.browse());
    chooser.choose(u"/Applications/Paint.app"_qs);
    EXPECT_EQ(config().action, KeyAction::openApplication);
    EXPECT_EQ(config().customAppName, u"Paint");
    EXPECT_EQ(config().customAppBundleId, u"org.example.paint");
    EXPECT_EQ(config().customAppPath, u"/Applications/Paint.app");
}

TEST_F(OpenApplication, aCancelledDialogChangesNothingAndMayBeOpenedAgain)
{
    EXPECT_TRUE(card.browse());
    const test::SignalCount changes(card, &OpenApplicationCard::changed);
    chooser.cancel();
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(card.browse());
    EXPECT_EQ(chooser.openCount(), 2);
}

TEST_F(OpenApplication, oneDialogIsOpenAtATime)
{
    EXPECT_TRUE(card.browse());
    EXPECT_TRUE(card.browse());
    EXPECT_EQ(chooser.openCount(), 1);
}

TEST_F(OpenApplication, theDialogGoesWithTheCard)
{
    auto gone = std::make_unique<OpenApplicationCard>(record, collaborators());
    EXPECT_TRUE(gone->browse());
    gone.reset();
    EXPECT_EQ(chooser.request(), std::nullopt);
    chooser.choose(u"/Applications/Paint.app"_qs);
    EXPECT_FALSE(profile().isCustomized(FKey::f5));
}

TEST_F(OpenApplication, withoutADialogOfTheSystemTheViewIsToldSo)
{
    chooser.setMissing(true);
    EXPECT_FALSE(card.browse());
}

TEST_F(OpenApplication, theIconIsThatOfThePathOrOfTheIdentifier)
{
    load();
    card.choose(card.filteredInstalledApps().last());
    EXPECT_EQ(card.resolvedAppPath(), std::nullopt);
    desktop.applicationControl().install(
        {.path = u"/elsewhere/Paint.app"_qs, .name = u"Paint"_qs, .bundleIdentifiers = {u"org.example.paint"_qs}});
    EXPECT_EQ(card.resolvedAppPath(), u"/elsewhere/Paint.app");
    desktop.applicationControl().install(
        {.path = u"/Applications/Paint.app"_qs, .name = u"Paint"_qs, .bundleIdentifiers = {u"org.example.other"_qs}});
    EXPECT_EQ(card.resolvedAppPath(), u"/Applications/Paint.app");
}

TEST_F(OpenApplication, theIconIsKnownFromTheListOrReadWhereTheApplicationLies)
{
    EXPECT_EQ(card.resolvedAppIcon(), u"");
    folders.install(ApplicationFolder::applications,
        {.path = u"/Applications/Draw.app"_qs, .bundleIdentifier = u"org.example.draw"_qs, .icon = u"pencil"_qs});
    desktop.applicationControl().install(
        {.path = u"/Applications/Draw.app"_qs, .name = u"Draw"_qs, .bundleIdentifiers = {u"org.example.draw"_qs}});
    card.chooseFile(u"/Applications/Draw.app"_qs);
    EXPECT_EQ(card.resolvedAppIcon(), u"pencil") << "without the list";
    load();
    EXPECT_EQ(card.resolvedAppIcon(), u"pencil");
    record.change([](ConfiguredAction& config) {
        config.customAppPath = u"/Applications/Gone.app"_qs;
        config.customAppBundleId = u"org.example.gone"_qs;
    });
    EXPECT_EQ(card.resolvedAppIcon(), u"") << "not installed any more";
}

TEST_F(OpenApplication, aScanMayOutliveTheCard)
{
    auto gone = std::make_unique<OpenApplicationCard>(record, collaborators());
    gone->load();
    gone.reset();
    desktop.scheduler().runPosted();
    EXPECT_EQ(folders.readings(), 4);
}

} // namespace

} // namespace tarvin
