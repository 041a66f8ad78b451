// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Footage/NxFootageMutations.h>
#include <Footage/NxFootageNumbers.h>
#include <Footage/NxFootageParts.h>
#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QMap>
#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

namespace {

QByteArray contentOf(const QString &recipe)
{
    QFile file(NxFootageSet::path(NxFootageRecipes::named(recipe)));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qUtf8Printable(recipe), qUtf8Printable(file.errorString()));
    return file.readAll();
}

QStringList sortedParts(const QByteArray &bytes)
{
    QStringList parts;
    const QVector<NxFootageParts::Part> all = NxFootageParts::partsOf(bytes);
    for (const NxFootageParts::Part &part : all)
        parts += QString::fromLatin1(bytes.mid(part.begin, part.size()).toHex());
    parts.sort();
    return parts;
}

int differences(const QByteArray &a, const QByteArray &b)
{
    int count = 0;
    for (int place = 0; place < qMin(a.size(), b.size()); ++place)
        count += a.at(place) == b.at(place) ? 0 : 1;
    return count;
}

} // namespace

class tst_NxFootageMutations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreManyOfEveryKind();
    void namesAreTheirOwnAndKeepTheSuffix();
    void everyOneDamagesAndAlwaysInTheSameWay();
    void whatIsDamagedIsAsItsNameSays();
    void boxesAndChunksChangePlacesWhole_data();
    void boxesAndChunksChangePlacesWhole();
    void headersWithNumbersAreKnown_data();
    void headersWithNumbersAreKnown();
};

void tst_NxFootageMutations::thereAreManyOfEveryKind()
{
    constexpr size_t wanted = 300;
    const std::vector<NxFootageMutation> all = NxFootageMutations::all();
    QVERIFY2(all.size() >= wanted, qPrintable(QString::number(all.size())));
    QMap<NxFootageDamage, int> ofDamage;
    QMap<QString, int> ofRecipe;
    for (const NxFootageMutation &mutation : all) {
        ++ofDamage[mutation.damage];
        ++ofRecipe[mutation.recipe];
    }
    QCOMPARE(ofRecipe.size(), int(NxFootageRecipes::all().size()));
    QCOMPARE(ofDamage.size(), int(NxFootageDamage::Empty) + 1);
}

void tst_NxFootageMutations::namesAreTheirOwnAndKeepTheSuffix()
{
    QSet<QString> names;
    const std::vector<NxFootageMutation> all = NxFootageMutations::all();
    for (const NxFootageMutation &mutation : all) {
        QVERIFY2(mutation.name().endsWith(mutation.recipe), qPrintable(mutation.name()));
        names.insert(mutation.name());
    }
    QCOMPARE(names.size(), int(all.size()));
}

void tst_NxFootageMutations::everyOneDamagesAndAlwaysInTheSameWay()
{
    const std::vector<NxFootageMutation> all = NxFootageMutations::all();
    for (const NxFootageMutation &mutation : all) {
        const QByteArray whole = contentOf(mutation.recipe);
        const QByteArray damaged = mutation.applied(whole);
        QVERIFY2(damaged != whole, qPrintable(mutation.name()));
        QVERIFY2(damaged == mutation.applied(whole), qPrintable(mutation.name()));
    }
}

void tst_NxFootageMutations::whatIsDamagedIsAsItsNameSays()
{
    constexpr int mostRandom = 64;
    const QByteArray whole = contentOf(QStringLiteral("avc.mp4"));
    const auto damaged = [&whole](NxFootageDamage damage) {
        return NxFootageMutation{QStringLiteral("avc.mp4"), damage, 7}.applied(whole);
    };
    QCOMPARE(damaged(NxFootageDamage::Empty), QByteArray());
    const QByteArray cut = damaged(NxFootageDamage::Cut);
    QVERIFY(!cut.isEmpty() && cut.size() < whole.size() && whole.startsWith(cut));
    const QByteArray zeroed = damaged(NxFootageDamage::Zeroed);
    QCOMPARE(zeroed.size(), whole.size());
    QVERIFY(zeroed.count('\0') > whole.count('\0'));
    const QByteArray random = damaged(NxFootageDamage::Random);
    QCOMPARE(random.size(), whole.size());
    QVERIFY(differences(random, whole) <= mostRandom);
    const QByteArray absurd = damaged(NxFootageDamage::Absurd);
    QCOMPARE(absurd.size(), whole.size());
    QVERIFY(differences(absurd, whole) <= 4 * 4);
}

void tst_NxFootageMutations::boxesAndChunksChangePlacesWhole_data()
{
    QTest::addColumn<QString>("recipe");
    QTest::addColumn<int>("fewest");

    QTest::newRow("MP4") << "avc.mp4" << 3;
    QTest::newRow("MP4 in fragments") << "avc fragments.mp4" << 10;
    QTest::newRow("MOV") << "prores.mov" << 3;
    QTest::newRow("HEIC") << "picture.heic" << 3;
    QTest::newRow("AVI") << "mjpeg.avi" << 3;
    QTest::newRow("WAV") << "tone.wav" << 2;
}

void tst_NxFootageMutations::boxesAndChunksChangePlacesWhole()
{
    QFETCH(QString, recipe);
    QFETCH(int, fewest);

    const QByteArray whole = contentOf(recipe);
    const QVector<NxFootageParts::Part> parts = NxFootageParts::partsOf(whole);
    QVERIFY2(parts.size() >= fewest, qPrintable(QString::number(parts.size())));
    QCOMPARE(parts.last().end, whole.size());
    for (const quint32 seed : {1U, 2U, 3U}) {
        QRandomGenerator random(seed);
        const QByteArray swapped = NxFootageParts::swapped(whole, &random);
        QVERIFY(swapped != whole);
        QCOMPARE(swapped.size(), whole.size());
        // A file that does not begin with its first box any more has none.
        if (NxFootageParts::partsOf(swapped).size() == parts.size())
            QVERIFY(sortedParts(swapped) == sortedParts(whole));
    }
}

void tst_NxFootageMutations::headersWithNumbersAreKnown_data()
{
    QTest::addColumn<QString>("recipe");

    for (const NxFootageRecipe &recipe : NxFootageRecipes::all()) {
        if (recipe.truth.kind != NxFootageKind::Subtitle)
            QTest::newRow(qPrintable(recipe.name)) << recipe.name;
    }
}

void tst_NxFootageMutations::headersWithNumbersAreKnown()
{
    QFETCH(QString, recipe);

    QVERIFY(NxFootageNumbers::fieldsOf(contentOf(recipe)) > 0);
}

NX_TEST_MAIN(tst_NxFootageMutations)
#include "tst_NxFootageMutations.moc"
