/* The exported entries of the batch library, made as those of the main library are. */

/* The macro `entry` is the target's. */
#include "entries.inc"

#define SLOT(name, routine) entry name
#include "batch/slots.inc"
