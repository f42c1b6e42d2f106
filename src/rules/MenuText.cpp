#include "rules/MenuText.h"

#include "base/Mnemonics.h"
#include "rules/NameText.h"

QString menuText(const QString &text)
{
    return Mnemonics::escaped(NameText::inOneLine(text));
}
