// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectCopy.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include "StoreSamples.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>

using namespace StoreSamples;
using Progress = NxProjectCopy::Progress;

class tst_NxProjectCopy : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void growsUnderAnotherNameUntilItIsWhole();
    void anUnfinishedCopyIsRemoved();
    void aFileUnderTheFinalNameIsNotTouched();
    void aFileThatAppearsMeanwhileIsNotTouched();
    void everyFullDiskLeavesNothing();
    void aFolderThatIsNotThereIsAnError();

private:
    QScopedPointer<NxTempDir> m_folder;
    QString m_copies;
    QString m_target;
    QString m_part;
    std::unique_ptr<NxSqliteDatabase> m_source;
};

void tst_NxProjectCopy::init()
{
    m_source.reset();
    m_folder.reset(new NxTempDir);
    m_copies = m_folder->makeDir(QStringLiteral("copies"));
    m_target = m_copies + QLatin1String("/Copy.brevano");
    m_part = m_copies + QLatin1String("/part");
    const QString path = m_folder->filePath(QStringLiteral("Media.brevano"));
    makeProject(path, {addMedia(1, 40000)});
    auto source = NxSqliteDatabase::open(path, NxSqliteDatabase::Access::ReadOnly, nullptr);
    QVERIFY2(source, qUtf8Printable(source.errorText()));
    m_source = source.take();
}

void tst_NxProjectCopy::growsUnderAnotherNameUntilItIsWhole()
{
    NxProjectCopy copy(m_source.get(), m_target, m_part, nullptr);
    int steps = 0;
    Progress progress = Progress::More;
    while ((progress = copy.step()) == Progress::More) {
        QVERIFY(!QFileInfo::exists(m_target));
        QVERIFY(QFileInfo::exists(m_part));
        ++steps;
    }
    QCOMPARE(int(progress), int(Progress::Done));
    QVERIFY(steps >= 1);
    QCOMPARE(filesIn(m_copies).keys(), QStringList{QStringLiteral("Copy.brevano")});
    QCOMPARE(contentsOf(m_target).size(), 40001);
}

void tst_NxProjectCopy::anUnfinishedCopyIsRemoved()
{
    {
        NxProjectCopy copy(m_source.get(), m_target, m_part, nullptr);
        QCOMPARE(int(copy.step()), int(Progress::More));
        QVERIFY(QFileInfo::exists(m_part));
    }
    QVERIFY(filesIn(m_copies).isEmpty());
}

void tst_NxProjectCopy::aFileUnderTheFinalNameIsNotTouched()
{
    writeFile(m_target, "precious");
    {
        NxProjectCopy copy(m_source.get(), m_target, m_part, nullptr);
        QCOMPARE(int(copy.step()), int(Progress::Failed));
        QVERIFY(copy.error().message.contains(QLatin1String("is there already")));
    }
    QCOMPARE(filesIn(m_copies).size(), 1);
    QCOMPARE(readFile(m_target), QByteArray("precious"));
}

void tst_NxProjectCopy::aFileThatAppearsMeanwhileIsNotTouched()
{
    {
        NxProjectCopy copy(m_source.get(), m_target, m_part, nullptr);
        QCOMPARE(int(copy.step()), int(Progress::More));
        writeFile(m_target, "precious");
        Progress progress = Progress::More;
        while ((progress = copy.step()) == Progress::More) {}
        QCOMPARE(int(progress), int(Progress::Failed));
    }
    QCOMPARE(filesIn(m_copies).size(), 1);
    QCOMPARE(readFile(m_target), QByteArray("precious"));
}

void tst_NxProjectCopy::everyFullDiskLeavesNothing()
{
    NxFullDiskVfs disk;
    int refused = 0;
    for (int n = 1; n < 100000; n = n < 20 ? n + 1 : n * 2) {
        disk.fillAtWrite(n);
        Progress progress = Progress::More;
        {
            NxProjectCopy copy(m_source.get(), m_target, m_part, disk.name());
            while ((progress = copy.step()) == Progress::More) {}
            if (progress == Progress::Failed) {
                QVERIFY2(copy.error().message.endsWith(QLatin1String("the disk is full")),
                         qUtf8Printable(copy.error().message));
            }
        }
        if (progress == Progress::Done)
            break;
        QVERIFY(filesIn(m_copies).isEmpty());
        ++refused;
    }
    QVERIFY(refused > 20);
    QCOMPARE(filesIn(m_copies).keys(), QStringList{QStringLiteral("Copy.brevano")});
}

void tst_NxProjectCopy::aFolderThatIsNotThereIsAnError()
{
    const QString target = m_copies + QLatin1String("/none/Copy.brevano");
    NxProjectCopy copy(m_source.get(), target, m_copies + QLatin1String("/none/part"), nullptr);
    QCOMPARE(int(copy.step()), int(Progress::Failed));
    QVERIFY2(copy.error().message.startsWith(target), qUtf8Printable(copy.error().message));
}

NX_TEST_MAIN(tst_NxProjectCopy)
#include "tst_NxProjectCopy.moc"
