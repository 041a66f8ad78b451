// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FootageYard.h"

#include <QStandardPaths>
#include <QtTest>

namespace {

constexpr char path[] = "PATH";
constexpr char cacheHome[] = "XDG_CACHE_HOME";

} // namespace

FootageYard::FootageYard()
    : m_path(qgetenv(path)),
      m_cacheHome(qgetenv(cacheHome)),
      m_yard(Yard::Clips::Real)
{
    qputenv(cacheHome, QFile::encodeName(m_yard.folder().makeDir(QStringLiteral("cache"))));
    qputenv(path, QFile::encodeName(m_yard.folder().makeDir(QStringLiteral("no programs"))));
}

FootageYard::~FootageYard()
{
    qputenv(path, m_path);
    qputenv(cacheHome, m_cacheHome);
}

ProgramResult FootageYard::imported(const QString &file) const
{
    return m_yard.run("import", {file, QStringLiteral("--json")});
}

QJsonObject FootageYard::info(const QString &file, const QVector<int> &codes) const
{
    const ProgramResult result = m_yard.run("info", {file, QStringLiteral("--json")});
    const QVector<QJsonObject> objects = result.objects();
    if (codes.contains(result.code) && objects.size() == 1)
        return objects.first();
    QTest::qFail((file.toUtf8() + ": " + result.story()).constData(), __FILE__, __LINE__);
    return {};
}

QStringList FootageYard::reachable(const QStringList &programs)
{
    QStringList found;
    for (const QString &program : programs) {
        if (!QStandardPaths::findExecutable(program).isEmpty())
            found += program;
    }
    return found;
}
