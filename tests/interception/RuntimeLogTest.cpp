#include "interception/RuntimeLog.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::test {

using namespace simulated;

class RuntimeLogTest : public testing::Test
{
protected:
    std::optional<QByteArray> content() { return platform.files().content(log.filePath()); }

    SimulatedPlatform platform;
    RuntimeLog log{platform.files(), platform.scheduler()};
};

TEST_F(RuntimeLogTest, theFileLiesInTheFolderOfTheProgram)
{
    EXPECT_EQ(log.filePath(), platform.files().applicationSupportDirectory() + u"/runtime.log"_qs);
    EXPECT_TRUE(platform.files().exists(platform.files().applicationSupportDirectory()));
}

TEST_F(RuntimeLogTest, theFirstLineCreatesTheFileAndLaterLinesAreAppended)
{
    platform.effects().clear();
    log.log(u"first"_qs);
    log.log(u"second"_qs);
    platform.scheduler().runPosted();
    EXPECT_EQ(content(), QByteArray("[] first\n[] second\n"));
    std::vector<FileStep> steps;
    for (const FileChanged& change : platform.effects().all<FileChanged>())
        steps.push_back(change.step);
    EXPECT_EQ(steps, (std::vector{FileStep::written, FileStep::appended}));
}

TEST_F(RuntimeLogTest, theLogOfEarlierRunsIsKept)
{
    platform.files().stage(log.filePath(), "[] before\n");
    log.log(u"now"_qs);
    platform.scheduler().runPosted();
    EXPECT_EQ(content(), QByteArray("[] before\n[] now\n"));
}

TEST_F(RuntimeLogTest, aLineIsTwoBracketsABlankTheMessageAndANewlineInUtf8)
{
    log.log(u"→ Ü"_qs);
    platform.scheduler().runPosted();
    EXPECT_EQ(content(), QByteArray("[] \xE2\x86\x92 \xC3\x9C\n"));
}

TEST_F(RuntimeLogTest, theFileIsWrittenOffTheCallersTurn)
{
    log.log(u"later"_qs);
    EXPECT_EQ(content(), std::nullopt);
}

TEST_F(RuntimeLogTest, aFailureStaysSilentAndTheNextLineIsWritten)
{
    platform.files().failOn(FileOperation::write, log.filePath(), u"disk full"_qs, FailureSpan::once);
    log.log(u"lost"_qs);
    platform.scheduler().runPosted();
    log.log(u"kept"_qs);
    platform.scheduler().runPosted();
    EXPECT_EQ(content(), QByteArray("[] kept\n"));
    EXPECT_EQ(platform.effects().count<ConsoleLine>(), 0U);
}

TEST_F(RuntimeLogTest, aLineStillUnderWayOutlivesTheLog)
{
    {
        RuntimeLog shortLived(platform.files(), platform.scheduler());
        shortLived.log(u"last words"_qs);
    }
    platform.scheduler().runPosted();
    EXPECT_EQ(content(), QByteArray("[] last words\n"));
}

} // namespace tarvin::test
