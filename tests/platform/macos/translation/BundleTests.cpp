#include "platform/macos/translation/BundleRecord.h"
#include "platform/macos/translation/FolderPath.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::macos {

namespace {

TEST(BundleRecord, onlyTheSuffixOfApplicationsIsOne)
{
    EXPECT_TRUE(isApplicationPath(u"/Applications/Safari.app"_qs));
    EXPECT_TRUE(isApplicationPath(u"/Applications/Visual Studio 2.0.app"_qs));
    EXPECT_FALSE(isApplicationPath(u"/Applications/Utilities"_qs));
    EXPECT_FALSE(isApplicationPath(u"/Applications/notes.txt"_qs));
    EXPECT_FALSE(isApplicationPath(u"/Applications/Safari.APP"_qs));
    EXPECT_FALSE(isApplicationPath(u"/Applications/.app"_qs)) << "a hidden file without suffix";
    EXPECT_FALSE(isApplicationPath(u"/Applications/Folder.app/file"_qs));
    EXPECT_FALSE(isApplicationPath(QString()));
}

TEST(BundleRecord, theFoldersAreThoseOfTheSystemAndTheUsersOwn)
{
    const QString home = u"/Users/velmor"_qs;
    EXPECT_EQ(applicationFolderPath(ApplicationFolder::applications, home), u"/Applications");
    EXPECT_EQ(applicationFolderPath(ApplicationFolder::systemApplications, home), u"/System/Applications");
    EXPECT_EQ(applicationFolderPath(ApplicationFolder::systemUtilities, home), u"/System/Applications/Utilities");
    EXPECT_EQ(applicationFolderPath(ApplicationFolder::userApplications, home), u"/Users/velmor/Applications");
}

TEST(BundleRecord, theIconIsThatOfTheBundleAndNothingIsMadeUp)
{
    const ApplicationBundle bundle = applicationBundleOf({.path = u"/Applications/Safari.app"_qs,
        .bundleIdentifier = u"com.apple.Safari"_qs,
        .displayName = std::nullopt,
        .bundleName = u"Safari"_qs});
    EXPECT_EQ(bundle,
        (ApplicationBundle{.path = u"/Applications/Safari.app"_qs,
            .bundleIdentifier = u"com.apple.Safari"_qs,
            .displayName = std::nullopt,
            .bundleName = u"Safari"_qs,
            .icon = u"/Applications/Safari.app"_qs}));
}

TEST(BundleRecord, theIconsFileMayBeNamedWithoutItsSuffix)
{
    EXPECT_EQ(
        iconFilePath(u"/Applications/Mail.app"_qs, u"mail"_qs), u"/Applications/Mail.app/Contents/Resources/mail.icns");
    EXPECT_EQ(iconFilePath(u"/Applications/Mail.app"_qs, u"mail.icns"_qs),
        u"/Applications/Mail.app/Contents/Resources/mail.icns");
}

TEST(FolderPath, hasNoSlashAtItsEnd)
{
    EXPECT_EQ(folderPath(u"/Users/velmor/"_qs), u"/Users/velmor");
    EXPECT_EQ(folderPath(u"/private/tmp"_qs), u"/private/tmp");
    EXPECT_EQ(folderPath(u"//"_qs), u"/");
}

TEST(FolderPath, theProgramHasAFolderOfItsOwn)
{
    EXPECT_EQ(programFolder(u"/Users/velmor/Library/Application Support"_qs),
        u"/Users/velmor/Library/Application Support/Tarvin");
}

} // namespace

} // namespace tarvin::macos
