#include "app/cli/CommandTable.h"

#include "model/KeyAction.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace tarvin {

namespace {

TEST(CommandTable, aCommandIsFoundByItsNameAlone)
{
    for (const CommandRow& command : commandTable())
        EXPECT_EQ(findCommand(command.name), &command);
    EXPECT_EQ(findCommand(u"lis"), nullptr);
    EXPECT_EQ(findCommand(u""), nullptr);
    EXPECT_EQ(findCommand(u"List"), nullptr);
}

TEST(CommandTable, theHelpNamesEveryCommandOnALineOfItsOwn)
{
    const QStringList lines = usageText().split(u'\n');
    EXPECT_EQ(lines.first(), u"Usage: tarvin [OPTION | URL]..."_qs);
    for (const CommandRow& command : commandTable()) {
        const QString start = u"  "_qs + command.name.toString() + u' ';
        EXPECT_EQ(
            std::count_if(lines.begin(), lines.end(), [&](const QString& line) { return line.startsWith(start); }), 1)
            << command.name.toString().toStdString();
    }
}

TEST(CommandTable, everyTextFitsATerminal)
{
    QStringList texts{usageText()};
    for (const CommandRow& command : commandTable())
        texts += helpOf(command);
    for (const QString& text : texts) {
        for (const QString& line : text.split(u'\n'))
            EXPECT_LE(line.size(), 100) << line.toStdString();
    }
}

TEST(CommandTable, theHelpOfACommandShowsItsOperandsAndNamesItsOptions)
{
    for (const CommandRow& command : commandTable()) {
        const QString help = helpOf(command);
        EXPECT_TRUE(help.startsWith(u"Usage: tarvin "_qs + command.name.toString()));
        for (const QString& option : command.options.toString().split(u' ', Qt::SkipEmptyParts))
            EXPECT_TRUE(help.contains(option)) << option.toStdString();
    }
}

TEST(CommandTable, theManualPageHoldsEveryCommandInPlainRoff)
{
    const QStringList lines = manualPage().split(u'\n');
    EXPECT_TRUE(lines.first().startsWith(u".TH TARVIN 1"));
    for (const CommandRow& command : commandTable()) {
        const QString start = u".B tarvin "_qs + command.name.toString();
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const QString& line) {
            return line.startsWith(start);
        })) << start.toStdString();
    }
    for (const QString& line : lines)
        EXPECT_FALSE(line.startsWith(u'\'')) << line.toStdString();
}

TEST(CommandTable, theCompletionKnowsCommandsKeysAndActions)
{
    const QString script = completionScript();
    for (const CommandRow& command : commandTable())
        EXPECT_TRUE(script.contains(command.name));
    EXPECT_TRUE(script.contains(u" RightOption "));
    EXPECT_TRUE(script.contains(u" open_web_url "));
}

} // namespace

} // namespace tarvin
