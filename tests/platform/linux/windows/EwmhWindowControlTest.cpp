#include "platform/linux/windows/EwmhWindowControl.h"

#include "platform/linux/windows/WindowsOnX.h"

namespace tarvin::windows {

namespace {

class WindowControlOnX : public WindowsOnX
{
protected:
    void SetUp() override
    {
        WindowsOnX::SetUp();
        if (!IsSkipped())
            control = std::make_unique<EwmhWindowControl>(*connection, scheduler);
    }

    [[nodiscard]] std::unique_ptr<ControlledWindow> focused(const ChildProcess& client) const
    {
        std::unique_ptr<ControlledWindow> window;
        EXPECT_TRUE(eventually([&] {
            window = control->focusedWindow(static_cast<ProcessIdentifier>(client.processId()));
            return window != nullptr;
        }));
        return window;
    }

    /// Places it as the window actions do.
    static void place(ControlledWindow& window, const Rect& frame)
    {
        EXPECT_TRUE(window.setPosition(frame.origin));
        EXPECT_TRUE(window.setSize(frame.size));
        EXPECT_TRUE(window.setPosition(frame.origin));
    }

    void expectFrame(const char* title, const Rect& expected) const
    {
        EXPECT_TRUE(eventually([&] { return frameOf(title) == expected; }, std::chrono::seconds(4)));
        // It stays there.
        endtoend::letPass(std::chrono::milliseconds(200));
        EXPECT_EQ(frameOf(title), expected);
    }

    [[nodiscard]] bool hasState(const char* title, const char* state) const
    {
        return desktop->property(desktop->windowTitled(title), "_NET_WM_STATE").contains(QString::fromLatin1(state));
    }

