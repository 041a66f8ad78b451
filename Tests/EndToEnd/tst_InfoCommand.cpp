// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ExpectedInfo.h"
#include "FootageYard.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QRegularExpression>
#include <QtTest>

class tst_InfoCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theToolsThatMadeTheFootageAreOutOfReach();
    void everyFileTellsWhatItIs_data();
    void everyFileTellsWhatItIs();
    void theKeysStandInTheirOrder();
    void theListTellsTheSame();
    void aFileIsFoundByItsName();
    void peopleReadLinesOfText();
    void whatIsNotInTheProjectIsTold();
    void aFileThatIsGoneSaysSo();
    void aFileThatCannotBeReadSaysWhy();
    void nobodyTouchedTheFootage();

private:
    std::unique_ptr<NxFootageGuard> m_guard;
    std::unique_ptr<FootageYard> m_footage;
};

void tst_InfoCommand::initTestCase()
{
    m_guard = std::make_unique<NxFootageGuard>(NxFootageSet::folder());
    m_footage = std::make_unique<FootageYard>();
    VERIFY_CODE(m_footage->imported(NxFootageSet::folder()), 0);
}

void tst_InfoCommand::cleanupTestCase()
{
    m_footage.reset();
}

void tst_InfoCommand::theToolsThatMadeTheFootageAreOutOfReach()
{
    const QStringList tools{QStringLiteral("ffprobe"), QStringLiteral("ffmpeg"),
                            QStringLiteral("mediainfo"), QStringLiteral("exiv2")};
    QCOMPARE(FootageYard::reachable(tools), QStringList());
    const ProgramResult asked =
        ProgramRun::runShell(QStringLiteral("command -v ffprobe ffmpeg mediainfo"), {});
    QCOMPARE(asked.output, QByteArray());
}

void tst_InfoCommand::everyFileTellsWhatItIs_data()
{
    QTest::addColumn<QString>("name");

    for (const NxFootageRecipe &recipe : NxFootageRecipes::all())
        QTest::newRow(qPrintable(recipe.name)) << recipe.name;
}

void tst_InfoCommand::everyFileTellsWhatItIs()
{
    QFETCH(QString, name);

    const NxFootageRecipe &recipe = NxFootageRecipes::named(name);
    const QString path = NxFootageSet::path(recipe);
    const QJsonObject info = m_footage->info(path);
    const QStringList wrong = ExpectedInfo::differences(recipe, path, info);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1String("\n    "))));
    const QRegularExpression digits(QStringLiteral("^[0-9a-f]{32,}$"));
    const QString fingerprint = info.value(QLatin1String("fingerprint")).toString();
    QVERIFY2(digits.match(fingerprint).hasMatch(), qPrintable(fingerprint));
}

void tst_InfoCommand::theKeysStandInTheirOrder()
{
    const QString path = NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("avc.mp4")));
    const ProgramResult result = m_footage->yard().run("info", {path, QStringLiteral("--json")});
    VERIFY_CODE(result, 0);
    QCOMPARE(result.lines().size(), 1);
    const QByteArray line = result.lines().first();
    int place = 0;
    const QStringList keys = ExpectedInfo::keys();
    for (const QString &key : keys) {
        const int next = line.indexOf('"' + key.toLatin1() + "\":", place);
        QVERIFY2(next >= place, (key.toLatin1() + " in " + line).constData());
        place = next;
    }
    QCOMPARE(result.objects().first().size(), keys.size());
}

void tst_InfoCommand::theListTellsTheSame()
{
    QMap<QString, QJsonObject> listed;
    const QVector<QJsonObject> rows = m_footage->yard().listed();
    for (const QJsonObject &row : rows)
        listed.insert(row.value(QLatin1String("path")).toString(), row);
    QCOMPARE(listed.size(), int(NxFootageRecipes::all().size()));
    const QStringList own{QStringLiteral("row"), QStringLiteral("kind"), QStringLiteral("title")};
    for (const char *name : {"avc.mp4", "tone.mp3", "camera.jpg", "many.gif", "utf-8.srt"}) {
        const QString path = NxFootageSet::path(NxFootageRecipes::named(QLatin1String(name)));
        const QJsonObject info = m_footage->info(path);
        const QJsonObject row = listed.value(path);
        QVERIFY2(row.size() > own.size(), name);
        for (auto key = row.begin(); key != row.end(); ++key) {
            if (!own.contains(key.key()))
                QVERIFY2(info.value(key.key()) == key.value(),
                         qPrintable(QLatin1String(name) + QLatin1String(": ") + key.key()));
        }
    }
}

void tst_InfoCommand::aFileIsFoundByItsName()
{
    const QJsonObject info = m_footage->info(QStringLiteral("prores.mov"));
    QCOMPARE(info.value(QLatin1String("path")).toString(),
             NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("prores.mov"))));
}

void tst_InfoCommand::peopleReadLinesOfText()
{
    const ProgramResult result = m_footage->yard().run("info", {QStringLiteral("prores.mov")});
    VERIFY_CODE(result, 0);
    for (const char *part :
         {"prores.mov", "320", "180", "prores", "10:20:30:05", "B007", "Lumen X2", "48000"})
        QVERIFY2(result.output.contains(part), (part + (" in " + result.output)).constData());
    QVERIFY(!result.output.contains('{'));
}

void tst_InfoCommand::whatIsNotInTheProjectIsTold()
{
    const ProgramResult result =
        m_footage->yard().run("info", {QStringLiteral("nowhere.mp4"), QStringLiteral("--json")});
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said("nowhere.mp4"), result.story().constData());
    QVERIFY(result.output.isEmpty());
}

void tst_InfoCommand::aFileThatIsGoneSaysSo()
{
    const FootageYard footage;
    const QString clip = footage.yard().clip(QStringLiteral("gone.mp4"));
    QVERIFY(footage.imported(clip).code >= 0);
    QVERIFY(QFile::remove(clip));
    const QJsonObject info = footage.info(clip, {0, 3});
    QCOMPARE(info.value(QLatin1String("missing")).toBool(), true);
    QCOMPARE(info.value(QLatin1String("cover")), QJsonValue());
}

void tst_InfoCommand::aFileThatCannotBeReadSaysWhy()
{
    const FootageYard footage;
    const QString clip = footage.yard().clip(QStringLiteral("broken.mp4"), "This is no film.");
    const NxFootageGuard guard(footage.yard().footage());
    QVERIFY(footage.imported(clip).code >= 0);
    const QJsonObject info = footage.info(clip, {0, 3});
    QCOMPARE(info.value(QLatin1String("read")).toString(), QStringLiteral("failed"));
    const QString reason = info.value(QLatin1String("reason")).toString();
    QVERIFY(!reason.isEmpty());
    QVERIFY2(!reason.contains(clip), qPrintable(reason));
    QCOMPARE(info.value(QLatin1String("unreadable")).toString(), reason);
    QVERIFY(info.value(QLatin1String("cover_state")) != QLatin1String("made"));
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_InfoCommand::nobodyTouchedTheFootage()
{
    NX_VERIFY_UNTOUCHED(*m_guard);
}

NX_TEST_MAIN(tst_InfoCommand)
#include "tst_InfoCommand.moc"
