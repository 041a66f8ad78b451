// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaImporter.h>

#include <Support/NxTestMain.h>

#include <QSignalSpy>
#include <QTest>

#include "memoryengine.h"

namespace {

class PlainImporter final : public INxMediaImporter
{
public:
    quint64 start(INxFolderMedia *, const QStringList &, int) override { return 0; }
    void cancel(quint64) override {}
    QList<INxAbstractMediaItem *> addNow(INxFolderMedia *, const QStringList &,
                                         NxImportReport *) override
    {
        return {};
    }
};

} // namespace

class tst_INxMediaImporter : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void itsSignalsCanBeRecorded();
    void itsSignalsCanBeQueued();
    void isAChildOfItsParent();
};

void tst_INxMediaImporter::itsSignalsCanBeRecorded()
{
    PlainImporter importer;
    MemoryMedia media(QStringLiteral("a.mp4"));
    const QSignalSpy progress(&importer, &INxMediaImporter::progress);
    const QSignalSpy added(&importer, &INxMediaImporter::added);
    const QSignalSpy finished(&importer, &INxMediaImporter::finished);
    NxImportReport report;
    report.added = 1;

    Q_EMIT importer.progress(7, 3, 2, 1);
    Q_EMIT importer.added(7, {&media});
    Q_EMIT importer.finished(7, report);

    QCOMPARE(progress.first(), (QVariantList{quint64(7), qint64(3), qint64(2), qint64(1)}));
    QCOMPARE(added.first().at(1).value<QList<INxAbstractMediaItem *>>(),
             QList<INxAbstractMediaItem *>{&media});
    QCOMPARE(finished.first().at(1).value<NxImportReport>().added, qint64(1));
}

void tst_INxMediaImporter::itsSignalsCanBeQueued()
{
    PlainImporter importer;
    MemoryMedia media(QStringLiteral("a.mp4"));
    QList<INxAbstractMediaItem *> heard;
    connect(
        &importer, &INxMediaImporter::added, this,
        [&heard](quint64, const QList<INxAbstractMediaItem *> &items) { heard = items; },
        Qt::QueuedConnection);
    Q_EMIT importer.added(1, {&media});
    QVERIFY(heard.isEmpty());
    QTRY_COMPARE(heard, QList<INxAbstractMediaItem *>{&media});
}

void tst_INxMediaImporter::isAChildOfItsParent()
{
    struct Child final : INxMediaImporter
    {
        explicit Child(QObject *owner) : INxMediaImporter(owner) {}
        quint64 start(INxFolderMedia *, const QStringList &, int) override { return 0; }
        void cancel(quint64) override {}
        QList<INxAbstractMediaItem *> addNow(INxFolderMedia *, const QStringList &,
                                             NxImportReport *) override
        {
            return {};
        }
    };
    QObject owner;
    auto *child = new Child(&owner);
    QCOMPARE(owner.children(), QObjectList{child});
}

NX_TEST_MAIN(tst_INxMediaImporter)
#include "tst_INxMediaImporter.moc"
