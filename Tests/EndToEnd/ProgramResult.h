// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>
#include <QVector>

/// How a run of the program ended and what it said.
struct ProgramResult
{
    int code = -1; ///< Exit code; -1 when a signal ended it.
    QByteArray output;
    QByteArray errors;

    /// The whole lines of the output; one that was cut off is left out.
    [[nodiscard]] QList<QByteArray> lines() const;
    /// Each line as the JSON object that it must be; one that is none comes back empty.
    [[nodiscard]] QVector<QJsonObject> objects() const;
    /// The values of one key of the objects whose "event" is this one, in their order.
    [[nodiscard]] QStringList values(const char *event, const char *key) const;
    /// The last object.
    [[nodiscard]] QJsonObject summary() const;
    [[nodiscard]] bool said(const char *part) const { return errors.contains(part); }
    /// All of it, for the message of a failed test.
    [[nodiscard]] QByteArray story() const;
};

/// Fails the test function when the program ended with another code, and shows what it said.
#define VERIFY_CODE(result, expected)                                                              \
    do {                                                                                           \
        const ProgramResult verified = (result);                                                   \
        QVERIFY2(verified.code == (expected), verified.story().constData());                       \
    } while (false)
