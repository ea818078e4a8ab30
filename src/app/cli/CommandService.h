#pragma once

#include "app/cli/CommandMessages.h"
#include "model/ConfiguredAction.h"
#include "model/UuidSource.h"

#include <QJsonObject>

#include <functional>

namespace tarvin {

class Arguments;
class KeyProfile;
class MappingArchive;

/// What only the running program can tell and do.
struct LiveProgram
{
    std::function<QJsonObject()> status; ///< fields for the status beside the switches
    std::function<void(const ConfiguredAction&)> run;
};

/// Carries out the commands that concern the mappings: in the running program on its own store, without one on a store
/// that was read from the files for this one command. Main thread only.
class CommandService
{
public:
    /// @param live empty where no program runs
    CommandService(
        KeyProfile& keyProfile, MappingArchive& archive, UuidSource newUuid, std::optional<LiveProgram> live);

    [[nodiscard]] CommandReply perform(const CommandRequest& request);

private:
    [[nodiscard]] CommandReply list(const QStringList& words) const;
    [[nodiscard]] CommandReply set(const QStringList& words);
    [[nodiscard]] CommandReply reset(const QStringList& words);
    [[nodiscard]] CommandReply exportMappings(const QStringList& words) const;
    [[nodiscard]] CommandReply importMappings(const CommandRequest& request);
    [[nodiscard]] CommandReply undo(const QStringList& words);
    [[nodiscard]] CommandReply restore(const QStringList& words);
    [[nodiscard]] CommandReply status(const QStringList& words) const;
    [[nodiscard]] CommandReply run(const QStringList& words);

    /// What is wrong with a profile that the user names, if anything.
    [[nodiscard]] std::optional<QString> problemWithProfile(const QString& id) const;
    [[nodiscard]] QString stateList() const;

    KeyProfile& m_keyProfile;
    MappingArchive& m_archive;
    UuidSource m_newUuid;
    std::optional<LiveProgram> m_live;
};

} // namespace tarvin
