#include "platform/macos/translation/DefaultsTool.h"

namespace tarvin::macos {

namespace {

ToolLaunch defaults(QStringList arguments)
{
    return {.tool = QStringLiteral("/usr/bin/defaults"), .arguments = std::move(arguments)};
}

} // namespace

ToolLaunch readFunctionKeySetting()
{
    return defaults({QStringLiteral("read"), QStringLiteral("-g"), functionKeySetting.toString()});
}

ToolLaunch writeFunctionKeySetting(bool dedicated)
{
    return defaults({QStringLiteral("write"), QStringLiteral("-g"), functionKeySetting.toString(),
        QStringLiteral("-bool"), dedicated ? QStringLiteral("true") : QStringLiteral("false")});
}

} // namespace tarvin::macos
