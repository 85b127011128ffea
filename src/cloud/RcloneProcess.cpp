// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/RcloneProcess.h"

#include "app/TLogger.h"

#include <algorithm>
#include <iterator>

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QHostAddress>
#include <QProcessEnvironment>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

namespace {

// The log tag of this file.
const QString kTag = QStringLiteral("[RcloneProcess]: ");

QByteArray randomToken()
{
    static const char alphabet[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    QByteArray token(32, Qt::Uninitialized);
    for (char &c : token)
        c = alphabet[QRandomGenerator::system()->bounded(int(sizeof(alphabet) - 1))];
    return token;
}

// A port the system gives out now; another program may take it before rclone binds it,
// which start() notices and answers with another try.
quint16 freePort()
{
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHost, 0))
        return 0;
    return probe.serverPort();
}

// rclone's own marks of a line that tells what went wrong.
bool isErrorLine(const QString &line)
{
    static const QLatin1String marks[] {QLatin1String("ERROR :"), QLatin1String("CRITICAL:"),
        QLatin1String("Failed to"), QLatin1String("Fatal error")};
    return std::any_of(std::begin(marks), std::end(marks),
        [&line](QLatin1String mark) { return line.contains(mark); });
}

constexpr const char *kInstallHint = "Install rclone %1.%2 or newer (Debian package \"rclone\").";

} // namespace

RcloneProcess::RcloneProcess(QObject *parent) : QObject(parent)
{
#ifdef Q_OS_LINUX
    // Not even a crash of the program may leave the daemon running with its port open.
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    connect(&m_process, &QProcess::readyReadStandardError, this, &RcloneProcess::readErrorLines);
    connect(&m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus) {
        if (m_stopping)
            return;
        const QString last = lastErrorLine();
        const QString reason = QStringLiteral("rclone stopped unexpectedly (exit code %1)%2")
                                   .arg(code)
                                   .arg(last.isEmpty() ? QString() : QStringLiteral(": ") + last);
        m_baseUrl = QUrl();
        splog_d(kTag + QStringLiteral("%1").arg(reason));
        emit died(reason);
    });
}

RcloneProcess::~RcloneProcess()
{
    stop();
}

QString RcloneProcess::resolvedProgram(const QString &program)
{
    if (!program.isEmpty())
        return program;
    const QString fromEnvironment = qEnvironmentVariable("VELTRINE_RCLONE");
    return fromEnvironment.isEmpty() ? QStringLiteral("rclone") : fromEnvironment;
}

QString RcloneProcess::whyUnavailable(const QString &program)
{
    const QString resolved = resolvedProgram(program);
    const QFileInfo info(resolved);
    const bool found = info.isAbsolute() ? info.isExecutable()
                                         : !QStandardPaths::findExecutable(resolved).isEmpty();
    if (found)
        return {};
    return QStringLiteral("Cloud drives are reached through the program rclone, which was not "
                          "found (\"%1\"). Install rclone (on Debian: apt install rclone) and "
                          "try again.")
        .arg(resolved);
}

QString RcloneProcess::checkVersion(const QString &program)
{
    QProcess version;
    version.start(program, {QStringLiteral("version")});
    if (!version.waitForStarted(10000))
        return QStringLiteral("rclone could not be started (%1): %2. %3")
            .arg(program, version.errorString(),
                QString::fromLatin1(kInstallHint).arg(kMinimumMajor).arg(kMinimumMinor));
    if (!version.waitForFinished(10000)) {
        version.kill();
        version.waitForFinished(1000);
        return QStringLiteral("rclone (%1) did not answer \"rclone version\".").arg(program);
    }
    const QString text = QString::fromUtf8(version.readAllStandardOutput());
    static const QRegularExpression number(QStringLiteral("rclone v(\\d+)\\.(\\d+)"));
    const QRegularExpressionMatch match = number.match(text);
    if (!match.hasMatch())
        return QStringLiteral(
            "%1 does not look like rclone: \"rclone version\" printed no version.")
            .arg(program);
    const int major = match.captured(1).toInt();
    const int minor = match.captured(2).toInt();
    if (major < kMinimumMajor || (major == kMinimumMajor && minor < kMinimumMinor))
        return QStringLiteral("rclone %1.%2 is too old. %3")
            .arg(major)
            .arg(minor)
            .arg(QString::fromLatin1(kInstallHint).arg(kMinimumMajor).arg(kMinimumMinor));
    return {};
}

