#include "interception/RuntimeLog.h"

#include "platform/ports/Files.h"
#include "platform/ports/Scheduler.h"

#include <tuple>

namespace tarvin {

RuntimeLog::RuntimeLog(Files& files, Scheduler& scheduler)
    : m_files(files)
    , m_scheduler(scheduler)
{
    const QString directory = files.applicationSupportDirectory();
    files.createDirectory(directory);
    m_filePath = directory + QStringLiteral("/runtime.log");
}

void RuntimeLog::log(const QString& message)
{
    // The brackets are the place of a date that no line has ever carried; readers of the file rely on the shape.
    const QByteArray line = (QStringLiteral("[] ") + message + u'\n').toUtf8();
    m_scheduler.runInBackground(BackgroundQueue::log, [&files = m_files, path = m_filePath, line] {
        if (files.append(path, line))
            std::ignore = files.writeAtomically(path, line);
    });
}

} // namespace tarvin
