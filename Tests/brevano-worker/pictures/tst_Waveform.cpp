// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTestMain.h>
#include <brevano-worker/pictures/Waveform.h>

#include <QTest>

namespace {

/// How many pixels of a column are not ground.
int heightAt(const QImage &picture, int x)
{
    const QRgb ground = picture.pixel(0, 0);
    int height = 0;
    for (int y = 0; y < picture.height(); ++y)
        height += picture.pixel(x, y) != ground;
    return height;
}

} // namespace

class tst_Waveform : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theLouderTheHigher();
    void silenceIsALine();
    void itLiesEvenlyAroundTheMiddle();
};

void tst_Waveform::theLouderTheHigher()
{
    const QImage picture = Waveform::of({0.25f, 0.5f, 1.0f, 0.5f});
    QCOMPARE(picture.size(), QSize(480, 270));
    const int full = heightAt(picture, 300);
    QVERIFY(full < picture.height());
    QVERIFY(qAbs(heightAt(picture, 180) - full / 2) <= 1);
    QVERIFY(qAbs(heightAt(picture, 60) - full / 4) <= 2);
    QCOMPARE(heightAt(picture, 420), heightAt(picture, 180));
}

void tst_Waveform::silenceIsALine()
{
    const QImage picture = Waveform::of(std::vector<float>(240, 0.0f));
    for (int x = 0; x < picture.width(); ++x)
        QCOMPARE(heightAt(picture, x), 2);
}

void tst_Waveform::itLiesEvenlyAroundTheMiddle()
{
    const QImage picture = Waveform::of({0.3f, 0.9f});
    QCOMPARE(picture.mirrored(), picture);
}

NX_TEST_MAIN(tst_Waveform)
#include "tst_Waveform.moc"
