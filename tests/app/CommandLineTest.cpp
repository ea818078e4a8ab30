#include "app/CommandLine.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {
namespace {

template <typename Alternative> Alternative parsed(const QStringList& arguments)
{
    const Command command = parseCommandLine(arguments);
    EXPECT_TRUE(std::holds_alternative<Alternative>(command)) << "of " << command.index();
    return std::holds_alternative<Alternative>(command) ? std::get<Alternative>(command) : Alternative{};
}

TEST(CommandLine, withoutArgumentsTheProgramRuns)
{
    EXPECT_EQ(parsed<RunProgram>({}), RunProgram{});
}

TEST(CommandLine, aStartAtLoginIsNoUrlAndNoError)
{
    EXPECT_EQ(parsed<RunProgram>({QStringLiteral("--startup")}), RunProgram{});
    EXPECT_EQ(parsed<RunProgram>({QStringLiteral("--background")}), RunProgram{});
    EXPECT_EQ(parsed<RunProgram>({QStringLiteral("-loginItem")}), RunProgram{});
}

TEST(CommandLine, aStartAtLoginOpensNoWindow)
{
    for (const char* argument : {"--startup", "--background", "-loginItem"})
        EXPECT_TRUE(asksForQuietStart({QString::fromLatin1(argument)})) << argument;
    EXPECT_FALSE(asksForQuietStart({}));
    EXPECT_FALSE(asksForQuietStart({QStringLiteral("tarvin://open-studio")}));
}

TEST(CommandLine, addressesOfTheSchemeAreKeptInOrder)
{
    const QStringList urls{QStringLiteral("tarvin://open-studio"), QStringLiteral("TARVIN:anything")};
    EXPECT_EQ(parsed<RunProgram>(urls).urls, urls);
}

TEST(CommandLine, anUnknownArgumentIsNamed)
{
    const auto error = parsed<CommandLineError>({QStringLiteral("--startup"), QStringLiteral("--fast")});
    EXPECT_TRUE(error.message.contains(u"\"--fast\"")) << error.message.toStdString();
}

TEST(CommandLine, anAddressOfAnotherSchemeIsNotOurs)
{
    const auto error = parsed<CommandLineError>({QStringLiteral("https://example.org")});
    EXPECT_TRUE(error.message.contains(u"https://example.org")) << error.message.toStdString();
}

TEST(CommandLine, helpNamesEveryCommandAndOption)
{
    const QString text = parsed<PrintText>({QStringLiteral("--help")}).text;
    for (const char* word : {"simulate FILE", "--startup", "--background", "-loginItem", "--version", "tarvin://"})
        EXPECT_TRUE(text.contains(QLatin1String(word))) << word;
}

TEST(CommandLine, theVersionIsThatOfTheBuild)
{
    EXPECT_EQ(parsed<PrintText>({QStringLiteral("--version")}).text, QStringLiteral("tarvin " TARVIN_VERSION));
}

TEST(CommandLine, simulateTakesExactlyOneFile)
{
    EXPECT_EQ(parsed<SimulateScenario>({QStringLiteral("simulate"), QStringLiteral("keys.jsonl")}).file, u"keys.jsonl");
    parsed<CommandLineError>({QStringLiteral("simulate")});
    parsed<CommandLineError>({QStringLiteral("simulate"), QStringLiteral("a"), QStringLiteral("b")});
}

} // namespace
} // namespace tarvin
