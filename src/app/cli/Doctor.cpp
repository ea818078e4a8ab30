#include "app/cli/Doctor.h"

#include <QJsonArray>

namespace tarvin {

namespace {

constexpr std::pair neededXInput{2, 1}; // single devices' passive grabs with raw events on all clients

bool isWayland(const DoctorFacts& facts)
{
    return facts.sessionType == u"wayland" || facts.isInsideWayland;
}

/// What keeps the X session's own path from taking keys; empty if nothing does.
QString lackOfXPath(const DoctorFacts& facts)
{
    if (facts.display.isEmpty())
        return QStringLiteral("DISPLAY is not set, so there is no X session");
    if (!facts.xServerAnswers)
        return QStringLiteral("the X server at %1 does not answer").arg(facts.display);
    if (!facts.xInputVersion || *facts.xInputVersion < neededXInput)
        return QStringLiteral("the X server has no XInput 2.1");
    if (!facts.hasTestExtension)
        return QStringLiteral("the X server has no XTEST extension");
    return {};
}

Finding sessionFinding(const DoctorFacts& facts)
{
    const QString type = facts.sessionType.isEmpty() ? QStringLiteral("of an unknown kind") : facts.sessionType;
    const QString desktop = facts.desktop.isEmpty() ? QString() : QStringLiteral(", desktop %1").arg(facts.desktop);
    if (!isWayland(facts))
        return {.kind = FindingKind::good, .subject = QStringLiteral("session"), .text = type + desktop};
    return {.kind = FindingKind::note,
        .subject = QStringLiteral("session"),
        .text = QStringLiteral("wayland%1: keys are seen here through the kernel daemon, or only while an X11 window "
                               "is in front")
                    .arg(desktop),
        .remedy = QStringLiteral("choose an X11 session at the login screen, or install the daemon")};
}

Finding xPathFinding(const DoctorFacts& facts)
{
    const QString subject = QStringLiteral("X session path");
    if (const QString lack = lackOfXPath(facts); !lack.isEmpty()) {
        return {.kind = facts.isDaemonReachable ? FindingKind::note : FindingKind::problem,
            .subject = subject,
            .text = lack,
            .remedy = QStringLiteral("start Tarvin in a graphical session on X11")};
    }
    const QString version =
        QStringLiteral("XInput %1.%2").arg(facts.xInputVersion->first).arg(facts.xInputVersion->second);
    if (isWayland(facts)) {
        return {.kind = FindingKind::note,
            .subject = subject,
            .text = QStringLiteral("works for X11 windows only (%1)").arg(version)};
    }
    return {.kind = FindingKind::good, .subject = subject, .text = QStringLiteral("can take keys (%1)").arg(version)};
}

Finding daemonFinding(const DoctorFacts& facts)
{
    const QString subject = QStringLiteral("kernel path");
    if (facts.isDaemonReachable)
        return {.kind = FindingKind::good, .subject = subject, .text = QStringLiteral("tarvin-tapd can be reached")};
    // In an X session the other path does it all.
    const bool isNeeded = isWayland(facts) || !lackOfXPath(facts).isEmpty();
    const FindingKind kind = isNeeded ? FindingKind::problem : FindingKind::note;
    if (facts.isDaemonInstalled) {
        return {.kind = kind,
            .subject = subject,
            .text = QStringLiteral("tarvin-tapd is installed, but its socket can't be reached"),
            .remedy = QStringLiteral("sudo systemctl enable --now tarvin-tapd.socket")};
    }
    return {.kind = kind,
        .subject = subject,
        .text = QStringLiteral("tarvin-tapd is not installed; an X11 session works without it"),
        .remedy = isNeeded ? QStringLiteral("install the package of Tarvin, which brings the daemon") : QString()};
}

Finding holdersFinding(const DoctorFacts& facts)
{
    const QString subject = QStringLiteral("keyboard");
    if (facts.isKeyboardTaken) {
        return {.kind = FindingKind::note,
            .subject = subject,
            .text = QStringLiteral("a program has taken the whole keyboard at this moment"),
            .remedy = QStringLiteral("a screen lock, a virtual machine or a menu does so; end it and look again")};
    }
    if (facts.keyboardHolders.isEmpty()) {
        return {.kind = FindingKind::good,
            .subject = subject,
            .text = QStringLiteral("no other program is seen to hold it")};
    }
    return {.kind = FindingKind::note,
        .subject = subject,
        .text = QStringLiteral("read by %1").arg(facts.keyboardHolders.join(QStringLiteral(", "))),
        .remedy = QStringLiteral("if customised keys do nothing, end it and look again")};
}

Finding versionFinding(const DoctorFacts& facts)
{
    return {.kind = FindingKind::good,
        .subject = QStringLiteral("version"),
        .text = QStringLiteral("tarvin %1, Qt %2").arg(facts.version, facts.qtVersion)};
}

Finding permissionFinding(const DoctorFacts& facts)
{
    const QString subject = QStringLiteral("permission");
    if (!facts.isAnswering) {
        return {.kind = FindingKind::note,
            .subject = subject,
            .text = QStringLiteral("only the running program can tell whether it may take keys")};
    }
    if (facts.status.value(u"hasPermission").toBool())
        return {.kind = FindingKind::good, .subject = subject, .text = QStringLiteral("Tarvin may take keys")};
    return {.kind = FindingKind::problem,
        .subject = subject,
        .text = QStringLiteral("Tarvin may not take keys"),
        .remedy = QStringLiteral("System Settings, Privacy & Security, Accessibility: switch Tarvin on")};
}

/// @param idleRemedy what to do where the program runs and takes no keys
Finding programFinding(const DoctorFacts& facts, const QString& idleRemedy)
{
    const QString subject = QStringLiteral("program");
    if (!facts.isRunning) {
        return {.kind = FindingKind::note,
            .subject = subject,
            .text = QStringLiteral("Tarvin does not run"),
            .remedy = QStringLiteral("tarvin --startup")};
    }
    if (!facts.isAnswering) {
        return {.kind = FindingKind::problem,
            .subject = subject,
            .text = QStringLiteral("Tarvin runs, but does not answer"),
            .remedy = QStringLiteral("end its process and start it again")};
    }
    if (!facts.status.value(u"engineRunning").toBool()) {
        return {.kind = FindingKind::problem,
            .subject = subject,
            .text = QStringLiteral("Tarvin runs, but takes no keys"),
            .remedy = idleRemedy};
    }
    return {.kind = FindingKind::good, .subject = subject, .text = QStringLiteral("Tarvin runs and takes keys")};
}

std::optional<Finding> switchFinding(const DoctorFacts& facts)
{
    if (!facts.status.contains(u"interceptionEnabled"))
        return std::nullopt;
    const QString subject = QStringLiteral("switches");
    QStringList off;
    if (!facts.status.value(u"interceptionEnabled").toBool())
        off += QStringLiteral("the master switch");
    if (!facts.status.value(u"functionKeysEnabled").toBool())
        off += QStringLiteral("the switch of F1 to F12");
    if (!facts.status.value(u"otherKeysEnabled").toBool())
        off += QStringLiteral("the switch of the other keys");
    if (off.isEmpty())
        return Finding{.kind = FindingKind::good, .subject = subject, .text = QStringLiteral("all are on")};
    return Finding{.kind = FindingKind::note,
        .subject = subject,
        .text = QStringLiteral("off: %1").arg(off.join(QStringLiteral(", "))),
        .remedy = QStringLiteral("turn it on in the menu of the menu bar item")};
}

Finding testSafeFinding(const DoctorFacts& facts)
{
    const QString subject = QStringLiteral("test-safe mode");
    if (facts.testSafeCause.isEmpty())
        return {.kind = FindingKind::good, .subject = subject, .text = QStringLiteral("off")};
    return {.kind = FindingKind::problem,
        .subject = subject,
        .text = QStringLiteral("on, so that no keystroke is sent: %1").arg(facts.testSafeCause),
        .remedy = QStringLiteral("move the program to a path without that word, or start it without that argument")};
}

Finding soundFinding(const DoctorFacts& facts)
{
    const QString subject = QStringLiteral("sound");
    if (facts.hasSoundServer)
        return {.kind = FindingKind::good, .subject = subject, .text = QStringLiteral("a sound server answers")};
    return {.kind = FindingKind::note,
        .subject = subject,
        .text = QStringLiteral("no sound server answers; volume, mute and the key click do nothing"),
        .remedy = QStringLiteral("systemctl --user start pipewire-pulse, or pulseaudio --start")};
}

Finding menuBarFinding(const DoctorFacts& facts)
{
    const QString subject = QStringLiteral("menu bar item");
    if (facts.hasStatusNotifier || facts.hasXTray) {
        return {.kind = FindingKind::good,
            .subject = subject,
            .text =
                facts.hasStatusNotifier ? QStringLiteral("shown by the panel") : QStringLiteral("shown in the X tray")};
    }
    return {.kind = FindingKind::note,
        .subject = subject,
        .text = QStringLiteral("this desktop shows none"),
        .remedy = QStringLiteral("on GNOME install gnome-shell-extension-appindicator; Option+Command+K opens the "
                                 "Studio in any case")};
}

/// Or does not run, in which case nothing is known against it.
bool programIsWell(const DoctorFacts& facts)
{
    return !facts.isRunning || (facts.isAnswering && facts.status.value(u"engineRunning").toBool());
}

QString wordOf(FindingKind kind)
{
    switch (kind) {
    case FindingKind::good:
        return QStringLiteral("ok");
    case FindingKind::note:
        return QStringLiteral("note");
    case FindingKind::problem:
        return QStringLiteral("problem");
    }
    return {};
}

} // namespace

Diagnosis diagnose(const DoctorFacts& facts)
{
    Diagnosis diagnosis;
    diagnosis.findings = {
        versionFinding(facts),
        sessionFinding(facts),
        xPathFinding(facts),
        daemonFinding(facts),
        holdersFinding(facts),
        programFinding(facts, QStringLiteral("see the paths above, and the end of ~/.local/share/Tarvin/runtime.log")),
    };
    if (const std::optional<Finding> switches = switchFinding(facts))
        diagnosis.findings += *switches;
    diagnosis.findings += {testSafeFinding(facts), menuBarFinding(facts), soundFinding(facts)};

    const bool hasPath = facts.isDaemonReachable || (lackOfXPath(facts).isEmpty() && !isWayland(facts));
    diagnosis.canWork = hasPath && programIsWell(facts) && facts.testSafeCause.isEmpty();
    return diagnosis;
}

Diagnosis diagnoseMac(const DoctorFacts& facts)
{
    Diagnosis diagnosis;
    diagnosis.findings = {versionFinding(facts), permissionFinding(facts),
        programFinding(facts,
            QStringLiteral("see the permission, and the end of ~/Library/Application Support/Tarvin/runtime.log"))};
    if (const std::optional<Finding> switches = switchFinding(facts))
        diagnosis.findings += *switches;
    diagnosis.findings += testSafeFinding(facts);
    diagnosis.canWork = programIsWell(facts) && facts.testSafeCause.isEmpty();
    return diagnosis;
}

QString diagnosisText(const Diagnosis& diagnosis)
{
    QStringList lines;
    for (const Finding& finding : diagnosis.findings) {
        lines += QStringLiteral("%1  %2  %3").arg(wordOf(finding.kind), -7).arg(finding.subject, -14).arg(finding.text);
        if (!finding.remedy.isEmpty())
            lines += QString(25, u' ') + QStringLiteral("-> ") + finding.remedy;
    }
    lines += diagnosis.canWork ? QStringLiteral("Tarvin can take keys in this session.")
                               : QStringLiteral("Tarvin can't do its work in this session.");
    return lines.join(u'\n');
}

QJsonObject diagnosisJson(const Diagnosis& diagnosis)
{
    QJsonArray findings;
    for (const Finding& finding : diagnosis.findings) {
        findings.append(
            QJsonObject{{QStringLiteral("kind"), wordOf(finding.kind)}, {QStringLiteral("subject"), finding.subject},
                {QStringLiteral("text"), finding.text}, {QStringLiteral("remedy"), finding.remedy}});
    }
    return {{QStringLiteral("canWork"), diagnosis.canWork}, {QStringLiteral("findings"), findings}};
}

} // namespace tarvin
