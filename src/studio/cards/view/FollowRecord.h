#pragma once

#include "profiles/KeyProfile.h"
#include "studio/cards/KeyRecord.h"

#include <QWidget>

namespace tarvin {

/// Calls the body's function now and whenever the key's record may have become another.
template <typename Body> void followRecord(Body& body, const KeyRecord& record, void (Body::*refresh)())
{
    QObject::connect(&record.profile(), &KeyProfile::profileMappingsChanged, &body, refresh);
    QObject::connect(&record.profile(), &KeyProfile::currentProfileChanged, &body, refresh);
    (body.*refresh)();
}

} // namespace tarvin
