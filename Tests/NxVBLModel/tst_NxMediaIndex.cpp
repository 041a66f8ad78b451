// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaIndex.h>

#include <Support/NxTestMain.h>

#include <QAbstractListModel>
#include <QTest>

#include "memoryengine.h"

namespace {

/// Hands out indexes that carry an address, as the panel's models do.
struct AddressModel final : QAbstractListModel
{
    int rowCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &, int) const override { return {}; }
    QModelIndex itemIndex(INxAbstractMedia *media) const { return createIndex(0, 0, media); }
    QModelIndex treeIndex(INxFolderMedia *folder) const { return createIndex(0, 0, folder); }
};

} // namespace

class tst_NxMediaIndex : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersNullForAnInvalidIndex();
    void answersTheMediaOfARow();
    void answersTheFolderOfATreeRow();
    void answersOneFolderFromItsTwoAddresses();
};

void tst_NxMediaIndex::answersNullForAnInvalidIndex()
{
    QVERIFY(!mediaAt(QModelIndex()));
    QVERIFY(!folderAt(QModelIndex()));
}

void tst_NxMediaIndex::answersTheMediaOfARow()
{
    const AddressModel model;
    MemoryMedia media(QStringLiteral("a.mp4"));
    INxAbstractMedia *found = mediaAt(model.itemIndex(&media));
    QCOMPARE(found, static_cast<INxAbstractMedia *>(&media));
    QCOMPARE(found->name(), QStringLiteral("a.mp4"));
}

void tst_NxMediaIndex::answersTheFolderOfATreeRow()
{
    const AddressModel model;
    MemoryFolder folder(1001, QStringLiteral("day"), nullptr);
    INxFolderMedia *found = folderAt(model.treeIndex(&folder));
    QCOMPARE(found, static_cast<INxFolderMedia *>(&folder));
    QCOMPARE(found->folderId(), 1001);
}

void tst_NxMediaIndex::answersOneFolderFromItsTwoAddresses()
{
    const AddressModel model;
    MemoryFolder folder(1001, QStringLiteral("day"), nullptr);
    const QModelIndex asMedia = model.itemIndex(&folder);
    const QModelIndex asFolder = model.treeIndex(&folder);
    QVERIFY(asMedia.internalPointer() != asFolder.internalPointer());
    QCOMPARE(mediaAt(asMedia)->mediaType(), NXVBLMODEL::mtFolder);
    QCOMPARE(mediaAt(asMedia), static_cast<INxAbstractMedia *>(folderAt(asFolder)));
}

NX_TEST_MAIN(tst_NxMediaIndex)
#include "tst_NxMediaIndex.moc"
