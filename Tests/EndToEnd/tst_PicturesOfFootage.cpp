// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FootageYard.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <NxWorkerProtocol/NxPictureFile.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QSet>
#include <QtTest>

namespace {

constexpr int nothing = -1;
constexpr QSize coverBounds(NxPictureFile::CoverWidth, NxPictureFile::CoverHeight);
constexpr QSize frameSize(NxPictureFile::FrameWidth, NxPictureFile::FrameHeight);
/// Between two frames that others hang on lie two at most.
constexpr int frameStep = 3;

/// As it is shown on square pixels: one side shrinks, none grows.
QSize shownSize(const NxFootageTruth &truth)
{
    const double aspect = truth.pixelAspect.toDouble();
    QSizeF size = truth.size;
    if (aspect > 1.0)
        size.rheight() /= aspect;
    else
        size.rwidth() *= aspect;
    return size.toSize();
}

QSize coverSize(const NxFootageTruth &truth)
{
    const QSize shown = shownSize(truth);
    if (shown.width() <= coverBounds.width() && shown.height() <= coverBounds.height())
        return shown;
    return shown.scaled(coverBounds, Qt::KeepAspectRatio);
}

int numberIn(const QImage &picture, const NxFootageTruth &truth)
{
    return NxNumberedFrames::readFitted(picture, shownSize(truth), truth.rotation, truth.mirrored)
        .value_or(nothing);
}

/// Whether the index of the container tells ten key frames apart that stand for the ten moments.
bool hasKeyFramesEnough(const NxFootageRecipe &recipe)
{
    static const QStringList withIndex{QStringLiteral("mp4"), QStringLiteral("mov"),
                                       QStringLiteral("mkv"), QStringLiteral("webm"),
                                       QStringLiteral("avi")};
    QSet<int> keys;
    for (int moment = 0; moment < NxPictureFile::Moments; ++moment) {
        const qint64 us = NxPictureFile::momentUs(moment, recipe.truth.durationUs);
        keys.insert(recipe.truth.keyNumberAt(us));
    }
    return keys.size() == NxPictureFile::Moments
           && withIndex.contains(recipe.name.section(QLatin1Char('.'), -1));
}

/// The numbers that a film strip may show at a moment.
struct Allowed
{
    int first;
    int last;
};

Allowed allowedAt(const NxFootageRecipe &recipe, qint64 us)
{
    const NxFootageTruth &truth = recipe.truth;
    const int number = truth.numberAt(us);
    const int key = truth.keyNumberAt(us);
    if (truth.isExact() || hasKeyFramesEnough(recipe))
        return {key, key};
    // One pass from the first frame to the last meets the moment's frame or the next that others
    // hang on; where two moments share a key frame, each of them has one of those around it.
    const int last = truth.firstNumber + int(truth.frames) - 1;
    return {truth.variableRate ? key : qMin(number, last - frameStep),
            qMin(last, truth.variableRate ? number + truth.keyFrameDistance : number + frameStep)};
}

/// One row for each recipe that fits.
template<typename Fits>
void rows(Fits fits)
{
    QTest::addColumn<QString>("name");
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        if (fits(recipe.truth))
            QTest::newRow(qPrintable(recipe.name)) << recipe.name;
    }
}

} // namespace

class tst_PicturesOfFootage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void coversFitAndKeepTheShape_data();
    void coversFitAndKeepTheShape();
    void coversShowTheirMoment_data();
    void coversShowTheirMoment();
    void stripsShowTenMoments_data();
    void stripsShowTenMoments();
    void soundShowsItsCoverArtOrItself_data();
    void soundShowsItsCoverArtOrItself();
    void picturesAreMadeOnce();
    void picturesThatWereDeletedAreMadeAnew();
    void nobodyTouchedTheFootage();

private:
    /// What is wrong with a strip; empty when nothing is.
    [[nodiscard]] static QString faultOfStrip(const NxFootageRecipe &recipe, const QImage &strip);
    [[nodiscard]] QJsonObject info(const NxFootageRecipe &recipe) const;
    [[nodiscard]] QImage picture(const NxFootageRecipe &recipe, const char *kind) const;

    std::unique_ptr<NxFootageGuard> m_guard;
    std::unique_ptr<FootageYard> m_footage;
};

void tst_PicturesOfFootage::initTestCase()
{
    m_guard = std::make_unique<NxFootageGuard>(NxFootageSet::folder());
    m_footage = std::make_unique<FootageYard>();
    VERIFY_CODE(m_footage->imported(NxFootageSet::folder()), 0);
}

void tst_PicturesOfFootage::cleanupTestCase()
{
    m_footage.reset();
}

QJsonObject tst_PicturesOfFootage::info(const NxFootageRecipe &recipe) const
{
    return m_footage->info(NxFootageSet::path(recipe));
}

QImage tst_PicturesOfFootage::picture(const NxFootageRecipe &recipe, const char *kind) const
{
    return QImage(info(recipe).value(QLatin1String(kind)).toString());
}

void tst_PicturesOfFootage::coversFitAndKeepTheShape_data()
{
    rows([](const NxFootageTruth &truth) { return !truth.size.isEmpty(); });
}

void tst_PicturesOfFootage::coversFitAndKeepTheShape()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const QSize size = picture(recipe, "cover").size();
    const QSize expected = coverSize(recipe.truth);
    const QString said = QStringLiteral("%1 x %2 instead of %3 x %4")
                             .arg(size.width())
                             .arg(size.height())
                             .arg(expected.width())
                             .arg(expected.height());
    QVERIFY2(qAbs(size.width() - expected.width()) <= 1, qPrintable(said));
    QVERIFY2(qAbs(size.height() - expected.height()) <= 1, qPrintable(said));
}

