#include "shell/support/ShellDesktop.h"

#include <variant>

namespace tarvin::test {

namespace {

using namespace simulated;

QString stepText(WindowStep step)
{
    switch (step) {
    case WindowStep::created:
        return u"created"_qs;
    case WindowStep::setVisible:
        return u"set visible"_qs;
    case WindowStep::miniaturized:
        return u"miniaturized"_qs;
    case WindowStep::deminiaturized:
        return u"deminiaturized"_qs;
    case WindowStep::madeKeyAndFront:
        return u"made key and front"_qs;
    case WindowStep::orderedFrontRegardless:
        return u"ordered front regardless"_qs;
    case WindowStep::orderedOut:
        return u"ordered out"_qs;
    }
    return {};
}

struct LineOf
{
    QString operator()(const ActivationPolicySet& set) const
    {
        return set.policy == ActivationPolicy::regular ? u"policy regular"_qs : u"policy accessory"_qs;
    }
    QString operator()(const SelfActivated& activation) const
    {
        return activation.way == OwnActivation::allWindows ? u"come forward"_qs : u"come forward ignoring others"_qs;
    }
    QString operator()(const WindowChanged& change) const { return change.title + u' ' + stepText(change.step); }
    QString operator()(const UrlOpened& opened) const { return u"open "_qs + opened.url; }
    QString operator()(const LoginItemChanged& change) const
    {
        const QString asked = change.enabled ? u"login item enabled"_qs : u"login item disabled"_qs;
        return change.refusal ? asked + u", refused"_qs : asked;
    }
    QString operator()(const ScriptRun& script) const
    {
        return script.source.contains(u"make new login item") ? u"script enable"_qs : u"script disable"_qs;
    }
    QString operator()(const SettingStored& setting) const
    {
        return setting.value.isUndefined() ? u"remove "_qs + setting.key
                                           : u"set "_qs + setting.key + u' ' + setting.value.toVariant().toString();
    }
    QString operator()(const ShellPatched& patched) const
    {
        return patched.patch == ShellPatch::unhandledKeysSilenced ? u"unhandled keys silenced"_qs
                                                                  : u"minimize requests let through"_qs;
    }
    QString operator()(const TapChanged& change) const
    {
        return change.step == TapStep::created ? u"tap created"_qs : QString();
    }
    QString operator()(const PortMisused& misuse) const { return u"MISUSED "_qs + misuse.call; }
    QString operator()(const auto& /*other*/) const { return {}; }
};

} // namespace

ShellDesktop::ShellDesktop()
    : ports(platform.ports())
    , log(ports.files, ports.scheduler)
{ }

BackgroundModeManager& ShellDesktop::manager()
{
    if (!m_manager) {
        m_manager = std::make_unique<BackgroundModeManager>(ports.appShell, ports.preferences, ports.loginItem,
            ports.scripts, ports.scheduler, ports.processInfo, ports.workspace, log);
    }
    return *m_manager;
}

simulated::SimulatedWindow& ShellDesktop::addPanel()
{
    return platform.appShell().addWindow(u"Panel"_qs, WindowKind::panel);
}

QStringList ShellDesktop::whatHappened()
{
    platform.scheduler().runPosted();
    QStringList lines;
    for (const Effect& effect : platform.effects().effects()) {
        const QString line = std::visit(LineOf{}, effect.what);
        if (!line.isEmpty())
            lines << line;
    }
    platform.effects().clear();
    return lines;
}

QStringList ShellDesktop::newLogLines()
{
    platform.scheduler().runPosted();
    const QByteArray content = platform.files().content(log.filePath()).value_or(QByteArray());
    QStringList lines = QString::fromUtf8(content).split(u'\n', Qt::SkipEmptyParts).mid(m_logLinesSeen);
    m_logLinesSeen += lines.size();
    for (QString& line : lines)
        line.remove(0, 3);
    return lines;
}

} // namespace tarvin::test
