#include "platform/ProcessTuning.h"

#include <QByteArray>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void tuneProcess()
{
    // With pixels in shared memory every repaint waits for the X server's word that it has read
    // the one before: three times the wake-ups for a few thousand bytes.
    if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"))
        qputenv("QT_XCB_NO_MITSHM", "1");

#ifdef __GLIBC__
    // The pixels of a window that closes go back to the system. Left to itself, glibc takes the
    // freeing of the first as a sign to keep the next ones.
    constexpr int largeBlock = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
#endif
}

void returnFreeMemory()
{
#ifdef __GLIBC__
    // Few closed windows stood at the end of the heap, where glibc would give it back by itself.
    malloc_trim(0);
#endif
}
