#include "platform/linux/x11/GrabBook.h"

namespace tarvin::x11 {

namespace {

void addSteps(GrabSteps& steps, DeviceId device, const KeycodeSet& keycodes, GrabStep::Change change)
{
    for (std::size_t keycode = 0; keycode < keycodes.size(); ++keycode) {
        if (keycodes[keycode])
            steps.push_back({{device, static_cast<Keycode>(keycode)}, change});
    }
}

} // namespace

GrabSteps GrabBook::setWanted(const KeycodeSet& wanted)
{
    m_wanted = wanted;
    GrabSteps steps;
    for (auto& [device, grabs] : m_devices) {
        addSteps(steps, device, grabs.installed & ~wanted, GrabStep::Change::remove);
        addSteps(steps, device, wanted & ~grabs.installed & ~grabs.refused, GrabStep::Change::install);
        grabs.installed &= wanted;
        grabs.refused &= wanted;
    }
    return steps;
}

GrabSteps GrabBook::addDevice(DeviceId device)
{
    m_devices[device] = {};
    GrabSteps steps;
    addSteps(steps, device, m_wanted, GrabStep::Change::install);
    return steps;
}

void GrabBook::removeDevice(DeviceId device)
{
    m_devices.erase(device);
}

void GrabBook::clear()
{
    m_devices.clear();
}

bool GrabBook::noteRefused(PhysicalKey key)
{
    Grabs& grabs = m_devices[key.device];
    grabs.installed.reset(key.keycode);
    const bool isNews = !grabs.refused[key.keycode];
    grabs.refused.set(key.keycode);
    return isNews;
}

bool GrabBook::noteInstalled(PhysicalKey key)
{
    Grabs& grabs = m_devices[key.device];
    grabs.installed.set(key.keycode);
    const bool wasRefused = grabs.refused[key.keycode];
    grabs.refused.reset(key.keycode);
    return wasRefused;
}

GrabSteps GrabBook::retries() const
{
    GrabSteps steps;
    for (const auto& [device, grabs] : m_devices)
        addSteps(steps, device, grabs.refused, GrabStep::Change::install);
    return steps;
}

std::vector<DeviceId> GrabBook::devicesGrabbing(Keycode keycode) const
{
    std::vector<DeviceId> devices;
    for (const auto& [device, grabs] : m_devices) {
        if (grabs.installed[keycode])
            devices.push_back(device);
    }
    return devices;
}

bool GrabBook::isInstalled(PhysicalKey key) const
{
    const auto found = m_devices.find(key.device);
    return found != m_devices.end() && found->second.installed[key.keycode];
}

} // namespace tarvin::x11