    std::unique_ptr<EwmhWindowControl> control;
};

constexpr Rect leftHalf{.origin = {0, 0}, .size = {320, 480}};

} // namespace

TEST_F(WindowControlOnX, aWindowTellsItsPlaceWithItsFrame)
{
    const auto client = show("window");
    const auto window = focused(*client);
    ASSERT_TRUE(window);
    const Rect frame = frameOf("window");
    EXPECT_GT(frame.size.height, 300) << "the manager has put a title bar on it";
    EXPECT_EQ(window->position(), frame.origin);
    EXPECT_EQ(window->size(), frame.size);
}

TEST_F(WindowControlOnX, aWindowIsPlacedWithItsFrame)
{
    const auto client = show("window");
    place(*focused(*client), {.origin = {100, 40}, .size = {333, 222}});
    expectFrame("window", {.origin = {100, 40}, .size = {333, 222}});
}

TEST_F(WindowControlOnX, aWindowThatCameWithABorderOfItsOwnIsPlacedExactlyToo)
{
    const auto client = desktop->showWindow({"client", "Client", "window", "", "", "", "bordered"});
    place(*focused(*client), leftHalf);
    expectFrame("window", leftHalf);
}

TEST_F(WindowControlOnX, oneOfPositionAndSizeLeavesTheOther)
{
    const auto client = show("window");
    const auto window = focused(*client);
    const Rect before = frameOf("window");
    ASSERT_TRUE(window->setPosition({77, 66}));
    expectFrame("window", {.origin = {77, 66}, .size = before.size});
    ASSERT_TRUE(window->setSize({301, 203}));
    expectFrame("window", {.origin = {77, 66}, .size = {301, 203}});
}

TEST_F(WindowControlOnX, aWindowThatDrawsItsOwnFrameIsPlacedWithoutItsShadow)
{
    const auto client = show("window");
    // No frame by the manager, and 10 to 13 pixels of shadow.
    tell(*client, "numbers _MOTIF_WM_HINTS 2 0 0 0 0");
    tell(*client, "numbers _GTK_FRAME_EXTENTS 10 11 12 13");
    ASSERT_TRUE(eventually([&] { return frameOf("window").size == Size{400, 300}; }));
    const auto window = focused(*client);
    place(*window, {.origin = {50, 60}, .size = {300, 200}});
    expectFrame("window", {.origin = {40, 48}, .size = {321, 225}});
    EXPECT_EQ(window->position(), (Point{50, 60}));
    EXPECT_EQ(window->size(), (Size{300, 200}));
}

TEST_F(WindowControlOnX, aMaximisedWindowBecomesAnOrdinaryOneAndGoesWhereItShould)
{
    const auto client = show("window");
    tell(*client, "state add _NET_WM_STATE_MAXIMIZED_VERT _NET_WM_STATE_MAXIMIZED_HORZ");
    ASSERT_TRUE(eventually([&] { return hasState("window", "MAXIMIZED_VERT"); }));
    place(*focused(*client), leftHalf);
    expectFrame("window", leftHalf);
    EXPECT_FALSE(hasState("window", "MAXIMIZED"));
}

TEST_F(WindowControlOnX, aFullScreenWindowGetsItsFrameBackAndGoesWhereItShould)
{
    const auto client = show("window");
    const auto window = focused(*client);
    ASSERT_TRUE(window->setFullScreen(true));
    ASSERT_TRUE(eventually([&] { return hasState("window", "FULLSCREEN"); }));
    place(*window, leftHalf);
    expectFrame("window", leftHalf);
}

TEST_F(WindowControlOnX, aWindowWithASmallestSizeKeepsItAndItsPlace)
{
    const auto client = show("window");
    tell(*client, "numbers WM_NORMAL_HINTS 16 0 0 0 0 380 290 0 0 0 0 0 0 0 0 0 0 0");
    const auto window = focused(*client);
    const Size frame{frameOf("window").size.width - 400, frameOf("window").size.height - 300};
    place(*window, {.origin = {30, 20}, .size = {100, 100}});
    expectFrame("window", {.origin = {30, 20}, .size = {380 + frame.width, 290 + frame.height}});
}

TEST_F(WindowControlOnX, fullScreenIsReadAndSet)
{
    const auto client = show("window");
    const auto window = focused(*client);
    EXPECT_EQ(window->isFullScreen(), false);
    ASSERT_TRUE(window->setFullScreen(true));
    EXPECT_TRUE(eventually([&] { return window->isFullScreen() == true; }));
    EXPECT_TRUE(hasState("window", "FULLSCREEN"));
    ASSERT_TRUE(window->setFullScreen(false));
    EXPECT_TRUE(eventually([&] { return window->isFullScreen() == false; }));
}

TEST_F(WindowControlOnX, aWindowIsMinimisedAndComesBack)
{
    const auto client = show("window");
    const auto window = focused(*client);
    ASSERT_TRUE(window->setMinimized(true));
    EXPECT_TRUE(eventually([&] { return hasState("window", "HIDDEN"); }));
    ASSERT_TRUE(window->setMinimized(false));
    EXPECT_TRUE(eventually([&] { return !hasState("window", "HIDDEN"); }));
}

TEST_F(WindowControlOnX, onlyTheApplicationWithTheKeyboardHasAFocusedWindow)
{
    const auto back = show("back");
    const auto front = show("front");
    ASSERT_TRUE(focused(*front));
    EXPECT_EQ(control->focusedWindow(static_cast<ProcessIdentifier>(back->processId())), nullptr);
    EXPECT_EQ(control->focusedWindow(0), nullptr);
    const auto windows = control->windows(static_cast<ProcessIdentifier>(back->processId()));
    ASSERT_EQ(windows.size(), 1U);
    EXPECT_EQ(windows.front()->position(), frameOf("back").origin);
}

TEST_F(WindowControlOnX, panelsAndTheDesktopAreNoWindows)
{
    const auto panel = show("panel", "DOCK");
    const auto picture = show("picture", "DESKTOP");
    EXPECT_TRUE(control->windows(static_cast<ProcessIdentifier>(panel->processId())).empty());
    EXPECT_TRUE(control->windows(static_cast<ProcessIdentifier>(picture->processId())).empty());
}

TEST_F(WindowControlOnX, aWindowThatHasGoneReadsAsNothingAndTakesNothing)
{
    auto client = show("window");
    const auto window = focused(*client);
    client.reset();
    ASSERT_TRUE(eventually([&] { return desktop->windowTitled("window") == 0; }));
    EXPECT_EQ(window->position(), std::nullopt);
    EXPECT_EQ(window->size(), std::nullopt);
    EXPECT_EQ(window->isFullScreen(), std::nullopt);
    EXPECT_FALSE(window->setPosition({1, 1}));
    EXPECT_FALSE(window->setSize({10, 10}));
    EXPECT_FALSE(window->setMinimized(true));
    EXPECT_FALSE(window->setFullScreen(true));
}

TEST_F(WindowControlOnX, logicalPointsAreTurnedIntoPixels)
{
    const auto client = show("window");
    ASSERT_TRUE(focused(*client));
    EwmhWindowControl dense(*connection, scheduler, 2);
    const auto window = dense.focusedWindow(static_cast<ProcessIdentifier>(client->processId()));
    place(*window, {.origin = {50, 20}, .size = {160, 120}});
    expectFrame("window", {.origin = {100, 40}, .size = {320, 240}});
    EXPECT_EQ(window->size(), (Size{160, 120}));
}

} // namespace tarvin::windows
