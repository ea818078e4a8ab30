#include "endtoend/support/WindowManager.h"

#include "endtoend/support/Patience.h"
#include "endtoend/support/XClient.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tarvin::endtoend {

std::optional<std::string> WindowManager::lack()
{
    return ChildProcess::isInstalled("openbox") ? std::nullopt : std::optional<std::string>("openbox is not installed");
}

WindowManager::WindowManager(const std::string& display)
    : m_directory((std::filesystem::temp_directory_path() / "window-manager-XXXXXX").string())
{
    if (mkdtemp(m_directory.data()) == nullptr)
        throw std::runtime_error("no directory for the window manager");
    m_process = std::make_unique<ChildProcess>(std::vector<std::string>{"openbox", "--sm-disable"},
        ChildProcess::Environment{{"DISPLAY", display}, {"HOME", m_directory}, {"XDG_CONFIG_HOME", m_directory},
            {"XDG_CACHE_HOME", m_directory}, {"XDG_DATA_HOME", m_directory}});
    // A manager that has just announced itself may still lose the windows that come, so it is asked something, again
    // and again until it answers: the frame that a window would get.
    const XClient client(display);
    const xcb_window_t window = xcb_generate_id(client.get());
    xcb_create_window(client.get(), XCB_COPY_FROM_PARENT, window, client.root(), 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    const xcb_atom_t answer = client.atom("_NET_FRAME_EXTENTS");
    xcb_client_message_event_t question{};
    question.response_type = XCB_CLIENT_MESSAGE;
    question.format = 32;
    question.window = window;
    question.type = client.atom("_NET_REQUEST_FRAME_EXTENTS");
    const bool isManaging = eventually([&] {
        xcb_send_event(client.get(), 0, client.root(),
            XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
            reinterpret_cast<const char*>(&question));
        const XOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
            client.get(), xcb_get_property(client.get(), 0, window, answer, XCB_ATOM_CARDINAL, 0, 1), nullptr));
        return reply && reply->type == XCB_ATOM_CARDINAL;
    });
    if (!isManaging)
        throw std::runtime_error("the window manager did not start");
}

void WindowManager::crash()
{
    m_process->sendSignal(SIGKILL);
    static_cast<void>(m_process->waitForEnd());
}

WindowManager::~WindowManager()
{
    m_process.reset();
    std::filesystem::remove_all(m_directory);
}

} // namespace tarvin::endtoend
