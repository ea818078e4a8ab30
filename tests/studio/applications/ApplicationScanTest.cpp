#include "studio/applications/ApplicationScan.h"

#include "platform/simulated/SimulatedApplicationFolders.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

class Scan : public testing::Test
{
protected:
    void install(ApplicationFolder folder, const QString& path, const std::optional<QString>& identifier,
        const std::optional<QString>& displayName = {}, const std::optional<QString>& bundleName = {})
    {
        folders.install(folder,
            {.path = path, .bundleIdentifier = identifier, .displayName = displayName, .bundleName = bundleName});
    }

    [[nodiscard]] static QStringList pathsOf(const QList<InstalledApplication>& applications)
    {
        QStringList paths;
        for (const InstalledApplication& application : applications)
            paths += application.path;
        return paths;
    }

    [[nodiscard]] static QStringList namesOf(const QList<InstalledApplication>& applications)
    {
        QStringList names;
        for (const InstalledApplication& application : applications)
            names += application.name;
        return names;
    }

    simulated::SimulatedApplicationFolders folders;
};

TEST_F(Scan, anApplicationInTwoFoldersIsOpenedFromTheFirst)
{
    install(ApplicationFolder::userApplications, u"/home/me/Applications/Paint.app"_qs, u"org.example.paint"_qs);
    install(ApplicationFolder::systemApplications, u"/System/Applications/Paint.app"_qs, u"org.example.paint"_qs);
    EXPECT_EQ(pathsOf(applicationsToOpen(folders)), QStringList{u"/System/Applications/Paint.app"_qs});
}

TEST_F(Scan, anApplicationFoundTwiceIsOfferedTwiceForAProfile)
{
    install(ApplicationFolder::applications, u"/Applications/Paint.app"_qs, u"org.example.paint"_qs);
    install(ApplicationFolder::systemApplications, u"/System/Applications/Paint.app"_qs, u"org.example.paint"_qs);
    EXPECT_EQ(applicationsForProfiles(folders).size(), 2);
}

TEST_F(Scan, aPathSeenBeforeIsSkipped)
{
    install(ApplicationFolder::applications, u"/Applications/Paint.app"_qs, u"org.example.paint"_qs);
    install(ApplicationFolder::applications, u"/Applications/Paint.app"_qs, u"org.example.other"_qs);
    EXPECT_EQ(applicationsToOpen(folders).size(), 1);
}

TEST_F(Scan, aBundleWithoutIdentifierIsLeftOut)
{
    install(ApplicationFolder::applications, u"/Applications/Nameless.app"_qs, std::nullopt);
    install(ApplicationFolder::applications, u"/Applications/Empty.app"_qs, QString());
    EXPECT_TRUE(applicationsToOpen(folders).isEmpty());
    EXPECT_EQ(pathsOf(applicationsForProfiles(folders)), QStringList{u"/Applications/Empty.app"_qs});
}

TEST_F(Scan, theUsersOwnFolderIsNotOfferedForAProfile)
{
    install(ApplicationFolder::userApplications, u"/home/me/Applications/Paint.app"_qs, u"org.example.paint"_qs);
    install(ApplicationFolder::systemUtilities, u"/System/Applications/Utilities/Tool.app"_qs, u"org.example.tool"_qs);
    EXPECT_EQ(namesOf(applicationsForProfiles(folders)), QStringList{u"Tool"_qs});
    EXPECT_EQ(namesOf(applicationsToOpen(folders)), (QStringList{u"Paint"_qs, u"Tool"_qs}));
}

TEST_F(Scan, theDisplayNameGoesBeforeTheBundlesAndThatBeforeTheFiles)
{
    install(ApplicationFolder::applications, u"/a/One.app"_qs, u"1"_qs, u"Alpha"_qs, u"Beta"_qs);
    install(ApplicationFolder::applications, u"/a/Two.app"_qs, u"2"_qs, std::nullopt, u"Gamma"_qs);
    install(ApplicationFolder::applications, u"/a/Zeta 3.1.app"_qs, u"3"_qs);
    EXPECT_EQ(namesOf(applicationsToOpen(folders)), (QStringList{u"Alpha"_qs, u"Gamma"_qs, u"Zeta 3.1"_qs}));
}

TEST_F(Scan, anEmptyNameCountsForAProfileOnly)
{
    install(ApplicationFolder::applications, u"/a/One.app"_qs, u"1"_qs, QString(), u"Beta"_qs);
    EXPECT_EQ(namesOf(applicationsToOpen(folders)), QStringList{u"Beta"_qs});
    EXPECT_EQ(namesOf(applicationsForProfiles(folders)), QStringList{QString()});
}

TEST_F(Scan, namesStandInTheOrderOfTheLanguageWithoutRegardToCase)
{
    for (const QString& name : {u"banana"_qs, u"Apple"_qs, u"Cherry"_qs, u"apricot"_qs})
        install(ApplicationFolder::applications, QStringLiteral("/a/%1.app").arg(name), name);
    EXPECT_EQ(
        namesOf(applicationsToOpen(folders)), (QStringList{u"Apple"_qs, u"apricot"_qs, u"banana"_qs, u"Cherry"_qs}));
}

} // namespace

} // namespace tarvin
