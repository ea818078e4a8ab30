#pragma once

#include "studio/StudioTexts.h"
#include "ui/AnimatedValue.h"
#include "ui/Fonts.h"

#include <QLabel>

namespace tarvin {

/// One message in a capsule: a dot and a text, or a bolt and the notice of what fired last.
class StatusCapsule : public QLabel
{
    Q_OBJECT

public:
    static constexpr int capsuleHeight = 26;

    enum class Kind { message, lastTrigger };

    explicit StatusCapsule(Kind kind, QWidget* parent = nullptr);

    void setMessage(const StatusMessage& message);
    /// The notice comes and goes smoothly; absent it takes no room.
    void setNotice(const std::optional<QString>& notice);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The capsule takes another room than before.
    void resized();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] TextStyle textStyle() const;
    [[nodiscard]] double signWidth() const;

    Kind m_kind;
    StatusMessage m_message;
    AnimatedValue m_presence;
};

} // namespace tarvin
