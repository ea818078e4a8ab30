#include "platform/linux/capture/LinuxScreenCapture.h"

#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/desktop/WindowFacts.h"
#include "platform/linux/desktop/XConnection.h"
#include "platform/linux/windows/WindowFrame.h"
#include "platform/posix/StdoutConsole.h"

#include "platform/linux/desktop/support/EnvironmentChange.h"
#include "platform/linux/desktop/support/PrivateDesktop.h"
#include "platform/linux/services/support/MockService.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStandardPaths>

#include <gmock/gmock.h>

#include <mutex>

namespace tarvin::capture {

using namespace std::chrono_literals;
using endtoend::EnvironmentChange;
using endtoend::eventually;
using endtoend::MockService;
using endtoend::PrivateBus;
using endtoend::PrivateDesktop;

namespace {

/// A screen with a coloured ground, and a capture that may have to look for its means.
class CaptureOnX : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = PrivateDesktop::lack())
            GTEST_SKIP() << *lack;
        if (const auto lack = MockService::lack())
            GTEST_SKIP() << *lack;
        desktop = std::make_unique<PrivateDesktop>(std::vector{PrivateDesktop::Part::windowManager});
        bus = std::make_unique<PrivateBus>();
        connection = std::make_unique<desktop::XConnection>(scheduler, console, desktop->display());
        paintGround(0x2060a0);
        capture = std::make_unique<LinuxScreenCapture>([this] { return bus->connection(); }, *connection,
            [this](const QString& text) {
                const std::lock_guard lock(mutex);
                told += text;
            });
        QDir().mkpath(desktop->path("bin"));
        for (const char* tool : {"xprop", "sh", "cp"})
            QFile::link(QStandardPaths::findExecutable(QString::fromLatin1(tool)),
                desktop->path("bin/") + QString::fromLatin1(tool));
        searchPath = std::make_unique<EnvironmentChange>("PATH", desktop->path("bin").toUtf8());
        display = std::make_unique<EnvironmentChange>("DISPLAY", desktop->display());
        QGuiApplication::clipboard()->clear();
    }

    void TearDown() override
    {
        EXPECT_TRUE(scheduler.shutDown(endtoend::patience));
        // What has been posted runs while those it is meant for are still there.
        QCoreApplication::processEvents();
    }

    void paintGround(std::uint32_t colour) const
    {
        xcb_change_window_attributes(connection->handle(), connection->root(), XCB_CW_BACK_PIXEL, &colour);
        xcb_clear_area(connection->handle(), 0, connection->root(), 0, 0, 0, 0);
        xcb_flush(connection->handle());
    }

    void putProgram(const char* name, const QByteArray& script) const
    {
        desktop->putFile((std::string("bin/") + name).c_str(), "#!/bin/sh\n" + script,
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    /// The colour of the server's pixel at a place, as the server itself has it.
    [[nodiscard]] std::uint32_t pixelAt(int x, int y) const
    {
        const desktop::XPointer<xcb_get_image_reply_t> image(xcb_get_image_reply(connection->handle(),
            xcb_get_image(connection->handle(), XCB_IMAGE_FORMAT_Z_PIXMAP, connection->root(),
                static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 1, 1, ~0U),
            nullptr));
        return *reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get())) & 0xffffffU;
    }

    void take(ScreenCaptureMode mode, const std::optional<QString>& file)
    {
        scheduler.runInBackground(
            BackgroundQueue::userInitiated, [this, mode, file] { capture->take({.mode = mode, .file = file}); });
    }

    [[nodiscard]] static AreaPicker* pickerNow()
    {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const picker = qobject_cast<AreaPicker*>(widget))
                return picker;
        }
        return nullptr;
    }

    [[nodiscard]] static AreaPicker* pickerOnScreen()
    {
        EXPECT_TRUE(eventually([] { return pickerNow() && pickerNow()->isVisible(); }));
        return pickerNow();
    }

    /// @param from,to in pixels of the server
    void drag(AreaPicker& picker, QPoint from, QPoint to) const
    {
        const desktop::XPointer<xcb_get_geometry_reply_t> root(xcb_get_geometry_reply(
            connection->handle(), xcb_get_geometry(connection->handle(), connection->root()), nullptr));
        picker.resize(root->width, root->height);
        const auto send = [&](QEvent::Type type, QPoint where, Qt::MouseButtons buttons) {
            QMouseEvent event(type, where, where, where, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(&picker, &event);
        };
        send(QEvent::MouseMove, from, Qt::NoButton);
        send(QEvent::MouseButtonPress, from, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::NoButton);
    }

    [[nodiscard]] QString target() const { return desktop->path("Desktop/Screen Shot.png"); }

    [[nodiscard]] QImage pictureInFile() const
    {
        QImage picture;
        EXPECT_TRUE(eventually([&] { return picture.load(target()); }));
        return picture;
    }

    [[nodiscard]] QStringList toldSoFar()
    {
        const std::lock_guard lock(mutex);
        return told;
    }

    std::unique_ptr<PrivateDesktop> desktop;
    std::unique_ptr<PrivateBus> bus;
    posix::StdoutConsole console;
    desktop::QtScheduler scheduler;
    std::unique_ptr<desktop::XConnection> connection;
    std::unique_ptr<LinuxScreenCapture> capture;
    std::unique_ptr<EnvironmentChange> searchPath;
    std::unique_ptr<EnvironmentChange> display;
    std::mutex mutex;
    QStringList told; ///< guarded by the mutex
};

} // namespace

