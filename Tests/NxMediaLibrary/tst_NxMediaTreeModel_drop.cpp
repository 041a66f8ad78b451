// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>

#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QDataStream>
#include <QMimeData>
#include <QRandomGenerator>
#include <QtEndian>
#include <QtTest>

#include "ScriptedFolders.h"
#include "TreeViewer.h"

namespace {

QString dragType()
{
    return QStringLiteral("application/ntreemodeldatalist");
}

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(int(sizeof number), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray textsAsBytes(const QStringList &texts)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QString &text : texts)
        stream << text;
    return bytes;
}

/// Bytes that begin like texts and go wrong somewhere, or never were any.
QByteArray randomBytes(QRandomGenerator &random)
{
    QByteArray bytes;
    const int pieces = random.bounded(6);
    for (int i = 0; i < pieces; ++i) {
        switch (random.bounded(4)) {
        case 0:
            bytes += textsAsBytes({QString(random.bounded(20), QLatin1Char('x'))});
            break;
        case 1:
            bytes += bigEndian(random.generate());
            break;
        case 2:
            bytes += bigEndian(quint32(random.bounded(64)));
            break;
        default:
            for (int byte = random.bounded(40); byte > 0; --byte)
                bytes += char(random.bounded(256));
        }
    }
    return bytes.left(random.bounded(bytes.size() + 1));
}

/// The most memory that this process ever had, in KiB; -1 where the system does not tell.
qint64 peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmPeak:"))
            return line.mid(7).simplified().split(' ').first().toLongLong();
    }
    return -1;
}

} // namespace

/// Whatever is dropped on the tree is accepted and changes nothing.
class tst_NxMediaTreeModel_drop : public QObject
{
    Q_OBJECT

    struct Tree
    {
        Tree()
        {
            plant(&root, QStringLiteral("A(B C(D)) E"));
            model.load(&root);
            static_cast<void>(viewer.takeTold());
        }

        /// Empty when a drop of this data, anywhere and anyhow, was accepted without a trace.
        QString dropped(const QMimeData *data)
        {
            const QModelIndex a = model.index(0, 0);
            const QModelIndex places[] = {{}, a, model.index(1, 0, a), model.index(1, 0)};
            const Qt::DropAction actions[] = {Qt::CopyAction, Qt::MoveAction, Qt::IgnoreAction};
            for (const QModelIndex &place : places) {
                for (Qt::DropAction action : actions) {
                    for (int row = -1; row < 3; ++row) {
                        if (!model.dropMimeData(data, action, row, row < 0 ? -1 : 0, place))
                            return QStringLiteral("refused");
                    }
                }
            }
            const QString told = viewer.takeTold().join(QLatin1Char(' '));
            const QString now = viewer.modelDrawing();
            return now == QLatin1String("A(B C(D)) E") ? told : now;
        }
        QString droppedBytes(const QByteArray &bytes)
        {
            QMimeData data;
            data.setData(dragType(), bytes);
            return dropped(&data);
        }

        ScriptedFolder root;
        NxMediaTreeModel model;
        TreeViewer viewer{&model};
    };

private Q_SLOTS:
    void nothingAtAllMayBeDropped()
    {
        Tree tree;
        QCOMPARE(tree.dropped(nullptr), QString());
        const QMimeData empty;
        QCOMPARE(tree.dropped(&empty), QString());
    }

    void dataOfAnotherKindMayBeDropped()
    {
        Tree tree;
        QMimeData data;
        data.setText(QStringLiteral("a text"));
        data.setUrls({QUrl(QStringLiteral("file:///footage/a.mov"))});
        QCOMPARE(tree.dropped(&data), QString());
    }

    void aDragOfTheTreeItselfMayBeDropped()
    {
        Tree tree;
        const QModelIndex a = tree.model.index(0, 0);
        const std::unique_ptr<QMimeData> drag(
            tree.model.mimeData({a, tree.model.index(0, 0, a), tree.model.index(1, 0)}));
        QCOMPARE(tree.dropped(drag.get()), QString());
    }

    void damagedDataMayBeDropped_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray good = textsAsBytes({QStringLiteral("one"), QStringLiteral("two")});
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("texts") << good;
        QTest::newRow("null text") << textsAsBytes({QString()});
        QTest::newRow("empty text") << textsAsBytes({QLatin1String("")});
        QTest::newRow("cut off in a text") << good.left(good.size() - 1);
        QTest::newRow("cut off in a length") << good.left(2);
        QTest::newRow("one byte") << QByteArray(1, 'x');
        QTest::newRow("odd length") << bigEndian(3) + QByteArray(3, 'x') + good;
        QTest::newRow("largest even length") << bigEndian(0xFFFFFFFE) + good;
        QTest::newRow("two gigabytes") << bigEndian(0x80000000) + good;
        QTest::newRow("just below two gigabytes") << bigEndian(0x7FFFFFFE) + good;
        QTest::newRow("huge after a good one") << good + bigEndian(0xFFFFFFFE);
        QTest::newRow("only null texts") << QByteArray(4000, '\xFF');
        QTest::newRow("only empty texts") << QByteArray(4000, '\0');
    }

    void damagedDataMayBeDropped()
    {
        QFETCH(QByteArray, bytes);
        Tree tree;
        QCOMPARE(tree.droppedBytes(bytes), QString());
    }

    void announcedLengthsTakeNoMemory()
    {
        Tree tree;
        const qint64 before = peakMemory();
        for (quint32 length : {0xFFFFFFFEu, 0x80000000u, 0x7FFFFFFEu, 0x40000000u}) {
            QMimeData data;
            data.setData(dragType(), bigEndian(length) + QByteArray(100, 'x'));
            QVERIFY(tree.model.dropMimeData(&data, Qt::MoveAction, 0, 0, {}));
        }
        constexpr qint64 allowed = 64 * 1024;
        QVERIFY(peakMemory() - before < allowed);
    }

    void randomDataMayBeDropped_data()
    {
        nxAddSeeds(8);
    }

    void randomDataMayBeDropped()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        Tree tree;
        for (int i = 0; i < 300; ++i) {
            const QByteArray bytes = randomBytes(random);
            QVERIFY2(tree.droppedBytes(bytes).isEmpty(), bytes.toHex().constData());
        }
    }
};

NX_TEST_MAIN(tst_NxMediaTreeModel_drop)
#include "tst_NxMediaTreeModel_drop.moc"
