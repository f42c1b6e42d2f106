#pragma once

#include "audio/Openings.h"
#include "audio/SoundSource.h"

#include <QObject>

#include <functional>
#include <memory>

class Workers;

/// Reads the facts of a file on a thread of its own and tells them on the main thread, from the
/// event loop. Destroying it cancels that, even if the thread hangs in the file. Main thread.
class FactsReader final
{
public:
    using Tell = std::function<void(const SoundFacts &)>;

    explicit FactsReader(Tell tell);
    Q_DISABLE_COPY_MOVE(FactsReader)
    ~FactsReader();

    /// Begins to read. The ticket is kept until the file has answered. False if the system cannot
    /// start a thread. Call it once.
    [[nodiscard]] bool start(Workers &workers, const SoundSource &source, Openings::Ticket ticket);

private:
    struct Mailbox;

    /// Receives the event with the facts. Its destruction removes an event that is under way.
    QObject _receiver;
    const std::shared_ptr<Mailbox> _mailbox;
};
