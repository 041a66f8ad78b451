// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxFileLength.h>

#include "MovedProject.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxVBLEngine/Support/NxAsNobody.h>
#include <Support/NxTestMain.h>

#include <QTest>

/// Asked by a user who may not read everything.
class tst_NxFileLength_permissions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void filesWithoutPermissionHaveNone();
};

void tst_NxFileLength_permissions::filesWithoutPermissionHaveNone()
{
    MovedProject f;
    const NxFootageRecipe &recipe = NxFootageRecipes::all().front();
    QFile film(NxFootageSet::path(recipe));
    QVERIFY(film.open(QIODevice::ReadOnly));
    const QByteArray bytes = film.readAll();
    const QString open = f.footage.file(QStringLiteral("open/") + recipe.name, bytes);
    const QString shut = f.footage.file(QStringLiteral("shut/") + recipe.name, bytes);
    QVERIFY(QFile::setPermissions(shut, QFile::WriteOwner));
    NxAsNobody::give(f.root());
    const QString told = NxAsNobody::run([&] {
        NxFileLength length(f.settings);
        return QStringLiteral("%1 %2").arg(length.read(open)).arg(length.read(shut));
    });
    QCOMPARE(told, QStringLiteral("%1 -1").arg(recipe.truth.frames));
}

NX_TEST_MAIN(tst_NxFileLength_permissions)
#include "tst_NxFileLength_permissions.moc"
