#pragma once

#include "studio/cards/ParameterCard.h"

class QWidget;

namespace tarvin {

class ApplicationIcons;
class KeyRecord;
class OpenApplicationCard;
class ShortcutRecorder;
class UuidGenerator;

/// What the bodies of the cards of one key show and write. All of it outlives the bodies.
struct CardCollaborators
{
    const KeyRecord& record;
    OpenApplicationCard& openApplication;
    ShortcutRecorder& recorder;
    UuidGenerator& uuids;
    ApplicationIcons& icons;
};

/// What a card holds below its header while it is selected, without the test button. As high as it wants at the width
/// that it gets, and it follows the key's record, whoever writes it.
///
/// A recording ends when the body in which it began disappears, so an owner that sorts its cards anew moves a body
/// rather than making it again. Several bodies of one card may be there at once.
[[nodiscard]] QWidget* makeCardBody(ParameterCard card, const CardCollaborators& with, QWidget* parent);

} // namespace tarvin
