#include "platform/posix/PosixFiles.h"

#include "platform/posix/TemporaryFolder.h"

#include <fcntl.h>

#include <thread>

namespace tarvin::posix {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const auto succeeds = testing::Eq(std::nullopt);

class PosixFilesTest : public TemporaryFolder
{
protected:
    /// The content in the file's new state, or in its old one.
    const QByteArray before = "before";
    const QByteArray after = QByteArray(10000, 'x');

    FaultyFileCalls calls;
    PosixFiles files{path(u"Tarvin"), calls};
    const QString file = path(u"file");
};

TEST_F(PosixFilesTest, filesAndFoldersAreForTheUserAlone)
{
    files.createDirectory(path(u"outer/inner"));
    EXPECT_EQ(modeOf(path(u"outer")), 0700);
    EXPECT_EQ(modeOf(path(u"outer/inner")), 0700);
    ASSERT_THAT(files.writeAtomically(path(u"outer/inner/file"), before), succeeds);
    EXPECT_EQ(modeOf(path(u"outer/inner/file")), 0600);
}

TEST_F(PosixFilesTest, aFileThatWasOpenToOthersIsClosedToThemByTheNextWrite)
{
    lay(file, before);
    setMode(file, 0644);
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_EQ(modeOf(file), 0600);
}

TEST_F(PosixFilesTest, appendingKeepsTheMode)
{
    lay(file, before);
    setMode(file, 0640);
    ASSERT_THAT(files.append(file, after), succeeds);
    EXPECT_EQ(contentOf(file), before + after);
    EXPECT_EQ(modeOf(file), 0640);
}

TEST_F(PosixFilesTest, theContentIsOnTheDiskBeforeItGetsTheName)
{
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_THAT(calls.calls(),
        ElementsAre("open", "openat", "write", "fsync", "close", "renameat", /* the folder: */ "fsync", "close"));
}

TEST_F(PosixFilesTest, theTemporaryFileIsOneThatWasNotThereBefore)
{
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_EQ(calls.lastFlags() & (O_CREAT | O_EXCL), O_CREAT | O_EXCL) << "nobody may lay a link in its place";
}

TEST_F(PosixFilesTest, aWriteThatTakesManyStepsIsWhole)
{
    calls.limitWrites(7);
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_EQ(contentOf(file), after);
    EXPECT_EQ(calls.calls().count("write"), (after.size() + 6) / 7);
    ASSERT_THAT(files.append(file, before), succeeds);
    EXPECT_EQ(contentOf(file), after + before);
}

TEST_F(PosixFilesTest, signalsDoNotDisturbAWrite)
{
    calls.interruptEachCallOnce();
    calls.limitWrites(7);
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_EQ(contentOf(file), after);
}

TEST_F(PosixFilesTest, aWriteThatTakesNothingFailsAndDoesNotGoOnForEver)
{
    lay(file, before);
    calls.limitWrites(0);
    EXPECT_EQ(files.writeAtomically(file, after).value().text, u"Input/output error");
    EXPECT_EQ(contentOf(file), before);
}

TEST_F(PosixFilesTest, whereverAWriteFailsTheOldContentStaysAndNothingElseIsLeft)
{
    int failures = 0;
    for (int call = 0;; ++call) {
        lay(file, before);
        calls.repair();
        calls.failAt(call, ENOSPC);
        const std::optional<FileError> error = files.writeAtomically(file, after);
        if (!calls.reachedFault())
            break;
        EXPECT_THAT(names(), ElementsAre(u"file"_qs)) << call;
        if (error) {
            ++failures;
            EXPECT_EQ(error->text, u"No space left on device") << call;
            EXPECT_EQ(contentOf(file), before) << call;
        } else {
            EXPECT_EQ(contentOf(file), after) << call;
        }
    }
    // Opening the folder, making the file, writing, flushing, closing, renaming. After that the path has the new
    // content, and what goes wrong with the folder makes no failure of it.
    EXPECT_EQ(failures, 6);
}

TEST_F(PosixFilesTest, whereverAWriteIsCutOffThePathHoldsTheOldContentOrTheNew)
{
    int kept = 0;
    int replaced = 0;
    for (int call = 0;; ++call) {
        lay(file, before);
        calls.repair();
        calls.crashAt(call);
        static_cast<void>(files.writeAtomically(file, after));
        if (!calls.reachedFault())
            break;
        kept += contentOf(file) == before ? 1 : 0;
        replaced += contentOf(file) == after ? 1 : 0;
    }
    EXPECT_EQ(kept, 6);
    EXPECT_EQ(replaced, 2);
}

TEST_F(PosixFilesTest, whatACrashLeftBehindIsInNobodysWay)
{
    calls.crashAt(3);
    static_cast<void>(files.writeAtomically(file, before));
    ASSERT_EQ(names().size(), 1) << "the temporary file of the crash";
    calls.repair();
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_EQ(contentOf(file), after);
}

TEST_F(PosixFilesTest, aLinkStaysAndTheFileItLeadsToIsReplacedInItsPlace)
{
    files.createDirectory(path(u"elsewhere"));
    lay(path(u"elsewhere/target"), before);
    link(file, u"elsewhere/target"_qs);
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_TRUE(isLink(file));
    EXPECT_EQ(contentOf(path(u"elsewhere/target")), after);
    EXPECT_FALSE(isLink(path(u"elsewhere/target")));
    EXPECT_THAT(names(u"elsewhere"_qs), ElementsAre(u"target"_qs));
}

TEST_F(PosixFilesTest, aLinkThatLeadsNowhereYetGetsItsFile)
{
    files.createDirectory(path(u"elsewhere"));
    link(path(u"elsewhere/second"), u"target"_qs);
    link(file, path(u"elsewhere/second"));
    EXPECT_FALSE(files.exists(file));
    ASSERT_THAT(files.writeAtomically(file, after), succeeds);
    EXPECT_EQ(contentOf(path(u"elsewhere/target")), after);
    EXPECT_TRUE(files.exists(file));
}

TEST_F(PosixFilesTest, linksInACircleFail)
{
    link(file, path(u"other"));
    link(path(u"other"), file);
    EXPECT_EQ(files.writeAtomically(file, after).value().text, u"Too many levels of symbolic links");
    EXPECT_TRUE(isLink(file));
}

TEST_F(PosixFilesTest, aFolderInThePlaceOfTheFileFailsAndStays)
{
    files.createDirectory(file);
    EXPECT_EQ(files.writeAtomically(file, after).value().text, u"Is a directory");
    EXPECT_THAT(names(), ElementsAre(u"file"_qs));
}

TEST_F(PosixFilesTest, twoWritersAtOnceLeaveOneOfTheContentsWhole)
{
    const QByteArray left(50000, 'l');
    const QByteArray right(50000, 'r');
    lay(file, left);
    const auto writeOften = [&](const QByteArray& content) {
        PosixFiles own(path(u"Tarvin"));
        for (int round = 0; round < 50; ++round)
            EXPECT_THAT(own.writeAtomically(file, content), succeeds);
    };
    std::thread leftWriter(writeOften, left);
    std::thread rightWriter(writeOften, right);
    for (int round = 0; round < 50; ++round) {
        const QByteArray seen = contentOf(file);
        EXPECT_TRUE(seen == left || seen == right) << seen.size();
    }
    leftWriter.join();
    rightWriter.join();
    EXPECT_THAT(names(), ElementsAre(u"file"_qs));
}

TEST_F(PosixFilesTest, aDamagedFileSetAsideNeverReplacesAnEarlierOne)
{
    for (const char* content : {"first", "second", "third"}) {
        lay(file, content);
        ASSERT_TRUE(std::holds_alternative<QString>(files.setAside(file))) << content;
    }
    EXPECT_FALSE(files.exists(file));
    EXPECT_EQ(contentOf(path(u"file.damaged")), "first");
    EXPECT_EQ(contentOf(path(u"file.damaged.2")), "second");
    EXPECT_EQ(contentOf(path(u"file.damaged.3")), "third");
}

TEST_F(PosixFilesTest, theFolderOfTheProgramsDataIsTheGivenOne)
{
    EXPECT_EQ(files.applicationSupportDirectory(), path(u"Tarvin"));
}

} // namespace

} // namespace tarvin::posix
