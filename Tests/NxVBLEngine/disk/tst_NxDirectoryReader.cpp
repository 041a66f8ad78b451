// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxDirectoryReader.h>

#include "RawFiles.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QTest>

namespace {

QString describe(const std::vector<NxDirectoryEntry> &entries)
{
    QStringList parts;
    for (const NxDirectoryEntry &entry : entries) {
        static const char *const kinds[] = {"file", "folder", "special", "dangling"};
        QString part = entry.name + QLatin1Char(':') + QLatin1String(kinds[int(entry.kind)]);
        if (entry.isLink)
            part += QLatin1String("+link");
        if (entry.isHidden)
            part += QLatin1String("+hidden");
        if (!entry.isValidText)
            part += QLatin1String("+bytes");
        parts.append(part);
    }
    return parts.join(QLatin1Char(' '));
}

bool always()
{
    return true;
}

} // namespace

class tst_NxDirectoryReader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyNameIsListedWithWhatItIs();
    void orderFoldsCaseFirst();
    void itStopsWhenAsked();
    void whatCannotBeReadSaysWhy_data();
    void whatCannotBeReadSaysWhy();
};

void tst_NxDirectoryReader::everyNameIsListedWithWhatItIs()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("a"));
    dir.write(QStringLiteral(".b"));
    dir.makeDir(QStringLiteral("folder"));
    RawFiles::write(dir.path(), "caf\xe9");
    RawFiles::makePipe(dir.filePath(QStringLiteral("p")));
    RawFiles::link(QStringLiteral("a"), dir.filePath(QStringLiteral("toFile")));
    RawFiles::link(QStringLiteral("folder"), dir.filePath(QStringLiteral("toFolder")));
    RawFiles::link(QStringLiteral("gone"), dir.filePath(QStringLiteral("toNothing")));
    const NxDirectoryListing listing = NxDirectoryReader::read(dir.path(), always);
    QCOMPARE(listing.error, QString());
    QCOMPARE(describe(listing.files),
             QStringLiteral(".b:file+hidden a:file caf\\xe9:file+bytes p:special toFile:file+link "
                            "toNothing:dangling+link"));
    QCOMPARE(describe(listing.folders), QStringLiteral("folder:folder toFolder:folder+link"));
}

void tst_NxDirectoryReader::orderFoldsCaseFirst()
{
    const NxTempDir dir;
    for (const char *name : {"b", "B", "a", "C", "_", "10", "9", "\xc3\x84", "\xc3\xa4"})
        RawFiles::write(dir.path(), name);
    QStringList names;
    for (const NxDirectoryEntry &entry : NxDirectoryReader::read(dir.path(), always).files)
        names.append(entry.name);
    QCOMPARE(names.join(QLatin1Char(' ')), QString::fromUtf8("10 9 _ a B b C \xc3\x84 \xc3\xa4"));
}

void tst_NxDirectoryReader::itStopsWhenAsked()
{
    const NxTempDir dir;
    for (int i = 0; i < 50; ++i)
        RawFiles::write(dir.path(), QByteArray::number(i));
    int asked = 0;
    const NxDirectoryListing listing
        = NxDirectoryReader::read(dir.path(), [&asked] { return ++asked <= 10; });
    QVERIFY(listing.files.size() <= 10);
    QVERIFY(!listing.files.empty());
}

void tst_NxDirectoryReader::whatCannotBeReadSaysWhy_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("gone");
    QTest::newRow("a file") << QStringLiteral("a");
}

void tst_NxDirectoryReader::whatCannotBeReadSaysWhy()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("a"));
    QFETCH(QString, name);
    const NxDirectoryListing listing = NxDirectoryReader::read(dir.filePath(name), always);
    QVERIFY(!listing.error.isEmpty());
    QVERIFY(listing.files.empty());
}

NX_TEST_MAIN(tst_NxDirectoryReader)
#include "tst_NxDirectoryReader.moc"
