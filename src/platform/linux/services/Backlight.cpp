#include "platform/linux/services/Backlight.h"

#include "platform/linux/services/LoginManager.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>

namespace tarvin::services {

namespace {

/// The kinds of control, best first, as the kernel's description of the interface orders them.
constexpr auto kinds = std::to_array<QStringView>({u"firmware", u"platform", u"raw"});

constexpr unsigned steps = 16;
/// Many panels are black at the lowest levels.
constexpr unsigned dimmestPart = 100;

const QString functionName = QStringLiteral("Brightness");

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()).trimmed() : QString();
}

} // namespace

unsigned steppedLevel(unsigned level, unsigned full, Backlight::Step step)
{
    const unsigned distance = std::max(1U, (full + steps / 2) / steps);
    if (step == Backlight::Step::up)
        return std::min(full, level + distance);
    const unsigned dimmest = std::min(level, std::max(1U, full / dimmestPart));
    return level > distance ? std::max(dimmest, level - distance) : dimmest;
}

Backlight::Backlight(
    Scheduler& scheduler, Buses::Provider systemBus, AnswerWatch& answers, TellUser tellUser, QString folder)
    : m_scheduler(scheduler)
    , m_systemBus(std::move(systemBus))
    , m_answers(answers)
    , m_tellUser(std::move(tellUser))
    , m_folder(std::move(folder))
{ }

QString Backlight::defaultFolder()
{
    return QStringLiteral("/sys/class/backlight");
}

std::optional<double> Backlight::current() const
{
    const std::optional<Light> found = light();
    if (!found)
        return std::nullopt;
    return static_cast<double>(found->level) / found->full;
}

void Backlight::change(Step step)
{
    m_scheduler.post([this, step] { changeNow(step); });
}

void Backlight::changeNow(Step step)
{
    const std::optional<Light> found = light();
    if (!found) {
        m_tellUser(notAvailable(functionName));
        return;
    }
    const unsigned level = steppedLevel(found->level, found->full, step);
    m_scheduler.runInBackground(BackgroundQueue::userInitiated, [this, name = found->name, level] {
        const QDBusConnection bus = m_systemBus();
        if (!bus.isConnected()) {
            m_tellUser(notAvailable(functionName));
            return;
        }
        const QDBusMessage wish = callOf(loginSession, u"SetBrightness", {QStringLiteral("backlight"), name, level});
        m_answers.tellOfRefusal(bus.asyncCall(wish, longestAnswerMilliseconds), functionName);
    });
}

std::optional<Backlight::Light> Backlight::light() const
{
    std::optional<Light> best;
    std::size_t bestKind = kinds.size() + 1;
    const QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        const QString path = m_folder + u'/' + name + u'/';
        const QString kindText = contentOf(path + QStringLiteral("type"));
        const auto kind = static_cast<std::size_t>(std::find(kinds.begin(), kinds.end(), kindText) - kinds.begin());
        bool isNumber = false;
        const Light candidate{.name = name,
            .level = contentOf(path + QStringLiteral("brightness")).toUInt(&isNumber),
            .full = contentOf(path + QStringLiteral("max_brightness")).toUInt()};
        if (!isNumber || candidate.full == 0 || kind >= bestKind)
            continue;
        best = candidate;
        bestKind = kind;
    }
    return best;
}

} // namespace tarvin::services
