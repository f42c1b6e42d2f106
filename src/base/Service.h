#pragma once

#include <QtGlobal>

#include <utility>

/// The one settable default of a service, kept for as long as this object lives.
///
/// The program makes its services in main and installs each here; a test installs its own in
/// their place. Installations nest: the one before comes back when this one goes. Main thread.
template<class Interface> class Service final
{
public:
    explicit Service(Interface &service) : _previous(std::exchange(_current, &service)) {}
    ~Service() { _current = _previous; }
    Q_DISABLE_COPY_MOVE(Service)

    /// The service in force. One must have been installed.
    [[nodiscard]] static Interface &current()
    {
        Q_ASSERT(_current);
        return *_current;
    }

private:
    Interface *_previous;
    static inline Interface *_current = nullptr;
};
