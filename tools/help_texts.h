// The texts below the options in the help of each command.
#pragma once

namespace spectrum {

extern const char* const plainFooter;
extern const char* const transformFooter;
extern const char* const spectrogramFooter;
extern const char* const inverseFooter;
extern const char* const batchFooter;
extern const char* const mpiFooter;
extern const char* const clusterSummary;
extern const char* const layoutFooter;
extern const char* const infoFooter;
extern const char* const benchFooter;
extern const char* const completionFooter;

}  // namespace spectrum
