// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

#include <initializer_list>

/// Lines to compare with what was noted down.
inline QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}
