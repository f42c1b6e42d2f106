#pragma once

#include <QString>

class QByteArray;

/// Checks whether a message bus answers, because connecting to one that hangs would block the
/// program for ever.
namespace BusProbe
{
/// Whether a process listens at the address of a bus (D-Bus Specification, "Server Addresses") but
/// does not answer within a second. False when no process listens, and for an address that is not
/// of a local socket. Checks only the first address of a list.
[[nodiscard]] bool hangs(const QByteArray &address);

/// Whether a process listens at the address and answers within a second. True for an address that
/// is not of a local socket. Checks only the first address of a list.
[[nodiscard]] bool answers(const QByteArray &address);

/// The file of the local socket in the address; empty if the address has none.
[[nodiscard]] QString socketFile(const QByteArray &address);
} // namespace BusProbe
