#pragma once

#include "model/JsonText.h"
#include "platform/ports/Files.h"
#include "platform/ports/Preferences.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QStringBuilder>

namespace tarvin::contracts {

/// What every platform's files promise. A platform under test has `files()`, whose own folder does not exist yet.
template <typename Tested> class FilesContract : public testing::Test
{
protected:
    [[nodiscard]] QByteArray contentOf(const QString& path)
    {
        const ReadResult result = files.read(path);
        const auto* content = std::get_if<QByteArray>(&result);
        return content != nullptr ? *content : QByteArray("(unreadable)");
    }

    Tested tested;
    Files& files = tested.files();
    const QString folder = files.applicationSupportDirectory();
    const QString file = folder % u"/file.json";
};

TYPED_TEST_SUITE_P(FilesContract);

TYPED_TEST_P(FilesContract, aMissingFileIsNotThereAndCannotBeRead)
{
    this->files.createDirectory(this->folder);
    EXPECT_FALSE(this->files.exists(this->file));
    EXPECT_EQ(std::get<FileError>(this->files.read(this->file)).text, u"No such file or directory");
}

TYPED_TEST_P(FilesContract, aFileCanBeWrittenOnceItsFolderIsMade)
{
    EXPECT_EQ(this->files.writeAtomically(this->file, "a").value().text, u"No such file or directory");
    EXPECT_FALSE(this->files.exists(this->file));
    this->files.createDirectory(this->folder);
    EXPECT_TRUE(this->files.exists(this->folder));
    EXPECT_EQ(this->files.writeAtomically(this->file, "a"), std::nullopt);
    EXPECT_TRUE(this->files.exists(this->file));
    EXPECT_EQ(this->contentOf(this->file), "a");
}

TYPED_TEST_P(FilesContract, makingAFolderAgainChangesNothing)
{
    this->files.createDirectory(this->folder);
    ASSERT_EQ(this->files.writeAtomically(this->file, "a"), std::nullopt);
    this->files.createDirectory(this->folder);
    EXPECT_EQ(this->contentOf(this->file), "a");
}

TYPED_TEST_P(FilesContract, contentOfEveryKindIsReadBackAsItWasWritten)
{
    this->files.createDirectory(this->folder);
    for (const QByteArray& content :
        {QByteArray(), QByteArray("a\0b\n", 4), QByteArray("\xff\xfe"), QByteArray(300000, 'x')}) {
        ASSERT_EQ(this->files.writeAtomically(this->file, content), std::nullopt);
        EXPECT_EQ(this->contentOf(this->file), content);
    }
}

TYPED_TEST_P(FilesContract, appendingAddsToAFileAndNeverMakesOne)
{
    this->files.createDirectory(this->folder);
    EXPECT_EQ(this->files.append(this->file, "a").value().text, u"No such file or directory");
    EXPECT_FALSE(this->files.exists(this->file));
    ASSERT_EQ(this->files.writeAtomically(this->file, "a"), std::nullopt);
    EXPECT_EQ(this->files.append(this->file, "b"), std::nullopt);
    EXPECT_EQ(this->files.append(this->file, ""), std::nullopt);
    EXPECT_EQ(this->files.append(this->file, "c"), std::nullopt);
    EXPECT_EQ(this->contentOf(this->file), "abc");
}

REGISTER_TYPED_TEST_SUITE_P(FilesContract, aMissingFileIsNotThereAndCannotBeRead, aFileCanBeWrittenOnceItsFolderIsMade,
    makingAFolderAgainChangesNothing, contentOfEveryKindIsReadBackAsItWasWritten, appendingAddsToAFileAndNeverMakesOne);

/// What every platform's settings promise. A platform under test has `preferences()`; only keys of these tests are
/// touched, and none of them stays.
template <typename Tested> class PreferencesContract : public testing::Test
{
protected:
    Tested tested;
    Preferences& preferences = tested.preferences();
};

TYPED_TEST_SUITE_P(PreferencesContract);

TYPED_TEST_P(PreferencesContract, aSettingIsUnsetUntilItIsStoredAndAfterItIsRemoved)
{
    const QString key = u"Tarvin_Contract.Setting"_qs;
    EXPECT_TRUE(this->preferences.value(key).isUndefined());
    for (const char* value : {"false", "true", R"("text")", "12", R"([{"a": "b"}])"}) {
        this->preferences.setValue(key, json(value));
        EXPECT_EQ(this->preferences.value(key), json(value));
    }
    this->preferences.removeValue(key);
    EXPECT_TRUE(this->preferences.value(key).isUndefined());
    this->preferences.removeValue(key);
}

TYPED_TEST_P(PreferencesContract, settingsDoNotTouchEachOther)
{
    this->preferences.setValue(u"Tarvin_Contract.a"_qs, true);
    this->preferences.setValue(u"Tarvin_Contract.b"_qs, u"b"_qs);
    this->preferences.removeValue(u"Tarvin_Contract.a"_qs);
    EXPECT_EQ(this->preferences.value(u"Tarvin_Contract.b"_qs), u"b"_qs);
    EXPECT_TRUE(this->preferences.value(u"Tarvin_Contract.a"_qs).isUndefined());
    this->preferences.removeValue(u"Tarvin_Contract.b"_qs);
}

REGISTER_TYPED_TEST_SUITE_P(
    PreferencesContract, aSettingIsUnsetUntilItIsStoredAndAfterItIsRemoved, settingsDoNotTouchEachOther);

} // namespace tarvin::contracts
