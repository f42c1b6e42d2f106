#pragma once

/// The sound server of the session, asked by means of its own client library.
namespace PulseServer
{
/// Whether the server takes connections; without its library it does not. Waits for the server,
/// for ever if that is stuck. Any thread.
[[nodiscard]] bool answers();
} // namespace PulseServer
