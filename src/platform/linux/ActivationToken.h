#pragma once

class QString;

/// Uses this token for the next window that is activated. It proves to a desktop which prevents
/// programs from taking the focus that the user has asked for the window. Only Wayland has such
/// tokens; elsewhere, and with an empty one, nothing happens.
void useActivationToken(const QString &token);
