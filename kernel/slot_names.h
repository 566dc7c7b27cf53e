// The name of the table of slots, and the namespace of the routines by which a slot is chosen. Where each level has a
// table, the build says both for each.
#pragma once

#ifndef ZULG_SLOTS
#define ZULG_SLOTS zulg
#define ZULG_SLOT_TABLE zulgSlots
#endif
