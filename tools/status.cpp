// The words for each status. The message about a status that is not listed gives its number, so that it is of use with
// a newer library too.
#include "status.h"

namespace spectrum {

std::string statusText(ZulgStatus status) {
    switch (status) {
        case StatusOk: return "done";
        case StatusPlanKindError: return "the plan is of no known kind";
        case StatusSizeError: return "the library has no transform of this length or order";
        case StatusNullPointer: return "a required pointer is null";
        case StatusFlagError: return "the scale flag is none of 1, 2, 4, 8 (forward, backward, ortho, none)";
        default: return "the library answers with the unknown status " + std::to_string(status);
    }
}

}  // namespace spectrum
