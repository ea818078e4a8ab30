// A program with one window, as others see it: told its class, size and kind by arguments, and more by lines on the
// standard input. Says "shown NUMBER" when the window is on the screen.
//
//   tarvin_window_client INSTANCE CLASS [TITLE [KIND [MACHINE [nameless [bordered]]]]]
//
// A nameless one does not say which process it is; a bordered one has a border of the X server's making.
//
// Lines: "class INSTANCE CLASS", "minimize", "minimize WINDOW", "close WINDOW", "numbers PROPERTY NUMBER..." sets a
// property of the window, "state add|remove NAME..." asks the window manager for one or two states; "done" is said when
// the server has seen it. The end of the input ends the program.

#include <xcb/xcb.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <poll.h>
#include <unistd.h>

namespace {

xcb_connection_t* connection = nullptr;
xcb_window_t root = XCB_NONE;
xcb_window_t window = XCB_NONE;

xcb_atom_t atom(const std::string& name)
{
    xcb_intern_atom_reply_t* reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr);
    const xcb_atom_t value = reply->atom;
    std::free(reply);
    return value;
}

void setText(xcb_atom_t property, xcb_atom_t type, const std::string& text)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, 8,
        static_cast<std::uint32_t>(text.size()), text.data());
}

void setClass(const std::string& instanceName, const std::string& className)
{
    setText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, instanceName + '\0' + className + '\0');
}

void setNumber(const std::string& property, xcb_atom_t type, std::uint32_t value)
{
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(property), type, 32, 1, &value);
}

void setNumbers(const std::string& property, std::istringstream line)
{
    std::vector<std::uint32_t> values;
    for (std::uint32_t value = 0; line >> value;)
        values.push_back(value);
    xcb_atom_t type = XCB_ATOM_CARDINAL;
    if (property == "WM_NORMAL_HINTS")
        type = XCB_ATOM_WM_SIZE_HINTS;
    else if (property == "_MOTIF_WM_HINTS")
        type = atom(property);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(property), type, 32,
        static_cast<std::uint32_t>(values.size()), values.data());
}

/// Asks the window manager as a taskbar does.
void askManager(
    const std::string& type, xcb_window_t which, std::uint32_t first, std::uint32_t second, std::uint32_t third = 0)
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = which;
    message.type = atom(type);
    message.data.data32[0] = first;
    message.data.data32[1] = second;
    message.data.data32[2] = third;
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
        reinterpret_cast<const char*>(&message));
}

void obey(std::istringstream line)
{
    std::string command;
    line >> command;
    std::string first;
    std::string second;
    xcb_window_t which = window;
    if (command == "class" && line >> first >> second) {
        setClass(first, second);
    } else if (command == "minimize") {
        line >> which;
        askManager("WM_CHANGE_STATE", line ? which : window, 3, 0);
    } else if (command == "close" && line >> which) {
        askManager("_NET_CLOSE_WINDOW", which, XCB_CURRENT_TIME, 2);
    } else if (command == "numbers" && line >> first) {
        setNumbers(first, std::move(line));
    } else if (command == "state" && line >> first >> second) {
        std::string third;
        line >> third;
        askManager("_NET_WM_STATE", window, first == "add" ? 1 : 0, atom(second), third.empty() ? 0 : atom(third));
    }
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    std::puts("done");
    std::fflush(stdout);
}

bool obeyLine()
{
    std::string line;
    if (!std::getline(std::cin, line))
        return false;
    obey(std::istringstream(line));
    return true;
}

} // namespace

int main(int count, char** arguments)
{
    const auto argument = [&](int index) { return std::string(index < count ? arguments[index] : ""); };
    connection = xcb_connect(nullptr, nullptr);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    root = screen->root;
    window = xcb_generate_id(connection);
    const std::uint32_t eventMask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 20, 20, 400, 300,
        argument(7) == "bordered" ? 2 : 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
        &eventMask);
    setClass(argument(1), argument(2));
    setText(atom("_NET_WM_NAME"), atom("UTF8_STRING"), argument(3));
    if (!argument(4).empty())
        setNumber("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, atom("_NET_WM_WINDOW_TYPE_" + argument(4)));
    if (argument(6) != "nameless")
        setNumber("_NET_WM_PID", XCB_ATOM_CARDINAL, static_cast<std::uint32_t>(getpid()));
    if (!argument(5).empty())
        setText(XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, argument(5));
    xcb_map_window(connection, window);
    xcb_flush(connection);

    for (;;) {
        while (xcb_generic_event_t* event = xcb_poll_for_event(connection)) {
            if ((event->response_type & 0x7F) == XCB_MAP_NOTIFY) {
                std::printf("shown %u\n", window);
                std::fflush(stdout);
            }
            std::free(event);
        }
        pollfd waitedFor[] = {{xcb_get_file_descriptor(connection), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
        poll(waitedFor, 2, -1);
        if (xcb_connection_has_error(connection) != 0 || (waitedFor[1].revents != 0 && !obeyLine()))
            break;
    }
    xcb_disconnect(connection);
    return 0;
}
