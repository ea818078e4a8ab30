#include "studio/applications/AddAppSheetModel.h"

#include "platform/simulated/SimulatedApplicationFolders.h"
#include "profiles/ProfileDesktop.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

namespace tarvin {

namespace {

class AddAppSheet : public ProfileDesktop
{
protected:
    AddAppSheet()
    {
        install(u"Safari"_qs, u"com.apple.Safari"_qs);
        install(u"Terminator"_qs, u"org.example.terminator"_qs);
        install(u"Term"_qs, u"org.example.term"_qs);
    }

    void install(const QString& name, const QString& identifier)
    {
        folders.install(ApplicationFolder::applications,
            {.path = QStringLiteral("/Applications/%1.app").arg(name), .bundleIdentifier = identifier});
    }

    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const InstalledApplication& application : sheet.filteredApps())
            names += application.name;
        return names;
    }

    void finishScan() { desktop.scheduler().runPosted(); }

    simulated::SimulatedApplicationFolders folders;
    int closings = 0;
    AddAppSheetModel sheet{profile(), folders, desktop.scheduler(), [this] { ++closings; }};
};

TEST_F(AddAppSheet, isEmptyWhileTheScanRuns)
{
    EXPECT_EQ(names(), QStringList());
    EXPECT_EQ(folders.readings(), 0);
    EXPECT_EQ(sheet.emptyDetail(), QString());
    const test::SignalCount changes(sheet, &AddAppSheetModel::changed);
    finishScan();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(names(), (QStringList{u"Safari"_qs, u"Term"_qs, u"Terminator"_qs}));
}

TEST_F(AddAppSheet, theBestMatchStandsFirst)
{
    finishScan();
    sheet.setSearchText(u" TERM\n"_qs);
    EXPECT_EQ(names(), (QStringList{u"Term"_qs, u"Terminator"_qs}));
    EXPECT_TRUE(sheet.isSearching());
}

TEST_F(AddAppSheet, aSearchWithoutResultSaysForWhat)
{
    finishScan();
    sheet.setSearchText(u"  nothing of the kind "_qs);
    EXPECT_EQ(names(), QStringList());
    EXPECT_EQ(sheet.emptyDetail(), u"No installed apps match \"nothing of the kind\"");
}

TEST_F(AddAppSheet, aChoiceAddsTheProfileSelectsItAndCloses)
{
    finishScan();
    sheet.choose(sheet.filteredApps().last());
    EXPECT_EQ(profile().currentProfile(),
        (AppProfile{u"org.example.terminator"_qs, u"Terminator"_qs, u"org.example.terminator"_qs, u"app.fill"_qs}));
    EXPECT_EQ(closings, 1);
}

TEST_F(AddAppSheet, aSecondChoiceOfTheSameApplicationOnlyCloses)
{
    finishScan();
    sheet.choose(sheet.filteredApps().last());
    const qsizetype count = profile().availableProfiles().size();
    sheet.choose(sheet.filteredApps().last());
    EXPECT_EQ(profile().availableProfiles().size(), count);
    EXPECT_EQ(closings, 2);
}

TEST_F(AddAppSheet, anApplicationWithAPresetGetsASecondProfile)
{
    finishScan();
    sheet.choose(sheet.filteredApps().first());
    EXPECT_EQ(profile().currentProfile().id, u"com.apple.Safari");
    EXPECT_TRUE(profile().availableProfiles().contains(AppProfile::safari()));
    // The first profile of that application decides at run time, and that is the preset.
    profile().setConfig(typing(u"of the second"_qs), FKey::f5);
    profile().setCurrentProfile(AppProfile::safari());
    profile().setConfig(typing(u"of the preset"_qs), FKey::f5);
    bringToFront({u"com.apple.Safari"_qs});
    EXPECT_EQ(typed(FKey::f5), u"of the preset");
}

TEST_F(AddAppSheet, mayCloseBeforeTheScanEnds)
{
    auto gone = std::make_unique<AddAppSheetModel>(profile(), folders, desktop.scheduler(), [] {});
    gone.reset();
    finishScan();
    EXPECT_EQ(folders.readings(), 6);
}

} // namespace

} // namespace tarvin
