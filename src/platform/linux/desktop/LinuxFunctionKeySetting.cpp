#include "platform/linux/desktop/LinuxFunctionKeySetting.h"

#include <QFile>
#include <QFileInfo>

namespace tarvin::desktop {

namespace {

constexpr QByteArrayView functionKeysFirst = "2";
constexpr QByteArrayView translationOff = "0";
/// The printed functions first, on every kernel; "3", the choice by model, is not known to older ones.
constexpr QByteArrayView printedFunctionsFirst = "1";

struct Reading
{
    std::optional<QString> error;
    QByteArray value;
};

Reading readParameter(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {.error = file.errorString(), .value = {}};
    return {.error = std::nullopt, .value = file.readAll().trimmed()};
}

bool isDedicated(const QByteArray& value)
{
    return value == functionKeysFirst || value == translationOff;
}

} // namespace

LinuxFunctionKeySetting::LinuxFunctionKeySetting(QString parameterPath)
    : m_path(std::move(parameterPath))
{ }

QString LinuxFunctionKeySetting::defaultPath()
{
    return QStringLiteral("/sys/module/hid_apple/parameters/fnmode");
}

bool LinuxFunctionKeySetting::isAvailable() const
{
    return QFileInfo(m_path).isWritable();
}

ToolOutcome LinuxFunctionKeySetting::readByTool()
{
    const Reading reading = readParameter(m_path);
    return {.launchError = reading.error, .standardOutput = isDedicated(reading.value) ? "1\n" : "0\n"};
}

ToolOutcome LinuxFunctionKeySetting::writeByTool(bool dedicated)
{
    const Reading reading = readParameter(m_path);
    if (reading.error)
        return {.launchError = reading.error, .standardOutput = {}};
    if (isDedicated(reading.value) == dedicated)
        return {};
    QByteArray value = functionKeysFirst.toByteArray();
    if (dedicated)
        m_previousValue = reading.value;
    else
        value = m_previousValue.value_or(printedFunctionsFirst.toByteArray());
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(value) != value.size())
        return {.launchError = file.errorString(), .standardOutput = {}};
    return {};
}

} // namespace tarvin::desktop
