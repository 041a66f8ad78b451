// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Yard.h"

#include <QtTest>

Yard::Yard(Clips clips) : m_clips(clips), m_footage(m_folder.makeDir(QStringLiteral("footage"))) {}

QString Yard::clip(const QString &name, const QByteArray &content) const
{
    return m_folder.write(QStringLiteral("footage/") + name, content);
}

void Yard::manyClips(int folders, int files) const
{
    constexpr int digits = 3;
    const QLatin1Char zero('0');
    for (int folder = 0; folder < folders; ++folder) {
        for (int file = 0; file < files; ++file)
            clip(QStringLiteral("part %1/clip %2.mp4")
                     .arg(folder, digits, 10, zero)
                     .arg(file, digits, 10, zero));
    }
}

QString Yard::footage(const QString &name) const
{
    return m_footage + QLatin1Char('/') + name;
}

ProgramResult Yard::run(const char *command, const QStringList &rest) const
{
    QStringList words{QLatin1String(command), project()};
    if (words.constFirst() == QLatin1String("import") && m_clips == Clips::Named)
        words += QStringLiteral("--no-read");
    return ProgramRun::run(words + rest, m_folder.path());
}

QVector<QJsonObject> Yard::listed(const QStringList &rest) const
{
    const QStringList words{QStringLiteral("--json"), QStringLiteral("--sort=none"),
                            QStringLiteral("--group=none")};
    const ProgramResult result = run("list", words + rest);
    if (result.code != 0)
        QTest::qFail(result.story().constData(), __FILE__, __LINE__);
    return mediaOf(result);
}

QVector<QJsonObject> Yard::mediaOf(const ProgramResult &list)
{
    QVector<QJsonObject> media;
    const QVector<QJsonObject> rows = list.objects();
    for (const QJsonObject &row : rows) {
        if (row.value(QLatin1String("kind")) == QLatin1String("media"))
            media.append(row);
    }
    return media;
}

QStringList Yard::shown(const QStringList &rest) const
{
    QStringList result;
    const QVector<QJsonObject> all = listed(rest);
    for (const QJsonObject &media : all) {
        result.append(media.value(QLatin1String("folder")).toString() + QLatin1String(": ")
                      + media.value(QLatin1String("name")).toString());
    }
    return result;
}

QStringList Yard::paths() const
{
    QStringList result;
    const QVector<QJsonObject> all = listed();
    for (const QJsonObject &media : all)
        result.append(media.value(QLatin1String("path")).toString());
    return result;
}
