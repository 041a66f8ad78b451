// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxWorkerLocation.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QTest>

namespace {

/// An installation whose engine library stands in lib/system.
struct Installation
{
    [[nodiscard]] QString add(const QString &name, bool isProgram = true) const
    {
        const QString path = dir.write(name);
        const auto rights = QFile::ReadOwner | QFile::WriteOwner;
        if (!QFile::setPermissions(path, isProgram ? rights | QFile::ExeOwner : rights))
            qFatal("the rights of %s cannot be set", qUtf8Printable(path));
        return path;
    }
    [[nodiscard]] NxResult<QString> find(const QString &variable = {}) const
    {
        return NxWorkerLocation::find(libraries, variable);
    }

    const NxTempDir dir;
    const QString libraries = dir.makeDir(QStringLiteral("lib/system"));
};

const QString Beside = QStringLiteral("lib/system/brevano-worker");
const QString Libexec = QStringLiteral("libexec/brevano/brevano-worker");
const QString LibexecOfLib = QStringLiteral("lib/libexec/brevano/brevano-worker");

} // namespace

class tst_NxWorkerLocation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theFirstPlaceThatHasItWins();
    void whatCannotBeRunIsNoWorker();
    void theErrorNamesEveryPlace();
    void theBuildHasOneBesideItsLibrary();
};

void tst_NxWorkerLocation::theFirstPlaceThatHasItWins()
{
    const Installation f;
    const QString own = f.add(QStringLiteral("own/worker"));
    QCOMPARE(f.find(own).take(), own);
    const QString libexec = f.add(Libexec);
    QCOMPARE(f.find(own).take(), libexec);
    const QString nearer = f.add(LibexecOfLib);
    QCOMPARE(f.find(own).take(), nearer);
    const QString beside = f.add(Beside);
    QCOMPARE(f.find(own).take(), beside);
    QCOMPARE(f.find().take(), beside);
}

void tst_NxWorkerLocation::whatCannotBeRunIsNoWorker()
{
    const Installation f;
    (void)f.add(Beside, false);
    (void)f.dir.makeDir(LibexecOfLib);
    const QString libexec = f.add(Libexec);
    QCOMPARE(f.find().take(), libexec);
}

void tst_NxWorkerLocation::theErrorNamesEveryPlace()
{
    const Installation f;
    const QString own = f.dir.filePath(QStringLiteral("own/worker"));
    const NxResult<QString> found = f.find(own);
    QVERIFY(!found);
    for (const QString &place : {f.dir.filePath(Beside), f.dir.filePath(Libexec), own})
        QVERIFY2(found.errorText().contains(place), qUtf8Printable(found.errorText()));
}

void tst_NxWorkerLocation::theBuildHasOneBesideItsLibrary()
{
    const Installation f;
    const QString own = f.add(QStringLiteral("own/worker"));
    qputenv("NX_WORKER", QFile::encodeName(own));
    NxResult<QString> found = NxWorkerLocation::find();
    qunsetenv("NX_WORKER");
    QVERIFY(found);
    const QString place = found.take();
    // Beside the library when the build has made it by now, else what the variable names.
    QVERIFY(place == own || place.endsWith(QLatin1String("/brevano-worker")));
}

NX_TEST_MAIN(tst_NxWorkerLocation)
#include "tst_NxWorkerLocation.moc"
