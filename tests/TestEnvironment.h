// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

// Points the configuration and data locations at a fresh temporary folder before
// anything reads them, so a test never sees or changes the real user's files.
// Use it as a static object in the test's main translation unit.
class TestEnvironment
{
public:
    TestEnvironment()
    {
        qputenv("XDG_CONFIG_HOME", QByteArray(m_home.filePath("config").toUtf8()));
        qputenv("XDG_DATA_HOME", QByteArray(m_home.filePath("data").toUtf8()));
        qputenv("XDG_CACHE_HOME", QByteArray(m_home.filePath("cache").toUtf8()));
        qputenv("XDG_RUNTIME_DIR", QByteArray(m_home.path().toUtf8()));
    }
    QString path() const { return m_home.path(); }

private:
    QTemporaryDir m_home;
};
