#include "app/cli/Arguments.h"

#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

using testing::ElementsAre;

Arguments parsed(const QStringList& words)
{
    return {words, {{u"--json"}, {u"--profile", OptionValue::required}, {u"--some", OptionValue::optional}}};
}

TEST(Arguments, optionsAndOperandsMayStandInAnyOrder)
{
    const Arguments arguments = parsed({u"F5"_qs, u"--json"_qs, u"mute"_qs, u"--profile"_qs, u"safari"_qs});
    EXPECT_EQ(arguments.error(), std::nullopt);
    EXPECT_THAT(arguments.operands(), ElementsAre(u"F5"_qs, u"mute"_qs));
    EXPECT_TRUE(arguments.has(u"--json"));
    EXPECT_EQ(arguments.value(u"--profile"), u"safari"_qs);
    EXPECT_FALSE(arguments.has(u"--some"));
}

TEST(Arguments, aValueMayStandBehindASign)
{
    EXPECT_EQ(parsed({u"--profile=a=b"_qs}).value(u"--profile"), u"a=b"_qs);
}

TEST(Arguments, twoDashesEndTheOptionsAndOneIsAnOperand)
{
    const Arguments arguments = parsed({u"-"_qs, u"--"_qs, u"--json"_qs});
    EXPECT_EQ(arguments.error(), std::nullopt);
    EXPECT_THAT(arguments.operands(), ElementsAre(u"-"_qs, u"--json"_qs));
    EXPECT_FALSE(arguments.has(u"--json"));
}

TEST(Arguments, anOptionalValueMayBeMissing)
{
    EXPECT_TRUE(parsed({u"--some"_qs}).has(u"--some"));
    EXPECT_EQ(parsed({u"--some"_qs, u"--json"_qs}).value(u"--some"), QString());
    EXPECT_EQ(parsed({u"--some"_qs, u"x"_qs}).value(u"--some"), u"x"_qs);
}

TEST(Arguments, whatIsWrongIsNamed)
{
    EXPECT_EQ(parsed({u"--fast"_qs}).error(), u"unknown option \"--fast\""_qs);
    EXPECT_EQ(parsed({u"-x"_qs}).error(), u"unknown option \"-x\""_qs);
    EXPECT_EQ(parsed({u"--profile"_qs}).error(), u"--profile needs a value"_qs);
    EXPECT_EQ(parsed({u"--profile"_qs, u"--json"_qs}).error(), u"--profile needs a value"_qs);
    EXPECT_EQ(parsed({u"--json=1"_qs}).error(), u"--json takes no value"_qs);
    EXPECT_EQ(parsed({u"--json"_qs, u"--json"_qs}).error(), u"--json is given twice"_qs);
}

} // namespace

} // namespace tarvin
