#include "tovuutil/platform/detail/EntropySource.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>
#if defined(__linux__)
#include <sys/random.h>
#endif

namespace tovu {
namespace detail {

namespace {

// The device, for kernels without getrandom and for other POSIX hosts.
bool readDevice(unsigned char* buffer, std::size_t size)
{
    int const fd = open("/dev/urandom", O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    std::size_t done = 0;
    while (done < size) {
        ssize_t const got = read(fd, buffer + done, size - done);
        if (got > 0)
            done += static_cast<std::size_t>(got);
        else if (got == 0 || errno != EINTR)
            break;
    }
    close(fd);
    return done == size;
}

} // namespace

bool hostEntropy(unsigned char* buffer, std::size_t size)
{
#if defined(__linux__)
    std::size_t done = 0;
    while (done < size) {
        ssize_t const got = getrandom(buffer + done, size - done, 0);
        if (got > 0)
            done += static_cast<std::size_t>(got);
        else if (got < 0 && errno == EINTR)
            continue;
        else
            return readDevice(buffer, size);
    }
    return true;
#else
    return readDevice(buffer, size);
#endif
}

std::uint64_t hostProcessId() { return static_cast<std::uint64_t>(getpid()); }

} // namespace detail
} // namespace tovu
