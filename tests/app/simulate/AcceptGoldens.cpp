// Writes down what comes of the kept scenarios and of the examples in the document now. Run it by hand, and read the
// difference before committing it.

#include "app/simulate/GoldenFiles.h"
#include "app/simulate/Simulation.h"

#include <QFile>

#include <cstdio>

namespace {

using namespace tarvin::simulate;

bool complain(const QString& message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return false;
}

bool write(const QString& path, const QByteArray& content)
{
    if (readFile(path) == content)
        return true;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return complain(u"cannot write "_qs + path);
    std::printf("changed: %s\n", qPrintable(path));
    return true;
}

bool acceptScenario(const QString& name)
{
    const std::optional<QByteArray> scenario = readFile(scenarioFile(name));
    if (!scenario)
        return complain(u"cannot read "_qs + scenarioFile(name));
    const SimulationResult result = simulate(name, *scenario);
    if (!result.errors.isEmpty())
        return complain(result.errors.join(u'\n'));
    return write(expectedFile(name), result.output);
}

bool acceptDocument()
{
    const std::optional<QByteArray> document = readFile(documentFile());
    return document ? write(documentFile(), withPresentResults(*document))
                    : complain(u"cannot read "_qs + documentFile());
}

} // namespace

int main()
{
    bool allWell = acceptDocument();
    for (const QString& name : goldenScenarios())
        allWell = acceptScenario(name) && allWell;
    return allWell ? 0 : 1;
}
