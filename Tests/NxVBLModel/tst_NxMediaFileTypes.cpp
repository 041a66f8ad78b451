// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaFileTypes.h>

#include <NxVBLModel/INxMediaInfo.h>

#include <Support/NxTestMain.h>

#include <QSet>
#include <QTest>

#include "FileTypeLists.h"

using namespace NXVBLMODEL;

namespace {

struct List
{
    const char *name;
    const char *patterns;
    NxSuffixList list;
};

constexpr List Lists[] = {
    {"video", VideoPatterns, NxSuffixList::Video},
    {"image", ImagePatterns, NxSuffixList::Image},
    {"audio", AudioPatterns, NxSuffixList::Audio},
    {"subtitle", SubtitlePatterns, NxSuffixList::Subtitle},
    {"unsupported", UnsupportedPatterns, NxSuffixList::Unsupported},
};

QStringList suffixesOf(const char *patterns)
{
    QStringList suffixes =
        QString::fromLatin1(patterns).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString &suffix : suffixes)
        suffix.remove(0, 2); // "*."
    return suffixes;
}

} // namespace

class tst_NxMediaFileTypes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void listsArePatternsForDialogs_data();
    void listsArePatternsForDialogs();
    void everySuffixIsFoundWhateverItsCase_data();
    void everySuffixIsFoundWhateverItsCase();
    void theSuffixTellsWhatAFileIs_data();
    void theSuffixTellsWhatAFileIs();
    void anUnsupportedSuffixIsNotImportable_data();
    void anUnsupportedSuffixIsNotImportable();
    void datIsImportableAndUnsupported();
    void aStrangeSuffixTellsNothing_data();
    void aStrangeSuffixTellsNothing();
    void provisionalInformationHasNoNumbers();
    void provisionalInformationIsShared();
};

void tst_NxMediaFileTypes::listsArePatternsForDialogs_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<QString>("patterns");
    for (const List &list : Lists)
        QTest::newRow(list.name) << int(list.list) << QString::fromLatin1(list.patterns);
}

void tst_NxMediaFileTypes::listsArePatternsForDialogs()
{
    QFETCH(int, list);
    QTEST(suffixPatterns(NxSuffixList(list)), "patterns");
}

void tst_NxMediaFileTypes::everySuffixIsFoundWhateverItsCase_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<QString>("suffix");
    for (const List &list : Lists) {
        const QStringList suffixes = suffixesOf(list.patterns);
        for (int i = 0; i < suffixes.size(); ++i) {
            const bool isTwice = suffixes.indexOf(suffixes.at(i)) < i;
            QTest::addRow("%s %s%s", list.name, qUtf8Printable(suffixes.at(i)),
                          isTwice ? " once more" : "")
                << int(list.list) << suffixes.at(i);
        }
    }
}

void tst_NxMediaFileTypes::everySuffixIsFoundWhateverItsCase()
{
    QFETCH(int, list);
    QFETCH(QString, suffix);
    const QString capitalised = suffix.left(1) + suffix.mid(1).toLower();
    QVERIFY(isOnSuffixList(suffix, NxSuffixList(list)));
    QVERIFY(isOnSuffixList(suffix.toLower(), NxSuffixList(list)));
    QVERIFY(isOnSuffixList(capitalised, NxSuffixList(list)));
    QVERIFY(!isOnSuffixList(suffix + QLatin1Char('_'), NxSuffixList(list)));
    QVERIFY(!isOnSuffixList(QLatin1String("*.") + suffix, NxSuffixList(list)));
}

void tst_NxMediaFileTypes::theSuffixTellsWhatAFileIs_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("subKind");
    QTest::addColumn<int>("kindCode");
    QTest::addColumn<int>("infoKind");
    QTest::addColumn<int>("streams");

    const auto rows = [](const char *patterns, int type, int kindCode, int infoKind, int streams) {
        QSet<QString> seen;
        const QStringList suffixes = suffixesOf(patterns);
        for (const QString &suffix : suffixes) {
            if (suffix == QLatin1String("GIF") || seen.contains(suffix))
                continue;
            seen.insert(suffix);
            QTest::newRow(qUtf8Printable(suffix))
                << suffix << type << 0 << kindCode << infoKind << streams;
        }
    };
    rows(VideoPatterns, 4, 0, 3, 1 | 2);
    rows(ImagePatterns, 5, 3, 5, 4);
    rows(AudioPatterns, 3, 0, 4, 2);
    rows(SubtitlePatterns, 14, 0, 16, 0);
    QTest::newRow("GIF") << QStringLiteral("GIF") << 12 << 1006 << 1 << 3 << 1;
}

