#pragma once

#include "interception/ActionSink.h"
#include "interception/KeyFeedback.h"
#include "interception/StudioPresence.h"
#include "model/ConfiguredAction.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace tarvin::test {

/// Performs nothing and remembers all.
class RecordedActions final : public ActionSink
{
public:
    void execute(const ConfiguredAction& config) override
    {
        fired.push_back(config);
        if (onExecute)
            onExecute(config);
    }

    std::vector<ConfiguredAction> fired;
    std::function<void(const ConfiguredAction&)> onExecute; ///< what the action does, if it matters
};

class RecordedStudio final : public StudioPresence
{
public:
    [[nodiscard]] bool isGlobalSummonShortcutEnabled() const override { return summonEnabled; }
    [[nodiscard]] bool isStudioWindowVisible() const override { return visible; }
    void openStudioWindow() override { ++opened; }

    bool summonEnabled = true;
    bool visible = false;
    int opened = 0;
};

/// What the drawn keyboard was told: "+F5" for a press, "(+F5)" for one without a sound, "-F5" for a release.
class RecordedFeedback final : public KeyFeedback
{
public:
    void triggerKeyPress(const QString& keyId, PressSound sound) override
    {
        strokes += sound == PressSound::audible ? u'+' + keyId : QStringLiteral("(+%1)").arg(keyId);
    }
    void releaseKey(const QString& keyId) override { strokes += u'-' + keyId; }

    QStringList strokes;
};

} // namespace tarvin::test
