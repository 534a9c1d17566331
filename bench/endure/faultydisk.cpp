// Preloaded into the program: a disk that fails. Of what changes it below a folder, counted from 1, some
// fails or hangs:
//   FAULTY_FOLDERS  absolute paths, with ":" between them
//   FAULTY_FIRST, FAULTY_LAST  which; none when left out
//   FAULTY_ERROR    the error number; 0 hangs for a minute, and goes on
//   FAULTY_COUNT    a file that grows by a byte with each

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdlib>
#include <string>

#include <atomic>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace
{

constexpr unsigned hangSeconds = 60;

template<typename Function> Function *real(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

std::string setting(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

bool isBelow(const std::string &path)
{
    const std::string folders = setting("FAULTY_FOLDERS") + ':';
    for (size_t at = 0, end = 0; (end = folders.find(':', at)) != std::string::npos; at = end + 1) {
        if (end > at && path.compare(0, end - at, folders, at, end - at) == 0)
            return true;
    }
    return false;
}

bool isBelow(const char *path)
{
    return isBelow(std::string(path));
}

bool isBelow(int file)
{
    char path[PATH_MAX] = {};
    const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof path - 1);
    return length > 0 && isBelow(std::string(path));
}

void countOne()
{
    const int file = real<int(const char *, int, ...)>("open")(setting("FAULTY_COUNT").c_str(),
                                                               O_WRONLY | O_APPEND | O_CLOEXEC);
    if (file < 0)
        return;
    static_cast<void>(real<ssize_t(int, const void *, size_t)>("write")(file, "x", 1));
    close(file);
}

// Whether what is about to be done fails, with errno.
bool fails()
{
    static std::atomic<long> count = 0;
    const long number = ++count;
    countOne();
    if (number < std::atol(setting("FAULTY_FIRST").c_str()) ||
        number > std::atol(setting("FAULTY_LAST").c_str()))
        return false;
    errno = std::atoi(setting("FAULTY_ERROR").c_str());
    if (errno != 0)
        return true;
    sleep(hangSeconds);
    return false;
}

template<typename Place> bool failsAt(Place place)
{
    const int before = errno;
    if (isBelow(place) && fails())
        return true;
    errno = before;
    return false;
}

// What is there already is no change.
const char *newName(const char *path)
{
    return access(path, F_OK) == 0 ? "" : path;
}

bool makes(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

} // namespace

// The program's own calls come here first.
// NOLINTBEGIN(bugprone-macro-parentheses): a list of parameters is no expression
#define PASS_ON(result, name, place, parameters, arguments)                                                  \
    extern "C" result name parameters                                                                        \
    {                                                                                                        \
        return failsAt(place) ? -1 : real<result parameters>(#name) arguments;                               \
    }
// NOLINTEND(bugprone-macro-parentheses)

PASS_ON(ssize_t, write, file, (int file, const void *data, size_t size), (file, data, size))
PASS_ON(ssize_t, writev, file, (int file, const iovec *data, int count), (file, data, count))
PASS_ON(ssize_t, copy_file_range, to,
        (int from, off64_t *fromAt, int to, off64_t *toAt, size_t size, unsigned flags),
        (from, fromAt, to, toAt, size, flags))
PASS_ON(int, fsync, file, (int file), (file))
PASS_ON(int, fdatasync, file, (int file), (file))
PASS_ON(int, ftruncate64, file, (int file, off64_t size), (file, size))
PASS_ON(int, mkdir, newName(path), (const char *path, mode_t mode), (path, mode))
PASS_ON(int, rename, to, (const char *from, const char *to), (from, to))
PASS_ON(int, link, to, (const char *from, const char *to), (from, to))
PASS_ON(int, linkat, to, (int fromAt, const char *from, int toAt, const char *to, int flags),
        (fromAt, from, toAt, to, flags))
PASS_ON(int, renameat2, to, (int fromAt, const char *from, int toAt, const char *to, unsigned flags),
        (fromAt, from, toAt, to, flags))
PASS_ON(int, unlink, path, (const char *path), (path))
PASS_ON(int, remove, path, (const char *path), (path))

#define PASS_ON_OPEN(name)                                                                                   \
    extern "C" int name(const char *path, int flags, ...)                                                    \
    {                                                                                                        \
        va_list rest;                                                                                        \
        va_start(rest, flags);                                                                               \
        const mode_t mode = makes(flags) ? va_arg(rest, mode_t) : 0;                                         \
        va_end(rest);                                                                                        \
        return makes(flags) && failsAt(path) ? -1                                                            \
                                             : real<int(const char *, int, ...)>(#name)(path, flags, mode);  \
    }

PASS_ON_OPEN(open)
PASS_ON_OPEN(open64)
