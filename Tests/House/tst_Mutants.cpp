// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "Command.h"

#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

constexpr int LeastPatches = 60;

QString textOf(const QString &path)
{
    QFile file(QStringLiteral(NX_SOURCE_DIR "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList patches()
{
    return QDir(QStringLiteral(NX_SOURCE_DIR "/Tests/mutants"))
        .entryList({QStringLiteral("*.patch")}, QDir::Files, QDir::Name);
}

/// The lists in which the tests stand that patches name.
QString allTests()
{
    QString lists;
    for (const char *folder : {"NxVBLEngine/disk", "NxVBLEngine/pictures", "NxVBLEngine/reading",
                               "NxVBLEngine/store", "NxMediaLibrary", "NxMediaViews",
                               "Brevano/window"})
        lists += textOf(QStringLiteral("Tests/%1/CMakeLists.txt").arg(QLatin1String(folder)));
    return lists;
}

QString wordOf(const QString &patch, const QString &word)
{
    const QRegularExpression line(QStringLiteral("^%1: (.+)$").arg(word),
                                  QRegularExpression::MultilineOption);
    return line.match(patch.section(QStringLiteral("\n---"), 0, 0)).captured(1);
}

int linesWith(const QString &patch, QLatin1Char mark)
{
    const QString body = patch.section(QStringLiteral("\n@@"), 1);
    int lines = 0;
    for (const QString &line : body.split(QLatin1Char('\n')))
        lines += line.startsWith(mark) ? 1 : 0;
    return lines;
}

} // namespace

/// The breaks that `./check --mutants` makes: each says what it is, and the table names them all.
class tst_Mutants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreManyOfThem();
    void eachChangesOneLineOfTheSources_data();
    void eachChangesOneLineOfTheSources();
    void eachFitsTheSourcesOfNow_data() { eachChangesOneLineOfTheSources_data(); }
    void eachFitsTheSourcesOfNow();
    void theTableNamesThemAll();
};

void tst_Mutants::thereAreManyOfThem()
{
    QVERIFY2(patches().size() >= LeastPatches, qPrintable(QString::number(patches().size())));
}

void tst_Mutants::eachChangesOneLineOfTheSources_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : patches())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Mutants::eachChangesOneLineOfTheSources()
{
    QFETCH(QString, name);

    const QString patch = textOf(QStringLiteral("Tests/mutants/") + name);
    QVERIFY2(!wordOf(patch, QStringLiteral("Breaks")).isEmpty(), "it does not say what it breaks");
    const QString test = wordOf(patch, QStringLiteral("Red"));
    QVERIFY2(allTests().contains(test) && test.startsWith(QLatin1String("tst_")),
             qPrintable(test + QStringLiteral(" is no test of engine, library, views or window")));
    const QRegularExpression target(QStringLiteral("^\\+\\+\\+ b/Src/"),
                                    QRegularExpression::MultilineOption);
    QVERIFY2(target.match(patch).hasMatch(), "it changes something else than sources");
    QVERIFY2(linesWith(patch, QLatin1Char('-')) <= 1, "it takes out more than a line");
    QVERIFY2(linesWith(patch, QLatin1Char('+')) <= 1, "it puts in more than a line");
}

void tst_Mutants::eachFitsTheSourcesOfNow()
{
    QFETCH(QString, name);

    const CommandResult result =
        runCommand(QStringLiteral("patch"),
                   {QStringLiteral("--dry-run"), QStringLiteral("--strip=1"),
                    QStringLiteral("--directory"), QStringLiteral(NX_SOURCE_DIR),
                    QStringLiteral("--input"),
                    QStringLiteral(NX_SOURCE_DIR "/Tests/mutants/") + name});

    QVERIFY2(result.code == 0, qPrintable(result.output + result.errors));
}

void tst_Mutants::theTableNamesThemAll()
{
    QStringList named;
    const QRegularExpression row(QStringLiteral("^\\| ([\\w-]+) \\| .* \\| `tst_\\w+` \\|$"),
                                 QRegularExpression::MultilineOption);
    QRegularExpressionMatchIterator rows =
        row.globalMatch(textOf(QStringLiteral("Docs/mutants.md")));
    while (rows.hasNext())
        named.append(rows.next().captured(1) + QStringLiteral(".patch"));
    named.sort();
    QStringList there = patches();
    there.sort();
    QCOMPARE(named, there);
}

NX_TEST_MAIN(tst_Mutants)
#include "tst_Mutants.moc"
