#include "audio/FactsReader.h"

#include "audio/Workers.h"

#include <mutex>

/// What the main thread and the reading thread share; it outlives both.
struct FactsReader::Mailbox
{
    std::mutex mutex;
    /// Null when the facts are no longer wanted.
    QObject *receiver = nullptr;
    Tell tell;

    void post(const SoundFacts &facts)
    {
        const std::lock_guard lock(mutex);
        if (receiver)
            QMetaObject::invokeMethod(
                receiver, [facts, function = tell] { function(facts); }, Qt::QueuedConnection);
    }
};

FactsReader::FactsReader(Tell tell) : _mailbox(std::make_shared<Mailbox>())
{
    _mailbox->receiver = &_receiver;
    _mailbox->tell = std::move(tell);
}

FactsReader::~FactsReader()
{
    const std::lock_guard lock(_mailbox->mutex);
    _mailbox->receiver = nullptr;
}

bool FactsReader::start(Workers &workers, const SoundSource &source, Openings::Ticket ticket)
{
    return workers.start([mailbox = _mailbox, source, ticket = std::move(ticket)]() mutable {
        const SoundFacts facts = SoundFacts::read(source);
        ticket.reset();
        mailbox->post(facts);
    });
}
