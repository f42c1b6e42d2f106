#pragma once

#include <QtGlobal>

#include <utility>

/// Installs an implementation of a service for as long as this object lives.
///
/// The program installs its services in main(); a test installs its own in their place.
/// Installations nest: the destructor restores the previous one. Main thread.
template<class Interface> class Service final
{
public:
    explicit Service(Interface &service) : _previous(std::exchange(_current, &service)) {}
    ~Service() { _current = _previous; }
    Q_DISABLE_COPY_MOVE(Service)

    /// The implementation installed last. There must be one.
    [[nodiscard]] static Interface &current()
    {
        Q_ASSERT(_current);
        return *_current;
    }

private:
    Interface *_previous;
    static inline Interface *_current = nullptr;
};
