#pragma once

#include "platform/ports/ApplicationFolders.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvin::contracts {

/// What every platform's folders of applications promise. A platform under test has `applicationFolders()`.
template <typename Tested> class ApplicationFoldersContract : public testing::Test
{
protected:
    Tested tested;
    ApplicationFolders& folders = tested.applicationFolders();
};

TYPED_TEST_SUITE_P(ApplicationFoldersContract);

TYPED_TEST_P(ApplicationFoldersContract, whatIsFoundLiesSomewhereAndIsFoundThereAgain)
{
    for (const ApplicationFolder folder : allApplicationFolders) {
        const QList<ApplicationBundle> bundles = this->folders.contents(folder);
        for (const ApplicationBundle& bundle : bundles.first(std::min<qsizetype>(bundles.size(), 5))) {
            EXPECT_TRUE(bundle.path.startsWith(u'/')) << bundle.path.toStdString();
            const auto again = this->folders.bundleAt(bundle.path);
            EXPECT_TRUE(again) << bundle.path.toStdString();
            EXPECT_EQ(again ? again->bundleIdentifier : std::nullopt, bundle.bundleIdentifier);
        }
    }
}

TYPED_TEST_P(ApplicationFoldersContract, whatIsNoApplicationIsNone)
{
    EXPECT_EQ(this->folders.bundleAt(QString()), std::nullopt);
    EXPECT_EQ(this->folders.bundleAt(QStringLiteral("/")), std::nullopt);
    EXPECT_EQ(this->folders.bundleAt(QStringLiteral("/no/such/place")), std::nullopt);
    EXPECT_TRUE(this->folders.pictureFiles(QString(), 32).isEmpty());
}

TYPED_TEST_P(ApplicationFoldersContract, aDialogBeginsInAFolderAndOffersASuffix)
{
    const ApplicationBrowsing browsing = this->folders.browsing();
    EXPECT_TRUE(browsing.startFolder.startsWith(u'/'));
    EXPECT_FALSE(browsing.suffix.isEmpty());
    EXPECT_FALSE(browsing.suffix.contains(u'.'));
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationFoldersContract, whatIsFoundLiesSomewhereAndIsFoundThereAgain,
    whatIsNoApplicationIsNone, aDialogBeginsInAFolderAndOffersASuffix);

} // namespace tarvin::contracts
