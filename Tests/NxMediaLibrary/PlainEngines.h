// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QString>
#include <QVector>

class INxAbstractMedia;

/// Sorting and grouping of media in the plainest way, for tests to compare the engines with. Keys
/// are the numbers that settings know; media are compared pair by pair, groups found by looking
/// through all of them.
namespace PlainEngines {

struct Group
{
    QString title;
    QList<INxAbstractMedia *> members;
};

[[nodiscard]] QList<INxAbstractMedia *> sorted(const QList<INxAbstractMedia *> &items, int key,
                                               bool descending);
[[nodiscard]] QVector<Group> grouped(const QList<INxAbstractMedia *> &items, int key,
                                     bool descending);

} // namespace PlainEngines
