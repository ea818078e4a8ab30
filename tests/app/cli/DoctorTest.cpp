#include "app/cli/Doctor.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include <algorithm>

namespace tarvin {

namespace {

/// An X11 session in which everything is well and the program runs.
DoctorFacts goodFacts()
{
    return {.version = u"1.0"_qs,
        .qtVersion = u"6.4.2"_qs,
        .sessionType = u"x11"_qs,
        .desktop = u"XFCE"_qs,
        .display = u":0"_qs,
        .xServerAnswers = true,
        .xInputVersion = std::pair(2, 3),
        .hasTestExtension = true,
        .isRunning = true,
        .isAnswering = true,
        .status = {{u"engineRunning"_qs, true}, {u"interceptionEnabled"_qs, true}, {u"functionKeysEnabled"_qs, true},
            {u"otherKeysEnabled"_qs, true}},
        .hasSoundServer = true,
        .hasStatusNotifier = true};
}

Finding finding(const DoctorFacts& facts, const QString& subject)
{
    const Diagnosis diagnosis = diagnose(facts);
    const auto found = std::ranges::find(diagnosis.findings, subject, &Finding::subject);
    return found == diagnosis.findings.end() ? Finding{.text = u"none"_qs} : *found;
}

TEST(Doctor, whereAllIsWellItSaysSo)
{
    const Diagnosis diagnosis = diagnose(goodFacts());
    EXPECT_TRUE(diagnosis.canWork);
    EXPECT_TRUE(
        std::ranges::none_of(diagnosis.findings, [](const Finding& one) { return one.kind == FindingKind::problem; }));
    EXPECT_TRUE(diagnosisText(diagnosis).endsWith(u"Tarvin can take keys in this session."));
    EXPECT_TRUE(diagnosisText(diagnosis).contains(u"tarvin 1.0, Qt 6.4.2"));
}

TEST(Doctor, withoutADisplayNothingCanBeTaken)
{
    DoctorFacts facts = goodFacts();
    facts.display.clear();
    facts.xServerAnswers = false;
    EXPECT_FALSE(diagnose(facts).canWork);
    EXPECT_EQ(finding(facts, u"X session path"_qs).kind, FindingKind::problem);
    facts.display = u":9"_qs;
    EXPECT_TRUE(finding(facts, u"X session path"_qs).text.contains(u":9"));
}

TEST(Doctor, anOldXServerIsNoWay)
{
    DoctorFacts facts = goodFacts();
    facts.xInputVersion = std::pair(2, 0);
    EXPECT_FALSE(diagnose(facts).canWork);
    facts.xInputVersion = std::nullopt;
    EXPECT_FALSE(diagnose(facts).canWork);
    facts = goodFacts();
    facts.hasTestExtension = false;
    EXPECT_FALSE(diagnose(facts).canWork);
}

TEST(Doctor, aWaylandSessionNeedsTheDaemon)
{
    DoctorFacts facts = goodFacts();
    facts.sessionType = u"wayland"_qs;
    EXPECT_FALSE(diagnose(facts).canWork);
    EXPECT_EQ(finding(facts, u"kernel path"_qs).kind, FindingKind::problem);
    facts.isDaemonInstalled = true;
    EXPECT_EQ(finding(facts, u"kernel path"_qs).remedy, u"sudo systemctl enable --now tarvin-tapd.socket"_qs);
    facts.isDaemonReachable = true;
    EXPECT_TRUE(diagnose(facts).canWork);
    facts.sessionType.clear();
    facts.isInsideWayland = true;
    facts.isDaemonReachable = false;
    EXPECT_FALSE(diagnose(facts).canWork);
}

TEST(Doctor, inAnXSessionTheDaemonIsNoCondition)
{
    EXPECT_EQ(finding(goodFacts(), u"kernel path"_qs).kind, FindingKind::note);
}

TEST(Doctor, aProgramThatHangsOrTakesNoKeysIsAProblem)
{
    DoctorFacts facts = goodFacts();
    facts.isAnswering = false;
    EXPECT_FALSE(diagnose(facts).canWork);
    EXPECT_EQ(finding(facts, u"program"_qs).text, u"Tarvin runs, but does not answer"_qs);
    facts.isAnswering = true;
    facts.status.insert(u"engineRunning", false);
    EXPECT_FALSE(diagnose(facts).canWork);
}

TEST(Doctor, aProgramThatDoesNotRunIsNone)
{
    DoctorFacts facts = goodFacts();
    facts.isRunning = facts.isAnswering = false;
    facts.status = {};
    EXPECT_TRUE(diagnose(facts).canWork);
    EXPECT_EQ(finding(facts, u"program"_qs).kind, FindingKind::note);
    EXPECT_EQ(finding(facts, u"switches"_qs).text, u"none"_qs);
}

TEST(Doctor, switchesThatAreOffAreNamed)
{
    DoctorFacts facts = goodFacts();
    facts.status.insert(u"interceptionEnabled", false);
    facts.status.insert(u"otherKeysEnabled", false);
    EXPECT_EQ(finding(facts, u"switches"_qs).text, u"off: the master switch, the switch of the other keys"_qs);
}

TEST(Doctor, theWordThatHoldsKeystrokesBackIsNamed)
{
    DoctorFacts facts = goodFacts();
    facts.testSafeCause = u"the path \"/opt/latest/tarvin\" contains \"test\""_qs;
    EXPECT_FALSE(diagnose(facts).canWork);
    EXPECT_TRUE(finding(facts, u"test-safe mode"_qs).text.contains(u"/opt/latest/tarvin"));
}

TEST(Doctor, whoHoldsTheKeyboardIsNamed)
{
    DoctorFacts facts = goodFacts();
    facts.keyboardHolders = {u"remapper (process 7)"_qs};
    EXPECT_TRUE(finding(facts, u"keyboard"_qs).text.contains(u"remapper (process 7)"));
    EXPECT_TRUE(diagnose(facts).canWork);
    facts.isKeyboardTaken = true;
    EXPECT_TRUE(finding(facts, u"keyboard"_qs).text.contains(u"the whole keyboard"));
}

TEST(Doctor, comfortsThatAreMissingAreNotes)
{
    DoctorFacts facts = goodFacts();
    facts.hasSoundServer = facts.hasStatusNotifier = false;
    EXPECT_TRUE(diagnose(facts).canWork);
    EXPECT_EQ(finding(facts, u"sound"_qs).kind, FindingKind::note);
    EXPECT_EQ(finding(facts, u"menu bar item"_qs).kind, FindingKind::note);
    facts.hasXTray = true;
    EXPECT_EQ(finding(facts, u"menu bar item"_qs).kind, FindingKind::good);
}

TEST(Doctor, everythingThatIsNotWellHasARemedy)
{
    DoctorFacts facts;
    for (const Finding& one : diagnose(facts).findings) {
        if (one.kind == FindingKind::problem) {
            EXPECT_FALSE(one.remedy.isEmpty()) << one.text.toStdString();
        }
    }
}

TEST(Doctor, scriptsReadTheSame)
{
    const QJsonObject json = diagnosisJson(diagnose(goodFacts()));
    EXPECT_EQ(json.value(u"canWork"), QJsonValue(true));
    EXPECT_EQ(json.value(u"findings").toArray().size(), diagnose(goodFacts()).findings.size());
    EXPECT_EQ(json.value(u"findings").toArray().at(0).toObject().value(u"kind"), QJsonValue(u"ok"_qs));
}

/// A Mac on which everything is well and the program runs.
DoctorFacts goodMacFacts()
{
    return {.version = u"1.0"_qs,
        .qtVersion = u"6.4.2"_qs,
        .isRunning = true,
        .isAnswering = true,
        .status = {{u"engineRunning"_qs, true}, {u"hasPermission"_qs, true}}};
}

FindingKind kindOnMac(const DoctorFacts& facts, const QString& subject)
{
    const Diagnosis diagnosis = diagnoseMac(facts);
    const auto found = std::ranges::find(diagnosis.findings, subject, &Finding::subject);
    EXPECT_NE(found, diagnosis.findings.end()) << subject.toStdString();
    return found == diagnosis.findings.end() ? FindingKind::good : found->kind;
}

TEST(DoctorOnAMac, asksOnlyForThePermission)
{
    const Diagnosis diagnosis = diagnoseMac(goodMacFacts());
    EXPECT_TRUE(diagnosis.canWork);
    EXPECT_TRUE(
        std::ranges::all_of(diagnosis.findings, [](const Finding& one) { return one.kind == FindingKind::good; }));
}

TEST(DoctorOnAMac, withoutThePermissionNoKeysAreTaken)
{
    DoctorFacts facts = goodMacFacts();
    facts.status = {{u"engineRunning"_qs, false}, {u"hasPermission"_qs, false}};
    EXPECT_EQ(kindOnMac(facts, u"permission"_qs), FindingKind::problem);
    EXPECT_EQ(kindOnMac(facts, u"program"_qs), FindingKind::problem);
    EXPECT_FALSE(diagnoseMac(facts).canWork);
}

TEST(DoctorOnAMac, whereNoProgramRunsNobodyKnowsOfThePermission)
{
    DoctorFacts facts = goodMacFacts();
    facts.isRunning = facts.isAnswering = false;
    facts.status = {};
    EXPECT_EQ(kindOnMac(facts, u"permission"_qs), FindingKind::note);
    EXPECT_TRUE(diagnoseMac(facts).canWork);
}

} // namespace

} // namespace tarvin
