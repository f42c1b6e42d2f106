#pragma once

class QByteArray;

/// Asks a message bus whether it is alive, because connecting to one that has stopped would hold
/// up the program for ever.
namespace BusProbe
{
/// Whether somebody listens at the address of a bus (D-Bus Specification, "Server Addresses"), but
/// says nothing within a second. False where nobody listens or where it cannot be told: an address
/// that is not of a local socket. Of several addresses in the list the first is asked.
[[nodiscard]] bool hangs(const QByteArray &address);
} // namespace BusProbe
