// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TerminationSignalWatcher.h"

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace {

int g_sockets[2] = {-1, -1};
constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

void onSignal(int signalNumber)
{
    const unsigned char byte = static_cast<unsigned char>(signalNumber);
    [[maybe_unused]] const ssize_t written = ::write(g_sockets[0], &byte, 1);
}

} // namespace

void TerminationSignalWatcher::installHandlers()
{
    if (g_sockets[0] >= 0 || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, g_sockets) != 0)
        return;
    struct sigaction action = {};
    action.sa_handler = &onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signalNumber : kSignals)
        ::sigaction(signalNumber, &action, nullptr);
}

TerminationSignalWatcher::TerminationSignalWatcher(QObject *parent) : QObject(parent)
{
    installHandlers();
    if (g_sockets[1] < 0)
        return;
    m_notifier = new QSocketNotifier(g_sockets[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TerminationSignalWatcher::onReadable);
}

TerminationSignalWatcher::~TerminationSignalWatcher()
{
    for (int signalNumber : kSignals)
        ::signal(signalNumber, SIG_DFL);
    for (int &fd : g_sockets) {
        if (fd >= 0)
            ::close(fd);
        fd = -1;
    }
}

void TerminationSignalWatcher::onReadable()
{
    unsigned char byte = 0;
    if (::read(g_sockets[1], &byte, 1) == 1)
        emit terminationRequested(byte);
}
