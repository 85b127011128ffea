// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QUrl>

// Where the rclone program and the remotes' configuration are.
struct RcloneSettings
{
    // Empty: $VELTRINE_RCLONE, else "rclone" from the search path.
    QString program;
    // The remotes' configuration; the program keeps its own in the data folder so that
    // the user's own rclone setup is never read or changed.
    QString configFile;
};

// The rclone daemon the cloud scans talk to: started on the loopback interface at a free
// port with a user and password made up for this run, so no other local program can
// drive it, and ended with this object.
class RcloneProcess : public QObject
{
    Q_OBJECT
public:
    // 1.55 brought operations/stat, which the removal checks need.
    static constexpr int kMinimumMajor = 1;
    static constexpr int kMinimumMinor = 55;

    explicit RcloneProcess(QObject *parent = nullptr);
    ~RcloneProcess() override;

    // Starts the daemon and waits until it answers; empty on success, else the reason in
    // words a user can act on.
    QString start(const RcloneSettings &settings);
    void stop();
    bool isRunning() const;

    QUrl baseUrl() const { return m_baseUrl; }
    QByteArray user() const { return m_user; }
    QByteArray password() const { return m_password; }
    qint64 processId() const { return m_process.processId(); }
    static QString resolvedProgram(const QString &program);
    // Empty when the program can be found; else why not, in words a user can act on.
    // Cheap: nothing is started.
    static QString whyUnavailable(const QString &program = {});

signals:
    // The daemon ended without being asked to.
    void died(const QString &reason);
    // A sign-in waits in the browser at this address (for when no browser opened).
    void signInLink(const QUrl &link);

private:
    QString checkVersion(const QString &program);
    QString lastErrorLine();
    void readErrorLines();

    QProcess m_process;
    QUrl m_baseUrl;
    QByteArray m_user;
    QByteArray m_password;
    bool m_stopping = false;
    QByteArray m_partialLine;
    QString m_lastLine;
    QString m_lastErrorLine;
};
