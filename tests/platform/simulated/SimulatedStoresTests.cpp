#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>

namespace tarvin::simulated {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SimulatedStoresTest : public testing::Test
{
protected:
    QByteArray readText(const QString& file)
    {
        const ReadResult result = desktop.files().read(file);
        if (const auto* error = std::get_if<FileError>(&result))
            return "error: " + error->text.toUtf8();
        return std::get<QByteArray>(result);
    }

    std::vector<FileStep> steps()
    {
        std::vector<FileStep> found;
        for (const FileChanged& change : desktop.effects().all<FileChanged>())
            found.push_back(change.step);
        return found;
    }

    SimulatedPlatform desktop;
    QString path = desktop.files().applicationSupportDirectory() + u"/notes.txt"_qs;
};

TEST_F(SimulatedStoresTest, aFileNeedsItsFolder)
{
    EXPECT_TRUE(desktop.files().writeAtomically(path, "a").has_value());
    desktop.files().createDirectory(desktop.files().applicationSupportDirectory());
    EXPECT_FALSE(desktop.files().writeAtomically(path, "b").has_value());
    EXPECT_TRUE(desktop.files().exists(path));
    EXPECT_EQ(readText(path), "b");
    EXPECT_THAT(steps(), ElementsAre(FileStep::writeFailed, FileStep::directoryCreated, FileStep::written));
}

TEST_F(SimulatedStoresTest, appendingNeverMakesAFile)
{
    desktop.files().createDirectory(desktop.files().applicationSupportDirectory());
    EXPECT_TRUE(desktop.files().append(path, "a").has_value());
    EXPECT_FALSE(desktop.files().exists(path));
    EXPECT_FALSE(desktop.files().writeAtomically(path, "a").has_value());
    EXPECT_FALSE(desktop.files().append(path, "b").has_value());
    EXPECT_EQ(desktop.files().content(path), "ab");
    desktop.files().failOn(FileOperation::append, path, u"disk full"_qs);
    EXPECT_TRUE(desktop.files().append(path, "c").has_value());
    EXPECT_EQ(desktop.files().content(path), "ab");
    EXPECT_THAT(steps(),
        ElementsAre(FileStep::directoryCreated, FileStep::written, FileStep::appended, FileStep::appendFailed));
}

TEST_F(SimulatedStoresTest, aMissingFileCannotBeRead)
{
    EXPECT_EQ(readText(path), "error: No such file or directory");
}

TEST_F(SimulatedStoresTest, anOperationCanBeMadeToFailOnceOrAlways)
{
    desktop.files().stage(path, "old");
    desktop.files().failOn(FileOperation::write, path, u"disk full"_qs, FailureSpan::once);
    const std::optional<FileError> error = desktop.files().writeAtomically(path, "new");
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->text, u"disk full"_qs);
    EXPECT_EQ(readText(path), "old");
    EXPECT_FALSE(desktop.files().writeAtomically(path, "new").has_value());

    desktop.files().failOn(FileOperation::read, path, u"not allowed"_qs);
    EXPECT_EQ(readText(path), "error: not allowed");
    EXPECT_EQ(readText(path), "error: not allowed");
    desktop.files().succeedOn(FileOperation::read, path);
    EXPECT_EQ(readText(path), "new");
}

TEST_F(SimulatedStoresTest, whatIsStagedIsThereWithoutAnEffect)
{
    desktop.files().stage(u"/elsewhere/deep/file"_qs, "x");
    desktop.preferences().stage(u"key"_qs, true);
    EXPECT_TRUE(desktop.files().exists(u"/elsewhere/deep"_qs));
    EXPECT_EQ(desktop.preferences().value(u"key"_qs), QJsonValue(true));
    EXPECT_THAT(desktop.effects().effects(), IsEmpty());
    desktop.files().remove(u"/elsewhere/deep/file"_qs);
    EXPECT_FALSE(desktop.files().exists(u"/elsewhere/deep/file"_qs));
}

TEST_F(SimulatedStoresTest, settingsAreKeptUntilTheyAreRemoved)
{
    const QString key = u"Tarvin_OpenAtStartup"_qs;
    EXPECT_TRUE(desktop.preferences().value(key).isUndefined());
    desktop.preferences().setValue(key, false);
    EXPECT_EQ(desktop.preferences().value(key), QJsonValue(false));
    desktop.preferences().removeValue(key);
    EXPECT_TRUE(desktop.preferences().value(key).isUndefined());
    EXPECT_THAT(desktop.effects().all<SettingStored>(),
        ElementsAre(SettingStored{key, false}, SettingStored{key, QJsonValue(QJsonValue::Undefined)}));
}

} // namespace
} // namespace tarvin::simulated
