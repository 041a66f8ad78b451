// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/input/FootageFile.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QObject>
#include <QtTest>

#include <array>

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray Content = QByteArrayLiteral("0123456789");

NxResult<std::unique_ptr<FootageFile>> opened(const QString &path)
{
    return FootageFile::open(QFile::encodeName(path));
}

} // namespace

class tst_FootageFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsNoFileOfFootageIsRefused_data();
    void whatIsNoFileOfFootageIsRefused();
    void bytesAreReadAtAnyPlace_data();
    void bytesAreReadAtAnyPlace();
    void readingAtAPlaceLeavesTheDeviceWhereItIs();
    void aChangeIsNoticed_data();
    void aChangeIsNoticed();
    void itsNameLeadsToTheOpenFileEvenWhenAnotherLiesAtItsPath();

private:
    NxTempDir m_dir;
    QString m_path;
};

void tst_FootageFile::init()
{
    m_path = m_dir.write(QStringLiteral("clip"), Content);
}

void tst_FootageFile::whatIsNoFileOfFootageIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << m_dir.filePath(QStringLiteral("none"))
                             << QStringLiteral("The file is missing.");
    QTest::newRow("a folder") << m_dir.makeDir(QStringLiteral("folder"))
                              << QStringLiteral("This is not a file.");
    QTest::newRow("empty") << m_dir.write(QStringLiteral("empty"), QByteArray(""))
                           << QStringLiteral("The file is empty.");
    const QString pipe = m_dir.filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
    QTest::newRow("a pipe that nobody writes to") << pipe << QStringLiteral("This is not a file.");
    QTest::newRow("a device") << QStringLiteral("/dev/zero")
                              << QStringLiteral("This is not a file.");
}

void tst_FootageFile::whatIsNoFileOfFootageIsRefused()
{
    QFETCH(QString, path);
    QTEST(opened(path).errorText(), "reason");
}

void tst_FootageFile::bytesAreReadAtAnyPlace_data()
{
    QTest::addColumn<qint64>("place");
    QTest::addColumn<int>("most");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("the beginning") << qint64(0) << 4 << QByteArray("0123");
    QTest::newRow("the middle") << qint64(4) << 3 << QByteArray("456");
    QTest::newRow("fewer at the end") << qint64(8) << 8 << QByteArray("89");
    QTest::newRow("none behind the end") << qint64(1) << 0 << QByteArray();
    QTest::newRow("none far behind the end") << (qint64(1) << 40) << 8 << QByteArray();
}

void tst_FootageFile::bytesAreReadAtAnyPlace()
{
    QFETCH(qint64, place);
    QFETCH(int, most);
    const auto file = opened(m_path);
    QVERIFY2(file, qUtf8Printable(file.errorText()));
    QByteArray bytes(most, '\0');
    bytes.truncate(int((*file)->readAt(place, bytes.data(), most)));
    QTEST(bytes, "bytes");
}

void tst_FootageFile::readingAtAPlaceLeavesTheDeviceWhereItIs()
{
    const auto file = opened(m_path);
    QVERIFY2(file, qUtf8Printable(file.errorText()));
    QIODevice *device = (*file)->device();
    QVERIFY(device);
    QCOMPARE(device->read(2), QByteArray("01"));
    std::array<char, 4> bytes = {};
    QCOMPARE((*file)->readAt(6, bytes.data(), qint64(bytes.size())), 4);
    QCOMPARE(device->readAll(), QByteArray("23456789"));
    QCOMPARE((*file)->device()->readAll(), Content);
}

void tst_FootageFile::aChangeIsNoticed_data()
{
    QTest::addColumn<QByteArray>("change");
    QTest::addColumn<bool>("changed");
    for (const char *change : {"nothing", "longer", "touched", "replaced", "removed"})
        QTest::newRow(change) << QByteArray(change) << (qstrcmp(change, "nothing") != 0);
}

void tst_FootageFile::aChangeIsNoticed()
{
    QFETCH(QByteArray, change);
    const auto file = opened(m_path);
    QVERIFY2(file, qUtf8Printable(file.errorText()));
    const QByteArray name = QFile::encodeName(m_path);
    if (change == "longer") {
        m_dir.write(QStringLiteral("clip"), Content + Content);
    } else if (change == "touched") {
        const struct timespec times[] = {{1, 0}, {1, 0}};
        QCOMPARE(::utimensat(AT_FDCWD, name.constData(), times, 0), 0);
    } else if (change == "replaced") {
        const QString other = m_dir.write(QStringLiteral("other"), Content);
        QCOMPARE(::rename(QFile::encodeName(other).constData(), name.constData()), 0);
    } else if (change == "removed") {
        QCOMPARE(::unlink(name.constData()), 0);
    }
    QTEST((*file)->hasChanged(), "changed");
}

void tst_FootageFile::itsNameLeadsToTheOpenFileEvenWhenAnotherLiesAtItsPath()
{
    const auto file = opened(m_path);
    QVERIFY2(file, qUtf8Printable(file.errorText()));
    const QString other = m_dir.write(QStringLiteral("other"), "another");
    QCOMPARE(::rename(QFile::encodeName(other).constData(), QFile::encodeName(m_path).constData()),
             0);
    QFile again(QFile::decodeName((*file)->openName()));
    QVERIFY(again.open(QIODevice::ReadOnly));
    QCOMPARE(again.readAll(), Content);
}

NX_TEST_MAIN(tst_FootageFile)
#include "tst_FootageFile.moc"
