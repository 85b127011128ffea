// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>
#include <QString>
#include <QStringList>

// The kinds of hash a cloud scan compares files by: those the services keep, in the order
// they are preferred, and the one computed here from a downloaded copy, after them. A
// listed file holds its kind as an index into that order.
class CloudHashKinds
{
public:
    // The hash kinds in the order they are preferred when a service offers several: the
    // cheapest for the service to give that still tells contents apart.
    static const QStringList &preferred();
    // The preferred kind among those offered; empty when none is known.
    static QString choose(const QJsonArray &offered);
    // The name of a kind by its index; indices past the services' kinds are the
    // downloaded kind.
    static QString name(int kind);
    // The kind of hash computed here from a downloaded copy, after the service's kinds.
    static const QString &downloaded();
};
