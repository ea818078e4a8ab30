#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <unordered_map>

class QSocketNotifier;
struct inotify_event;

namespace tarvin::desktop {

/// Tells when a file of certain names appears, changes or goes in one of several directories. Main thread only.
///
/// The directories are watched themselves and not the files, since programs replace files more often than they write
/// into them; a directory that does not exist yet is noticed when it comes.
class DirectoryWatch
{
public:
    /// When a file that appears counts.
    enum class NewFile {
        whenWritten, ///< of an ordinary file the content is still to follow
        atOnce, ///< a socket has no content
    };

    /// @param isWanted whether the change of a file of this name matters
    /// @param onChange called on a later turn, once for several changes that came together
    DirectoryWatch(std::function<bool(const QString& fileName)> isWanted, std::function<void()> onChange,
        NewFile newFile = NewFile::whenWritten);
    ~DirectoryWatch();
    DirectoryWatch(const DirectoryWatch&) = delete;
    DirectoryWatch& operator=(const DirectoryWatch&) = delete;

    /// Watches exactly these directories from now on. Without effect where the system gives no watch.
    void setDirectories(const QStringList& directories);

private:
    void add(const QString& directory);
    void readEvents();
    [[nodiscard]] bool matters(const inotify_event& event) const;

    std::function<bool(const QString&)> m_isWanted;
    std::function<void()> m_onChange;
    NewFile m_newFile;
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    /// For the watch of a directory that stands in for a missing one below it: the name that is waited for.
    std::unordered_map<int, QStringList> m_awaitedNames;
    QList<int> m_watches;
};

} // namespace tarvin::desktop
