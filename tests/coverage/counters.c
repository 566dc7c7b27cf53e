// Linked into what is measured, with the linker's --wrap for each routine below. Tests kill programs and give them
// limits, and a file of counters that is cut off takes no counts of any later program. So counters are written by a
// child that no limit and no signal to the program reaches; also where a program ends without the end of main.
#include <signal.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

void __gcov_dump(void);
_Noreturn void __real__exit(int status);
_Noreturn void __real_abort(void);
int __real_raise(int number);

static void lift(int kind) {
    struct rlimit limit;
    getrlimit(kind, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(kind, &limit);
}

static void write_counters(void) {
    sigset_t all, before;
    sigfillset(&all);
    sigprocmask(SIG_SETMASK, &all, &before);
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        lift(RLIMIT_FSIZE);
        lift(RLIMIT_AS);
        __gcov_dump();
        __real__exit(0);
    }
    waitpid(child, NULL, 0);
    sigprocmask(SIG_SETMASK, &before, NULL);
}

// Every object calls it when the program ends.
void __wrap___gcov_exit(void) {
    static int is_done;
    if (is_done) return;
    is_done = 1;
    write_counters();
}

_Noreturn void __wrap__exit(int status) {
    write_counters();
    __real__exit(status);
}

_Noreturn void __wrap_abort(void) {
    write_counters();
    __real_abort();
}

int __wrap_raise(int number) {
    write_counters();
    return __real_raise(number);
}
