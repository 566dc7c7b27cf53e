#include "dct4/list.h"

#include "dct4/records.h"

namespace zulg {

PlanListNode* listInit(PlanListNode* node, PlanArena* arena) {
    node->value = nullptr;
    node->next = nullptr;
    node->arena = arena;
    return node;
}

PlanHead* listAppend(PlanListNode* head, PlanHead* value) {
    PlanListNode* last = head;
    while (last->next != nullptr) last = last->next;
    if (last->value != nullptr) {
        last->next = drawList(head->arena);
        last = last->next;
    }
    last->value = value;
    return value;
}

PlanHead* listNth(const PlanListNode* head, std::int32_t i) {
    const PlanListNode* node = head;
    std::int32_t steps = 0;
    while (node != nullptr && steps < i) {
        node = node->next;
        ++steps;
    }
    return node != nullptr && steps == i ? node->value.get() : nullptr;
}

void listReleaseTail(PlanListNode* head) {
    for (PlanListNode* node = head->next; node != nullptr;) {
        PlanListNode* const next = node->next;
        arenaRelease(head->arena, node, sizeof(PlanListNode));
        node = next;
    }
}

void listReleaseValues(PlanListNode* head) {
    for (PlanListNode* node = head; node != nullptr; node = node->next) {
        PlanHead* const record = node->value;
        if (record == nullptr) continue;
        record->free.as<ReleaseOperation>()(*record);
        arenaRelease(node->arena, record, record->size);
    }
}

}  // namespace zulg
