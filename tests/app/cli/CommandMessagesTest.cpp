#include "app/cli/CommandMessages.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

TEST(CommandMessages, aRequestComesThroughWhole)
{
    QByteArray everyByte;
    for (int i = 0; i < 256; ++i)
        everyByte += static_cast<char>(i);
    for (const CommandRequest& request : {CommandRequest{u"set"_qs, {u"F5"_qs, u"textSnippet=a\nb \u00e9"_qs}, {}},
             CommandRequest{u"import"_qs, {u"-"_qs}, everyByte}, CommandRequest{u"import"_qs, {}, QByteArray("")}}) {
        const QByteArray line = toLine(request);
        EXPECT_EQ(line.count('\n'), 1);
        EXPECT_EQ(commandRequestFromLine(line), request);
    }
}

TEST(CommandMessages, aReplyComesThroughWhole)
{
    for (const CommandReply& reply :
        {CommandReply{}, CommandReply{2, u"out\nput"_qs, u"err"_qs, {}}, CommandReply{0, {}, {}, QByteArray("{\n}")}}) {
        const QByteArray line = toLine(reply);
        EXPECT_EQ(line.count('\n'), 1);
        EXPECT_EQ(commandReplyFromLine(line), reply);
    }
}

TEST(CommandMessages, whatIsNoMessageIsRefused)
{
    for (const char* line : {"", "\n", "hello", "[]", "{}", "{\"command\":7,\"words\":[]}", "{\"command\":\"set\"}"})
        EXPECT_FALSE(commandRequestFromLine(line)) << line;
    for (const char* line : {"", "{}", "{\"exitCode\":\"0\"}"})
        EXPECT_FALSE(commandReplyFromLine(line)) << line;
}

} // namespace

} // namespace tarvin
