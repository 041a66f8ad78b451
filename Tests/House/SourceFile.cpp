// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "SourceFile.h"

#include "CodeBlanker.h"

#include <QDirIterator>
#include <QFile>

#include <algorithm>

QString SourceFile::folder() const
{
    return path.left(std::max(0, path.lastIndexOf(QLatin1Char('/'))));
}

bool SourceFile::isHeader() const
{
    return path.endsWith(QLatin1String(".h"));
}

QString SourceFile::fault(int line, const QString &message) const
{
    return QStringLiteral("%1:%2: %3").arg(path, QString::number(line + 1), message);
}

SourceFile SourceFile::fromText(const QString &path, const QString &text)
{
    const QLatin1Char lineBreak('\n');
    return {path, text.split(lineBreak), CodeBlanker(text).blanked().split(lineBreak)};
}

QVector<SourceFile> SourceFile::readTree(const QString &root)
{
    QVector<SourceFile> files;
    QDirIterator walk(root, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        QFile file(walk.next());
        // A file that cannot be opened reads as empty, and the licence rule tells its name.
        const QString text =
            file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        files += fromText(QDir(root).relativeFilePath(file.fileName()), text);
    }
    std::sort(files.begin(), files.end(),
              [](const SourceFile &a, const SourceFile &b) { return a.path < b.path; });
    return files;
}
