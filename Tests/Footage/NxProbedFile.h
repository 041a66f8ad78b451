// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxRational.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <optional>

/// What the ffprobe program says of a file: a second witness of what the recipes promise.
class NxProbedFile
{
public:
    /// A picture of a film, in the order in which they are shown.
    struct Frame
    {
        std::optional<qint64> timeUs; ///< From the first one on; the last of a stream may lack it.
        bool isKey = false;
    };

    /// Reads and decodes the whole file; fails the test function when ffprobe does.
    explicit NxProbedFile(const QString &path);

    /// The first stream of a kind that is no attached picture, or is one; empty when there is
    /// none.
    [[nodiscard]] QJsonObject stream(const char *kind, bool isAttached = false) const;
    [[nodiscard]] QVector<Frame> frames() const;
    /// Degrees clockwise.
    [[nodiscard]] int rotation() const;
    /// The first of these tags that the container or one of its streams has, small letters or
    /// not; empty when there is none.
    [[nodiscard]] QString tag(const QStringList &names) const;
    [[nodiscard]] double containerSeconds() const;

    [[nodiscard]] static NxRational rational(const QJsonValue &value, char separator = '/');

private:
    QJsonObject m_answer;
};
