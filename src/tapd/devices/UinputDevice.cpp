#include "tapd/devices/UinputDevice.h"

#include "tapd/engine/EventBuffer.h"

#include <fcntl.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tarvin::tapd {

namespace {

/// Codes that stand for keys. With the buttons of mice, pens and game pads the device would be taken for one of those.
constexpr bool isKey(unsigned code)
{
    return (code >= KEY_ESC && code < BTN_MISC) || (code >= KEY_OK && code < BTN_DPAD_UP)
        || (code >= KEY_ALS_TOGGLE && code < BTN_TRIGGER_HAPPY);
}

bool enableCodes(int descriptor)
{
    bool isFine = true;
    const auto set = [&](unsigned long request, unsigned code) {
        isFine = ::ioctl(descriptor, request, code) == 0 && isFine;
    };
    for (const unsigned type : {EV_KEY, EV_LED, EV_REL})
        set(UI_SET_EVBIT, type);
    for (unsigned code = 0; code < KEY_CNT; ++code) {
        if (isKey(code))
            set(UI_SET_KEYBIT, code);
    }
    for (const unsigned code : {LED_NUML, LED_CAPSL, LED_SCROLLL, LED_COMPOSE, LED_KANA})
        set(UI_SET_LEDBIT, code);
    // No EV_REP: the kernel would repeat held keys a second time.
    for (const unsigned code : {REL_WHEEL, REL_HWHEEL, REL_WHEEL_HI_RES, REL_HWHEEL_HI_RES})
        set(UI_SET_RELBIT, code);
    return isFine;
}

} // namespace

UinputDevice::UinputDevice(FileDescriptor descriptor)
    : m_descriptor(std::move(descriptor))
{ }

std::optional<UinputDevice> UinputDevice::create(std::string_view name, const input_id& id)
{
    FileDescriptor descriptor(::open("/dev/uinput", O_RDWR | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor.isOpen() || !enableCodes(descriptor.get()))
        return std::nullopt;
    uinput_setup setup{};
    setup.id = id;
    std::copy_n(name.begin(), std::min(name.size(), sizeof setup.name - 1), setup.name);
    if (::ioctl(descriptor.get(), UI_DEV_SETUP, &setup) != 0 || ::ioctl(descriptor.get(), UI_DEV_CREATE) != 0)
        return std::nullopt;
    return UinputDevice(std::move(descriptor));
}

void UinputDevice::destroy()
{
    ::ioctl(m_descriptor.get(), UI_DEV_DESTROY);
    m_descriptor.reset();
}

bool UinputDevice::write(std::span<const input_event> events) const
{
    return ::write(m_descriptor.get(), events.data(), events.size_bytes()) == static_cast<ssize_t>(events.size_bytes());
}

std::span<const input_event> UinputDevice::read(std::span<input_event> buffer) const
{
    const ssize_t size = ::read(m_descriptor.get(), buffer.data(), buffer.size_bytes());
    return buffer.first(size < 0 ? 0 : static_cast<std::size_t>(size) / sizeof(input_event));
}

void releaseEveryKey(int uinputDescriptor)
{
    EventBuffer events;
    for (unsigned code = 0; code < KEY_CNT; ++code) {
        if (isKey(code))
            events.append(EV_KEY, static_cast<std::uint16_t>(code), 0);
    }
    events.endReport();
    const auto all = events.events();
    static_cast<void>(!::write(uinputDescriptor, all.data(), all.size_bytes()));
}

} // namespace tarvin::tapd
