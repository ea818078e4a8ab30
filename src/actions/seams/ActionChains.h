#pragma once

#include "model/ActionChainStep.h"

#include <QList>

namespace tarvin {

/// Plays macros. Main thread only.
class ActionChains
{
public:
    virtual ~ActionChains() = default;
    /// Returns before the first step has run. Never called in test-safe mode.
    virtual void executeActionChain(const QList<ActionChainStep>& steps) = 0;
};

} // namespace tarvin
