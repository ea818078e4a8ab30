#include "platform/linux/desktop/LinuxFunctionKeySetting.h"

#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>

namespace tarvin::desktop {

namespace {

class FunctionKeyMode : public testing::Test
{
protected:
    void setParameter(const QByteArray& value) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(value);
    }

    [[nodiscard]] QByteArray parameter() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray("missing");
    }

    QTemporaryDir directory;
    QString path = directory.filePath(QStringLiteral("fnmode"));
    LinuxFunctionKeySetting setting{path};
};

} // namespace

TEST_F(FunctionKeyMode, isAvailableOnlyWhereTheParameterExists)
{
    EXPECT_FALSE(setting.isAvailable());
    setParameter("1\n");
    EXPECT_TRUE(setting.isAvailable());
    EXPECT_EQ(LinuxFunctionKeySetting::defaultPath(), QStringLiteral("/sys/module/hid_apple/parameters/fnmode"));
}

TEST_F(FunctionKeyMode, readsWhetherTheTopRowSendsFunctionKeys)
{
    for (const auto& [value, output] : {std::pair("0\n", "1\n"), {"1\n", "0\n"}, {"2\n", "1\n"}, {"3\n", "0\n"}}) {
        setParameter(value);
        const ToolOutcome outcome = setting.readByTool();
        EXPECT_EQ(outcome.standardOutput, output) << value;
        EXPECT_FALSE(outcome.launchError);
    }
}

TEST_F(FunctionKeyMode, goingBackRestoresTheValueThatWasThere)
{
    setParameter("3\n");
    EXPECT_FALSE(setting.writeByTool(true).launchError);
    EXPECT_EQ(parameter(), "2");
    EXPECT_FALSE(setting.writeByTool(false).launchError);
    EXPECT_EQ(parameter(), "3");
}

TEST_F(FunctionKeyMode, goingBackWithoutAKnownValuePrefersThePrintedFunctions)
{
    setParameter("2\n");
    EXPECT_FALSE(setting.writeByTool(false).launchError);
    EXPECT_EQ(parameter(), "1");
}

TEST_F(FunctionKeyMode, whatIsSoAlreadyIsNotTouched)
{
    setParameter("3\n");
    (void)setting.writeByTool(false);
    EXPECT_EQ(parameter(), "3");
    setParameter("0\n");
    (void)setting.writeByTool(true);
    EXPECT_EQ(parameter(), "0");
}

TEST_F(FunctionKeyMode, aMissingParameterIsAnErrorInWords)
{
    EXPECT_TRUE(setting.readByTool().launchError);
    EXPECT_TRUE(setting.writeByTool(true).launchError);
}

} // namespace tarvin::desktop
