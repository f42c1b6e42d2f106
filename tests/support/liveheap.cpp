// A library to preload into a program built with the address sanitizer. Every second it writes the
// number of heap bytes in use to the file that WUFFER_LIVE_HEAP names. The size of the process says
// less: the sanitizer keeps freed memory back and needs memory for its own records.

#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <string>
#include <thread>

// From the sanitizer's interface, whose header does not come with every compiler.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace
{
void tell(const std::string &path)
{
    // Signals are meant for the program's own threads.
    sigset_t signals;
    sigfillset(&signals);
    pthread_sigmask(SIG_SETMASK, &signals, nullptr);
    std::ofstream file(path);
    for (;;) {
        // Of fixed width, so that each number overwrites all digits of the one before.
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
