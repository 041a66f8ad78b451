// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaItemMimeData.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include <memory>

#include "memoryengine.h"

class tst_NxMediaItemMimeData : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isEmptyAtFirst();
    void carriesMediaInTheOrderOfAppending();
    void carriesOneTwice();
    void ignoresNull();
    void leavesOutWhatDiedOnTheWay();
    void carriesFoldersToo();
};

using Items = QList<INxAbstractMedia *>;

void tst_NxMediaItemMimeData::isEmptyAtFirst()
{
    QVERIFY(NxMediaItemMimeData().items().isEmpty());
}

void tst_NxMediaItemMimeData::carriesMediaInTheOrderOfAppending()
{
    MemoryMedia a(QStringLiteral("a"));
    MemoryMedia b(QStringLiteral("b"));
    NxMediaItemMimeData data;
    data.append(&b);
    data.append(&a);
    QCOMPARE(data.items(), (Items{&b, &a}));
}

void tst_NxMediaItemMimeData::carriesOneTwice()
{
    MemoryMedia a(QStringLiteral("a"));
    NxMediaItemMimeData data;
    data.append(&a);
    data.append(&a);
    QCOMPARE(data.items(), (Items{&a, &a}));
}

void tst_NxMediaItemMimeData::ignoresNull()
{
    NxMediaItemMimeData data;
    data.append(nullptr);
    QVERIFY(data.items().isEmpty());
}

void tst_NxMediaItemMimeData::leavesOutWhatDiedOnTheWay()
{
    MemoryMedia a(QStringLiteral("a"));
    auto b = std::make_unique<MemoryMedia>(QStringLiteral("b"));
    MemoryMedia c(QStringLiteral("c"));
    NxMediaItemMimeData data;
    data.append(&a);
    data.append(b.get());
    data.append(&c);
    b.reset();
    QCOMPARE(data.items(), (Items{&a, &c}));
}

void tst_NxMediaItemMimeData::carriesFoldersToo()
{
    MemoryFolder folder(1001, QStringLiteral("day"), nullptr);
    NxMediaItemMimeData data;
    data.append(&folder);
    QCOMPARE(data.items(), Items{&folder});
}

NX_TEST_MAIN(tst_NxMediaItemMimeData)
#include "tst_NxMediaItemMimeData.moc"