void tst_NxMediaFileTypes::theSuffixTellsWhatAFileIs()
{
    QFETCH(QString, suffix);
    for (const QString &written : {suffix, suffix.toLower()}) {
        QVERIFY(isImportableSuffix(written));
        const NxSuffixFacts facts = suffixFacts(written);
        QTEST(int(facts.type), "type");
        QTEST(int(facts.subKind), "subKind");
        QTEST(int(facts.kindCode), "kindCode");
        QVERIFY(facts.provisionalInfo);
        QTEST(facts.provisionalInfo->kind(), "infoKind");
        QTEST(facts.provisionalInfo->streamFlags(), "streams");
    }
}

void tst_NxMediaFileTypes::anUnsupportedSuffixIsNotImportable_data()
{
    QTest::addColumn<QString>("suffix");
    const QStringList suffixes = suffixesOf(UnsupportedPatterns);
    for (const QString &suffix : suffixes) {
        if (suffix != QLatin1String("DAT"))
            QTest::newRow(qUtf8Printable(suffix)) << suffix;
    }
}

void tst_NxMediaFileTypes::anUnsupportedSuffixIsNotImportable()
{
    QFETCH(QString, suffix);
    QVERIFY(!isImportableSuffix(suffix));
    QVERIFY(!isImportableSuffix(suffix.toLower()));
    QCOMPARE(suffixFacts(suffix).type, mtNone);
}

void tst_NxMediaFileTypes::datIsImportableAndUnsupported()
{
    const QString dat = QStringLiteral("dat");
    QVERIFY(isImportableSuffix(dat));
    QVERIFY(isOnSuffixList(dat, NxSuffixList::Video));
    QVERIFY(isOnSuffixList(dat, NxSuffixList::Unsupported));
}

void tst_NxMediaFileTypes::aStrangeSuffixTellsNothing_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::newRow("unknown") << QStringLiteral("xyz");
    QTest::newRow("empty") << QString();
    QTest::newRow("with its point") << QStringLiteral(".mp4");
    QTest::newRow("part of one") << QStringLiteral("MS");
    QTest::newRow("two joined") << QStringLiteral("MP4;*.FLV");
    QTest::newRow("with a blank") << QStringLiteral("mp4 ");
}

void tst_NxMediaFileTypes::aStrangeSuffixTellsNothing()
{
    QFETCH(QString, suffix);
    QVERIFY(!isImportableSuffix(suffix));
    for (const List &list : Lists)
        QVERIFY(!isOnSuffixList(suffix, list.list));
    const NxSuffixFacts facts = suffixFacts(suffix);
    QCOMPARE(facts.type, mtNone);
    QCOMPARE(facts.subKind, mskNone);
    QCOMPARE(facts.kindCode, mkcNone);
    QVERIFY(!facts.provisionalInfo);
}

void tst_NxMediaFileTypes::provisionalInformationHasNoNumbers()
{
    for (const char *suffix : {"mp4", "gif", "wav", "jpg", "srt"}) {
        const INxMediaInfo *info = suffixFacts(QString::fromLatin1(suffix)).provisionalInfo;
        QVERIFY(info);
        QCOMPARE(info->frameCount(), qint64(0));
        QCOMPARE(info->duration(), qint64(0));
        QVERIFY(!info->frameRate().isValid());
        QVERIFY(!info->videoStream());
        QVERIFY(!info->audioStream());
        QVERIFY(!info->imageInfo());
    }
}

void tst_NxMediaFileTypes::provisionalInformationIsShared()
{
    QCOMPARE(suffixFacts(QStringLiteral("mp4")).provisionalInfo,
             suffixFacts(QStringLiteral("MOV")).provisionalInfo);
}

NX_TEST_MAIN(tst_NxMediaFileTypes)
#include "tst_NxMediaFileTypes.moc"
