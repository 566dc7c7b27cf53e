// Lists of records, singly linked, in the arena of the plan. A list has at least one node, its head. The head of an
// empty list has no value, and the first element is stored in it.
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

// Stores the value in the last node if that has none, else in a new node after it. Returns the value.
PlanHead* listAppend(PlanListNode* head, PlanHead* value);

// Element i, or null.
PlanHead* listNth(const PlanListNode* head, std::int32_t i);

// Releases all nodes but the head. The head is not changed, so that its `next` must not be followed any more.
void listReleaseTail(PlanListNode* head);

// Lets each record give back what it owns, then releases the record. The list itself is not changed.
void listReleaseValues(PlanListNode* head);

}  // namespace zulg
