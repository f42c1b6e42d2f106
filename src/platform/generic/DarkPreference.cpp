#include "platform/DarkPreference.h"

/// Not asked: on other systems Qt's colours are those of the desktop.
class DarkPreference::Source
{
};

DarkPreference::DarkPreference() = default;

DarkPreference::~DarkPreference() = default;
