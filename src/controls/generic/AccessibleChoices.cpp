#include "controls/AccessibleChoices.h"

void AccessibleChoices::install() {}
