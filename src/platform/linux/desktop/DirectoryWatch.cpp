#include "platform/linux/desktop/DirectoryWatch.h"

#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <array>

#include <sys/inotify.h>
#include <unistd.h>

namespace tarvin::desktop {

namespace {

constexpr std::uint32_t watchedEvents =
    IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF | IN_MOVE_SELF;

} // namespace

DirectoryWatch::DirectoryWatch(
    std::function<bool(const QString&)> isWanted, std::function<void()> onChange, NewFile newFile)
    : m_isWanted(std::move(isWanted))
    , m_onChange(std::move(onChange))
    , m_newFile(newFile)
    , m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_descriptor < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { readEvents(); });
}

DirectoryWatch::~DirectoryWatch()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void DirectoryWatch::setDirectories(const QStringList& directories)
{
    if (m_descriptor < 0)
        return;
    for (const int watch : std::as_const(m_watches))
        inotify_rm_watch(m_descriptor, watch);
    m_watches.clear();
    m_awaitedNames.clear();
    for (const QString& directory : directories)
        add(directory);
}

void DirectoryWatch::add(const QString& directory)
{
    QString existing = directory;
    QString missing;
    while (!QFileInfo(existing).isDir() && existing.contains(u'/')) {
        missing = existing.section(u'/', -1);
        existing = existing.section(u'/', 0, -2);
    }
    if (existing.isEmpty())
        existing = QStringLiteral("/");
    const int watch = inotify_add_watch(
        m_descriptor, QFile::encodeName(existing).constData(), watchedEvents | IN_ONLYDIR | IN_MASK_ADD);
    if (watch < 0)
        return;
    if (!m_watches.contains(watch))
        m_watches += watch;
    if (!missing.isEmpty())
        m_awaitedNames[watch] += missing;
}

void DirectoryWatch::readEvents()
{
    bool hasChanged = false;
    alignas(inotify_event) std::array<char, 4096> buffer{};
    for (;;) {
        const ssize_t size = read(m_descriptor, buffer.data(), buffer.size());
        if (size <= 0)
            break;
        for (const char* at = buffer.data(); at < buffer.data() + size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(at);
            hasChanged = matters(*event) || hasChanged;
            at += sizeof(inotify_event) + event->len;
        }
    }
    if (hasChanged)
        m_onChange();
}

bool DirectoryWatch::matters(const inotify_event& event) const
{
    if ((event.mask & (IN_Q_OVERFLOW | IN_DELETE_SELF | IN_MOVE_SELF)) != 0)
        return true;
    if (event.len == 0)
        return false;
    const QString name = QFile::decodeName(event.name);
    const auto awaited = m_awaitedNames.find(event.wd);
    if (awaited != m_awaitedNames.end())
        return awaited->second.contains(name);
    // A folder that comes may hold files already.
    if ((event.mask & IN_ISDIR) != 0)
        return true;
    const bool isAppearing = (event.mask & IN_CREATE) != 0;
    return (!isAppearing || m_newFile == NewFile::atOnce) && m_isWanted(name);
}

} // namespace tarvin::desktop
