// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ProgramResult.h"

#include <QJsonDocument>

QList<QByteArray> ProgramResult::lines() const
{
    QList<QByteArray> all = output.split('\n');
    all.removeLast(); // Empty, or not whole.
    return all;
}

QVector<QJsonObject> ProgramResult::objects() const
{
    QVector<QJsonObject> result;
    const QList<QByteArray> all = lines();
    for (const QByteArray &line : all)
        result.append(QJsonDocument::fromJson(line).object());
    return result;
}

QStringList ProgramResult::values(const char *event, const char *key) const
{
    QStringList result;
    const QVector<QJsonObject> all = objects();
    for (const QJsonObject &object : all) {
        if (object.value(QLatin1String("event")).toString() == QLatin1String(event))
            result.append(object.value(QLatin1String(key)).toString());
    }
    return result;
}

QJsonObject ProgramResult::summary() const
{
    const QVector<QJsonObject> all = objects();
    return all.isEmpty() ? QJsonObject() : all.constLast();
}

QByteArray ProgramResult::story() const
{
    return "ended with " + QByteArray::number(code) + "\noutput:\n" + output.left(4000)
           + "\nerrors:\n" + errors.left(4000);
}
