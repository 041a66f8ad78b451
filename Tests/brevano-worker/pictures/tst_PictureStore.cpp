// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>
#include <brevano-worker/pictures/PictureStore.h>

#include <QDir>
#include <QDirIterator>
#include <QTest>

#include <csignal>
#include <cstdlib>
#include <sys/resource.h>

namespace {

NxFingerprint someFingerprint()
{
    NxFingerprint fingerprint;
    fingerprint.size = 6'291'456;
    fingerprint.high = 0x3f0c000000000001;
    fingerprint.low = 2;
    return fingerprint;
}

QImage somePicture(QColor colour = Qt::red)
{
    QImage picture(480, 270, QImage::Format_RGB32);
    picture.fill(colour);
    return picture;
}

QStringList filesIn(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files += QDir(folder).relativeFilePath(walk.next());
    return files;
}

/// No file may grow beyond this while it lives: a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit little{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &little);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    Q_DISABLE_COPY_MOVE(FullDisk)
    rlimit m_before = {};
};

} // namespace

class tst_PictureStore : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void pictureLiesByItsNameAndNothingElseDoes();
    void pictureTakesTheEarlierOnesPlace();
    void fullDiskLeavesNothingBehind();
    void fileInTheFoldersPlaceIsTheCause();
    void folderInThePicturesPlaceIsTheCause();
    void pictureIsFoundWithWhatItWasMadeFrom();
    void pictureThatIsNotWholeIsNotFound_data();
    void pictureThatIsNotWholeIsNotFound();
};

void tst_PictureStore::pictureLiesByItsNameAndNothingElseDoes()
{
    const NxTempDir dir;
    const QString cache = dir.filePath(QStringLiteral("not/there yet"));
    const PictureStore store(cache);
    const NxResult<void> written =
        store.write(someFingerprint(), NxPictureKind::Cover, somePicture());
    QCOMPARE(written.errorText(), QString());
    const QString name = NxPictureFile::name(someFingerprint(), NxPictureKind::Cover);
    QCOMPARE(filesIn(cache), QStringList{name});
    const QImage read(cache + QLatin1Char('/') + name, "jpeg");
    QCOMPARE(read.size(), QSize(480, 270));
    constexpr int nearlyRed = 240;
    QVERIFY(qRed(read.pixel(240, 135)) > nearlyRed);
}

void tst_PictureStore::pictureTakesTheEarlierOnesPlace()
{
    const NxTempDir dir;
    const PictureStore store(dir.path());
    QVERIFY(store.write(someFingerprint(), NxPictureKind::Cover, somePicture(Qt::red)));
    QVERIFY(store.write(someFingerprint(), NxPictureKind::Cover, somePicture(Qt::blue)));
    const QString name = NxPictureFile::name(someFingerprint(), NxPictureKind::Cover);
    QCOMPARE(filesIn(dir.path()), QStringList{name});
    constexpr int nearlyBlue = 240;
    QVERIFY(qBlue(QImage(dir.filePath(name)).pixel(240, 135)) > nearlyBlue);
}

void tst_PictureStore::fullDiskLeavesNothingBehind()
{
    const NxTempDir dir;
    const PictureStore store(dir.path());
    QString error;
    {
        const FullDisk full(100);
        error = store.write(someFingerprint(), NxPictureKind::Strip, somePicture()).errorText();
    }
    QVERIFY2(error.startsWith(QLatin1String("The cache folder cannot be written: ")),
             qPrintable(error));
    QVERIFY2(error.contains(QLatin1String("File too large")), qPrintable(error));
    QCOMPARE(filesIn(dir.path()), QStringList());
}

void tst_PictureStore::fileInTheFoldersPlaceIsTheCause()
{
    const NxTempDir dir;
    const PictureStore store(dir.write(QStringLiteral("cache")));
    const QString error =
        store.write(someFingerprint(), NxPictureKind::Cover, somePicture()).errorText();
    QCOMPARE(error, QStringLiteral("The cache folder cannot be written: Not a directory."));
    QCOMPARE(filesIn(dir.path()), QStringList{QStringLiteral("cache")});
}

void tst_PictureStore::folderInThePicturesPlaceIsTheCause()
{
    const NxTempDir dir;
    dir.makeDir(NxPictureFile::name(someFingerprint(), NxPictureKind::Cover));
    const QString error = PictureStore(dir.path())
                              .write(someFingerprint(), NxPictureKind::Cover, somePicture())
                              .errorText();
    QCOMPARE(error, QStringLiteral("The cache folder cannot be written: Is a directory."));
    QCOMPARE(filesIn(dir.path()), QStringList());
}

void tst_PictureStore::pictureIsFoundWithWhatItWasMadeFrom()
{
    const NxTempDir dir;
    const PictureStore store(dir.path());
    QVERIFY(!store.find(someFingerprint(), NxPictureKind::Cover));
    constexpr int depth = 10;
    QVERIFY(store.write(someFingerprint(), NxPictureKind::Cover, somePicture(),
                        {depth, QStringLiteral("yuv422p10le")}));
    const std::optional<PictureSource> found = store.find(someFingerprint(), NxPictureKind::Cover);
    QVERIFY(found.has_value());
    QCOMPARE(found->bitDepth, depth);
    QCOMPARE(found->pixelFormat, QStringLiteral("yuv422p10le"));
    QVERIFY(!store.find(someFingerprint(), NxPictureKind::Strip));
}

void tst_PictureStore::pictureThatIsNotWholeIsNotFound_data()
{
    QTest::addColumn<int>("kept");
    QTest::addColumn<bool>("zeroed");
    QTest::newRow("empty") << 0 << false;
    QTest::newRow("one byte") << 1 << false;
    QTest::newRow("cut") << 1'000 << false;
    QTest::newRow("zeros") << 1'000 << true;
}

void tst_PictureStore::pictureThatIsNotWholeIsNotFound()
{
    QFETCH(int, kept);
    QFETCH(bool, zeroed);
    const NxTempDir dir;
    const PictureStore store(dir.path());
    QVERIFY(store.write(someFingerprint(), NxPictureKind::Cover, somePicture()));
    const QString name = NxPictureFile::name(someFingerprint(), NxPictureKind::Cover);
    QFile file(dir.filePath(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = zeroed ? QByteArray(kept, '\0') : file.read(kept);
    QCOMPARE(bytes.size(), kept);
    dir.write(name, bytes);
    QVERIFY(!store.find(someFingerprint(), NxPictureKind::Cover));
}

NX_TEST_MAIN(tst_PictureStore)
#include "tst_PictureStore.moc"
