#include "FontConfigWarmup.h"

#include <dlfcn.h>

FontConfigWarmup::FontConfigWarmup()
    : m_thread([] {
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
