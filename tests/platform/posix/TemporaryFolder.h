#pragma once

#include "platform/posix/FaultyFileCalls.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QStringBuilder>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tarvin::posix {

/// A folder on the real disk for one test, and what a test does there by hand.
class TemporaryFolder : public testing::Test
{
protected:
    [[nodiscard]] QString path(QStringView name) const { return m_folder.path() % u'/' % name; }

    static void lay(const QString& file, const QByteArray& content)
    {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(out.write(content), content.size());
    }

    /// "(none)" where there is no file.
    [[nodiscard]] static QByteArray contentOf(const QString& file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("(none)");
    }

    /// What lies in the folder, hidden files included.
    [[nodiscard]] QStringList names(const QString& folder = QString()) const
    {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    [[nodiscard]] static unsigned modeOf(const QString& file)
    {
        struct stat status
        { };
        return ::stat(QFile::encodeName(file).constData(), &status) == 0 ? status.st_mode & 07777U : 0;
    }

    static void setMode(const QString& file, unsigned mode)
    {
        ASSERT_EQ(::chmod(QFile::encodeName(file).constData(), mode), 0);
    }

    static void link(const QString& name, const QString& target) { ASSERT_TRUE(QFile::link(target, name)); }
    [[nodiscard]] static bool isLink(const QString& file) { return QFileInfo(file).isSymLink(); }

private:
    QTemporaryDir m_folder;
};

} // namespace tarvin::posix