TEST_F(CaptureOnX, theFileShowsWhatTheScreenShows)
{
    const auto client = desktop->showWindow({"client", "Client", "client"});
    ASSERT_TRUE(eventually([&] { return desktop->activeWindow() != 0; }));
    const desktop::XPointer<xcb_get_geometry_reply_t> root(xcb_get_geometry_reply(
        connection->handle(), xcb_get_geometry(connection->handle(), connection->root()), nullptr));
    take(ScreenCaptureMode::screen, target());
    const QImage picture = pictureInFile();
    ASSERT_EQ(picture.size(), QSize(root->width, root->height));
    for (int y = 0; y < picture.height(); y += 7) {
        for (int x = 0; x < picture.width(); x += 7)
            ASSERT_EQ(picture.pixel(x, y) & 0xffffffU, pixelAt(x, y)) << x << ' ' << y;
    }
    EXPECT_EQ(pixelAt(root->width - 1, root->height - 1), 0x2060a0U);
}

TEST_F(CaptureOnX, aPictureWithoutAFileGoesToTheClipboard)
{
    take(ScreenCaptureMode::screen, std::nullopt);
    ASSERT_TRUE(eventually([] { return !QGuiApplication::clipboard()->image().isNull(); }));
    const QImage picture = QGuiApplication::clipboard()->image();
    EXPECT_EQ(picture.pixel(picture.width() - 1, picture.height() - 1) & 0xffffffU, 0x2060a0U);
}

TEST_F(CaptureOnX, theUserDrawsARegionOfTheScreen)
{
    take(ScreenCaptureMode::region, target());
    AreaPicker* const picker = pickerOnScreen();
    ASSERT_TRUE(picker);
    drag(*picker, {10, 20}, {110, 70});
    const QImage picture = pictureInFile();
    EXPECT_EQ(picture.size(), QSize(101, 51));
    EXPECT_EQ(picture.pixel(50, 25) & 0xffffffU, 0x2060a0U);
}

TEST_F(CaptureOnX, theUserPointsAtAWindowAndItIsTakenWithItsFrame)
{
    const auto client = desktop->showWindow({"client", "Client", "client"});
    ASSERT_TRUE(eventually([&] { return desktop->activeWindow() == desktop->windowTitled("client"); }));
    const auto frame = windows::readFrame(*connection, static_cast<xcb_window_t>(desktop->activeWindow()));
    ASSERT_TRUE(frame);
    take(ScreenCaptureMode::window, target());
    AreaPicker* const picker = pickerOnScreen();
    ASSERT_TRUE(picker);
    const QPoint inside(frame->outer().x + 30, frame->outer().y + 30);
    drag(*picker, inside, inside);
    const QImage picture = pictureInFile();
    EXPECT_EQ(picture.size(), QSize(frame->outer().width, frame->outer().height));
    EXPECT_EQ(picture.pixel(5, 5) & 0xffffffU, pixelAt(frame->outer().x + 5, frame->outer().y + 5));
}

TEST_F(CaptureOnX, escapeBreaksTheChoiceOff)
{
    take(ScreenCaptureMode::region, target());
    AreaPicker* const picker = pickerOnScreen();
    ASSERT_TRUE(picker);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(picker, &escape);
    EXPECT_TRUE(eventually([&] { return pickerNow() == nullptr; }));
    EXPECT_FALSE(QFile::exists(target()));
    EXPECT_EQ(toldSoFar(), QStringList());
}

