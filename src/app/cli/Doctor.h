#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

namespace tarvin {

/// What was found on the machine, without a judgement.
struct DoctorFacts
{
    QString version{};
    QString qtVersion{};
    QString sessionType{}; ///< as the session names it: x11, wayland, tty; empty if it does not
    QString desktop{};
    QString display{}; ///< of the X server; empty without one
    bool xServerAnswers = false;
    std::optional<std::pair<int, int>> xInputVersion{};
    bool hasTestExtension = false;
    bool isInsideWayland = false;
    bool isDaemonInstalled = false; ///< the program that takes keys from the kernel
    bool isDaemonReachable = false; ///< its socket is there and this user may use it
    bool isKeyboardTaken = false; ///< some X client has the whole keyboard to itself
    QStringList keyboardHolders{}; ///< other programs that read the keyboards' devices, as "name (process)"
    bool isRunning = false;
    bool isAnswering = false;
    QJsonObject status{}; ///< of the running program, as `tarvin status --json` has it
    QString
        testSafeCause{}; ///< why keystrokes are held back, of the running program, or else of this one; may be empty
    bool hasSoundServer = false;
    bool hasStatusNotifier = false;
    bool hasXTray = false;
};

enum class FindingKind {
    good,
    note, ///< less than there could be, but the main job is done
    problem, ///< this keeps Tarvin from its main job
};

struct Finding
{
    FindingKind kind = FindingKind::good;
    QString subject{}; ///< one or two words
    QString text{};
    QString remedy{}; ///< what to do, a command where one does it
};

struct Diagnosis
{
    QList<Finding> findings;
    bool canWork = false; ///< whether keys can be taken in this session
};

/// Judges what was found on a Linux desktop.
[[nodiscard]] Diagnosis diagnose(const DoctorFacts& facts);
/// Judges what was found on a Mac, where all hangs on one permission.
[[nodiscard]] Diagnosis diagnoseMac(const DoctorFacts& facts);

[[nodiscard]] QString diagnosisText(const Diagnosis& diagnosis);
[[nodiscard]] QJsonObject diagnosisJson(const Diagnosis& diagnosis);

} // namespace tarvin
