#include "app/simulate/Simulation.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tarvin::simulate {
namespace {

/// The lines of a scenario that must go well.
std::vector<QJsonObject> played(const QByteArray& scenario)
{
    const SimulationResult result = simulate(u"play"_qs, scenario);
    EXPECT_EQ(result.errors, QStringList());
    std::vector<QJsonObject> lines;
    for (const QByteArray& line : result.output.split('\n')) {
        if (!line.isEmpty())
            lines.push_back(QJsonDocument::fromJson(line).object());
    }
    return lines;
}

std::vector<QJsonObject> effectsOf(const QByteArray& scenario, QStringView effect)
{
    std::vector<QJsonObject> found;
    for (const QJsonObject& line : played(scenario)) {
        if (line.value(u"effect") == effect.toString())
            found.push_back(line);
    }
    return found;
}

QStringList errorsOf(const QByteArray& scenario)
{
    const SimulationResult result = simulate(u"play"_qs, scenario);
    EXPECT_EQ(result.output, QByteArray());
    return result.errors;
}

TEST(Simulation, theProgramStartsByItself)
{
    for (const char* scenario : {"", "{\"do\":\"permission\",\"granted\":true}", "{\"do\":\"start\"}",
             "{\"at\":500,\"do\":\"end\"}", "{\"do\":\"press\",\"key\":\"F5\"}"}) {
        const std::vector<QJsonObject> opened = effectsOf(scenario, u"window");
        ASSERT_FALSE(opened.empty()) << scenario;
        EXPECT_EQ(opened.front().value(u"at"), QJsonValue(0)) << scenario;
    }
}

TEST(Simulation, theStageIsReadyWhenTheProgramStarts)
{
    EXPECT_TRUE(effectsOf("{\"do\":\"uptime\",\"seconds\":119}", u"window").empty());
    EXPECT_FALSE(effectsOf("{\"do\":\"uptime\",\"seconds\":120}", u"window").empty());
    const auto keys = effectsOf("{\"do\":\"map\",\"key\":\"F5\",\"action\":\"mute\"}", u"consumedKeys");
    ASSERT_FALSE(keys.empty());
    EXPECT_EQ(keys.front().value(u"keys").toArray(), QJsonArray{u"F5"_qs});
}

TEST(Simulation, whatCannotBeCarriedOutLeavesNoOutput)
{
    EXPECT_EQ(errorsOf("{\"do\":\"press\",\"key\":\"F5\"}\n\n{\"at\":100,\"do\":\"front\",\"application\":\"X\"}"),
        QStringList{u"play:3: no running application has the identifier or the name \"X\"; expected "
                    u"\"com.velmor.Tarvin\", or an \"application\" before"_qs});
    EXPECT_EQ(errorsOf("{\"do\":\"editProfile\",\"profile\":\"mail\"}"),
        QStringList{u"play:1: there is no profile \"mail\"; expected \"global\", \"safari\", \"xcode\", \"terminal\" "
                    u"or \"finder\", or an \"addProfile\" before"_qs});
    EXPECT_EQ(errorsOf("{\"do\":\"press\",\"key\":\"F5\"}\n{\"do\":\"dance\"}").size(), 1);
}

TEST(Simulation, aRunGoesOnUntilOnlyRepeatingTimersAreLeft)
{
    const std::vector<QJsonObject> lines = played("{\"do\":\"execute\",\"action\":\"copy\"}\n"
                                                  "{\"do\":\"permission\",\"granted\":false}\n"
                                                  "{\"do\":\"application\",\"name\":\"a\",\"front\":true}\n"
                                                  "{\"do\":\"execute\",\"action\":\"copy\"}\n");
    EXPECT_EQ(lines.back().value(u"effect"), QJsonValue(u"noticeCleared"_qs));
    EXPECT_EQ(lines.back().value(u"at"), QJsonValue(3000));
}

TEST(Simulation, theEndCutsOffWhatWouldComeLater)
{
    const QByteArray scenario = "{\"do\":\"application\",\"name\":\"a\",\"front\":true}\n"
                                "{\"at\":10,\"do\":\"front\",\"application\":\"a\"}\n"
                                "{\"at\":100,\"do\":\"execute\",\"action\":\"copy\"}\n";
    EXPECT_EQ(effectsOf(scenario, u"keyPosted").size(), 2u);
    EXPECT_EQ(effectsOf(scenario + "{\"at\":114.999,\"do\":\"end\"}", u"keyPosted").size(), 1u);
    EXPECT_EQ(effectsOf(scenario + "{\"at\":115,\"do\":\"end\"}", u"keyPosted").size(), 2u);
}

TEST(Simulation, onlyTheSelectedKindsAreWrittenFromThenOn)
{
    QStringList kinds;
    for (const QJsonObject& line : played("{\"do\":\"output\",\"only\":[]}\n"
                                          "{\"do\":\"start\"}\n"
                                          "{\"at\":10,\"do\":\"output\",\"only\":[\"setting\"]}\n"
                                          "{\"do\":\"switches\",\"interception\":false}\n"
                                          "{\"do\":\"output\",\"all\":true}\n"
                                          "{\"do\":\"switches\",\"interception\":true}\n"))
        kinds.append(line.value(u"effect").toString());
    EXPECT_EQ(kinds, (QStringList{u"setting"_qs, u"setting"_qs}));
}

TEST(Simulation, theLogFileIsShownLineByLine)
{
    const auto lines = effectsOf("", u"log");
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front().value(u"line"), QJsonValue(u"[] [Tarvin] Initializing EventTapManager..."_qs));
    EXPECT_TRUE(effectsOf("", u"fileAppended").empty());
    EXPECT_FALSE(effectsOf(
        "{\"do\":\"failFile\",\"path\":\"runtime.log\",\"operation\":\"write\",\"error\":\"no\"}", u"fileWriteFailed")
                     .empty());
}

TEST(Simulation, identifiersAreTheSameInEveryRun)
{
    const QByteArray scenario = "{\"do\":\"editKey\",\"key\":\"F5\",\"record\":{\"action\":\"keyboard_shortcut\","
                                "\"customShortcuts\":[{\"keyCode\":8,\"keyDisplay\":\"C\"}]}}";
    const SimulationResult first = simulate(u"play"_qs, scenario);
    EXPECT_TRUE(first.output.contains("00000000-0000-4000-8000-000000000001"));
    EXPECT_EQ(first.output, simulate(u"play"_qs, scenario).output);
}

TEST(Simulation, theEndOfTheProgramIsTheEndOfTheRun)
{
    const std::vector<QJsonObject> lines = played("{\"do\":\"execute\",\"action\":\"copy\"}\n{\"do\":\"terminate\"}");
    EXPECT_EQ(lines.back().value(u"effect"), QJsonValue(u"terminated"_qs));
}

TEST(Simulation, recordsKeepTheirParametersOnTheWayToTheExecutor)
{
    const auto posted = effectsOf("{\"do\":\"start\"}\n{\"do\":\"application\",\"name\":\"a\",\"front\":true}\n"
                                  "{\"do\":\"execute\",\"record\":{\"action\":\"keyboard_shortcut\","
                                  "\"customShortcuts\":[{\"keyCode\":2,\"option\":true,\"keyDisplay\":\"D\"}]}}",
        u"keyPosted");
    ASSERT_EQ(posted.size(), 2u);
    EXPECT_EQ(posted.front().value(u"keyCode"), QJsonValue(2));
    EXPECT_EQ(posted.front().value(u"flags").toArray(), QJsonArray{u"option"_qs});
}

} // namespace
} // namespace tarvin::simulate
