// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/MediaResolver.h>

#include <Brevano/commands/Console.h>
#include <Brevano/commands/Sections.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxFolderPath.h>

#include <QDir>
#include <QFileInfo>

namespace {

QString placeOf(const INxAbstractMedia *media)
{
    const INxFolderMedia *folder = media->parentFolder();
    const QString path = NxFolderPath::of(folder);
    const QString section = Sections::wordOf(folder ? folder->owner() : nullptr);
    const QString where = path.isEmpty() ? QStringLiteral("section %1").arg(section)
                                         : QStringLiteral("%1 (%2)").arg(path, section);
    return where + QLatin1String(": ") + media->sourcePath();
}

QStringList ambiguity(const QString &name, const QVector<INxAbstractMedia *> &found)
{
    QStringList lines{QStringLiteral("%1: %2 media have this name; tell which by its path")
                          .arg(name)
                          .arg(found.size())};
    for (const INxAbstractMedia *media : found)
        lines.append(placeOf(media));
    return lines;
}

} // namespace

MediaResolver::MediaResolver(const QList<INxFolderMedia *> &sections) : m_sections(sections) {}

bool MediaResolver::isPath(const QString &word)
{
    return word.contains(QLatin1Char('/')) || word.contains(QDir::separator());
}

MediaResolver::Answer MediaResolver::resolve(const ProgramArguments &words)
{
    Answer answer;
    for (const ProgramArgument &word : words) {
        const QVector<INxAbstractMedia *> found =
            word.isText ? find(word.text) : QVector<INxAbstractMedia *>();
        if (found.isEmpty())
            answer.complaints.append(
                {QStringLiteral("%1: the project has no such media").arg(word.text)});
        else if (found.size() > 1)
            answer.complaints.append(ambiguity(word.text, found));
        else if (!answer.media.contains(found.constFirst()))
            answer.media.append(found.constFirst());
    }
    return answer;
}

QVector<INxAbstractMedia *> MediaResolver::find(const QString &word)
{
    if (!isPath(word))
        return findName(word);
    INxAbstractMedia *media = findPath(word);
    return media ? QVector<INxAbstractMedia *>{media} : QVector<INxAbstractMedia *>();
}

INxAbstractMedia *MediaResolver::findPath(const QString &path) const
{
    const QFileInfo info(QDir::fromNativeSeparators(path));
    const QString absolute = QDir::cleanPath(info.absoluteFilePath());
    const QStringList spellings{absolute, info.canonicalFilePath()};
    for (const QString &spelling : spellings) {
        for (const INxFolderMedia *section : m_sections) {
            INxAbstractMedia *media =
                spelling.isEmpty() ? nullptr : section->findMediaByPath(spelling, true);
            if (media)
                return media;
        }
    }
    return nullptr;
}

QVector<INxAbstractMedia *> MediaResolver::findName(const QString &name)
{
    if (m_byName.isEmpty()) {
        for (const INxFolderMedia *section : m_sections) {
            const QList<INxAbstractMedia *> items = section->items(true, true);
            for (INxAbstractMedia *item : items)
                m_byName[item->name()].append(item);
        }
    }
    return m_byName.value(name);
}

bool MediaResolver::isUnderstood(const Answer &answer, Console *console)
{
    for (const QStringList &complaint : answer.complaints) {
        console->note(complaint.constFirst());
        for (const QString &detail : complaint.mid(1))
            console->detail(detail);
    }
    return answer.complaints.isEmpty();
}
