// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QSocketNotifier;

// Turns SIGTERM, SIGINT and SIGHUP into an orderly quit of the event loop, so a
// session logout or a kill from a terminal still closes the crash reporter and saves
// the preferences. The handler only writes one byte to a socket; the rest happens on
// the GUI thread.
class TerminationSignalWatcher : public QObject
{
    Q_OBJECT
public:
    // Installs the handlers. Called first thing in main(): a signal that arrives before
    // the event loop runs waits in the socket and is acted on once the loop starts.
    static void installHandlers();

    explicit TerminationSignalWatcher(QObject *parent = nullptr);
    ~TerminationSignalWatcher() override;

signals:
    void terminationRequested(int signalNumber);

private:
    void onReadable();

    QSocketNotifier *m_notifier = nullptr;
};
