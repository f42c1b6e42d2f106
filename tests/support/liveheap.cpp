// Preloaded into a program under the address sanitizer, tells at every second how many bytes of the
// heap the program uses, in the file that WUFFER_LIVE_HEAP names. The memory of its process tells
// less: the sanitizer holds back what is freed, and keeps books on it.

#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <string>
#include <thread>

// Of the sanitizer's interface, whose header does not come with every compiler.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace
{
void tell(const std::string &path)
{
    // So that no signal meant for the program comes here.
    sigset_t signals;
    sigfillset(&signals);
    pthread_sigmask(SIG_SETMASK, &signals, nullptr);
    std::ofstream file(path);
    for (;;) {
        // As wide as the widest, so that a reader never sees the rest of another.
        file.seekp(0);
        file << std::setw(20) << __sanitizer_get_current_allocated_bytes() << std::flush;
        std::this_thread::sleep_for(std::chrono::seconds(1));
    }
}

[[gnu::constructor]] void begin()
{
    if (const char *path = std::getenv("WUFFER_LIVE_HEAP"))
        std::thread(tell, std::string(path)).detach();
}
} // namespace
