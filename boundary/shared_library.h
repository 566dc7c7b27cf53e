// Dynamic loading as the platform offers it, and the name of the allocator's companion on it. Used by the allocator
// hook alone; one source for each platform.
#pragma once

namespace zulg {

using SharedLibrary = void*;

SharedLibrary openCompanion();  // null if there is none
const void* findSymbol(SharedLibrary library, const char* name);
void releaseLibrary(SharedLibrary library);

}  // namespace zulg
