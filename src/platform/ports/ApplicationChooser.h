#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tarvin {

/// What a dialog says in which the user points at an application, and where it begins.
struct ApplicationRequest
{
    QString title; ///< of its window
    QString message; ///< a line in it: what the application is for
    QString startFolder;
    friend bool operator==(const ApplicationRequest&, const ApplicationRequest&) = default;
};

/// A dialog that is open; destroying it takes it away, and nothing is told any more. May be destroyed from within the
/// call of its handler.
class ApplicationDialog
{
public:
    virtual ~ApplicationDialog() = default;
};

/// The system's own dialog for choosing one application among the files. Main thread only.
class ApplicationChooser
{
public:
    /// Called at most once, in a later turn, when the dialog has gone from the screen.
    /// @param path of the application; nothing if the user cancelled
    using ChoiceHandler = std::function<void(const std::optional<QString>& path)>;

    virtual ~ApplicationChooser() = default;
    /// Opens the dialog and returns at once.
    /// @return empty where the system has none, so that the caller shows its own
    [[nodiscard]] virtual std::unique_ptr<ApplicationDialog> open(
        const ApplicationRequest& request, ChoiceHandler onChoice) = 0;
};

} // namespace tarvin
