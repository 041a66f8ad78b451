// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/preview/RenderModules.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QtTest>

class tst_RenderModules : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void onlyWhatRendersFilmsIsLoaded();
    void theInstalledOnesAreLoadedAsOftenAsYouLike();
    void withoutModulesItSaysSo();
};

void tst_RenderModules::onlyWhatRendersFilmsIsLoaded()
{
    const NxTempDir folder;
    for (const char *name : {"libmltcore.so", "libmltavformat.so", "libmltqt.so", "libmltsdl2.so",
                             "libmltavformatextra.so", "other.txt"})
        folder.write(QLatin1String(name));
    QCOMPARE(RenderModules::notNeeded(folder.path()),
             QByteArray("libmltavformatextra:libmltqt:libmltsdl2:"));
    QCOMPARE(RenderModules::notNeeded(folder.filePath(QStringLiteral("none"))), QByteArray());
}

void tst_RenderModules::theInstalledOnesAreLoadedAsOftenAsYouLike()
{
    for (int i = 0; i < 2; ++i) {
        const RenderModules modules;
        QVERIFY(modules.areLoaded());
    }
}

void tst_RenderModules::withoutModulesItSaysSo()
{
    const NxTempDir folder;
    const QByteArray before = qgetenv("MLT_REPOSITORY");
    qputenv("MLT_REPOSITORY", QFile::encodeName(folder.path()));
    const RenderModules modules;
    qputenv("MLT_REPOSITORY", before);
    QVERIFY(!modules.areLoaded());
}

NX_TEST_MAIN(tst_RenderModules)
#include "tst_RenderModules.moc"