void tst_PicturesOfFootage::coversShowTheirMoment_data()
{
    rows([](const NxFootageTruth &truth) { return truth.isNumbered; });
}

void tst_PicturesOfFootage::coversShowTheirMoment()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const NxFootageTruth &truth = recipe.truth;
    const int number = numberIn(picture(recipe, "cover"), truth);
    const qint64 moment = NxPictureFile::coverMomentUs(truth.durationUs);
    const int expected = truth.kind == NxFootageKind::Image ? 0 : truth.keyNumberAt(moment);
    if (expected >= truth.firstNumber) {
        QCOMPARE(number, expected);
        return;
    }
    // The key frame is hidden: the cover shows it, or what may be seen at or before the moment.
    QVERIFY2(number == expected
                 || (number >= truth.firstNumber && number <= truth.numberAt(moment)),
             qPrintable(QString::number(number)));
}

void tst_PicturesOfFootage::stripsShowTenMoments_data()
{
    rows([](const NxFootageTruth &truth) { return truth.isNumbered && truth.isFilm(); });
}

void tst_PicturesOfFootage::stripsShowTenMoments()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    QString fault = faultOfStrip(recipe, picture(recipe, "strip"));
    constexpr int tries = 20;
    for (int i = 0; i < tries && !fault.isEmpty(); ++i) {
        // Its maker takes no longer than that, and on a busy machine it does not come far in it.
        constexpr int longestPass = 1'500; // ms
        QVERIFY(QFile::remove(info(recipe).value(QLatin1String("strip")).toString()));
        QElapsedTimer clock;
        clock.start();
        fault = faultOfStrip(recipe, picture(recipe, "strip"));
        if (!clock.hasExpired(longestPass))
            break;
    }
    QCOMPARE(fault, QString());
}

QString tst_PicturesOfFootage::faultOfStrip(const NxFootageRecipe &recipe, const QImage &strip)
{
    if (strip.size() != QSize(frameSize.width(), NxPictureFile::StripHeight))
        return QStringLiteral("it is %1 high").arg(strip.height());
    QSet<int> numbers;
    for (int row = 0; row < NxPictureFile::Moments * NxPictureFile::RowsPerMoment; ++row) {
        const int moment = row / NxPictureFile::RowsPerMoment;
        const QPoint corner(0, row * frameSize.height());
        const int number = numberIn(strip.copy(QRect(corner, frameSize)), recipe.truth);
        const qint64 us = NxPictureFile::momentUs(moment, recipe.truth.durationUs);
        const Allowed allowed = allowedAt(recipe, us);
        if (number < allowed.first || number > allowed.last)
            return QStringLiteral("row %1 shows %2, not %3 to %4")
                .arg(row)
                .arg(number)
                .arg(allowed.first)
                .arg(allowed.last);
        numbers.insert(number);
    }
    return numbers.size() == NxPictureFile::Moments ? QString()
                                                    : QStringLiteral("moments show the same");
}

void tst_PicturesOfFootage::soundShowsItsCoverArtOrItself_data()
{
    rows([](const NxFootageTruth &truth) { return truth.kind == NxFootageKind::Audio; });
}

void tst_PicturesOfFootage::soundShowsItsCoverArtOrItself()
{
    QFETCH(QString, name);

    constexpr QSize coverArt(300, 200);
    constexpr int rounding = 12; // of a colour, through two JPEGs
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const QImage cover = picture(recipe, "cover");
    const QColor middle = cover.pixelColor(cover.rect().center());
    if (recipe.truth.hasCoverArt) {
        const QColor teal(0, 128, 128);
        QCOMPARE(cover.size(), coverArt);
        QVERIFY2(qAbs(middle.red() - teal.red()) <= rounding
                     && qAbs(middle.green() - teal.green()) <= rounding
                     && qAbs(middle.blue() - teal.blue()) <= rounding,
                 qPrintable(middle.name()));
        return;
    }
    // The tone goes on from end to end, in the middle between top and bottom.
    QCOMPARE(cover.size(), coverBounds);
    QVERIFY2(middle != cover.pixelColor(cover.rect().topLeft()), qPrintable(middle.name()));
}

void tst_PicturesOfFootage::picturesAreMadeOnce()
{
    const NxFootageRecipe &recipe = NxFootageRecipes::named(QStringLiteral("avc.mp4"));
    const QJsonObject before = info(recipe);
    const QString folder = QFileInfo(before.value(QLatin1String("cover")).toString()).path();
    const NxFootageGuard pictures(folder);
    QCOMPARE(info(recipe), before);
    NX_VERIFY_UNTOUCHED(pictures);
}

void tst_PicturesOfFootage::picturesThatWereDeletedAreMadeAnew()
{
    const NxFootageRecipe &recipe = NxFootageRecipes::named(QStringLiteral("avc.mp4"));
    const QJsonObject before = info(recipe);
    for (const char *kind : {"cover", "strip"})
        QVERIFY(QFile::remove(before.value(QLatin1String(kind)).toString()));
    QCOMPARE(info(recipe), before);
    for (const char *kind : {"cover", "strip"})
        QVERIFY(!QImage(before.value(QLatin1String(kind)).toString()).isNull());
}

void tst_PicturesOfFootage::nobodyTouchedTheFootage()
{
    NX_VERIFY_UNTOUCHED(*m_guard);
}

NX_TEST_MAIN(tst_PicturesOfFootage)
#include "tst_PicturesOfFootage.moc"
