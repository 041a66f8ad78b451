// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FootageYard.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QtTest>

/// Footage that was moved, renamed, copied and exchanged, and media that find it again.
class tst_RelinkCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFileOfTheSameLengthTakesThePlace();
    void aFileOfAnotherLengthIsRefused();
    void whatIsNoMediaIsRefused_data();
    void whatIsNoMediaIsRefused();
    void aFileThatIsNoneIsTold_data();
    void aFileThatIsNoneIsTold();
    void allThatIsMissingIsFoundByItsContentsInOneStep();
    void aFileWithTwoCopiesIsListedAndNotChosen();
    void whatIsNotFoundIsTold();
    void onlyTheNamedMediaAreLookedFor();
    void withNothingMissingItIsDone();
    void aFolderThatIsNotThereIsTold();
    void jsonTellsEachMedia();
    void wordsThatDoNotFitAreWrong_data();
    void wordsThatDoNotFitAreWrong();

private:
    [[nodiscard]] QString copied(const char *recipe, const QString &name) const;
    void moved(const QString &from, const QString &to) const;
    [[nodiscard]] const Yard &yard() const { return m_footage->yard(); }
    [[nodiscard]] QString elsewhere(const QString &name) const
    {
        return yard().path(QStringLiteral("elsewhere/") + name);
    }

    std::unique_ptr<FootageYard> m_footage;
    QString m_film;
    QString m_sound;
};

namespace {

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

bool isSaid(const ProgramResult &result, const QByteArray &text)
{
    return result.said(text.constData());
}

} // namespace

QString tst_RelinkCommand::copied(const char *recipe, const QString &name) const
{
    const QString source = NxFootageSet::path(NxFootageRecipes::named(QLatin1String(recipe)));
    const QString target = yard().footage(name);
    if (!QFile::copy(source, target))
        QTest::qFail(qPrintable(target), __FILE__, __LINE__);
    return target;
}

void tst_RelinkCommand::moved(const QString &from, const QString &to) const
{
    QVERIFY(QFile::rename(from, to));
}

void tst_RelinkCommand::init()
{
    m_footage = std::make_unique<FootageYard>();
    m_film = copied("avc.mp4", QStringLiteral("film.mp4"));
    m_sound = copied("tone.wav", QStringLiteral("sound.wav"));
    VERIFY_CODE(m_footage->imported(yard().footage()), 0);
    QVERIFY(QDir().mkpath(elsewhere(QString())));
}

void tst_RelinkCommand::cleanup()
{
    m_footage.reset();
}

void tst_RelinkCommand::aFileOfTheSameLengthTakesThePlace()
{
    const QString target = elsewhere(QStringLiteral("renamed.mp4"));
    moved(m_film, target);
    const NxFootageGuard guard(elsewhere(QString()));
    const ProgramResult relinked =
        yard().run("relink", {QStringLiteral("film.mp4"), QStringLiteral("--to"), target});
    VERIFY_CODE(relinked, 0);
    QCOMPARE(relinked.output, QByteArray("Relinked \"film.mp4\" to " + target.toUtf8() + "\n"));
    QVERIFY(yard().paths().contains(target));
    QCOMPARE(m_footage->info(target).value(QLatin1String("read")).toString(),
             QStringLiteral("done"));
    VERIFY_CODE(yard().run("undo"), 0);
    QVERIFY(yard().paths().contains(m_film));
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_RelinkCommand::aFileOfAnotherLengthIsRefused()
{
    const QString target = elsewhere(QStringLiteral("other.mp4"));
    QVERIFY(
        QFile::copy(NxFootageSet::path(NxFootageRecipes::named(QStringLiteral("60.mp4"))), target));
    const QStringList before = yard().paths();
    const ProgramResult refused =
        yard().run("relink", {QStringLiteral("film.mp4"), QStringLiteral("--to"), target});
    VERIFY_CODE(refused, 1);
    QVERIFY2(refused.said("The selected file's duration is different from the clip you used in "
                          "project and may cause issues, please reselect another file with the "
                          "same duration."),
             refused.story().constData());
    QCOMPARE(yard().paths(), before);
}

void tst_RelinkCommand::whatIsNoMediaIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("a text") << QStringLiteral("note.txt") << QByteArray("Dear diary");
    QTest::newRow("an empty film") << QStringLiteral("empty.mp4") << QByteArray();
    QTest::newRow("noise that is called a film")
        << QStringLiteral("noise.mp4") << QByteArray(5000, 'x');
}

