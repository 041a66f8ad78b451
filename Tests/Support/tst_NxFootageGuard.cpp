// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxFootageGuard.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

#include <filesystem>
#include <functional>

using Meddle = std::function<void(const NxTempDir &)>;
Q_DECLARE_METATYPE(Meddle)

namespace {

void setModified(const QString &path, qint64 msecs)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(msecs);
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

constexpr qint64 longAgo = 1'000'000'000'000;

} // namespace

class tst_NxFootageGuard : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void noticesWhatChanged_data();
    void noticesWhatChanged();
};

void tst_NxFootageGuard::noticesWhatChanged_data()
{
    QTest::addColumn<Meddle>("meddle");
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing") << Meddle([](const NxTempDir &) {}) << QString();
    QTest::newRow("a file is only read") << Meddle([](const NxTempDir &dir) {
        QFile file(dir.filePath(QStringLiteral("day/clip.mp4")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        file.readAll();
    }) << QString();
    QTest::newRow("same size and time, other bytes") << Meddle([](const NxTempDir &dir) {
        const QString path = dir.write(QStringLiteral("day/clip.mp4"), QByteArray("yyyy"));
        setModified(path, longAgo);
    }) << QStringLiteral("other content: %1/day/clip.mp4");
    QTest::newRow("same bytes, other time") << Meddle([](const NxTempDir &dir) {
        setModified(dir.filePath(QStringLiteral("day/clip.mp4")), longAgo + 1000);
    }) << QStringLiteral("other time: %1/day/clip.mp4");
    QTest::newRow("removed") << Meddle([](const NxTempDir &dir) {
        QVERIFY(QFile::remove(dir.filePath(QStringLiteral("day/clip.mp4"))));
    }) << QStringLiteral("gone: %1/day/clip.mp4");
    QTest::newRow("a hidden file came")
        << Meddle([](const NxTempDir &dir) { dir.write(QStringLiteral("day/.hidden")); })
        << QStringLiteral("new: %1/day/.hidden");
    QTest::newRow("a file came and went") << Meddle([](const NxTempDir &dir) {
        QVERIFY(QFile::remove(dir.write(QStringLiteral("day/lock"))));
    }) << QStringLiteral("other time: %1/day");
    QTest::newRow("a name that is no UTF-8 came") << Meddle([](const NxTempDir &dir) {
        const QByteArray name = QFile::encodeName(dir.filePath(QStringLiteral("day/caf"))) + '\xe9';
        std::FILE *file = std::fopen(name.constData(), "w");
        QVERIFY(file);
        std::fclose(file);
    }) << QStringLiteral("new: %1/day/caf\\xe9");
}

void tst_NxFootageGuard::noticesWhatChanged()
{
    QFETCH(Meddle, meddle);
    QFETCH(QString, expected);
    const NxTempDir dir;
    setModified(dir.write(QStringLiteral("day/clip.mp4"), QByteArray("xxxx")), longAgo);
    setModified(dir.write(QStringLiteral("other.wav")), longAgo);
    // Times of folders go on in steps of milliseconds: a change may have that of the making.
    const QByteArray folder = QFile::encodeName(dir.filePath(QStringLiteral("day")));
    const auto before = std::filesystem::last_write_time(folder.toStdString());
    std::filesystem::last_write_time(folder.toStdString(), before - std::chrono::hours(1));

    const NxFootageGuard guard(dir.path());
    meddle(dir);

    const QStringList lines = guard.changes().split(QLatin1Char('\n'));
    const QString line = expected.isEmpty() ? QString() : expected.arg(dir.path());
    QVERIFY2(lines.contains(line), qUtf8Printable(guard.changes()));
    QVERIFY2(!guard.changes().contains(QStringLiteral("other.wav")), "the untouched file");
}

NX_TEST_MAIN(tst_NxFootageGuard)
#include "tst_NxFootageGuard.moc"
