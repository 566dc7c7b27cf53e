/* The exported entries. Each is one indirect jump through the slot of its name. An entry changes no argument and leaves
   the return address on the stack, so that the routine it jumps to returns to the caller. */

#ifdef __i386__

    .text
    .set slot, 0
    .macro entry name
    .globl _\name
    .def _\name; .scl 2; .type 32; .endef
_\name:
    jmp *_zulgSlots + 4 * slot
    .set slot, slot + 1
    .endm

#else

    .text
    .hidden zulgSlots
    .set slot, 0
    .macro entry name
    .globl \name
    .type \name, @function
\name:
    endbr64                                 /* allows indirect branches to come here; does nothing else */
    jmp *zulgSlots + 8 * slot(%rip)
    .size \name, . - \name
    .set slot, slot + 1
    .endm

#endif

#define SLOT(name, routine, bytes) entry name
#include "boundary/slots.inc"

#ifndef __i386__

/* Without these two notes the linker would take the marks off the whole library and make its stack executable. */
    .section .note.GNU-stack, "", @progbits
    .section .note.gnu.property, "a", @note
    .balign 8
    .long 4, 16, 5
    .asciz "GNU"
    .long 0xc0000002, 4, 3, 0               /* x86 features: indirect branch tracking, shadow stack */

#endif
