#include "platform/linux/mixer/support/SoundServer.h"

#include "endtoend/support/Patience.h"

#include <cstdlib>
#include <regex>
#include <stdexcept>

namespace tarvin::endtoend {

std::optional<std::string> SoundServer::lack()
{
    for (const char* program : {"pulseaudio", "pactl"}) {
        if (!ChildProcess::isInstalled(program))
            return std::string(program) + " is not installed";
    }
    return std::nullopt;
}

SoundServer::SoundServer(Devices devices)
    : m_devices(devices)
{
    std::string name = (std::filesystem::temp_directory_path() / "tarvin-sound-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no directory for the sound server");
    m_directory = name;
    m_environment = {{"HOME", name}, {"XDG_RUNTIME_DIR", name}, {"XDG_CONFIG_HOME", name}, {"PULSE_RUNTIME_PATH", name},
        {"PULSE_STATE_PATH", name}, {"PULSE_SERVER", address()}, {"LC_ALL", "C"},
        {"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"}, {"DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere"}};
    start();
}

SoundServer::~SoundServer()
{
    end();
    std::filesystem::remove_all(m_directory);
}

void SoundServer::start()
{
    std::vector<std::string> command{"pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
        "--load=module-native-protocol-unix auth-anonymous=1 socket=" + (m_directory / "native").string(),
        "--load=module-null-sink sink_name=speaker rate=8000"};
    if (m_devices == Devices::outputAndMicrophone) {
        command.emplace_back("--load=module-null-source source_name=microphone rate=8000");
    }
    m_process = std::make_unique<ChildProcess>(command, m_environment);
    const bool isServing =
        eventually([this] { return ask({"info"}).find("Default Sink: speaker") != std::string::npos; });
    if (!isServing)
        throw std::runtime_error("the sound server did not start");
    if (m_devices == Devices::outputAndMicrophone)
        (void)ask({"set-default-source", "microphone"});
}

void SoundServer::end()
{
    m_process.reset();
}

std::string SoundServer::ask(const std::vector<std::string>& arguments) const
{
    std::vector<std::string> command{"pactl"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    ChildProcess tool(command, m_environment);
    std::string text;
    while (const std::optional<std::string> line = tool.readLine())
        text += *line + '\n';
    return text;
}

int SoundServer::percent(const std::string& kind) const
{
    const std::string text =
        ask({"get-" + kind + "-volume", "@DEFAULT_" + std::string(kind == "sink" ? "SINK" : "SOURCE") + "@"});
    std::smatch found;
    return std::regex_search(text, found, std::regex("([0-9]+)%")) ? std::stoi(found[1]) : -1;
}

bool SoundServer::isMuted(const std::string& kind) const
{
    return ask({"get-" + kind + "-mute", "@DEFAULT_" + std::string(kind == "sink" ? "SINK" : "SOURCE") + "@"})
               .find("yes")
        != std::string::npos;
}

} // namespace tarvin::endtoend
