// Lists of records, singly linked, in the arena of the plan. A list is its first node, which always exists: an empty
// one is a node without a value, and the first element goes into it.
#pragma once

#include "dct4/arena.h"
#include "dct4/plan_ref.h"

namespace zulg {

struct PlanListNode {
    PlanRef<PlanHead> value;
    PlanRef<PlanListNode> next;
    PlanRef<PlanArena> arena;  // where further nodes come from
};
static_assert(sizeof(PlanListNode) == 12);

using PlanList = PlanRef<PlanListNode>;

// The bytes that k nodes take.
constexpr std::int32_t listBytes(std::int32_t k) { return wrapProduct(roundUp32(sizeof(PlanListNode)), k); }

PlanListNode* listInit(PlanListNode* node, PlanArena* arena);

// Stores the value in the last node if that one has none, else in a new node behind it. Returns the value.
PlanHead* listAppend(PlanListNode* head, PlanHead* value);

// Element i, or null.
PlanHead* listNth(const PlanListNode* head, std::int32_t i);

// Releases all nodes but the head, whose `next` then leads nowhere.
void listReleaseTail(PlanListNode* head);

// Lets each record give back what it owns, then releases the record. The list stays.
void listReleaseValues(PlanListNode* head);

}  // namespace zulg
