#pragma once

class QString;

/// Lets the next window that asks to be the active one do so with this token, by which a desktop
/// that keeps programs from taking the focus says that the user has meant this one. Only Wayland
/// knows such tokens; elsewhere nothing happens, nor with an empty one.
void useActivationToken(const QString &token);
