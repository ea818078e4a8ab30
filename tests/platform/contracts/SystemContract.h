#pragma once

#include "platform/ports/FunctionKeySetting.h"
#include "platform/ports/LoginItem.h"

#include <gtest/gtest.h>

namespace tarvin::contracts {

/// What every platform promises of the system's settings, which are only read here. A platform under test has
/// `loginItem()` and `functionKeySetting()`.
template <typename Tested> class SystemContract : public testing::Test
{
protected:
    Tested tested;
};

TYPED_TEST_SUITE_P(SystemContract);

TYPED_TEST_P(SystemContract, askingForTheLoginItemDoesNotChangeIt)
{
    const bool isEnabled = this->tested.loginItem().isEnabled();
    EXPECT_EQ(this->tested.loginItem().isEnabled(), isEnabled);
}

TYPED_TEST_P(SystemContract, theFunctionKeySettingIsOnOffOrNotMade)
{
    FunctionKeySetting& setting = this->tested.functionKeySetting();
    if (!setting.isAvailable())
        GTEST_SKIP() << "there is no such setting";
    const ToolOutcome outcome = setting.readByTool();
    EXPECT_EQ(outcome.launchError, std::nullopt);
    const QByteArray text = outcome.standardOutput.trimmed().toLower();
    EXPECT_TRUE(text.isEmpty() || text == "0" || text == "1" || text == "true" || text == "false") << text.constData();
}

REGISTER_TYPED_TEST_SUITE_P(
    SystemContract, askingForTheLoginItemDoesNotChangeIt, theFunctionKeySettingIsOnOffOrNotMade);

} // namespace tarvin::contracts
