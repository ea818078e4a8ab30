// What came of the kept scenarios, and the promises of the document. After a change that is meant, see
// `accept_simulate_goldens` in the CMakeLists.txt beside this file.

#include "app/simulate/GoldenFiles.h"
#include "app/simulate/InstructionReader.h"
#include "app/simulate/OutputKinds.h"
#include "app/simulate/Simulation.h"

#include <gtest/gtest.h>

namespace tarvin::simulate {
namespace {

/// The first line in which two texts differ, for a readable failure.
std::string firstDifference(const QByteArray& expected, const QByteArray& found)
{
    const QList<QByteArray> expectedLines = expected.split('\n');
    const QList<QByteArray> foundLines = found.split('\n');
    for (qsizetype index = 0; index < std::max(expectedLines.size(), foundLines.size()); ++index) {
        const QByteArray want = expectedLines.value(index, "<end>");
        const QByteArray have = foundLines.value(index, "<end>");
        if (want != have)
            return "line " + std::to_string(index + 1) + "\nexpected: " + want.toStdString()
                + "\nfound:    " + have.toStdString();
    }
    return "no difference";
}

class GoldenScenario : public testing::TestWithParam<std::string>
{
protected:
    QString name = QString::fromStdString(GetParam());
    QByteArray scenario = readFile(scenarioFile(name)).value_or(QByteArray());
};

TEST_P(GoldenScenario, comesOutAsBefore)
{
    const std::optional<QByteArray> expected = readFile(expectedFile(name));
    ASSERT_TRUE(expected.has_value());
    const SimulationResult result = simulate(name, scenario);
    EXPECT_EQ(result.errors, QStringList());
    EXPECT_TRUE(result.output == *expected) << firstDifference(*expected, result.output);
}

TEST_P(GoldenScenario, comesOutTheSameTwice)
{
    EXPECT_EQ(simulate(name, scenario).output, simulate(name, scenario).output);
}

TEST_P(GoldenScenario, breaksNoRuleOfAPort)
{
    const SimulationResult result = simulate(name, "{\"do\":\"output\",\"all\":true}\n" + scenario);
    EXPECT_FALSE(result.output.contains("\"effect\":\"misuse\"")) << result.output.toStdString();
}

std::vector<std::string> namesOfScenarios()
{
    std::vector<std::string> names;
    for (const QString& name : goldenScenarios())
        names.push_back(name.toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(Kept, GoldenScenario, testing::ValuesIn(namesOfScenarios()),
    [](const testing::TestParamInfo<std::string>& scenario) { return scenario.param; });

TEST(SimulateDocument, itsExamplesComeOutAsItSays)
{
    const std::optional<QByteArray> document = readFile(documentFile());
    ASSERT_TRUE(document.has_value());
    EXPECT_GE(document->count("```jsonl scenario"), 3);
    EXPECT_EQ(
        document->count("```jsonl scenario"), document->count("```jsonl output") + document->count("```text errors"));
    const QByteArray present = withPresentResults(*document);
    EXPECT_TRUE(present == *document) << firstDifference(*document, present);
}

TEST(SimulateDocument, aResultThatChangedIsSeen)
{
    const QByteArray document = "```jsonl scenario\n{\"do\":\"dance\"}\n```\n\n```text errors\nwrong\n```\nafter\n";
    const QByteArray present = withPresentResults(document);
    EXPECT_TRUE(present.contains("```text errors\nexample.jsonl:1: unknown instruction \"dance\";"));
    EXPECT_FALSE(present.contains("wrong"));
    EXPECT_TRUE(present.endsWith("\n```\nafter\n"));
}

TEST(SimulateDocument, everyInstructionAndEveryEffectIsThere)
{
    const QByteArray document = readFile(documentFile()).value_or(QByteArray());
    for (const QString& name : instructionNames() + outputKinds())
        EXPECT_TRUE(document.contains("`" + name.toUtf8() + "`")) << name.toStdString();
}

} // namespace
} // namespace tarvin::simulate
