// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandHelp.h>
#include <Brevano/commands/CommandLine.h>
#include <Brevano/window/Languages.h>
#include <Brevano/window/ShotCommand.h>
#include <Brevano/window/ShotWords.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

using namespace NXMEDIALIBRARY;

namespace {

/// The words of a command that "|" parts, after those that must be there.
NxResult<ShotWords> wordsOf(const QString &rest)
{
    ProgramArguments arguments{{QStringLiteral("Film.brevano"), true},
                               {QStringLiteral("--out=a.png"), true}};
    const QStringList words = rest.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    for (const QString &word : words)
        arguments.append({word, true});
    const NxResult<CommandLine> line = CommandLine::parse(arguments, ShotCommand::entry().options);
    if (!line)
        return line.error();
    return ShotWords::of(*line);
}

} // namespace

class tst_ShotWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsNotSaidIsAsAtAFirstStart();
    void everyWordIsTaken();
    void unknownWordsAreSaid_data();
    void unknownWordsAreSaid();
    void thePictureMustBeNamed();
    void helpAndManualTellEveryOption();
};

void tst_ShotWords::whatIsNotSaidIsAsAtAFirstStart()
{
    const NxResult<ShotWords> words = wordsOf(QString());
    QVERIFY2(words, qPrintable(words.errorText()));
    QCOMPARE(words->out, QStringLiteral("a.png"));
    QCOMPARE(words->size, QSize(1280, 800));
    QCOMPARE(words->skin, NxSkin::Dark);
    QCOMPARE(words->language, QStringLiteral("en"));
    QCOMPARE(words->selected, QString());
    QCOMPARE(words->view.category, NXVBLMODEL::mctMedia);
    QCOMPARE(words->view.mode, vmLargeThumbnail);
    QCOMPARE(words->view.sort.sortBy, sbName);
    QCOMPARE(words->view.group.groupBy, gbNone);
    QVERIFY(words->view.filter.keyword.isEmpty());
}

void tst_ShotWords::everyWordIsTaken()
{
    const NxResult<ShotWords> words =
        wordsOf(QStringLiteral("--size=640x480|--scale|2|--category|1|--view|list|--sort|duration|"
                               "--desc|--group|type|--group-desc|--type|audio|--search|song|"
                               "--select|a b|--skin|light|--lang|zh_CN"));
    QVERIFY2(words, qPrintable(words.errorText()));
    QCOMPARE(words->size, QSize(640, 480));
    QCOMPARE(words->skin, NxSkin::Light);
    QCOMPARE(words->language, QStringLiteral("zh_CN"));
    QCOMPARE(words->selected, QStringLiteral("a b"));
    QCOMPARE(words->view.category, NXVBLMODEL::mctAudio);
    QCOMPARE(words->view.mode, vmList);
    QCOMPARE(words->view.sort.sortBy, sbDuration);
    QCOMPARE(words->view.sort.order, soDESC);
    QCOMPARE(words->view.group.groupBy, gbType);
    QCOMPARE(words->view.group.order, soDESC);
    QCOMPARE(int(words->view.filter.type), int(mtfAudio));
    QCOMPARE(words->view.filter.keyword, QStringLiteral("song"));
}

void tst_ShotWords::unknownWordsAreSaid_data()
{
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("said");

    for (const char *size : {"", "800", "800x", "x600", "0x600", "800x0", "-1x5", "8193x10",
                             "10x8193", "99999x10", "999999x10", "800X600", "800x600 ", "1.5x2"})
        QTest::newRow(size) << QStringLiteral("--size=") + QLatin1String(size)
                            << QStringLiteral("\"%1\" is no size: 1280x800 is one, and no side is "
                                              "above 8192")
                                   .arg(QLatin1String(size));
    QTest::newRow("scale") << "--scale=1.5"
                           << "there is no scale \"1.5\", only 1, 2";
    QTest::newRow("no scale") << "--scale="
                              << "there is no scale \"\", only 1, 2";
    QTest::newRow("view") << "--view=huge"
                          << "there is no view \"huge\", only list, small, middle, large";
    QTest::newRow("skin") << "--skin=Dark"
                          << "there is no skin \"Dark\", only dark, light";
    QTest::newRow("language") << "--lang=fr"
                              << "there is no language \"fr\", only en, de, zh_CN";
    QTest::newRow("category") << "--category=11"
                              << "there is no category \"11\", only 0 to 10";
    QTest::newRow("option") << "--json"
                            << "there is no option --json";
}

void tst_ShotWords::unknownWordsAreSaid()
{
    QFETCH(QString, rest);
    QFETCH(QString, said);

    QCOMPARE(wordsOf(rest).errorText(), said);
}

void tst_ShotWords::thePictureMustBeNamed()
{
    const QVector<CommandOption> options = ShotCommand::entry().options;
    const auto errorOf = [&options](const QString &out) {
        const ProgramArguments words{{QStringLiteral("Film.brevano"), true}, {out, true}};
        return ShotWords::of(*CommandLine::parse(words, options)).errorText();
    };
    QCOMPARE(errorOf(QStringLiteral("--scale=2")), QStringLiteral("--out FILE.png is missing"));
    QCOMPARE(errorOf(QStringLiteral("--out=Film.brevano")),
             QStringLiteral("the picture is a PNG file: \"Film.brevano\" does not end in .png"));
    QCOMPARE(errorOf(QStringLiteral("--out=png")),
             QStringLiteral("the picture is a PNG file: \"png\" does not end in .png"));
    QCOMPARE(errorOf(QStringLiteral("--out=A.PNG")), QString());
}

void tst_ShotWords::helpAndManualTellEveryOption()
{
    QFile file(QStringLiteral(NX_SOURCE_DIR "/Docs/cli.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString whole = QString::fromUtf8(file.readAll());
    const QString manual = whole.mid(whole.indexOf(QLatin1String("\n## shot\n")));
    const CommandEntry entry = ShotCommand::entry();
    const QString help = CommandHelp::of(entry).join(QLatin1Char('\n'));
    for (const CommandOption &option : entry.options) {
        QVERIFY2(help.contains(QLatin1String(option.name)), option.name);
        QVERIFY2(manual.contains(QLatin1Char('`') + QLatin1String(option.name)), option.name);
    }
    QStringList languages;
    for (const Languages::Language &language : Languages::available()) {
        languages.append(language.code);
        QVERIFY(manual.contains(QStringLiteral("`%1`").arg(language.code)));
    }
    QVERIFY(
        help.contains(QStringLiteral("Languages: %1.").arg(languages.join(QLatin1String(", ")))));
    QVERIFY(help.contains(QLatin1String("Views: list, small, middle, large.")));
    QVERIFY(help.contains(QLatin1String("Skins: dark, light.")));
}

NX_TEST_MAIN(tst_ShotWords)
#include "tst_ShotWords.moc"
