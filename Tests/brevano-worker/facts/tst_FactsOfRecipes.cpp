// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FactsOfFile.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxTestMain.h>

#include <QObject>
#include <QStringList>
#include <QtTest>

#include <cmath>

namespace {

constexpr qint64 MicrosecondsAFrameOfSound = 40'000;

QString asText(NxRational rate)
{
    return QStringLiteral("%1/%2").arg(rate.num).arg(rate.den);
}

QString asText(bool yes)
{
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

QString asText(qint64 time)
{
    return time == NxNoFootageTime ? QStringLiteral("none") : QString::number(time);
}

/// What a file says in every detail that its recipe knows, one line each.
QString asText(const NxFootageFacts &facts)
{
    const NxFootageStreams &streams = facts.streams;
    return QStringList{
        QStringLiteral("kind %1").arg(int(streams.kind)),
        QStringLiteral("size %1x%2").arg(streams.width).arg(streams.height),
        QStringLiteral("rotation %1").arg(streams.rotation),
        QStringLiteral("video %1").arg(streams.videoCodec),
        QStringLiteral("rate %1").arg(asText(facts.rate)),
        QStringLiteral("frames %1").arg(facts.frames),
        QStringLiteral("variable %1").arg(asText(streams.variableRate)),
        QStringLiteral("audio %1").arg(streams.audioCodec),
        QStringLiteral("sample rate %1").arg(streams.sampleRate),
        QStringLiteral("channels %1").arg(streams.channels),
        QStringLiteral("shot %1").arg(asText(facts.shot)),
        QStringLiteral("camera %1/%2").arg(streams.cameraMaker, streams.cameraModel),
        QStringLiteral("timecode %1").arg(facts.timecode),
        QStringLiteral("reel %1").arg(facts.reel),
        QStringLiteral("encoding %1").arg(streams.textEncoding),
    }
        .join(QLatin1Char('\n'));
}

/// The facts that the recipe of a file promises. Sound whose length is not exact may have a few
/// frames more.
NxFootageFacts promised(const NxFootageTruth &truth, const NxFootageFacts &read)
{
    NxFootageFacts facts;
    facts.streams.kind = truth.kind;
    facts.streams.width = qMax(0, truth.size.width());
    facts.streams.height = qMax(0, truth.size.height());
    facts.streams.rotation = truth.rotation;
    facts.streams.videoCodec = truth.videoCodec;
    facts.rate = truth.rate;
    facts.frames = truth.frames;
    if (truth.kind == NxFootageKind::Audio) {
        const qint64 slack =
            std::llround(std::ceil(double(truth.durationSlackUs) / MicrosecondsAFrameOfSound));
        if (read.frames > truth.frames && read.frames <= truth.frames + slack)
            facts.frames = read.frames;
    }
    facts.streams.variableRate = truth.variableRate;
    facts.streams.audioCodec = truth.audioCodec;
    facts.streams.sampleRate = truth.sampleRate;
    facts.streams.channels = truth.channels;
    facts.shot = truth.shot;
    facts.streams.cameraMaker = truth.cameraMaker;
    facts.streams.cameraModel = truth.cameraModel;
    facts.timecode = truth.timecode;
    facts.reel = truth.reel;
    facts.streams.textEncoding = truth.textEncoding;
    return facts;
}

} // namespace

class tst_FactsOfRecipes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileTellsWhatItsRecipeMadeOfIt_data();
    void aFileTellsWhatItsRecipeMadeOfIt();
    void aFileLastsAsLongAsItsRecipeMadeIt_data() { aFileTellsWhatItsRecipeMadeOfIt_data(); }
    void aFileLastsAsLongAsItsRecipeMadeIt();
};

void tst_FactsOfRecipes::aFileTellsWhatItsRecipeMadeOfIt_data()
{
    QTest::addColumn<QString>("name");
    for (const NxFootageRecipe &recipe : NxFootageRecipes::all())
        QTest::newRow(qUtf8Printable(recipe.name)) << recipe.name;
}

void tst_FactsOfRecipes::aFileTellsWhatItsRecipeMadeOfIt()
{
    QFETCH(QString, name);
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const auto facts = FactsOfFile::read(NxFootageSet::path(recipe));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    QCOMPARE(asText(*facts), asText(promised(recipe.truth, *facts)));
}

void tst_FactsOfRecipes::aFileLastsAsLongAsItsRecipeMadeIt()
{
    QFETCH(QString, name);
    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const auto facts = FactsOfFile::read(NxFootageSet::path(recipe));
    QVERIFY2(facts, qUtf8Printable(facts.errorText()));
    // Some containers count in milliseconds.
    constexpr qint64 roundingUs = 1'000;
    const qint64 difference = qAbs(facts->durationUs - recipe.truth.durationUs);
    QVERIFY2(difference <= recipe.truth.durationSlackUs + roundingUs,
             qPrintable(QStringLiteral("%1 us, but %2 us were made")
                            .arg(facts->durationUs)
                            .arg(recipe.truth.durationUs)));
}

NX_TEST_MAIN(tst_FactsOfRecipes)
#include "tst_FactsOfRecipes.moc"
