// Replaces the platform's dynamic loading where a test must see the order of events. It records each call and gives the
// answers that the test has set.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace test {

struct RecordedLoading {
    bool present = true;
    std::map<std::string, const void*> symbols;
    std::vector<std::string> events;
    std::function<void()> atOpening = [] {};
    std::function<void()> atRelease = [] {};
};

extern RecordedLoading recordedLoading;

}  // namespace test
