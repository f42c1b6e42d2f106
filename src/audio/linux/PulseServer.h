#pragma once

/// The PulseAudio server of the session, reached through its client library.
namespace PulseServer
{
/// Whether the server accepts connections; false without the library. Waits for the server, forever
/// if it hangs. Any thread.
[[nodiscard]] bool answers();
} // namespace PulseServer
