#include "rules/TranslationFile.h"

#include <QTranslator>

/// Checks that QTranslator stays inside each file that is taken for sound.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (!TranslationFile::isSound({data, size}))
        return 0;
    QTranslator translator;
    if (!translator.load(data, static_cast<int>(size)))
        return 0;
    // The texts in the first inputs.
    for (const int number : {-1, 0, 1, 5, 1'000'000}) {
        Q_UNUSED(translator.translate("Kitchen", "Tea", "", number));
        Q_UNUSED(translator.translate("Kitchen", "%n cups", "of tea", number));
    }
    return 0;
}
