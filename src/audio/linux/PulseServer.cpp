#include "audio/linux/PulseServer.h"

#include <QLibrary>
#include <QString>

#include <memory>

namespace
{
/// The functions of the PulseAudio client library that the check needs. They are resolved at run
/// time: to build the program only cubeb is needed, which brings the library along.
struct Client
{
    void *(*newLoop)();
    void (*freeLoop)(void *loop);
    void *(*apiOf)(void *loop);
    int (*iterate)(void *loop, int blocks, int *result);
    void *(*newContext)(void *api, const char *name);
    void (*freeContext)(void *context);
    int (*connect)(void *context, const char *server, int flags, const void *spawn);
    void (*disconnect)(void *context);
    int (*stateOf)(const void *context);

    [[nodiscard]] bool load();
};

/// The state of a connection that is up (PA_CONTEXT_READY). Lower states lead to it; higher ones
/// mean that it has failed.
constexpr int kReady = 4;

template<class Function> bool find(QLibrary &library, const char *name, Function *&function)
{
    function = reinterpret_cast<Function *>(library.resolve(name));
    return function != nullptr;
}

bool Client::load()
{
    constexpr int version = 0;
    QLibrary library(QStringLiteral("pulse"), version);
    return find(library, "pa_mainloop_new", newLoop) &&
           find(library, "pa_mainloop_free", freeLoop) &&
           find(library, "pa_mainloop_get_api", apiOf) &&
           find(library, "pa_mainloop_iterate", iterate) &&
           find(library, "pa_context_new", newContext) &&
           find(library, "pa_context_unref", freeContext) &&
           find(library, "pa_context_connect", connect) &&
           find(library, "pa_context_disconnect", disconnect) &&
           find(library, "pa_context_get_state", stateOf);
}

bool isReady(const Client &client, void *loop, void *context)
{
    if (client.connect(context, nullptr, 0, nullptr) < 0)
        return false;
    int state = client.stateOf(context);
    while (state < kReady && client.iterate(loop, 1, nullptr) >= 0)
        state = client.stateOf(context);
    return state == kReady;
}
} // namespace

bool PulseServer::answers()
{
    Client client = {};
    if (!client.load())
        return false;
    const std::unique_ptr<void, void (*)(void *)> loop(client.newLoop(), client.freeLoop);
    if (!loop)
        return false;
    const std::unique_ptr<void, void (*)(void *)> context(
        client.newContext(client.apiOf(loop.get()), "wuffer"), client.freeContext);
    if (!context)
        return false;
    const bool answers = isReady(client, loop.get(), context.get());
    client.disconnect(context.get());
    return answers;
}
