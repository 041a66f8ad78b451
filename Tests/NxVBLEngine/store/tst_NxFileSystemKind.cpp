// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxFileSystemKind.h>

#include <Support/NxTestMain.h>

#include <QDir>

class tst_NxFileSystemKind : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsNetworkDrivesFromLocalOnes_data();
    void tellsNetworkDrivesFromLocalOnes();
    void namesTheTypeOfADrive();
};

void tst_NxFileSystemKind::tellsNetworkDrivesFromLocalOnes_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isNetwork");
    for (const char *type :
         {"nfs", "nfs4", "cifs", "smb3", "smbfs", "9p", "fuse.sshfs", "afpfs", "davfs", "CIFS"})
        QTest::newRow(type) << QByteArray(type) << true;
    for (const char *type : {"ext4", "xfs", "btrfs", "tmpfs", "overlay", "vfat", "exfat", "NTFS",
                             "apfs", "fuseblk", ""})
        QTest::addRow("local: %s", type) << QByteArray(type) << false;
}

void tst_NxFileSystemKind::tellsNetworkDrivesFromLocalOnes()
{
    QFETCH(QByteArray, type);
    QFETCH(bool, isNetwork);
    QCOMPARE(NxFileSystemKind::isNetwork(type), isNetwork);
}

void tst_NxFileSystemKind::namesTheTypeOfADrive()
{
    QVERIFY(!NxFileSystemKind::typeOf(QDir::tempPath()).isEmpty());
}

NX_TEST_MAIN(tst_NxFileSystemKind)
#include "tst_NxFileSystemKind.moc"
