#pragma once

#include "platform/linux/services/UserNotice.h"

#include <QImage>
#include <QString>

#include <optional>

namespace tarvin::capture {

/// Brings a picture to where the user wanted it.
class PictureDelivery
{
public:
    explicit PictureDelivery(services::TellUser tellUser);

    /// Main thread.
    /// @param file to write as a PNG; to the clipboard if there is none
    void deliver(const QImage& picture, const std::optional<QString>& file) const;

private:
    services::TellUser m_tellUser;
};

} // namespace tarvin::capture
