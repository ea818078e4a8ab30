#pragma once

#include <libudev.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarvin::tapd {

/// Tells which event nodes there are, and which come and go. Nodes of devices that programs made, our own among them,
/// are never named: two programs that grab each other's would pass each key round and round.
class DeviceMonitor
{
public:
    struct Change
    {
        enum class Kind { came, went };
        Kind kind = Kind::came;
        std::string path;
    };

    DeviceMonitor();

    /// To be watched for readability; negative where there is no udev.
    [[nodiscard]] int descriptor() const;
    [[nodiscard]] std::vector<std::string> present() const;
    [[nodiscard]] std::optional<Change> nextChange();

private:
    struct Release
    {
        void operator()(udev* context) const { udev_unref(context); }
        void operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }
        void operator()(udev_enumerate* enumeration) const { udev_enumerate_unref(enumeration); }
        void operator()(udev_device* device) const { udev_device_unref(device); }
    };
    template <typename Handle> using Owned = std::unique_ptr<Handle, Release>;

    /// The path of the node, if it is one to be named.
    [[nodiscard]] static std::optional<std::string> nodeOf(udev_device* device);

    Owned<udev> m_context;
    Owned<udev_monitor> m_monitor;
};

} // namespace tarvin::tapd
