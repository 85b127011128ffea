// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/InstalledFactory.h"
#include "cloud/DelParams.h"
#include "engine/DeleteResult.h"

#include <QList>
#include <QString>

class KvCloudObject;

// A removal of cloud files as KvCloudObject's delete calls run it. The file-operations
// layer implements it (CloudRemover: the checks, the journal and the calls that remove);
// a program that removes cloud files installs its factory at start. Without one the
// delete calls answer that this build cannot remove.
class CloudRemoval
{
public:
    using Factory = InstalledFactory<CloudRemoval, KvCloudObject *>;
    static void setFactory(Factory::Function factory) { Factory::install(factory); }
    static CloudRemoval *create(KvCloudObject *cloud) { return Factory::create(cloud); }

    virtual ~CloudRemoval() = default;
    // Starts a run over the groups; single: the one-file call (its own completion signal).
    virtual void start(const QList<DelParams> &groups, bool single) = 0;
    virtual bool isRunning() const = 0;
    // Every file not yet handled fails for this reason and the run ends at once.
    virtual void abort(const QString &reason, bool skipped) = 0;
    // What happened to each file of the last run, in the order asked.
    virtual QList<DeleteResult> lastResults() const = 0;
};
