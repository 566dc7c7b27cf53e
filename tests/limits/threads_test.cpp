// Sixteen threads call every transform at the same time, each in an order of its own, on the same inputs and with
// destinations, buffers and plans of their own. Every result is that of one thread alone, bit for bit.
#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>

#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

constexpr int threads = 16, rounds = 10;

// A transform, its input and its result.
struct Task {
    const Transform* transform;
    // Calls it into memory of the caller's thread and tells whether the result is as it should be.
    std::function<bool()> isRight;
};

template <class Element>
Task taskOf(const Transform& transform, std::mt19937& random) {
    const Subject<Element> subject(transform, random);
    const auto source =
        std::make_shared<const std::vector<Element>>(randomElements<Element>(transform.sourceElements, random));
    const int flag = transform.flags()[random() % transform.flags().size()];
    const auto due = std::make_shared<const std::vector<Element>>(subject.run(*source, flag));
    return {&transform, [&transform, source, due, flag] {
                const auto call = callOf<Element>(transform);
                std::vector<Element> found(due->size());
                return call(source->data(), found.data(), flag) == StatusOk && sameBits(found, *due);
            }};
}

TEST(Threads, SixteenOverAllTransformsGiveTheBitsOfOne) {
    Seed seed;
    std::vector<Transform> transforms = allTransforms();
    std::erase_if(transforms, [](const Transform& transform) { return transform.length > 8192; });
    std::vector<Task> tasks;
    for (const Transform& transform : transforms) {
        tasks.push_back(transform.isSingle() ? taskOf<float>(transform, seed.random)
                                             : taskOf<double>(transform, seed.random));
    }
    std::atomic<int> calls = 0, wrong = 0;
    {
        std::vector<std::jthread> running;
        for (unsigned thread = 0; thread < threads; ++thread) {
            running.emplace_back([&, thread] {
                std::mt19937 random(thread);
                std::vector<const Task*> order;
                for (const Task& task : tasks) order.push_back(&task);
                for (int round = 0; round < rounds; ++round) {
                    std::ranges::shuffle(order, random);
                    for (const Task* task : order) {
                        ++calls;
                        wrong += !task->isRight();
                    }
                }
            });
        }
    }
    EXPECT_EQ(calls, rounds * threads * static_cast<int>(tasks.size()));
    EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace test
