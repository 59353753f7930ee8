#include "StandardStreams.h"

#include <tovuutil/tovuutil.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>

#include "Terminal.h"

#if defined(__ELF__)
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#define TOVU_EARLY_START 1
#endif

namespace tovu::cli {

namespace {

#ifdef TOVU_EARLY_START

int savedStdout = -1; // the caller's standard output while the library starts
int caught = -1;      // what the library wrote to standard output meanwhile
int callerDirectory = -1;

void say(char const* text) { (void)!write(2, text, std::strlen(text)); }

// Runs before any shared library's initialisers, with the process' arguments.
void beforeLibraries(int argc, char** argv, char**)
{
    for (int fd = 0; fd < 3; ++fd)
        if (fcntl(fd, F_GETFD) == -1) {
            // Takes the lowest free descriptor: fd itself. Read-only, so
            // that writes to a closed standard output still fail (EBADF),
            // and taken, so that no file opened later becomes one of them.
            (void)open("/dev/null", O_RDONLY);
        }
    savedStdout = fcntl(1, F_DUPFD_CLOEXEC, 3);
    caught = memfd_create("tovu-startup", MFD_CLOEXEC);
    if (savedStdout != -1)
        dup2(caught != -1 ? caught : 2, 1);

    if (argc >= 3 && std::strcmp(argv[1], "--log-dir") == 0) {
        callerDirectory = open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (callerDirectory == -1 || chdir(argv[2]) != 0) {
            int const error = errno;
            say("tovu: --log-dir: ");
            say(argv[2]);
            say(": ");
            say(std::strerror(error));
            say("\n");
            _exit(kInvalid);
        }
    }
}

__attribute__((section(".preinit_array"), used)) void (*const kBeforeLibraries)(int, char**, char**) = beforeLibraries;

void passOnCaughtLines()
{
    if (caught == -1)
        return;
    std::string text;
    char buffer[4096];
    lseek(caught, 0, SEEK_SET);
    for (ssize_t n; (n = read(caught, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<std::size_t>(n));
    close(caught);
    err() << toTerminal(text) << std::flush;
}

// The homes the library took from the start-up directory move with the
// caller back to the caller's directory; the log home stays.
void returnToCallerDirectory()
{
    auto* system = static_cast<SystemPropertiesService*>(UtilServiceFactory::getService(0));
    std::string const logHome = system != nullptr ? system->getLogHome() : std::string();
    if (fchdir(callerDirectory) != 0)
        return;
    close(callerDirectory);
    if (system == nullptr)
        return;
    std::string const here = getCurrentDirectory();
    if (system->getIniHome() == logHome)
        system->setIniHome(here);
    if (system->getTempHome() == logHome)
        system->setTempHome(here);
    if (system->getDataHome() == logHome)
        system->setDataHome(here);
    if (system->getTovuHome() == logHome)
        system->setTovuHome(here);
    system->setSystemProperty(PROPERTY_CURRENT_HOME, formatPath(here));
}

#endif

} // namespace

bool finishStartup()
{
#ifdef TOVU_EARLY_START
    std::fflush(stdout);
    if (savedStdout != -1) {
        dup2(savedStdout, 1);
        close(savedStdout);
    }
    passOnCaughtLines();
    if (callerDirectory != -1) {
        returnToCallerDirectory();
        return true;
    }
#endif
    return false;
}

} // namespace tovu::cli
