#include "app/MachineDoctor.h"

#include "actions/TestEnvironment.h"
#include "app/ControlPaths.h"
#include "app/cli/CommandMessages.h"
#include "platform/posix/ControlSocket.h"

#include <QJsonDocument>

#include <chrono>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr auto statusPatience = 3s;

void askProgram(DoctorFacts& facts)
{
    auto connection = posix::ControlConnection::open(ControlPaths::fromEnvironment().control);
    facts.isRunning = connection.has_value();
    if (!connection
        || !connection->send(
            toLine(CommandRequest{.command = QStringLiteral("status"), .words = {QStringLiteral("--json")}})))
        return;
    const auto line = connection->readLine(statusPatience);
    const auto reply = line ? commandReplyFromLine(*line) : std::nullopt;
    facts.isAnswering = reply.has_value();
    if (reply)
        facts.status = QJsonDocument::fromJson(reply->output.toUtf8()).object();
}

} // namespace

DoctorFacts factsOfTheProgram(const ProcessInfo& processInfo)
{
    DoctorFacts facts;
    facts.version = QStringLiteral(TARVIN_VERSION);
    facts.qtVersion = QString::fromLatin1(qVersion());
    askProgram(facts);
    facts.testSafeCause = facts.isAnswering ? facts.status.value(u"testSafeMode").toString()
                                            : TestEnvironment(processInfo).cause().value_or(QString());
    return facts;
}

} // namespace tarvin
