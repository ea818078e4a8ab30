#pragma once

#include <QString>

namespace tarvin {

class Files;
class Scheduler;

/// The diagnostic log, "runtime.log" in the program's own folder. It is appended to for the life of the installation;
/// a failure to write it stays silent.
class RuntimeLog
{
public:
    /// Creates the folder.
    RuntimeLog(Files& files, Scheduler& scheduler);

    [[nodiscard]] const QString& filePath() const { return m_filePath; }
    /// Appends one line, later and in the order of the calls. Any thread.
    void log(const QString& message);

private:
    Files& m_files;
    Scheduler& m_scheduler;
    QString m_filePath;
};

} // namespace tarvin
