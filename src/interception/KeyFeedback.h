#pragma once

#include <QString>

namespace tarvin {

enum class PressSound { silent, audible };

/// Shows on the drawn keyboard what happens on the real one. Main thread only.
class KeyFeedback
{
public:
    virtual ~KeyFeedback() = default;
    /// @param keyId names the keycap; see `keyIdentifier`
    virtual void triggerKeyPress(const QString& keyId, PressSound sound) = 0;
    virtual void releaseKey(const QString& keyId) = 0;
};

} // namespace tarvin
