// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxFolderPath.h>

#include <NxVBLModel/INxFolderMedia.h>

namespace {

constexpr QLatin1Char Separator('/');
constexpr QLatin1Char Escape('\\');

QString escaped(const QString &name)
{
    QString text = name;
    text.replace(Escape, QLatin1String("\\\\"));
    text.replace(Separator, QLatin1String("\\/"));
    return text;
}

INxFolderMedia *childNamed(const INxFolderMedia *folder, const QString &name)
{
    const QList<INxFolderMedia *> children = folder->childFolders();
    for (INxFolderMedia *child : children) {
        if (child->name() == name)
            return child;
    }
    return nullptr;
}

} // namespace

QString NxFolderPath::of(const INxFolderMedia *folder)
{
    QStringList names;
    for (; folder && folder->depth() > 1; folder = folder->parentFolder())
        names.prepend(folder->name());
    return join(names);
}

QString NxFolderPath::join(const QStringList &names)
{
    QStringList parts;
    for (const QString &name : names)
        parts.append(escaped(name));
    return parts.join(Separator);
}

QStringList NxFolderPath::split(const QString &path)
{
    QStringList names;
    QString name;
    const auto endName = [&names, &name] {
        name = name.trimmed();
        if (!name.isEmpty())
            names.append(name);
        name.clear();
    };
    for (int i = 0; i < path.size(); ++i) {
        const bool isEscape = path.at(i) == Escape && i + 1 < path.size();
        if (path.at(i) == Separator)
            endName();
        else
            name.append(isEscape ? path.at(++i) : path.at(i));
    }
    endName();
    return names;
}

INxFolderMedia *NxFolderPath::find(INxFolderMedia *section, const QString &path)
{
    INxFolderMedia *folder = section;
    const QStringList names = split(path);
    for (const QString &name : names) {
        folder = folder ? childNamed(folder, name) : nullptr;
    }
    return folder;
}
