// The exported entries of targets without assembler: each calls its routine.
#include "boundary/dispatch.h"
#include "boundary/entry_call.h"
#include "dct4/dct4.h"
#include "levels.h"
#include "wht/wht.h"

using namespace zulg;

#define ENTRY(name, parameters, arguments, routine) \
    extern "C" ZULG_EXPORT ZulgStatus ZULG_CALL name parameters { return EntryCall{routine} arguments; }
#include "boundary/cpp_entries.inc"
#undef ENTRY
