#include "tapd/devices/KeyboardDevice.h"

#include "tapd/engine/TappableKeys.h"

#include <fcntl.h>
#include <sys/ioctl.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <utility>

namespace tarvin::tapd {

namespace {

constexpr std::size_t bitsPerByte = 8;

/// The bits that say which codes of one type a device has.
class Capabilities
{
public:
    Capabilities(int descriptor, unsigned type)
    {
        // Only as much as the device fills counts.
        if (::ioctl(descriptor, EVIOCGBIT(type, m_bytes.size()), m_bytes.data()) < 0)
            m_bytes.fill(0);
    }
    [[nodiscard]] bool has(std::size_t code) const
    {
        return (m_bytes[code / bitsPerByte] >> (code % bitsPerByte) & 1U) != 0;
    }
    [[nodiscard]] bool hasAny(std::size_t first, std::size_t last) const
    {
        for (std::size_t code = first; code <= last; ++code) {
            if (has(code))
                return true;
        }
        return false;
    }

private:
    std::array<std::uint8_t, KEY_CNT / bitsPerByte + 1> m_bytes{};
};

bool hasTappableKey(const Capabilities& keys)
{
    for (std::uint16_t code = 0; code < KEY_CNT; ++code) {
        if (keys.has(code) && tappableKey(code))
            return true;
    }
    return false;
}

bool isKeyboard(int descriptor)
{
    const Capabilities types(descriptor, 0);
    const Capabilities keys(descriptor, EV_KEY);
    if (!types.has(EV_KEY) || !hasTappableKey(keys))
        return false;
    // A lid or a tablet switch in the same node would be lost with it.
    if (types.has(EV_SW))
        return false;
    const bool points = keys.hasAny(BTN_MOUSE, BTN_TASK) || keys.hasAny(BTN_DIGI, BTN_TOOL_QUADTAP)
        || (types.has(EV_REL) && Capabilities(descriptor, EV_REL).has(REL_X))
        || (types.has(EV_ABS) && Capabilities(descriptor, EV_ABS).has(ABS_X));
    return !points;
}

/// How a keyboard is attached says whether it belongs to the machine.
Output outputFor(const input_id& id)
{
    switch (id.bustype) {
    case BUS_I8042:
    case BUS_HOST:
    case BUS_I2C:
    case BUS_SPI:
        return Output::internal;
    default:
        return Output::external;
    }
}

} // namespace

KeyboardDevice::KeyboardDevice(FileDescriptor descriptor, const input_id& id)
    : m_descriptor(std::move(descriptor))
    , m_id(id)
    , m_output(outputFor(id))
{ }

std::optional<KeyboardDevice> KeyboardDevice::open(const std::string& path)
{
    FileDescriptor descriptor(::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor.isOpen() || !isKeyboard(descriptor.get()))
        return std::nullopt;
    input_id id{};
    int clock = CLOCK_MONOTONIC;
    if (::ioctl(descriptor.get(), EVIOCGID, &id) < 0 || ::ioctl(descriptor.get(), EVIOCSCLOCKID, &clock) < 0)
        return std::nullopt;
    return KeyboardDevice(std::move(descriptor), id);
}

bool KeyboardDevice::grab()
{
    return ::ioctl(m_descriptor.get(), EVIOCGRAB, 1) == 0;
}

void KeyboardDevice::release()
{
    ::ioctl(m_descriptor.get(), EVIOCGRAB, 0);
}

std::optional<KeyBits> KeyboardDevice::keysDown() const
{
    std::array<std::uint8_t, KEY_CNT / bitsPerByte + 1> bytes{};
    if (::ioctl(m_descriptor.get(), EVIOCGKEY(bytes.size()), bytes.data()) < 0)
        return std::nullopt;
    return keyBitsFromBytes(bytes);
}

std::optional<std::span<const input_event>> KeyboardDevice::read(std::span<input_event> buffer) const
{
    const ssize_t size = ::read(m_descriptor.get(), buffer.data(), buffer.size_bytes());
    if (size < 0) {
        if (errno == EAGAIN || errno == EINTR)
            return std::span<const input_event>();
        return std::nullopt;
    }
    return buffer.first(static_cast<std::size_t>(size) / sizeof(input_event));
}

void KeyboardDevice::setLights(std::span<const input_event> lights) const
{
    // A keyboard that does not take them is none the worse.
    static_cast<void>(!::write(m_descriptor.get(), lights.data(), lights.size_bytes()));
}

} // namespace tarvin::tapd
