#pragma once

#include "platform/ports/ApplicationControl.h"
#include "platform/ports/WindowControl.h"
#include "platform/ports/Workspace.h"

#include <gtest/gtest.h>

namespace tarvin::contracts {

/// A number that the system gives to no process.
inline constexpr ProcessIdentifier noProcess = 0x7FFFFFF0;
inline constexpr QStringView noApplication = u"com.velmor.NoSuchApplication";

/// What every platform's applications promise without any of them being harmed. A platform under test has
/// `workspace()`, `applicationControl()` and `windowControl()`.
template <typename Tested> class ApplicationsContract : public testing::Test
{
protected:
    Tested tested;
    Workspace& workspace = tested.workspace();
    ApplicationControl& control = tested.applicationControl();
    WindowControl& windowControl = tested.windowControl();
};

TYPED_TEST_SUITE_P(ApplicationsContract);

TYPED_TEST_P(ApplicationsContract, aProcessThatIsNotThereIsNoApplication)
{
    EXPECT_EQ(this->workspace.applicationWithProcess(noProcess), std::nullopt);
    EXPECT_EQ(this->control.executableOf(noProcess), std::nullopt);
    EXPECT_TRUE(this->control.isTerminated(noProcess));
    this->workspace.activate(noProcess);
    this->control.kill(noProcess);
}

TYPED_TEST_P(ApplicationsContract, aProcessThatIsNotThereHasNoWindows)
{
    EXPECT_EQ(this->windowControl.focusedWindow(noProcess), nullptr);
    EXPECT_TRUE(this->windowControl.windows(noProcess).empty());
}

TYPED_TEST_P(ApplicationsContract, anUnknownIdentifierIsInstalledNowhere)
{
    EXPECT_EQ(this->control.pathOfApplication(noApplication.toString()), std::nullopt);
    EXPECT_FALSE(this->control.exists(QStringLiteral("/no/such/place")));
}

TYPED_TEST_P(ApplicationsContract, anEmptyPathOpensNothing)
{
    this->control.openPath(QString());
}

TYPED_TEST_P(ApplicationsContract, theApplicationInFrontIsOneOfThoseThatRun)
{
    const auto front = this->workspace.frontmostApplication();
    if (!front)
        return;
    EXPECT_TRUE(this->workspace.applicationWithProcess(front->processIdentifier));
    for (const RunningApplication& application : this->workspace.runningApplications())
        EXPECT_FALSE(application.bundleIdentifiers.contains(QString())) << application.localizedName.toStdString();
}

TYPED_TEST_P(ApplicationsContract, anObservationMayEndAtOnce)
{
    auto observer = this->workspace.observeActivation([](const std::optional<RunningApplication>&) {});
    EXPECT_NE(observer, nullptr);
    observer.reset();
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationsContract, aProcessThatIsNotThereIsNoApplication,
    aProcessThatIsNotThereHasNoWindows, anUnknownIdentifierIsInstalledNowhere, anEmptyPathOpensNothing,
    theApplicationInFrontIsOneOfThoseThatRun, anObservationMayEndAtOnce);

} // namespace tarvin::contracts
