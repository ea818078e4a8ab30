#include "platform/linux/functions/ForceQuitDialog.h"

#include "endtoend/support/Patience.h"
#include "platform/linux/desktop/QtScheduler.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>

#include <gmock/gmock.h>

namespace tarvin::functions {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

RunningApplication application(const char* name, ProcessIdentifier process)
{
    RunningApplication application;
    application.localizedName = QString::fromUtf8(name);
    application.processIdentifier = process;
    return application;
}

class ListedWorkspace : public Workspace
{
public:
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override { return std::nullopt; }
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override { return applications; }
    [[nodiscard]] std::optional<RunningApplication> applicationWithProcess(ProcessIdentifier) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::vector<OnScreenWindow> onScreenWindows() const override { return {}; }
    void activate(ProcessIdentifier) override { }
    void openUrl(const QString&) override { }
    [[nodiscard]] std::unique_ptr<WorkspaceObserver> observeActivation(ActivationHandler) override { return nullptr; }

    std::vector<RunningApplication> applications;
};

class RecordingControl : public ApplicationControl
{
public:
    [[nodiscard]] std::optional<QString> pathOfApplication(const QString&) const override { return std::nullopt; }
    [[nodiscard]] bool exists(const QString&) const override { return false; }
    void openApplication(const QString&) override { }
    void openPath(const QString&) override { }
    [[nodiscard]] std::optional<QString> executableOf(ProcessIdentifier) const override { return std::nullopt; }
    bool forceTerminate(ProcessIdentifier process) override
    {
        ended.push_back(process);
        return true;
    }
    [[nodiscard]] bool isTerminated(ProcessIdentifier) const override { return false; }
    void kill(ProcessIdentifier) override { }

    std::vector<ProcessIdentifier> ended;
};

class ForceQuitList : public testing::Test
{
protected:
    void SetUp() override
    {
        workspace.applications = {application("Writer", 30), application("Browser", 20), application("Browser", 10)};
        dialog.showList();
    }

    [[nodiscard]] QListWidget& list() const { return *dialog.findChild<QListWidget*>(); }

    [[nodiscard]] QPushButton& button() const
    {
        for (QPushButton* const candidate : dialog.findChildren<QPushButton*>()) {
            if (candidate->text() == u"Force Quit")
                return *candidate;
        }
        throw std::logic_error("no such button");
    }

    [[nodiscard]] QStringList shown() const
    {
        QStringList names;
        for (int i = 0; i < list().count(); ++i)
            names += list().item(i)->text();
        return names;
    }

    void press(Qt::Key key)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&dialog, &event);
        }
    }

    desktop::QtScheduler scheduler;
    ListedWorkspace workspace;
    RecordingControl control;
    ForceQuitDialog dialog{workspace, control, scheduler};
};

} // namespace

TEST_F(ForceQuitList, theRunningApplicationsAreListedInOrder)
{
    EXPECT_EQ(shown(), QStringList({QStringLiteral("Browser"), QStringLiteral("Browser"), QStringLiteral("Writer")}));
    EXPECT_FALSE(list().accessibleName().isEmpty());
}

TEST_F(ForceQuitList, theProgramItselfAndBackgroundProgramsAreNotListed)
{
    workspace.applications.push_back(
        application("Self", static_cast<ProcessIdentifier>(QCoreApplication::applicationPid())));
    workspace.applications.push_back(application("Applet", 40));
    workspace.applications.back().activationPolicy = ActivationPolicy::accessory;
    dialog.showList();
    EXPECT_EQ(shown().size(), 3);
}

TEST_F(ForceQuitList, nothingIsChosenAtFirstAndEnterEndsNothing)
{
    EXPECT_FALSE(button().isEnabled());
    press(Qt::Key_Return);
    button().click();
    EXPECT_THAT(control.ended, IsEmpty());
}

TEST_F(ForceQuitList, theChosenApplicationIsEnded)
{
    list().setCurrentRow(1);
    ASSERT_TRUE(button().isEnabled());
    button().click();
    EXPECT_THAT(control.ended, ElementsAre(20));
    EXPECT_FALSE(button().isEnabled()) << "the next needs a choice of its own";
}

TEST_F(ForceQuitList, aListThatChangesKeepsTheChoice)
{
    list().setCurrentRow(2);
    workspace.applications.push_back(application("Archive", 5));
    workspace.applications.erase(workspace.applications.begin() + 1);
    ASSERT_TRUE(endtoend::eventually([&] { return shown().front() == u"Archive"; }));
    EXPECT_EQ(shown(), QStringList({QStringLiteral("Archive"), QStringLiteral("Browser"), QStringLiteral("Writer")}));
    button().click();
    EXPECT_THAT(control.ended, ElementsAre(30));
}

TEST_F(ForceQuitList, escapeClosesIt)
{
    ASSERT_TRUE(dialog.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_THAT(control.ended, IsEmpty());
}

} // namespace tarvin::functions

int main(int count, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&count, arguments);
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
