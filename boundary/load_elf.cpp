// The dynamic linker calls zulgLoad after it has loaded the ELF library: -Wl,-init names the routine, as --entry names
// the load entry on Windows. So no start files are needed and .init_array stays empty, and a test can see there that no
// static waits for an initializer.
#include "boundary/load_entry.h"

extern "C" void zulgLoad();
extern "C" void zulgLoad() { zulgLoadEntry(nullptr, processAttach, nullptr); }
