#pragma once

#include "endtoend/support/ChildProcess.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvin::endtoend {

/// A sound server of one's own whose one output and one microphone are not there in truth.
class SoundServer
{
public:
    enum class Devices { outputAndMicrophone, outputOnly };

    /// Why the machine has none, in words for a skipped test; empty if it has.
    [[nodiscard]] static std::optional<std::string> lack();

    /// Returns when it serves.
    explicit SoundServer(Devices devices = Devices::outputAndMicrophone);
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    /// As the library of the protocol names it.
    [[nodiscard]] std::string address() const { return "unix:" + (m_directory / "native").string(); }
    void end();
    void start();

    /// What the tool `pactl` says.
    [[nodiscard]] std::string ask(const std::vector<std::string>& arguments) const;
    /// The volume in percent that `pactl` reads; -1 if it reads none.
    [[nodiscard]] int percent(const std::string& kind) const;
    [[nodiscard]] bool isMuted(const std::string& kind) const;

private:
    std::filesystem::path m_directory;
    Devices m_devices;
    ChildProcess::Environment m_environment;
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace tarvin::endtoend
