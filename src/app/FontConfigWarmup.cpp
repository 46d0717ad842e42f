#include "FontConfigWarmup.h"

#include <dlfcn.h>
#include <sched.h>

FontConfigWarmup::FontConfigWarmup()
    : m_thread([] {
        // At idle priority it only takes a core nobody else wants: at normal priority it may
        // take the start-up's own core for milliseconds, which is what it is meant to save.
        sched_param priority{};
        sched_setscheduler(0, SCHED_IDLE, &priority);
        // No Qt here: the thread that first touches Qt before the application object exists
        // becomes Qt's main thread, and the real one's event loop then misbehaves.
        // Qt's font database has loaded the library already; this only looks it up.
        void *library = dlopen("libfontconfig.so.1", RTLD_LAZY | RTLD_NOLOAD);
        if (!library)
            return;
        using Init = int (*)();
        if (const auto init = reinterpret_cast<Init>(dlsym(library, "FcInit")))
            init();
        dlclose(library);
    })
{}

FontConfigWarmup::~FontConfigWarmup()
{
    m_thread.join();
}
