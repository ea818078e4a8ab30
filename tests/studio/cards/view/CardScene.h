#pragma once

#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "studio/applications/view/ApplicationIcons.h"
#include "studio/cards/KeyRecord.h"
#include "studio/cards/KeyboardShortcutCard.h"
#include "studio/cards/OpenApplicationCard.h"
#include "studio/cards/view/CardBody.h"

#include <QImage>

namespace tarvin::test {

/// What the cards of F5 show and write, on a desktop in memory.
class CardScene
{
public:
    [[nodiscard]] ConfiguredAction config() const { return profile.actionConfig(FKey::f5); }

    /// @param icon in the words of the desktop; the application has it as a picture
    void install(const QString& name, const QString& identifier, const QColor& icon = {})
    {
        platform.applicationFolders().install(ApplicationFolder::applications,
            {.path = u"/Applications/%1.app"_qs.arg(name),
                .bundleIdentifier = identifier,
                .displayName = name,
                .icon = icon.isValid() ? icon.name() : QString()});
        platform.applicationControl().install(
            {.path = u"/Applications/%1.app"_qs.arg(name), .name = name, .bundleIdentifiers = {identifier}});
    }
    /// Until nothing is under way.
    void settle() { platform.scheduler().runPosted(); }

    mutable simulated::SimulatedPlatform platform;
    KeyProfile profile{platform.files(), platform.preferences(), platform.workspace(), platform.console(),
        platform.uuids(), [](KeyAction) {}};
    KeyRecord record{FKey::f5, profile};
    OpenApplicationCard openApplication{record,
        {.folders = platform.applicationFolders(),
            .applications = platform.applicationControl(),
            .chooser = platform.applicationChooser(),
            .scheduler = platform.scheduler()}};
    QList<QList<CustomShortcut>> played;
    ShortcutRecorder recorder{shortcutBinding(record),
        {.keyRecording = platform.keyRecording(),
            .uuids = platform.uuids(),
            .scheduler = platform.scheduler(),
            .play = [this](const QList<CustomShortcut>& shortcuts, MultiKeyPlaybackMode) { played += shortcuts; }}};
    /// Icons are named after their colour here.
    ApplicationIcons icons{platform.scheduler(), [](const QString& icon, int pixels) {
                               QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
                               image.fill(QColor(icon));
                               return image;
                           }};
    CardCollaborators with{.record = record,
        .openApplication = openApplication,
        .recorder = recorder,
        .uuids = platform.uuids(),
        .icons = icons};
};

} // namespace tarvin::test
