// The exported entries of the batch library on targets without assembler: each calls its routine.
#include "batch/batch.h"
#include "batch_levels.h"
#include "boundary/entry_call.h"
#include "include/zulgenpx_batch.h"

using namespace zulg;

#define ENTRY(name, parameters, arguments, routine) \
    extern "C" ZULG_EXPORT ZulgStatus ZULG_CALL name parameters { return EntryCall{routine} arguments; }
#include "batch/cpp_entries.inc"
#undef ENTRY
