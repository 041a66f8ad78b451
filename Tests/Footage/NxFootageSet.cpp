// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageSet.h"

#include "NxFootageMaker.h"
#include "NxFootageRecipes.h"

#include <QDir>
#include <QLockFile>

namespace NxFootageSet {

namespace {

/// Only one process at a time works in the place, so all else in it is what somebody left there.
void removeLeftovers(const QDir &place)
{
    const QStringList names = place.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names)
        QDir(place.filePath(name)).removeRecursively();
}

NxResult<QString> makeLocked(const QDir &place, const QString &version,
                             const std::vector<NxFootageRecipe> &recipes)
{
    const QString whole = place.filePath(version);
    if (QDir(whole).exists())
        return whole;
    removeLeftovers(place);
    const QString part = whole + QStringLiteral(".part");
    if (!place.mkpath(part))
        return NxError{part + QStringLiteral(": the folder cannot be made")};
    if (const NxResult<void> made = NxFootageMaker::makeAll(recipes, part); !made)
        return made.error();
    if (!QDir().rename(part, whole))
        return NxError{whole + QStringLiteral(": the folder cannot be named so")};
    return whole;
}

} // namespace

NxResult<QString> make(const QString &place, const std::vector<NxFootageRecipe> &recipes)
{
    const QString version = NxFootageRecipes::version(recipes);
    const QDir directory(place);
    if (directory.exists(version))
        return directory.filePath(version);
    if (!directory.mkpath(QStringLiteral(".")))
        return NxError{place + QStringLiteral(": the folder cannot be made")};
    QLockFile lock(directory.filePath(QStringLiteral("lock")));
    lock.setStaleLockTime(0); // However long it takes; a process that died holds none.
    if (!lock.lock())
        return NxError{place + QStringLiteral(": the folder cannot be locked")};
    return makeLocked(directory, version, recipes);
}

QString folder()
{
    static const QString made = [] {
        const NxResult<QString> result =
            make(QStringLiteral(NX_FOOTAGE_DIR), NxFootageRecipes::all());
        if (!result)
            qFatal("no footage: %s", qUtf8Printable(result.errorText()));
        return *result;
    }();
    return made;
}

QString path(const NxFootageRecipe &recipe)
{
    return folder() + QLatin1Char('/') + recipe.name;
}

} // namespace NxFootageSet
