#include "endtoend/support/XServer.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace tarvin::endtoend {

namespace {

constexpr const char* xorgProgram = "/usr/lib/xorg/Xorg";
constexpr const char* keyboardDriver = "/usr/lib/xorg/modules/input/inputtest_drv.so";
constexpr const char* screenDriver = "/usr/lib/xorg/modules/drivers/dummy_drv.so";

/// Keyboards of the test driver, which nobody but us feeds; a socket per device is what the driver insists on.
std::string keyboardSection(const std::string& name, const std::string& socketPath)
{
    return "Section \"InputDevice\"\n Identifier \"" + name + "\"\n Driver \"inputtest\"\n Option \"SocketPath\" \""
        + socketPath
        + "\"\n Option \"DeviceType\" \"Keyboard\"\n Option \"XkbRules\" \"evdev\"\n Option \"XkbModel\" \"pc105\"\n"
          " Option \"XkbLayout\" \"us\"\nEndSection\n";
}

std::string xorgConfiguration(const std::string& directory)
{
    return "Section \"ServerFlags\"\n Option \"AutoAddDevices\" \"false\"\n Option \"AutoAddGPU\" \"false\"\n"
           " Option \"AllowMouseOpenFail\" \"true\"\n Option \"DontVTSwitch\" \"true\"\nEndSection\n"
        + keyboardSection("Test keyboard", directory + "/first")
        + keyboardSection(XServer::secondKeyboardName, directory + "/second")
        + keyboardSection(XServer::postingKeyboardName, directory + "/posting")
        + "Section \"Device\"\n Identifier \"dummy\"\n Driver \"dummy\"\n VideoRam 65536\nEndSection\n"
          "Section \"Monitor\"\n Identifier \"monitor\"\n HorizSync 5.0 - 1000.0\n VertRefresh 5.0 - 200.0\n"
          " Modeline \"1280x800\" 83.50 1280 1352 1480 1680 800 803 809 831\nEndSection\n"
          "Section \"Screen\"\n Identifier \"screen\"\n Device \"dummy\"\n Monitor \"monitor\"\n DefaultDepth 24\n"
          " SubSection \"Display\"\n  Depth 24\n  Modes \"1280x800\"\n  Virtual 1280 800\n EndSubSection\nEndSection\n"
          "Section \"ServerLayout\"\n Identifier \"layout\"\n Screen \"screen\"\n"
          " InputDevice \"Test keyboard\" \"CoreKeyboard\"\n InputDevice \"Second keyboard\" \"SendCoreEvents\"\n"
          " InputDevice \"Tarvin posted keys\" \"SendCoreEvents\"\n"
          "EndSection\n";
}

std::string makeDirectory()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "x-server-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("no directory for the X server");
    return pattern;
}

} // namespace

std::optional<std::string> XServer::lack(Kind kind)
{
    if (kind == Kind::virtualFramebuffer)
        return ChildProcess::isInstalled("Xvfb") ? std::nullopt : std::optional<std::string>("Xvfb is not installed");
    if (!ChildProcess::isInstalled(xorgProgram) || !std::filesystem::exists(keyboardDriver)
        || !std::filesystem::exists(screenDriver))
        return "Xorg with its dummy screen and its test keyboard is not installed";
    // Without a seat of its own only root may start it.
    return geteuid() == 0 ? std::nullopt : std::optional<std::string>("Xorg can be started by root only");
}

XServer::XServer(Kind kind, std::optional<int> displayNumber)
    : m_kind(kind)
{
    std::vector<std::string> command{"Xvfb"};
    if (kind != Kind::virtualFramebuffer) {
        m_directory = makeDirectory();
        std::ofstream(m_directory + "/xorg.conf") << xorgConfiguration(m_directory);
        command = {xorgProgram, "-config", m_directory + "/xorg.conf", "-logfile", m_directory + "/log", "-novtswitch",
            "-sharevts", "-keeptty"};
    } else {
        command.insert(command.end(), {"-screen", "0", "1280x800x24"});
    }
    if (displayNumber)
        command.insert(command.begin() + 1, ":" + std::to_string(*displayNumber));

    // The server writes the number of its display there as soon as it can be reached.
    std::array<int, 2> ready{};
    if (pipe2(ready.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe for the X server");
    command.insert(command.end(), {"-displayfd", std::to_string(ready[1]), "-nolisten", "tcp", "-noreset"});
    m_process = std::make_unique<ChildProcess>(command, ChildProcess::Environment{}, ready[1]);
    close(ready[1]);
    std::string unread;
    const auto line = readLineFrom(ready[0], unread, patience);
    close(ready[0]);
    if (!line)
        throw std::runtime_error("the X server did not start");
    m_displayNumber = std::stoi(*line);
    if (kind == Kind::dummyXorg)
        setLayout("us");
}

XServer::~XServer()
{
    m_process.reset();
    if (!m_directory.empty())
        std::filesystem::remove_all(m_directory);
}

const char* XServer::keyboardName() const
{
    return m_kind == Kind::virtualFramebuffer ? "Xvfb keyboard" : "Test keyboard";
}

void XServer::setLayout(const std::string& layout, const std::string& variant, const std::string& option) const
{
    std::vector<std::string> command{"setxkbmap", "-display", display(), "-layout", layout, "-option", ""};
    if (!variant.empty())
        command.insert(command.end(), {"-variant", variant});
    if (!option.empty())
        command.insert(command.end(), {"-option", option});
    ChildProcess tool(command);
    if (tool.waitForEnd() != 0)
        throw std::runtime_error("setxkbmap failed");
}

} // namespace tarvin::endtoend
