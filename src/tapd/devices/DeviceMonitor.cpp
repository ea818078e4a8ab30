#include "tapd/devices/DeviceMonitor.h"

#include <string_view>

namespace tarvin::tapd {

namespace {

/// Where the kernel puts what is made through uinput. A Bluetooth keyboard is virtual as well, but stands elsewhere.
constexpr std::string_view madeByPrograms = "/sys/devices/virtual/input/";
constexpr std::string_view eventNode = "event";
/// Room for many keyboards that are plugged in at once, such as a docking station's.
constexpr int receiveBuffer = 1 << 20;

} // namespace

DeviceMonitor::DeviceMonitor()
    : m_context(udev_new())
{
    if (!m_context)
        return;
    // After the rules have run: before, the node may not be ours to open.
    m_monitor.reset(udev_monitor_new_from_netlink(m_context.get(), "udev"));
    if (!m_monitor)
        return;
    udev_monitor_filter_add_match_subsystem_devtype(m_monitor.get(), "input", nullptr);
    udev_monitor_set_receive_buffer_size(m_monitor.get(), receiveBuffer);
    if (udev_monitor_enable_receiving(m_monitor.get()) < 0)
        m_monitor.reset();
}

int DeviceMonitor::descriptor() const
{
    return m_monitor ? udev_monitor_get_fd(m_monitor.get()) : -1;
}

std::vector<std::string> DeviceMonitor::present() const
{
    std::vector<std::string> paths;
    if (!m_context)
        return paths;
    const Owned<udev_enumerate> enumeration(udev_enumerate_new(m_context.get()));
    if (!enumeration || udev_enumerate_add_match_subsystem(enumeration.get(), "input") < 0
        || udev_enumerate_scan_devices(enumeration.get()) < 0)
        return paths;
    for (udev_list_entry* entry = udev_enumerate_get_list_entry(enumeration.get()); entry != nullptr;
         entry = udev_list_entry_get_next(entry)) {
        const Owned<udev_device> device(udev_device_new_from_syspath(m_context.get(), udev_list_entry_get_name(entry)));
        if (auto path = nodeOf(device.get()))
            paths.push_back(std::move(*path));
    }
    return paths;
}

std::optional<DeviceMonitor::Change> DeviceMonitor::nextChange()
{
    while (m_monitor) {
        const Owned<udev_device> device(udev_monitor_receive_device(m_monitor.get()));
        if (!device)
            break;
        const char* const action = udev_device_get_action(device.get());
        auto path = nodeOf(device.get());
        if (!path || action == nullptr)
            continue;
        // Any news of a node that is there, a changed name or right, is a reason to look at it again.
        const bool went = std::string_view(action) == "remove";
        return Change{went ? Change::Kind::went : Change::Kind::came, std::move(*path)};
    }
    return std::nullopt;
}

std::optional<std::string> DeviceMonitor::nodeOf(udev_device* device)
{
    if (device == nullptr)
        return std::nullopt;
    const char* const node = udev_device_get_devnode(device);
    const std::string_view name = udev_device_get_sysname(device);
    const std::string_view place = udev_device_get_syspath(device);
    if (node == nullptr || !name.starts_with(eventNode) || place.starts_with(madeByPrograms))
        return std::nullopt;
    return node;
}

} // namespace tarvin::tapd
