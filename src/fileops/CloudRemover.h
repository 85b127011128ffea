// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/CloudFile.h"
#include "cloud/CloudRemoval.h"
#include "fileops/RemovalJournal.h"

#include <functional>
#include <memory>

#include <QObject>
#include <QStringList>

// Removes cloud files for KvCloudObject, one at a time: a file goes only while the copy
// that stays is still there with the content the scan saw (and the file itself too),
// each step written to the removal journal first. Reports through the cloud object's
// signals.
class CloudRemover : public QObject, public CloudRemoval
{
    Q_OBJECT
public:
    // Makes every KvCloudObject remove through this class.
    static void install();

    explicit CloudRemover(KvCloudObject *cloud);
    ~CloudRemover() override;

    void start(const QList<DelParams> &groups, bool single) override;
    bool isRunning() const override { return m_run != nullptr; }
    void abort(const QString &reason, bool skipped) override;
    QList<DeleteResult> lastResults() const override { return m_lastResults; }

private:
    struct Run;

    // The files not yet handled, all failed for one reason (rclone gone, stopped).
    void failRest(const QString &reason, bool skipped);
    void removeNext();
    void removeChecked(
        const QString &file, const CloudFile &item, const CloudFile &kept, const QString &keep);
    void finish();
    void failed(const QString &file, const QString &reason, bool skipped);
    // Looks at a file again: next gets an empty text when it is as the scan saw it.
    void check(const CloudFile &seen, std::function<void(const QString &problem)> next);

    KvCloudObject *m_cloud;
    std::unique_ptr<Run> m_run;
    QList<DeleteResult> m_lastResults;
};
