// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileops/EntrySwap.h"

#include "app/TLogger.h"
#include "engine/FilePathCodec.h"
#include "fileops/TFileDeleter.h"
#include "platform/FileLinks.h"
#include "platform/Platform.h"

namespace {

const QString kTag = QStringLiteral("[EntrySwap]: ");

std::string nativeOf(const QString &path)
{
    return FilePathCodec::encode(path).toStdString();
}

int renameNoReplace(const QString &from, const QString &to)
{
    bool crossDevice = false;
    return platform::current().renameNoReplace(nativeOf(from), nativeOf(to), crossDevice);
}

} // namespace

EntrySwap::Outcome EntrySwap::swap(const std::function<bool(const QString &)> &expected)
{
    m_error = platform::exchangeEntries(nativeOf(m_fresh), nativeOf(m_path));
    if (m_error == 0) {
        m_exchanged = true;
        m_displaced = m_fresh;
        if (expected(m_displaced))
            return Swapped;
        undo();
        return NotExpected;
    }
    if (!platform::exchangeUnsupported(m_error))
        return Failed;
    // No swap on this file system: for a moment the name is empty, and another program may
    // take it; the fresh entry then never goes over what it put there.
    m_exchanged = false;
    m_displaced = TFileDeleter::privateNameFor(m_path, QStringLiteral("replacing"));
    m_error = renameNoReplace(m_path, m_displaced);
    if (m_error != 0)
        return Failed;
    if (!expected(m_displaced)) {
        TFileDeleter::putBack(m_displaced, m_path, false);
        return NotExpected;
    }
    m_error = renameNoReplace(m_fresh, m_path);
    if (m_error != 0) {
        TFileDeleter::putBack(m_displaced, m_path, false);
        return Failed;
    }
    return Swapped;
}

QString EntrySwap::undo()
{
    if (m_exchanged) {
        const int error = platform::exchangeEntries(nativeOf(m_fresh), nativeOf(m_path));
        if (error == 0)
            return m_path;
        splog_d(kTag
            + QStringLiteral("Cannot swap %1 and %2 back: %3")
                  .arg(m_fresh, m_path, TFileDeleter::errorText(error)));
        return m_fresh;
    }
    const int error = renameNoReplace(m_path, m_fresh);
    if (error != 0) {
        splog_d(kTag
            + QStringLiteral("Cannot take %1 back to %2: %3")
                  .arg(m_path, m_fresh, TFileDeleter::errorText(error)));
    }
    return TFileDeleter::putBack(m_displaced, m_path, false);
}
