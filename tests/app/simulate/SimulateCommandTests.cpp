#include "app/simulate/SimulateCommand.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

namespace tarvin::simulate {
namespace {

class SimulateCommand : public testing::Test
{
protected:
    QString scenario(const QByteArray& text)
    {
        QFile file(m_folder.filePath(u"play.jsonl"_qs));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }

    void run(const QString& file)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        exitCode = runSimulateCommand(file);
        output = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
    }

    int exitCode = -1;
    std::string output;
    std::string errors;

private:
    QTemporaryDir m_folder;
};

TEST_F(SimulateCommand, aGoodScenarioIsPrinted)
{
    run(scenario("{\"do\":\"output\",\"only\":[\"tap\"]}\n"));
    EXPECT_EQ(exitCode, 0);
    EXPECT_THAT(
        output, testing::StartsWith("{\"at\":0,\"effect\":\"tap\",\"location\":\"session\",\"step\":\"created\"}\n"));
    EXPECT_EQ(errors, "");
}

TEST_F(SimulateCommand, aWrongScenarioPrintsErrorsAndNothingElse)
{
    const QString file = scenario("{\"do\":\"start\"}\n{\"do\":\"press\"}\n");
    run(file);
    EXPECT_EQ(exitCode, 2);
    EXPECT_EQ(output, "");
    EXPECT_EQ(errors, file.toStdString() + ":2: press: expected exactly one of the fields \"key\" or \"keyCode\"\n");
}

TEST_F(SimulateCommand, aMissingFileIsNamed)
{
    run(u"/no/such/play.jsonl"_qs);
    EXPECT_EQ(exitCode, 2);
    EXPECT_EQ(output, "");
    EXPECT_EQ(errors, "tarvin simulate: cannot read /no/such/play.jsonl: No such file or directory\n");
}

} // namespace
} // namespace tarvin::simulate
