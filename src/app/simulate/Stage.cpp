#include "app/simulate/Stage.h"

#include "platform/simulated/SimulatedPlatform.h"

#include <QJsonDocument>

namespace tarvin::simulate {

Stage::Stage(simulated::SimulatedPlatform& platform)
    : m_platform(platform)
    , m_keyboard(platform)
{ }

Problem Stage::apply(const DescribeProcess& process)
{
    simulated::SimulatedProcessInfo& info = m_platform.processInfo();
    if (process.arguments)
        info.setArguments(info.arguments().mid(0, 1) + *process.arguments);
    if (process.name)
        info.setProcessName(*process.name);
    if (process.bundlePath)
        info.setBundlePath(*process.bundlePath);
    if (process.bundleName)
        info.setBundleName(*process.bundleName);
    if (process.bundleIdentifier)
        info.setBundleIdentifier(*process.bundleIdentifier);
    if (process.loginItem)
        info.setStartedAsLoginItem(*process.loginItem);
    return std::nullopt;
}

Problem Stage::apply(const SetUptime& uptime)
{
    m_platform.scheduler().setUptime(uptime.seconds);
    return std::nullopt;
}

Problem Stage::apply(const SetClock& clock)
{
    m_platform.scheduler().setNow(clock.now);
    return std::nullopt;
}

Problem Stage::apply(const PutFile& file)
{
    m_platform.files().stage(fullPath(file.path), file.content);
    return std::nullopt;
}

Problem Stage::apply(const RemoveFile& file)
{
    const QString path = fullPath(file.path);
    if (!m_platform.files().exists(path))
        return u"there is no file \"%1\"; expected one to remove"_qs.arg(path);
    m_platform.files().remove(path);
    return std::nullopt;
}

Problem Stage::apply(const FailFile& failure)
{
    const QString path = fullPath(failure.path);
    if (failure.error)
        m_platform.files().failOn(failure.operation, path, *failure.error, failure.span);
    else
        m_platform.files().succeedOn(failure.operation, path);
    return std::nullopt;
}

Problem Stage::apply(const MapKey& mapped)
{
    const QString path = fullPath(u"profiles_mappings.json"_qs);
    QJsonObject profiles;
    if (const std::optional<QByteArray> before = m_platform.files().content(path)) {
        const QJsonDocument document = QJsonDocument::fromJson(*before);
        if (!document.isObject())
            return u"the mapping file was given as something else than a JSON object; expected one to add to"_qs;
        profiles = document.object();
    }
    QJsonObject keys = profiles.value(mapped.profile).toObject();
    keys.insert(rawValue(mapped.key).toString(), mapped.record);
    profiles.insert(mapped.profile, keys);
    m_platform.files().stage(path, QJsonDocument(profiles).toJson());
    return std::nullopt;
}

Problem Stage::apply(const StoreSetting& setting)
{
    m_platform.preferences().stage(
        setting.key, setting.value.isNull() ? QJsonValue(QJsonValue::Undefined) : setting.value);
    return std::nullopt;
}

Problem Stage::apply(const SetPermission& permission)
{
    m_platform.permission().setTrusted(permission.granted);
    return std::nullopt;
}

Problem Stage::apply(const AnswerScripts& answer)
{
    m_platform.scripts().setCanBuild(answer.canBuild);
    m_platform.scripts().setResult({answer.error, answer.text});
    return std::nullopt;
}

Problem Stage::apply(const ArrangeFunctionKeyTool& tool)
{
    if (tool.available)
        m_platform.functionKeySetting().setAvailable(*tool.available);
    if (tool.stored)
        m_platform.functionKeySetting().setStoredText(tool.stored->toUtf8());
    if (tool.launchError)
        m_platform.functionKeySetting().setLaunchError(*tool.launchError);
    return std::nullopt;
}

Problem Stage::apply(const ArrangeLoginItem& item)
{
    if (item.enabled)
        m_platform.loginItem().setEnabled(*item.enabled);
    if (item.refusal)
        m_platform.loginItem().setRefusal(*item.refusal);
    return std::nullopt;
}

Problem Stage::apply(const ShowWindows& windows)
{
    m_platform.workspace().setOnScreenWindows(windows.windows);
    return std::nullopt;
}

Problem Stage::apply(const MovePointer& pointer)
{
    m_platform.pointer().setPosition(pointer.position);
    return std::nullopt;
}

Problem Stage::apply(const ArrangeScreens& screens)
{
    m_platform.screens().setScreens(screens.screens);
    m_platform.screens().setMainScreen(screens.main);
    return std::nullopt;
}

Problem Stage::apply(const ShowAccessibleWindows& windows)
{
    m_platform.windowControl().setWindows(windows.windows);
    return std::nullopt;
}

Problem Stage::apply(const SetBrightness& brightness)
{
    m_platform.displayBrightness().setCurrent(brightness.brightness);
    return std::nullopt;
}

Problem Stage::apply(const ArrangeAppleMenu& menu)
{
    m_platform.appleMenu().setItemTitles(menu.titles);
    return std::nullopt;
}

Problem Stage::apply(const ArrangeSystemTools& tools)
{
    m_platform.systemCommands().setLaunchError(tools.launchError);
    return std::nullopt;
}

Problem Stage::apply(const DescribeUser& user)
{
    if (user.homeDirectory)
        m_platform.userEnvironment().setHomeDirectory(*user.homeDirectory);
    if (user.utcOffset)
        m_platform.userEnvironment().setUtcOffset(*user.utcOffset);
    return std::nullopt;
}

Problem Stage::apply(const FillClipboard& clipboard)
{
    simulated::SimulatedPasteboard& pasteboard = m_platform.pasteboard();
    pasteboard.setAnswerDelay(clipboard.answersAfter);
    if (clipboard.text)
        pasteboard.copy({.text = *clipboard.text, .isSecret = clipboard.isSecret});
    else
        pasteboard.copyWithoutText();
    return std::nullopt;
}

Problem Stage::apply(const ReopenProgram&)
{
    m_platform.appShell().reopen();
    return std::nullopt;
}

Problem Stage::apply(const OpenUrls& open)
{
    m_platform.appShell().openUrls(open.urls);
    return std::nullopt;
}

Problem Stage::apply(const CloseWindow& close)
{
    if (m_platform.appShell().requestClose(close.title))
        return std::nullopt;
    return u"the program has no window \"%1\"; expected one of its windows"_qs.arg(close.title);
}

Problem Stage::apply(const TerminateProgram&)
{
    m_platform.appShell().terminate();
    return std::nullopt;
}

Problem Stage::apply(const AdvanceTime& advance)
{
    m_platform.scheduler().advance(advance.by);
    return std::nullopt;
}

QString Stage::fullPath(const QString& path) const
{
    return path.startsWith(u'/') ? path : m_platform.files().applicationSupportDirectory() + u'/' + path;
}

} // namespace tarvin::simulate
