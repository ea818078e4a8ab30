#include "platform/linux/desktop/InstanceRequest.h"

#include "support/QtPrinters.h"

namespace tarvin::desktop {

using testing::ElementsAre;

namespace {

const QString program = QStringLiteral("/usr/bin/tarvin");

} // namespace

TEST(InstanceRequest, aPlainStartAsksToComeForward)
{
    const auto request = requestOfCommandLine({program}, "id_TIME5");
    ASSERT_TRUE(request);
    EXPECT_TRUE(request->urls.isEmpty());
    EXPECT_EQ(request->startupId, "id_TIME5");
}

TEST(InstanceRequest, addressesOfTheSchemeAreOpened)
{
    const auto request = requestOfCommandLine({program, QStringLiteral("tarvin://open-studio"), QStringLiteral("--x"),
                                                  QStringLiteral("TARVIN:anything"), QStringLiteral("https://a")},
        {});
    ASSERT_TRUE(request);
    EXPECT_THAT(request->urls, ElementsAre(u"tarvin://open-studio", u"TARVIN:anything"));
}

TEST(InstanceRequest, aStartAtLoginAsksNothing)
{
    for (const char* argument : {"--startup", "--background", "-loginItem"})
        EXPECT_FALSE(requestOfCommandLine({program, QString::fromLatin1(argument)}, {}));
}

TEST(InstanceRequest, theProgramsOwnPathIsNoAddress)
{
    EXPECT_TRUE(requestOfCommandLine({QStringLiteral("tarvin:odd/path")}, {})->urls.isEmpty());
}

TEST(InstanceRequest, aLineReadsBackAsTheRequest)
{
    const InstanceRequest request{
        .urls = {QStringLiteral("tarvin://a\n\"ü"), QStringLiteral("tarvin://b")}, .startupId = "x_TIME7"};
    const QByteArray line = toLine(request);
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_EQ(requestFromLine(line), request);
}

TEST(InstanceRequest, aLineOfAnotherKindIsNoRequest)
{
    for (const char* line : {"", "GET / HTTP/1.1\n", "[]\n", "{}\n", "{\"urls\":\"x\"}\n"})
        EXPECT_FALSE(requestFromLine(line)) << line;
}

TEST(InstanceRequest, theLaunchersIdIsTakenOutOfTheEnvironment)
{
    qputenv("DESKTOP_STARTUP_ID", "first");
    qputenv("XDG_ACTIVATION_TOKEN", "second");
    EXPECT_EQ(takeStartupId(), "first");
    EXPECT_FALSE(qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    EXPECT_EQ(takeStartupId(), "");
}

} // namespace tarvin::desktop
