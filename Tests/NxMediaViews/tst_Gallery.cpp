// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTest>

namespace {

constexpr int RunLimit = 60000; // ms

/// The exit code; -1 when the program did not end by itself.
int run(const QStringList &arguments)
{
    QProcess program;
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    surroundings.remove(QStringLiteral("QT_QPA_PLATFORM"));
    surroundings.remove(QStringLiteral("DISPLAY"));
    program.setProcessEnvironment(surroundings);
    program.start(QStringLiteral(NX_GALLERY), arguments);
    if (!program.waitForFinished(RunLimit) || program.exitStatus() != QProcess::NormalExit)
        return -1;
    return program.exitCode();
}

int colourCount(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, y));
    }
    return colours.size();
}

} // namespace

class tst_Gallery : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void paintsASheetWithoutADisplay();
    void doubleScaleHasTwiceThePixels();
    void saysWhatItCannotDo_data();
    void saysWhatItCannotDo();
};

void tst_Gallery::paintsASheetWithoutADisplay()
{
    const NxTempDir dir;
    const QString dark = dir.filePath(QStringLiteral("dark.png"));
    const QString light = dir.filePath(QStringLiteral("light.png"));
    QCOMPARE(run({QStringLiteral("--out"), dark}), 0);
    QCOMPARE(
        run({QStringLiteral("--skin"), QStringLiteral("light"), QStringLiteral("--out=") + light}),
        0);
    const QImage darkSheet(dark);
    const QImage lightSheet(light);
    QVERIFY(darkSheet.width() > 1000 && darkSheet.height() > 1000);
    constexpr int manyColours = 2000;
    QVERIFY(colourCount(darkSheet) > manyColours);
    QVERIFY(colourCount(lightSheet) > manyColours);
    QVERIFY(qGray(darkSheet.pixel(0, 0)) < 64);
    QVERIFY(qGray(lightSheet.pixel(0, 0)) > 192);
}

void tst_Gallery::doubleScaleHasTwiceThePixels()
{
    const NxTempDir dir;
    const QString plain = dir.filePath(QStringLiteral("1.png"));
    const QString crisp = dir.filePath(QStringLiteral("2.png"));
    QCOMPARE(run({QStringLiteral("--out"), plain}), 0);
    QCOMPARE(run({QStringLiteral("--out"), crisp, QStringLiteral("--scale"), QStringLiteral("2")}),
             0);
    QCOMPARE(QImage(crisp).size(), QImage(plain).size() * 2);
}

void tst_Gallery::saysWhatItCannotDo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    const QString out = QStringLiteral("--out=/nowhere/at/all.png");
    QTest::newRow("a folder that is not there") << QStringList{out} << 1;
    QTest::newRow("a skin that is not there")
        << QStringList{QStringLiteral("--skin=pink"), out} << 2;
    QTest::newRow("a scale that is not there")
        << QStringList{QStringLiteral("--scale=3"), out} << 2;
    QTest::newRow("a word too many") << QStringList{QStringLiteral("more"), out} << 2;
}

void tst_Gallery::saysWhatItCannotDo()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, exitCode);
    QCOMPARE(run(arguments), exitCode);
}

NX_TEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
