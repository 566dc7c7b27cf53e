#include "tests/plan/describe.h"

#include <sstream>

namespace test {

using namespace zulg;

namespace {

class Description {
public:
    explicit Description(const DctPlan& plan) : root(plan) {
        line(0, "DctPlan", plan.head, {plan.owned, plan.post, plan.pre});
        place("scratch", plan.scratch);
        kind(plan.kind);
        if (plan.kind == PlanKind::Composite) number("radix", plan.radix);
        number("length", plan.length);
        if (plan.kind != PlanKind::Composite) return;
        const auto& source = *reinterpret_cast<const AngleSource*>(listNth(plan.owned, 0));
        const auto& output = *reinterpret_cast<const OutputStage*>(listNth(plan.owned, 1));
        const auto& fold = *reinterpret_cast<const FoldStage*>(listNth(plan.owned, 2));
        line(1, "AngleSource", source.head, {});
        number("rowLength", source.rowLength), number("denominator", source.denominator), number("rows", source.rows);
        number("radix", source.radix), number("rowStride", source.rowStride);
        line(1, "OutputStage", output.head, {output.owned});
        place("table", output.table), kind(output.kind), number("radix", output.radix);
        number("length", output.length), number("rowLength", output.rowLength), number("rows", output.rows);
        number("outputLength", output.outputLength), number("mirrorBase", output.mirrorBase);
        number("blockStride", output.blockStride), place("source", output.source);
        line(1, "FoldStage", fold.head, {fold.owned, fold.children});
        place("table", fold.table), kind(fold.kind), number("skewLength", fold.skewLength);
        number("length", fold.length), number("mirrorBase", fold.mirrorBase), number("inputStep", fold.inputStep);
        number("count", fold.count), number("outputLength", fold.outputLength);
        number("outputStep", fold.outputStep);
        if (fold.kind == FoldKind::Split) split(2, *reinterpret_cast<const SkewSplit*>(listNth(fold.owned, 0)));
    }

    std::string text() const { return out.str() + "\n"; }

private:
    void split(int depth, const SkewSplit& level) {
        line(depth, "SkewSplit", level.head, {level.owned, level.post, level.pre});
        place("scratch", level.scratch), number("active", level.active), number("skewLength", level.skewLength);
        number("radix", level.radix), number("length", level.length), number("reach", level.reach);
        number("inputStep", level.inputStep), number("outputLength", level.outputLength);
        number("outputStep", level.outputStep);
        const auto& source = *reinterpret_cast<const RowAngleSource*>(listNth(level.owned, 0));
        const auto& combine = *reinterpret_cast<const CombineStage*>(listNth(level.owned, 1));
        const auto& step = *reinterpret_cast<const FoldStep*>(listNth(level.owned, 2));
        line(depth + 1, "RowAngleSource", source.head, {});
        number("skewLength", source.skewLength), number("radix", source.radix);
        line(depth + 1, "CombineStage", combine.head, {combine.owned});
        place("table", combine.table), kind(combine.kind), number("radix", combine.radix);
        number("skewLength", combine.skewLength), number("rowLength", combine.rowLength);
        number("rows", combine.rows), number("outputLength", combine.outputLength), number("half", combine.half);
        number("mirrorBase", combine.mirrorBase), number("outputStep", combine.outputStep);
        number("blockStride", combine.blockStride), place("source", combine.source);
        line(depth + 1, "FoldStep", step.head, {step.owned, step.children});
        place("table", step.table), kind(step.kind), number("skewLength", step.skewLength);
        number("length", step.length), number("reach", step.reach), number("inputStep", step.inputStep);
        number("subStep", step.subStep), number("count", step.count);
        number("parentSkewLength", step.parentSkewLength), number("outputStep", step.outputStep);
        if (step.kind == FoldKind::Split) split(depth + 2, *reinterpret_cast<const SkewSplit*>(listNth(step.owned, 0)));
    }

    // `lists` are in the order of the record. Each is described by its offset and those of its elements.
    void line(int depth, const char* name, const PlanHead& head, std::initializer_list<const PlanListNode*> lists) {
        if (depth > 0) out << "\n";
        out << std::string(static_cast<std::size_t>(2 * depth), ' ') << name << " @" << offset(&head) << " size "
            << head.size;
        if (head.arena.get() != root.head.arena.get()) out << " OTHER ARENA";
        for (const PlanListNode* list : lists) {
            out << " (" << offset(list) << ":";
            for (const PlanListNode* node = list; node != nullptr; node = node->next) {
                if (node->value != nullptr) out << " " << offset(node->value);
                if (node->arena.get() != root.head.arena.get()) out << " OTHER ARENA";
            }
            out << ")";
        }
    }

    template <class Kind>
    void kind(Kind value) {
        number("kind", static_cast<std::int32_t>(value));
    }
    void number(const char* name, std::int32_t value) { out << " " << name << " " << value; }
    void place(const char* name, const void* target) {
        out << " " << name << " ";
        if (target == nullptr) {
            out << "null";
        } else {
            out << "@" << offset(target);
        }
    }
    std::ptrdiff_t offset(const void* target) const {
        return static_cast<std::ptrdiff_t>(reinterpret_cast<std::uintptr_t>(target) -
                                           reinterpret_cast<std::uintptr_t>(&root));
    }

    const DctPlan& root;
    std::ostringstream out;
};

}  // namespace

std::string describe(const DctPlan& plan) { return Description(plan).text(); }

}  // namespace test