void RcloneProcess::readErrorLines()
{
    m_partialLine += m_process.readAllStandardError();
    qsizetype end = 0;
    while ((end = m_partialLine.indexOf('\n')) >= 0) {
        const QString line = QString::fromUtf8(m_partialLine.left(end)).trimmed();
        m_partialLine.remove(0, end + 1);
        if (line.isEmpty())
            continue;
        m_lastLine = line;
        if (isErrorLine(line))
            m_lastErrorLine = line;
        // The OAuth sign-in of a remote being created tells where it waits.
        static const QLatin1String marker("go to the following link: ");
        if (const qsizetype at = line.indexOf(marker); at >= 0) {
            const QUrl link(line.mid(at + marker.size()).trimmed());
            if (link.isValid())
                emit signInLink(link);
        }
    }
}

QString RcloneProcess::lastErrorLine()
{
    readErrorLines();
    const QString partial = QString::fromUtf8(m_partialLine).trimmed();
    // A notice logged after the error (a retry, a shutdown step) does not say what went
    // wrong.
    if (isErrorLine(partial))
        return partial;
    if (!m_lastErrorLine.isEmpty())
        return m_lastErrorLine;
    return partial.isEmpty() ? m_lastLine : partial;
}

QString RcloneProcess::start(const RcloneSettings &settings)
{
    if (isRunning())
        return {};
    const QString program = resolvedProgram(settings.program);
    if (QString problem = checkVersion(program); !problem.isEmpty()) {
        splog_d(kTag + QStringLiteral("%1").arg(problem));
        return problem;
    }
    QDir().mkpath(QFileInfo(settings.configFile).absolutePath());
    m_partialLine.clear();
    m_lastLine.clear();
    m_lastErrorLine.clear();
    m_user = randomToken();
    m_password = randomToken();
    // Any local user can read a command line; the environment only its owner. The
    // remote-control settings of the user's own environment (no authentication, a job
    // expiry shorter than a poll) must not reach this daemon.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : environment.keys())
        if (name.startsWith(QLatin1String("RCLONE_RC_")))
            environment.remove(name);
    environment.insert(QStringLiteral("RCLONE_RC_USER"), QString::fromLatin1(m_user));
    environment.insert(QStringLiteral("RCLONE_RC_PASS"), QString::fromLatin1(m_password));
    m_process.setProcessEnvironment(environment);
    QString problem;
    // A few tries in case another program takes the free port first.
    for (int attempt = 0; attempt < 3; ++attempt) {
        const quint16 port = freePort();
        if (port == 0)
            return QStringLiteral("No free port on the loopback interface for rclone.");
        // An end while starting is a failure to start, answered by the return value.
        m_stopping = true;
        m_process.start(program,
            {QStringLiteral("rcd"), QStringLiteral("--rc-addr"),
                QStringLiteral("127.0.0.1:%1").arg(port), QStringLiteral("--config"),
                settings.configFile, QStringLiteral("--log-level"), QStringLiteral("NOTICE")});
        if (!m_process.waitForStarted(10000))
            return QStringLiteral("rclone could not be started (%1): %2")
                .arg(program, m_process.errorString());
        // Ready once the port takes connections.
        const QDeadlineTimer deadline(15000);
        while (!deadline.hasExpired() && m_process.state() == QProcess::Running) {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, port);
            if (socket.waitForConnected(200)) {
                m_baseUrl = QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(port));
                m_stopping = false;
                splog_d(kTag + QStringLiteral("rclone answers on port %1.").arg(port));
                return {};
            }
            m_process.waitForFinished(50);
        }
        if (m_process.state() == QProcess::Running) {
            m_process.kill();
            m_process.waitForFinished(3000);
            return QStringLiteral("rclone started but did not answer on its port.");
        }
        const QString last = lastErrorLine();
        problem = QStringLiteral("rclone failed to start%1")
                      .arg(last.isEmpty() ? QString() : QStringLiteral(": ") + last);
        if (!last.contains(QLatin1String("address already in use")))
            break;
    }
    splog_d(kTag + QStringLiteral("%1").arg(problem));
    return problem;
}

bool RcloneProcess::isRunning() const
{
    return m_process.state() != QProcess::NotRunning && m_baseUrl.isValid();
}

void RcloneProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_stopping = true;
    // rclone finishes its open transfers and removes its temporary files on SIGTERM.
    m_process.terminate();
    if (!m_process.waitForFinished(5000)) {
        m_process.kill();
        m_process.waitForFinished(2000);
    }
    m_baseUrl = QUrl();
}
