// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandHelp.h>
#include <Brevano/commands/CommandTable.h>
#include <Brevano/commands/ViewWords.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

using namespace NXMEDIALIBRARY;

namespace {

QString document(const char *name)
{
    QFile file(QStringLiteral(NX_SOURCE_DIR "/Docs/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// On one line.

QString help()
{
    return CommandHelp::of(*CommandTable::find(QStringLiteral("list"))).join(QLatin1Char(' '));
}

} // namespace

class tst_ViewWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWordHasItsValue();
    void everyCategoryHasItsNumber();
    void anUnknownWordIsNamedWithThoseThereAre_data();
    void anUnknownWordIsNamedWithThoseThereAre();
    void helpAndManualTellEveryWord_data();
    void helpAndManualTellEveryWord();
    void theListingOfTheSampleShowsEveryKey();
};

void tst_ViewWords::everyWordHasItsValue()
{
    const QStringList sortKeys = ViewWords::sortKeys();
    QCOMPARE(sortKeys.size(), int(sbSale) + 1);
    for (int value = sbNone; value <= sbSale; ++value)
        QCOMPARE(int(*ViewWords::sortKey(sortKeys.at(value))), value);
    const QStringList groupKeys = ViewWords::groupKeys();
    QCOMPARE(groupKeys.size(), int(gbCategory) + 1);
    for (int value = gbNone; value <= gbCategory; ++value)
        QCOMPARE(int(*ViewWords::groupKey(groupKeys.at(value))), value);
    const QStringList types = ViewWords::types();
    QCOMPARE(types.size(), int(mtfPaid) + 1);
    for (int value = mtfAll; value <= mtfPaid; ++value)
        QCOMPARE(int(*ViewWords::type(types.at(value))), value);

    QCOMPARE(int(*ViewWords::sortKey(QStringLiteral("datecreated"))), int(sbDateCreated));
    QCOMPARE(int(*ViewWords::sortKey(QStringLiteral("new"))), int(sbNew));
    QCOMPARE(int(*ViewWords::groupKey(QStringLiteral("cameraname"))), int(gbCameraName));
    QCOMPARE(int(*ViewWords::type(QStringLiteral("premium"))), int(mtfPremium));
}

void tst_ViewWords::everyCategoryHasItsNumber()
{
    for (int code = 0; code < NXVBLMODEL::MediaCategoryCount; ++code)
        QCOMPARE(int(*ViewWords::category(QString::number(code))), code);
}

void tst_ViewWords::anUnknownWordIsNamedWithThoseThereAre_data()
{
    QTest::addColumn<QString>("said");
    QTest::addColumn<QString>("expected");

    QTest::newRow("sort key")
        << ViewWords::sortKey(QStringLiteral("size")).errorText()
        << "there is no sort key \"size\", only none, name, duration, datecreated, used, "
           "framerate, inpoint, outpoint, favourite, favouritetime, downloadtime, resolution, "
           "audioinfo, type, new, category, listorder, sale";
    QTest::newRow("capitals")
        << ViewWords::groupKey(QStringLiteral("Type")).errorText()
        << "there is no group key \"Type\", only none, type, datecreated, duration, cameraname, "
           "category";
    QTest::newRow("type")
        << ViewWords::type(QStringLiteral("%1")).errorText()
        << "there is no type \"%1\", only all, video, photo, audio, subtitle, premium, standard, "
           "free, paid";
    QTest::newRow("nothing") << ViewWords::category(QString()).errorText()
                             << "there is no category \"\", only 0 to 10";
    for (const char *word : {"11", "-1", "+1", "01", " 1", "one"})
        QTest::newRow(word)
            << ViewWords::category(QLatin1String(word)).errorText()
            << QStringLiteral("there is no category \"%1\", only 0 to 10").arg(QLatin1String(word));
}

void tst_ViewWords::anUnknownWordIsNamedWithThoseThereAre()
{
    QFETCH(QString, said);
    QFETCH(QString, expected);

    QCOMPARE(said, expected);
}

void tst_ViewWords::helpAndManualTellEveryWord_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("begin");

    QTest::newRow("sort keys") << ViewWords::sortKeys() << "Keys to sort by: ";
    QTest::newRow("group keys") << ViewWords::groupKeys() << "Keys to group by: ";
    QTest::newRow("types") << ViewWords::types() << "Types: ";
}

void tst_ViewWords::helpAndManualTellEveryWord()
{
    QFETCH(QStringList, words);
    QFETCH(QString, begin);

    const QString list = begin + words.join(QLatin1String(", ")) + QLatin1Char('.');
    QVERIFY2(help().contains(list), qPrintable(list));
    for (const QString &word : words)
        QVERIFY2(document("cli.md").contains(QLatin1Char('`') + word + QLatin1Char('`')),
                 qPrintable(word));
}

void tst_ViewWords::theListingOfTheSampleShowsEveryKey()
{
    const QString listing = document("listing.md");
    const int groups = listing.indexOf(QLatin1String("--group` ..."));
    QVERIFY(groups > 0);
    for (const QString &key : ViewWords::sortKeys())
        QVERIFY2(listing.left(groups).contains(QLatin1Char('`') + key + QLatin1Char('`')),
                 qPrintable(key));
    for (const QString &key : ViewWords::groupKeys())
        QVERIFY2(listing.mid(groups).contains(QLatin1Char('`') + key + QLatin1Char('`')),
                 qPrintable(key));
}

NX_TEST_MAIN(tst_ViewWords)
#include "tst_ViewWords.moc"