void tst_RelinkCommand::whatIsNoMediaIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);

    const QString target = yard().folder().write(QStringLiteral("elsewhere/") + name, content);
    const QStringList before = yard().paths();
    const ProgramResult refused =
        yard().run("relink", {QStringLiteral("film.mp4"), QStringLiteral("--to"), target});
    VERIFY_CODE(refused, 1);
    QVERIFY2(isSaid(refused, target.toUtf8()
                                 + " cannot be read as media, so it cannot take the "
                                   "place of \"film.mp4\"."),
             refused.story().constData());
    QCOMPARE(yard().paths(), before);
}

void tst_RelinkCommand::aFileThatIsNoneIsTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("cause");

    QTest::newRow("not there") << QStringLiteral("nowhere.mp4")
                               << QByteArray("nowhere.mp4: there is no such file");
    QTest::newRow("a folder") << QStringLiteral("elsewhere")
                              << QByteArray("elsewhere: it is no file");
}

void tst_RelinkCommand::aFileThatIsNoneIsTold()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, cause);

    const ProgramResult refused =
        yard().run("relink", {QStringLiteral("film.mp4"), QStringLiteral("--to"), path});
    VERIFY_CODE(refused, 1);
    QVERIFY2(isSaid(refused, cause), refused.story().constData());
}

void tst_RelinkCommand::allThatIsMissingIsFoundByItsContentsInOneStep()
{
    const QStringList before = yard().paths();
    QVERIFY(QDir().mkpath(elsewhere(QStringLiteral("Deep/Deeper"))));
    const QString film = elsewhere(QStringLiteral("Deep/IMG_0001.mp4"));
    const QString sound = elsewhere(QStringLiteral("Deep/Deeper/take \u00e9.wav"));
    moved(m_film, film);
    moved(m_sound, sound);
    const NxFootageGuard guard(elsewhere(QString()));
    const ProgramResult found =
        yard().run("relink", {QStringLiteral("--search"), elsewhere(QString())});
    VERIFY_CODE(found, 0);
    QVERIFY2(found.output.contains("Relinked \"film.mp4\" to " + film.toUtf8()
                                   + " (the same contents)\n"),
             found.story().constData());
    QVERIFY2(found.output.endsWith("2 media relinked, 0 still missing\n"),
             found.story().constData());
    QCOMPARE(sorted(yard().paths()), sorted({film, sound}));
    QCOMPARE(m_footage->info(film).value(QLatin1String("read")).toString(), QStringLiteral("done"));
    VERIFY_CODE(yard().run("undo"), 0);
    QCOMPARE(yard().paths(), before);
    NX_VERIFY_UNTOUCHED(guard);
}

void tst_RelinkCommand::aFileWithTwoCopiesIsListedAndNotChosen()
{
    const QString one = elsewhere(QStringLiteral("one.mp4"));
    const QString two = elsewhere(QStringLiteral("two.mp4"));
    QVERIFY(QFile::copy(m_film, one));
    moved(m_film, two);
    const ProgramResult found =
        yard().run("relink", {QStringLiteral("--search"), elsewhere(QString())});
    VERIFY_CODE(found, 1);
    QVERIFY2(isSaid(found, "film.mp4: may be one of these files:\n  " + one.toUtf8() + "\n  "
                               + two.toUtf8() + "\n"),
             found.story().constData());
    QCOMPARE(found.output, QByteArray("0 media relinked, 1 still missing\n"));
    QVERIFY(yard().paths().contains(m_film));
}

