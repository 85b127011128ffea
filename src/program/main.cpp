// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppIdentity.h"
#include "app/BuildSettings.h"
#include "app/CrashReporter.h"
#include "app/DataDirectory.h"
#include "app/LanguageSetup.h"
#include "app/SettingsKeys.h"
#include "app/TLogger.h"
#include "app/TerminationSignalWatcher.h"
#include "fileops/CloudRemover.h"
#include "mainwindow/MainWindow.h"
#include "pictures/ImageCompareStage.h"
#include "platform/Platform.h"

#include <cstdio>

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QScreen>
#include <QSettings>

namespace {

// The log tags of this file.
const QString kSentryTag = QStringLiteral("[sentry]: ");
const QString kTag = QStringLiteral("[Main]: ");

QString crashReportingDsn()
{
    const QByteArray fromEnvironment = qgetenv("VELTRINE_SENTRY_DSN");
    return fromEnvironment.isEmpty() ? QStringLiteral(VELTRINE_SENTRY_DSN)
                                     : QString::fromUtf8(fromEnvironment);
}

void logReporterMessage(const char *format, va_list args)
{
    char buffer[1024];
    std::vsnprintf(buffer, sizeof(buffer), format, args);
    splog_d(kSentryTag + QStringLiteral("%1").arg(QString::fromUtf8(buffer)));
}

void startCrashReporting(const QString &base)
{
    const QString logDirectory = base + QStringLiteral("/Log");
    CrashReporterOptions options;
    options.dsn = crashReportingDsn();
    options.databasePath = base + QStringLiteral("sentrydb");
    options.release = AppIdentity::version;
    options.systemCrashReporter = true;
    options.debug = true;
    options.handlerPath
        = QDir::toNativeSeparators(QString::fromStdString(platform::current().executableDir())
            + QStringLiteral("/crashpad_handler"));
    options.logger = &logReporterMessage;
    options.attachments << logDirectory + QStringLiteral("/log_")
            + QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(".log");
    if (CrashReporter::init(options) != 0)
        splog_d(kTag + QStringLiteral("sentry_init failed!"));
    else
        splog_d(kTag + QStringLiteral("sentry SDK initialized successfully"));
}

void applyStyleSheet(QApplication &app)
{
    QFile style(QStringLiteral(":resource/Style.qss"));
    if (style.open(QIODevice::ReadOnly))
        app.setStyleSheet(QString::fromUtf8(style.readAll()));
}

void placeWindow(QWidget &window)
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize size = window.size();
    // Centred on the available area's size, not its origin: kept on purpose.
    if (size.width() <= available.width() && size.height() <= available.height())
        window.move(
            (available.width() - size.width()) / 2, (available.height() - size.height()) / 2);
    else
        window.setWindowState(window.windowState() | Qt::WindowMinimized);
}

} // namespace

int main(int argc, char *argv[])
{
    TerminationSignalWatcher::installHandlers();
    const QString base = DataDirectory::base();
    QDir().mkpath(base + QStringLiteral("sentrydb"));
    QDir().mkpath(base + QStringLiteral("Log"));
    initLogger(base);
    splog_d(kTag + QStringLiteral("The program is starting to run [%1]").arg(AppIdentity::version)
        + QString(62, QLatin1Char('.')));
    startCrashReporting(base);

    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QT_WARNING_POP

    int exitCode = 0;
    {
        QApplication app(argc, argv);
        CrashReporter::sendPending();
        applyStyleSheet(app);

        QSettings settings(AppIdentity::organizationName, AppIdentity::applicationName);
        LanguageSetup::setupLanguage(settings.value(SettingsKeys::language, 1).toInt());
        QCoreApplication::installTranslator(&LanguageSetup::appTranslator());
        QCoreApplication::installTranslator(&LanguageSetup::qtTranslator());

        TerminationSignalWatcher termination;
        QObject::connect(&termination, &TerminationSignalWatcher::terminationRequested, &app,
            [](int signalNumber) {
                splog_d(kTag + QStringLiteral("Signal %1 received, closing").arg(signalNumber));
                QCoreApplication::quit();
            });

        ImageCompareStage::install();
        CloudRemover::install();
        auto *window = new MainWindow(app.arguments());
        placeWindow(*window);
        window->show();
        exitCode = app.exec();

        CrashReporter::close();
        delete window;
    }
    splog_d(kTag + QStringLiteral("The program exited with code %1").arg(exitCode));
    return exitCode;
}
