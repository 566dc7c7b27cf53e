// What the dynamic linker calls when an ELF library has been loaded: named to it by -Wl,-init, as the load entry is
// named to Windows by --entry. So it needs no start files, and .init_array stays empty, where a forgotten initializer
// shows.
#include "frame/load_entry.h"

extern "C" void zulgLoad();
extern "C" void zulgLoad() { zulgLoadEntry(nullptr, processAttach, nullptr); }
