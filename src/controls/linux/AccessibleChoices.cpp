#include "controls/AccessibleChoices.h"

#include "controls/AccessibleFactory.h"
#include "controls/SpokenComboBox.h"
#include "controls/linux/AccessibleChoice.h"

void AccessibleChoices::install()
{
    AccessibleFactory::install<SpokenComboBox, AccessibleChoice>();
}
