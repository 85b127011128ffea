// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CrashSignalHandler.h"

#include <backward.hpp>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace CrashSignalHandler {

namespace {

    constexpr int kSignals[] = {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL, SIGSYS, SIGTRAP};
    // Symbolising with libdw needs far more stack than the default alternate stack gives.
    constexpr size_t kAltStackSize = 8 * 1024 * 1024;

    struct State
    {
        Setup setup;
        int reportFd = -1;
        FILE *reportFile = nullptr;
        std::vector<char> altStack;
        struct sigaction previous[sizeof(kSignals) / sizeof(kSignals[0])] = {};
        bool installed = false;
    };

    State &state()
    {
        static State instance;
        return instance;
    }

    void writeAll(int fd, const char *data, size_t size)
    {
        while (size > 0) {
            const ssize_t written = ::write(fd, data, size);
            if (written <= 0)
                return;
            data += written;
            size -= static_cast<size_t>(written);
        }
    }

    void writeText(int fd, const char *text)
    {
        writeAll(fd, text, std::strlen(text));
    }

    void writeNumber(int fd, long long value)
    {
        char digits[32];
        int length = 0;
        const bool negative = value < 0;
        unsigned long long magnitude = negative ? 0ULL - static_cast<unsigned long long>(value)
                                                : static_cast<unsigned long long>(value);
        do {
            digits[length++] = static_cast<char>('0' + magnitude % 10);
            magnitude /= 10;
        } while (magnitude > 0);
        if (negative)
            writeAll(fd, "-", 1);
        while (length > 0)
            writeAll(fd, &digits[--length], 1);
    }

    void copyLogFile(const State &s)
    {
        const int in = ::open(s.setup.logFile.c_str(), O_RDONLY);
        if (in < 0)
            return;
        const int out = ::open(s.setup.attachmentCopy.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (out >= 0) {
            char buffer[16384];
            ssize_t count;
            while ((count = ::read(in, buffer, sizeof(buffer))) > 0)
                writeAll(out, buffer, static_cast<size_t>(count));
            ::close(out);
        }
        ::close(in);
    }

    void onFatalSignal(int signo, siginfo_t *info, void *context)
    {
        State &s = state();
        const int fd = s.reportFd;
        if (fd >= 0) {
            writeText(fd, "release: ");
            writeText(fd, s.setup.release.c_str());
            writeText(fd, "\nsignal: ");
            writeNumber(fd, signo);
            writeText(fd, "\nfault_address: ");
            writeNumber(fd,
                static_cast<long long>(reinterpret_cast<intptr_t>(info ? info->si_addr : nullptr)));
            writeText(fd, "\ntimestamp: ");
            writeNumber(fd, static_cast<long long>(std::time(nullptr)));
            writeText(fd, "\nattachment: ");
            writeText(fd, s.setup.logFile.c_str());
            writeText(fd, "\n\n");

            backward::StackTrace trace;
            auto *uctx = static_cast<ucontext_t *>(context);
            void *errorAddress = nullptr;
#if defined(__x86_64__)
            errorAddress = reinterpret_cast<void *>(uctx->uc_mcontext.gregs[REG_RIP]);
#elif defined(__aarch64__)
            errorAddress = reinterpret_cast<void *>(uctx->uc_mcontext.pc);
#endif
            if (errorAddress)
                trace.load_from(errorAddress, 64, uctx, info ? info->si_addr : nullptr);
            else
                trace.load_here(64, uctx, info ? info->si_addr : nullptr);
            backward::Printer printer;
            printer.address = true;
            printer.color_mode = backward::ColorMode::never;
            printer.print(trace, s.reportFile);
            std::fflush(s.reportFile);
            ::fsync(fd);
        }
        copyLogFile(s);

        // Let the default action end the process with the same signal.
        ::signal(signo, SIG_DFL);
        ::raise(signo);
    }

} // namespace

bool install(const Setup &setup)
{
    State &s = state();
    if (s.installed)
        uninstall();
    s.setup = setup;
    s.reportFd = ::open(setup.reportPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (s.reportFd < 0)
        return false;
    s.reportFile = ::fdopen(s.reportFd, "w");
    if (!s.reportFile) {
        ::close(s.reportFd);
        s.reportFd = -1;
        return false;
    }

    s.altStack.assign(kAltStackSize, 0);
    stack_t stack {};
    stack.ss_sp = s.altStack.data();
    stack.ss_size = s.altStack.size();
    ::sigaltstack(&stack, nullptr);

    struct sigaction action = {};
    action.sa_sigaction = &onFatalSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_RESETHAND;
    sigemptyset(&action.sa_mask);
    for (size_t i = 0; i < sizeof(kSignals) / sizeof(kSignals[0]); ++i)
        ::sigaction(kSignals[i], &action, &s.previous[i]);
    s.installed = true;
    return true;
}

void uninstall()
{
    State &s = state();
    if (!s.installed)
        return;
    for (size_t i = 0; i < sizeof(kSignals) / sizeof(kSignals[0]); ++i)
        ::sigaction(kSignals[i], &s.previous[i], nullptr);
    std::fflush(s.reportFile);
    struct stat info = {};
    const bool empty = ::fstat(s.reportFd, &info) == 0 && info.st_size == 0;
    std::fclose(s.reportFile);
    s.reportFile = nullptr;
    s.reportFd = -1;
    if (empty)
        ::unlink(s.setup.reportPath.c_str());
    s.installed = false;
}

bool isInstalled()
{
    return state().installed;
}

} // namespace CrashSignalHandler
