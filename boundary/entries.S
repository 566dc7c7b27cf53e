/* The exported entries. Each is one indirect jump through the slot of its name. An entry changes no argument and leaves
   the return address on the stack, so that the routine it jumps to returns to the caller. */

/* The macro `entry` is the target's. */
#include "entries.inc"

#define SLOT(name, routine, bytes) entry name
#include "boundary/slots.inc"
