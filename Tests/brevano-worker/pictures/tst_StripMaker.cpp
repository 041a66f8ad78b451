// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PictureRun.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>
#include <brevano-worker/pictures/FilmReader.h>
#include <brevano-worker/pictures/KeyPictures.h>
#include <brevano-worker/pictures/StripMaker.h>

#include <QTest>

#include <limits>

using namespace NxPictureFile;
using std::chrono::milliseconds;
using Numbers = std::vector<int>;

namespace {

constexpr int NotReadable = -1;
constexpr int LookForever = std::numeric_limits<int>::max();

/// A clock that stands still until it was looked at so many times, then jumps.
class JumpingClock
{
public:
    JumpingClock(int looks, milliseconds to) : m_looks(looks), m_to(to) {}
    milliseconds operator()() { return m_looks-- > 0 ? milliseconds(0) : m_to; }

private:
    int m_looks;
    milliseconds m_to;
};

/// What the ten moments of a film's strip show.
Numbers shownBy(const char *name, StripMaker::Clock clock)
{
    const NxFootageRecipe &recipe = NxFootageRecipes::named(QLatin1String(name));
    const PictureRun run(NxFootageSet::path(recipe));
    const auto container = Container::open(run.file());
    if (!container || !(*container)->analyse())
        qFatal("%s cannot be read", name);
    FilmReader film(container->get(), (*container)->video(), recipe.truth.durationUs);
    const auto decoder = StreamDecoder::open(film.stream(), StreamDecoder::Use::SingleFrames);
    KeyPictures keys(&film, decoder->get());
    const NxResult<QImage> strip = StripMaker(&film, &keys, std::move(clock)).make();
    Numbers numbers;
    for (int moment = 0; strip && moment < Moments; ++moment)
        numbers.push_back(NxNumberedFrames::readFitted(
                              PictureRun::row(*strip, moment * RowsPerMoment), recipe.truth.size)
                              .value_or(NotReadable));
    return numbers;
}

Numbers wantedOf(const char *name)
{
    const NxFootageTruth &truth = NxFootageRecipes::named(QLatin1String(name)).truth;
    Numbers numbers;
    for (int moment = 0; moment < Moments; ++moment)
        numbers.push_back(truth.numberAt(momentUs(moment, truth.durationUs)));
    return numbers;
}

/// At most so much later than wanted.
bool isNear(int number, int wanted)
{
    constexpr int latest = 3;
    return number >= wanted && number <= wanted + latest;
}

QString text(const Numbers &numbers)
{
    QStringList words;
    for (const int number : numbers)
        words += QString::number(number);
    return words.join(QLatin1Char(' '));
}

} // namespace

class tst_StripMaker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void passForwardShowsEachMoment();
    void filmOfTooFewKeyFramesIsPassedOver();
    void whatThePassDoesNotReachShowsKeyFramesFurtherOn();
    void whatNoTimeIsLeftForShowsTheNearest();
    void timeThatIsUpAtOnceStillGivesAPicture();
    void keyFramesNeedNoClock();
};

void tst_StripMaker::passForwardShowsEachMoment()
{
    const Numbers shown = shownBy("mpeg2.mpg", JumpingClock(LookForever, {}));
    const Numbers wanted = wantedOf("mpeg2.mpg");
    QCOMPARE(shown.size(), wanted.size());
    for (size_t i = 0; i < wanted.size(); ++i)
        QVERIFY2(isNear(shown[i], wanted[i]), qPrintable(text(shown)));
}

void tst_StripMaker::filmOfTooFewKeyFramesIsPassedOver()
{
    // One key frame in the whole film.
    const Numbers shown = shownBy("avc long.mp4", JumpingClock(LookForever, {}));
    const Numbers wanted = wantedOf("avc long.mp4");
    QCOMPARE(shown.size(), wanted.size());
    for (size_t i = 0; i < wanted.size(); ++i)
        QVERIFY2(isNear(shown[i], wanted[i]), qPrintable(text(shown)));
}

void tst_StripMaker::whatThePassDoesNotReachShowsKeyFramesFurtherOn()
{
    constexpr int packets = 40;
    const char *name = "mpeg2.mpg";
    const Numbers shown = shownBy(name, JumpingClock(packets, StripMaker::LongestPass));
    const Numbers wanted = wantedOf(name);
    const NxFootageTruth &truth = NxFootageRecipes::named(QLatin1String(name)).truth;
    QCOMPARE(shown.size(), wanted.size());
    QVERIFY2(isNear(shown.front(), wanted.front()), qPrintable(text(shown)));
    constexpr size_t firstFarOn = 4;
    for (size_t i = firstFarOn; i < wanted.size(); ++i)
        QVERIFY2(shown[i] == wanted[i] - wanted[i] % truth.keyFrameDistance,
                 qPrintable(text(shown)));
}

void tst_StripMaker::whatNoTimeIsLeftForShowsTheNearest()
{
    constexpr int packets = 40;
    const Numbers shown = shownBy("avc long.mp4", JumpingClock(packets, StripMaker::LongestAll));
    const Numbers wanted = wantedOf("avc long.mp4");
    QCOMPARE(shown.size(), wanted.size());
    QVERIFY2(isNear(shown[0], wanted[0]), qPrintable(text(shown)));
    QVERIFY2(isNear(shown[1], wanted[1]), qPrintable(text(shown)));
    // The last picture that the pass met, which lies beyond every moment that it served.
    for (size_t i = 4; i < wanted.size(); ++i)
        QVERIFY2(shown[i] == shown.back() && shown[i] > shown[1] && shown[i] < packets,
                 qPrintable(text(shown)));
}

void tst_StripMaker::timeThatIsUpAtOnceStillGivesAPicture()
{
    const Numbers shown = shownBy("mpeg2.mpg", JumpingClock(1, StripMaker::LongestAll));
    QCOMPARE(shown.size(), size_t(Moments));
    for (const int number : shown)
        QVERIFY2(number == shown.front() && number != NotReadable, qPrintable(text(shown)));
}

void tst_StripMaker::keyFramesNeedNoClock()
{
    const NxFootageTruth &truth = NxFootageRecipes::named(QStringLiteral("avc.mkv")).truth;
    Numbers wanted = wantedOf("avc.mkv");
    for (int &number : wanted)
        number -= number % truth.keyFrameDistance;
    QCOMPARE(text(shownBy("avc.mkv", JumpingClock(0, StripMaker::LongestAll))), text(wanted));
}

NX_TEST_MAIN(tst_StripMaker)
#include "tst_StripMaker.moc"