void tst_RelinkCommand::whatIsNotFoundIsTold()
{
    const QString film = elsewhere(QStringLiteral("film.mp4"));
    moved(m_film, film);
    QVERIFY(QFile::remove(m_sound));
    const ProgramResult found =
        yard().run("relink", {QStringLiteral("--search"), elsewhere(QString())});
    VERIFY_CODE(found, 3);
    QVERIFY2(found.said("sound.wav: was not found"), found.story().constData());
    QVERIFY2(found.output.endsWith("1 media relinked, 1 still missing\n"),
             found.story().constData());
}

void tst_RelinkCommand::onlyTheNamedMediaAreLookedFor()
{
    const QString film = elsewhere(QStringLiteral("film.mp4"));
    moved(m_film, film);
    moved(m_sound, elsewhere(QStringLiteral("sound.wav")));
    const ProgramResult found =
        yard().run("relink", {QStringLiteral("film.mp4"), QStringLiteral("--search"),
                              elsewhere(QString()), QStringLiteral("--no-read")});
    VERIFY_CODE(found, 0);
    QVERIFY(yard().paths().contains(film));
    QVERIFY(yard().paths().contains(m_sound));
}

void tst_RelinkCommand::withNothingMissingItIsDone()
{
    const ProgramResult found =
        yard().run("relink", {QStringLiteral("--search"), elsewhere(QString())});
    VERIFY_CODE(found, 0);
    QCOMPARE(found.output, QByteArray("0 media relinked, 0 still missing\n"));
}

void tst_RelinkCommand::aFolderThatIsNotThereIsTold()
{
    QVERIFY(QFile::remove(m_film));
    const QString nowhere = elsewhere(QStringLiteral("nowhere"));
    const ProgramResult found = yard().run("relink", {QStringLiteral("--search"), nowhere});
    VERIFY_CODE(found, 1);
    QVERIFY2(found.said(nowhere.toUtf8().constData()), found.story().constData());
}

void tst_RelinkCommand::jsonTellsEachMedia()
{
    const QString film = elsewhere(QStringLiteral("film.mp4"));
    moved(m_film, film);
    QVERIFY(QFile::remove(m_sound));
    const ProgramResult found = yard().run(
        "relink", {QStringLiteral("--search"), elsewhere(QString()), QStringLiteral("--json")});
    VERIFY_CODE(found, 3);
    QCOMPARE(found.values("relinked", "match"), QStringList{QStringLiteral("fingerprint")});
    QCOMPARE(found.values("relinked", "was"), QStringList{m_film});
    QCOMPARE(found.values("relinked", "path"), QStringList{film});
    QCOMPARE(found.values("missing", "match"), QStringList{QStringLiteral("not_found")});
    QCOMPARE(found.values("missing", "was"), QStringList{m_sound});
}

void tst_RelinkCommand::wordsThatDoNotFitAreWrong_data()
{
    QTest::addColumn<QStringList>("words");

    const QString film = QStringLiteral("film.mp4");
    QTest::newRow("neither file nor folder") << QStringList{film};
    QTest::newRow("both") << QStringList{film, QStringLiteral("--to=a.mp4"),
                                         QStringLiteral("--search=.")};
    QTest::newRow("a file for nobody") << QStringList{QStringLiteral("--to=a.mp4")};
    QTest::newRow("a file for two")
        << QStringList{film, QStringLiteral("sound.wav"), QStringLiteral("--to=a.mp4")};
}

void tst_RelinkCommand::wordsThatDoNotFitAreWrong()
{
    QFETCH(QStringList, words);

    VERIFY_CODE(yard().run("relink", words), 2);
}

NX_TEST_MAIN(tst_RelinkCommand)
#include "tst_RelinkCommand.moc"
