#include "model/JsonText.h"
#include "platform/posix/JsonPreferences.h"
#include "platform/posix/PosixFiles.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QStringBuilder>
#include <QTemporaryDir>

// What every platform's files and settings promise, tried on the simulated ones and on the real ones.

namespace tarvin {

namespace {

struct SimulatedStores
{
    simulated::SimulatedPlatform desktop;
    Files& files = desktop.files();
    Preferences& preferences = desktop.preferences();
    QString folder = desktop.files().applicationSupportDirectory();
};

struct PosixStores
{
    QTemporaryDir disk;
    posix::PosixFiles posixFiles{disk.path() % u"/data/Tarvin"};
    posix::JsonPreferences jsonPreferences{posixFiles, disk.path() % u"/config/Tarvin/settings.json",
        [](const QString& line) { FAIL() << line.toStdString(); }};
    Files& files = posixFiles;
    Preferences& preferences = jsonPreferences;
    QString folder = posixFiles.applicationSupportDirectory();
};

template <typename Stores> class StorePorts : public testing::Test
{
protected:
    [[nodiscard]] QByteArray contentOf(const QString& path)
    {
        const ReadResult result = stores.files.read(path);
        const auto* content = std::get_if<QByteArray>(&result);
        return content != nullptr ? *content : QByteArray("(unreadable)");
    }

    Stores stores;
    Files& files = stores.files;
    Preferences& preferences = stores.preferences;
    const QString file = stores.folder % u"/file.json";
};

using Platforms = testing::Types<SimulatedStores, PosixStores>;
TYPED_TEST_SUITE(StorePorts, Platforms);

TYPED_TEST(StorePorts, aMissingFileIsNotThereAndCannotBeRead)
{
    this->files.createDirectory(this->stores.folder);
    EXPECT_FALSE(this->files.exists(this->file));
    EXPECT_EQ(std::get<FileError>(this->files.read(this->file)).text, u"No such file or directory");
}

TYPED_TEST(StorePorts, aFileCanBeWrittenOnceItsFolderIsMade)
{
    EXPECT_EQ(this->files.writeAtomically(this->file, "a").value().text, u"No such file or directory");
    EXPECT_FALSE(this->files.exists(this->file));
    this->files.createDirectory(this->stores.folder);
    EXPECT_TRUE(this->files.exists(this->stores.folder));
    EXPECT_EQ(this->files.writeAtomically(this->file, "a"), std::nullopt);
    EXPECT_TRUE(this->files.exists(this->file));
    EXPECT_EQ(this->contentOf(this->file), "a");
}

TYPED_TEST(StorePorts, makingAFolderAgainChangesNothing)
{
    this->files.createDirectory(this->stores.folder);
    ASSERT_EQ(this->files.writeAtomically(this->file, "a"), std::nullopt);
    this->files.createDirectory(this->stores.folder);
    EXPECT_EQ(this->contentOf(this->file), "a");
}

TYPED_TEST(StorePorts, contentOfEveryKindIsReadBackAsItWasWritten)
{
    this->files.createDirectory(this->stores.folder);
    for (const QByteArray& content :
        {QByteArray(), QByteArray("a\0b\n", 4), QByteArray("\xff\xfe"), QByteArray(300000, 'x')}) {
        ASSERT_EQ(this->files.writeAtomically(this->file, content), std::nullopt);
        EXPECT_EQ(this->contentOf(this->file), content);
    }
}

TYPED_TEST(StorePorts, appendingAddsToAFileAndNeverMakesOne)
{
    this->files.createDirectory(this->stores.folder);
    EXPECT_EQ(this->files.append(this->file, "a").value().text, u"No such file or directory");
    EXPECT_FALSE(this->files.exists(this->file));
    ASSERT_EQ(this->files.writeAtomically(this->file, "a"), std::nullopt);
    EXPECT_EQ(this->files.append(this->file, "b"), std::nullopt);
    EXPECT_EQ(this->files.append(this->file, ""), std::nullopt);
    EXPECT_EQ(this->files.append(this->file, "c"), std::nullopt);
    EXPECT_EQ(this->contentOf(this->file), "abc");
}

TYPED_TEST(StorePorts, aSettingIsUnsetUntilItIsStoredAndAfterItIsRemoved)
{
    const QString key = u"Tarvin_Some.Setting"_qs;
    EXPECT_TRUE(this->preferences.value(key).isUndefined());
    for (const char* value : {"false", "true", R"("text")", "12", R"([{"a": "b"}])"}) {
        this->preferences.setValue(key, json(value));
        EXPECT_EQ(this->preferences.value(key), json(value));
    }
    this->preferences.removeValue(key);
    EXPECT_TRUE(this->preferences.value(key).isUndefined());
    this->preferences.removeValue(key);
}

TYPED_TEST(StorePorts, settingsDoNotTouchEachOther)
{
    this->preferences.setValue(u"a"_qs, true);
    this->preferences.setValue(u"b"_qs, u"b"_qs);
    this->preferences.removeValue(u"a"_qs);
    EXPECT_EQ(this->preferences.value(u"b"_qs), u"b"_qs);
    EXPECT_TRUE(this->preferences.value(u"a"_qs).isUndefined());
}

} // namespace

} // namespace tarvin