TEST_F(CaptureOnX, anInstalledToolTakesThePicture)
{
    QImage fromTool(8, 4, QImage::Format_RGB32);
    fromTool.fill(0xff0000);
    ASSERT_TRUE(fromTool.save(desktop->path("tool.png"), "PNG"));
    putProgram("maim",
        "echo \"$*\" > " + desktop->path("ran").toUtf8() + "\ncp " + desktop->path("tool.png").toUtf8() + " \"$2\"\n");
    take(ScreenCaptureMode::region, target());
    EXPECT_EQ(pictureInFile().size(), QSize(8, 4));
    QFile ran(desktop->path("ran"));
    ASSERT_TRUE(ran.open(QIODevice::ReadOnly));
    const QByteArray arguments = ran.readAll().trimmed();
    EXPECT_TRUE(arguments.startsWith("-s ")) << arguments.toStdString();
    EXPECT_FALSE(QFile::exists(QString::fromUtf8(arguments.mid(3)))) << "the passing file is gone";
}

TEST_F(CaptureOnX, aToolThatTheUserBreaksOffLeavesNothingAndSaysNothing)
{
    putProgram("maim", "echo > " + desktop->path("ran").toUtf8() + "\nexit 1\n");
    take(ScreenCaptureMode::region, target());
    ASSERT_TRUE(eventually([&] { return QFile::exists(desktop->path("ran")); }));
    endtoend::letPass(200ms);
    EXPECT_FALSE(QFile::exists(target()));
    EXPECT_EQ(toldSoFar(), QStringList());
}

TEST_F(CaptureOnX, withoutAnXServerTheUserIsTold)
{
    desktop->killServer();
    ASSERT_TRUE(eventually([&] { return !connection->isConnected(); }));
    take(ScreenCaptureMode::screen, target());
    EXPECT_TRUE(eventually(
        [&] { return toldSoFar() == QStringList(QStringLiteral("Not available on this desktop: screen capture")); }));
}

TEST_F(CaptureOnX, thePortalTakesThePictureAndItsFileIsTakenAway)
{
    QImage fromPortal(9, 5, QImage::Format_RGB32);
    fromPortal.fill(0x00ff00);
    ASSERT_TRUE(fromPortal.save(desktop->path("portal.png"), "PNG"));
    MockService portal(
        *bus, "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Screenshot");
    portal.addProperty("version", 2U);
    const QByteArray uri = "file://" + desktop->path("portal.png").toUtf8();
    const QByteArray sender = bus->connection().baseService().mid(1).replace(u'.', u'_').toUtf8();
    const QByteArray code = "path = '/org/freedesktop/portal/desktop/request/" + sender
        + "/' + args[1]['handle_token']\n"
          "self.AddObject(path, 'org.freedesktop.portal.Request', {}, [])\n"
          "objects[path].EmitSignal('org.freedesktop.portal.Request', 'Response', 'ua{sv}', "
          "[dbus.UInt32(0), dbus.Dictionary({'uri': '"
        + uri + "'}, signature='sv')])\n";
    portal.addMethod("Screenshot", "sa{sv}", code.constData());
    take(ScreenCaptureMode::region, target());
    EXPECT_EQ(pictureInFile().size(), QSize(9, 5));
    EXPECT_TRUE(eventually([&] { return !QFile::exists(desktop->path("portal.png")); }));
}

TEST_F(CaptureOnX, aPortalThatFailsLetsTheNextMeansTry)
{
    MockService portal(
        *bus, "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Screenshot");
    portal.addProperty("version", 2U);
    portal.addRefusal("Screenshot", "sa{sv}", "org.freedesktop.DBus.Error.Failed", "no");
    take(ScreenCaptureMode::screen, target());
    EXPECT_GT(pictureInFile().width(), 600);
}

TEST_F(CaptureOnX, aFolderThatCannotBeWrittenIsTold)
{
    take(ScreenCaptureMode::screen, QStringLiteral("/proc/nowhere/picture.png"));
    EXPECT_TRUE(eventually([&] { return !toldSoFar().isEmpty(); }));
    EXPECT_TRUE(toldSoFar().value(0).contains(u"could not be saved"));
}

} // namespace tarvin::capture

int main(int count, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&count, arguments);
    const QApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
