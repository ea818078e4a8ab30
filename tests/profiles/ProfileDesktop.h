#pragma once

#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"
#include "profiles/ProfilePrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <vector>

namespace tarvin {

/// The profiles on a simulated desktop, made at first use, so that a test can lay out files and settings before.
class ProfileDesktop : public testing::Test
{
protected:
    KeyProfile& profile()
    {
        if (!m_profile) {
            m_profile = std::make_unique<KeyProfile>(desktop.files(), desktop.preferences(), desktop.workspace(),
                desktop.console(), desktop.uuids(), [this](KeyAction action) { recordedUses.push_back(action); });
        }
        return *m_profile;
    }

    /// The program ends; the next use of the profile is another launch on the same desktop.
    void quit() { m_profile.reset(); }

    void stageMain(const QByteArray& content) { desktop.files().stage(mainFile, content); }
    void stageBackup(const QByteArray& content) { desktop.files().stage(backupFile, content); }

    /// Undefined where there is no file.
    [[nodiscard]] QJsonValue stored(const QString& file) const
    {
        const std::optional<QByteArray> content = desktop.files().content(file);
        return content ? QJsonDocument::fromJson(*content).object() : QJsonValue(QJsonValue::Undefined);
    }

    [[nodiscard]] QStringList consoleLines() const
    {
        QStringList lines;
        for (const simulated::ConsoleLine& line : desktop.effects().all<simulated::ConsoleLine>())
            lines.append(line.line);
        return lines;
    }

    void bringToFront(const QStringList& bundleIdentifiers)
    {
        desktop.workspace().setFrontmost(application(bundleIdentifiers));
    }

    /// A running application with a process of its own.
    [[nodiscard]] RunningApplication application(const QStringList& bundleIdentifiers)
    {
        return {.processIdentifier = ++m_lastProcess,
            .bundleIdentifiers = bundleIdentifiers,
            .localizedName = bundleIdentifiers.value(0)};
    }

    [[nodiscard]] static ConfiguredAction typing(const QString& text)
    {
        ConfiguredAction record(KeyAction::textSnippet);
        record.textSnippet = text;
        return record;
    }

    /// The text that the key types right now; empty if it has no runtime record.
    [[nodiscard]] QString typed(FKey key)
    {
        const ConfiguredAction* config = profile().runtimeCustomConfig(key);
        return config != nullptr ? config->textSnippet.value_or(u"?"_qs) : QString();
    }

    // Usable in const members too: the desktop hands out what it holds.
    mutable simulated::SimulatedPlatform desktop;
    std::vector<KeyAction> recordedUses;
    const QString mainFile = desktop.files().applicationSupportDirectory() + u"/profiles_mappings.json"_qs;
    const QString backupFile = desktop.files().applicationSupportDirectory() + u"/profiles_mappings.backup.json"_qs;

private:
    std::unique_ptr<KeyProfile> m_profile;
    ProcessIdentifier m_lastProcess = 500;
};

} // namespace tarvin
