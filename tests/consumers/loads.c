/* A program that knows of the library only when it runs: loads LIBRARY and asks for routines by name and, on 32-bit
   Windows, where that is promised, by ordinal. It ends with the code 42. */
#include <stdint.h>

#ifdef _WIN32
#include <windows.h>
typedef HMODULE Library;
static Library load(const char* file) { return LoadLibraryA(file); }
static void* find(Library library, const char* name) { return (void*)(uintptr_t)GetProcAddress(library, name); }
#else
#include <dlfcn.h>
typedef void* Library;
static Library load(const char* file) { return dlopen(file, RTLD_NOW | RTLD_LOCAL); }
static void* find(Library library, const char* name) { return dlsym(library, name); }
#endif

#if defined(_WIN32) && !defined(_WIN64)
#define CALL __stdcall
#else
#define CALL
#endif
typedef int32_t(CALL* Transform)(const double*, double*, int32_t);

int main(void) {
    double x[2] = {1, 2};
    const Library library = load(LIBRARY);
    Transform hartley;
    if (!library) return 1;
    hartley = (Transform)(uintptr_t)find(library, "zulgHartley_2_64f");
    if (!hartley || hartley(x, x, 8) != 0 || x[0] != 3 || x[1] != -1) return 2;
    if (find(library, "zulgHartley_65_64f")) return 3;
#ifdef ORDINAL
    if (find(library, (const char*)(uintptr_t)ORDINAL) != (void*)(uintptr_t)hartley) return 4;
#endif
    return 42;
}
