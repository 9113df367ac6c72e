/* Preloaded, makes a function of the C library fail, with files that are written: FAULT_CALL which, FAULT_ERRNO with
   which error, FAULT_COUNT from which call on; of open64, calls for files without a name. FAULT_RUN, a command, is run
   before that call instead. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <pthread.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

static int fails(const char* call, int descriptor)
{
    static int count;
    const char* wanted = getenv("FAULT_CALL");
    const char* nth = getenv("FAULT_COUNT");
    const char* command = getenv("FAULT_RUN");
    struct stat info;
    if (!wanted || strcmp(wanted, call) != 0) {
        return 0;
    }
    if (descriptor >= 0
        && (fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)
            || (fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDONLY)) {
        return 0;
    }
    if (++count < (nth ? atoi(nth) : 1)) {
        return 0;
    }
    if (command) {
        unsetenv("FAULT_CALL");
        if (system(command) != 0) {
            abort();
        }
        return 0;
    }
    errno = atoi(getenv("FAULT_ERRNO"));
    return 1;
}

#define REAL(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))
#define CALL(name, descriptor, parameters, arguments)                                                                  \
    int name parameters                                                                                                \
    {                                                                                                                  \
        return fails(#name, descriptor) ? -1 : REAL(name) arguments;                                                   \
    }

CALL(fsync, descriptor, (int descriptor), (descriptor))
CALL(fchmod, descriptor, (int descriptor, mode_t mode), (descriptor, mode))
CALL(fchown, descriptor, (int descriptor, uid_t owner, gid_t group), (descriptor, owner, group))
CALL(rename, -1, (const char* from, const char* to), (from, to))
CALL(linkat, -1, (int from_directory, const char* from, int to_directory, const char* to, int flags),
     (from_directory, from, to_directory, to, flags))
CALL(pthread_create, -1, (pthread_t * thread, const pthread_attr_t* attributes, void* (*run)(void*), void* argument),
     (thread, attributes, run, argument))

int close(int descriptor)
{
    const int failed = fails("close", descriptor); /* closed it is, as on Linux */
    const int error = errno;
    const int result = REAL(close)(descriptor);
    if (failed) {
        errno = error;
        return -1;
    }
    return result;
}

ssize_t write(int descriptor, const void* bytes, size_t size)
{
    return fails("write", descriptor) ? -1 : REAL(write)(descriptor, bytes, size);
}

int open64(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return (flags & O_TMPFILE) == O_TMPFILE && fails("open64", -1) ? -1 : REAL(open64)(path, flags, mode);
}
