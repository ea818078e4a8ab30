#pragma once

#include "platform/ports/ApplicationChooser.h"

#include <utility>

namespace tarvin::simulated {

/// A dialog for applications in which a test plays the user.
class SimulatedApplicationChooser final : public ApplicationChooser
{
public:
    [[nodiscard]] std::unique_ptr<ApplicationDialog> open(
        const ApplicationRequest& request, ChoiceHandler onChoice) override
    {
        if (m_isMissing)
            return nullptr;
        auto dialog = std::make_unique<Dialog>(*this, request, std::move(onChoice));
        m_dialog = dialog.get();
        ++m_openCount;
        return dialog;
    }

    /// The user chooses in the dialog that is open.
    void choose(const QString& path) { end(path); }
    void cancel() { end(std::nullopt); }

    /// A desktop that has no such dialog.
    void setMissing(bool isMissing) { m_isMissing = isMissing; }
    /// What the dialog says that is open.
    [[nodiscard]] std::optional<ApplicationRequest> request() const
    {
        return m_dialog != nullptr ? std::optional(m_dialog->request) : std::nullopt;
    }
    [[nodiscard]] int openCount() const { return m_openCount; }

private:
    struct Dialog final : ApplicationDialog
    {
        Dialog(SimulatedApplicationChooser& owner, ApplicationRequest shown, ChoiceHandler handler)
            : chooser(owner)
            , request(std::move(shown))
            , onChoice(std::move(handler))
        { }
        ~Dialog() override
        {
            if (chooser.m_dialog == this)
                chooser.m_dialog = nullptr;
        }
        Dialog(const Dialog&) = delete;
        Dialog& operator=(const Dialog&) = delete;
        Dialog(Dialog&&) = delete;
        Dialog& operator=(Dialog&&) = delete;

        SimulatedApplicationChooser& chooser;
        const ApplicationRequest request;
        ChoiceHandler onChoice;
    };

    void end(const std::optional<QString>& path)
    {
        Dialog* const dialog = std::exchange(m_dialog, nullptr);
        if (dialog == nullptr)
            return;
        // The handler may destroy the dialog it belongs to.
        const ChoiceHandler onChoice = std::move(dialog->onChoice);
        onChoice(path);
    }

    Dialog* m_dialog = nullptr; ///< on the screen; not owned
    bool m_isMissing = false;
    int m_openCount = 0;
};

} // namespace tarvin::simulated
