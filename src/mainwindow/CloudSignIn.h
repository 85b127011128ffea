// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>

class MainWindow;
class QMessageBox;

// The cloud side of the window: signing in to a service from the add menu, the account
// whose folders are listed, the folder chooser after a sign-in, and the start and end of a
// cloud scan.
class CloudSignIn : public QObject
{
    Q_OBJECT
public:
    explicit CloudSignIn(MainWindow *window);

    bool isCloudMode() const { return m_cloudMode; }
    void setCloudMode(bool cloudMode) { m_cloudMode = cloudMode; }
    QString account() const { return m_cloudAccount; }
    // A pick of a service in the add menu: its folders, after a sign-in when needed.
    void pickService(int cloudType);
    // The chooser of the account's folders, after a sign-in; true when folders were added.
    bool chooseFolders(const QString &account, int cloudType);
    void startScan();
    // The groups the cloud scan found go into the store, selected as after a local scan.
    void finishScan(bool isAbort);
    bool wasStopped() const { return m_cloudStopped; }
    // The last cloud folder gone: local folders may come again.
    void leaveCloudMode();
    // A new scan: no account, no service.
    void reset();

private:
    void connectCloud();
    void showSignInBox(const QString &service);
    void closeSignInBox();

    MainWindow *m_window;
    bool m_cloudMode = false;
    QString m_cloudAccount;
    int m_cloudType = 0;
    // Set from a pick in the add menu until its sign-in answers; the box tells the user
    // to finish it in the browser and can give it up.
    bool m_signingIn = false;
    // Services whose folders could not be listed: the next pick signs in anew.
    QSet<int> m_newSignIn;
    QPointer<QMessageBox> m_signInBox;
    // The groups of the running cloud scan, and why it failed if it did.
    QHash<QString, QList<QString>> m_cloudGroups;
    QString m_cloudFailure;
    int m_cloudInteger = 20;
    // The last cloud scan was stopped or cut short.
    bool m_cloudStopped = false;
};
