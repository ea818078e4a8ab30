#pragma once

#include "platform/ports/Sounds.h"

#include <QString>

#include <functional>
#include <memory>

namespace tarvin::feedback {

/// Short sounds on the session's sound server, spoken to in the protocol of PulseAudio, which PipeWire serves too.
///
/// Every sound is put into the server's own cache as soon as the server answers, so that to play it is one short
/// message. A server that is not there, or goes away, is looked for again at a later click; it is never started.
/// Nothing is connected, and no thread runs, until sounds are about to be needed.
class PulseSounds final : public Sounds
{
public:
    /// @param log gets a line when the server can't be had, from any thread; not the same line twice in a row
    explicit PulseSounds(std::function<void(const QString&)> log);
    ~PulseSounds() override;
    PulseSounds(const PulseSounds&) = delete;
    PulseSounds& operator=(const PulseSounds&) = delete;

    /// Connects, if that has not been done: the first click is not heard without it.
    void prepare();

    [[nodiscard]] std::optional<SoundId> create(const QString& path) override;
    /// Every number that `create` has not given plays the program's own click.
    void play(SoundId sound) override;

    /// Whether the server has all sounds, so that the next one is heard. For tests.
    [[nodiscard]] bool isReady() const;

private:
    class Server;
    std::unique_ptr<Server> m_server;
};

} // namespace tarvin::feedback
