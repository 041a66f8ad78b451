// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/relink/NxRelinkMatcher.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

/// "name size contents length", with "-" for what is not known.
struct Description
{
    explicit Description(const QString &text)
        : words(text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
    {
    }
    [[nodiscard]] qint64 number(int place) const
    {
        return words.at(place) == QLatin1String("-") ? -1 : words.at(place).toLongLong();
    }
    [[nodiscard]] NxFingerprint fingerprint() const
    {
        const qint64 contents = number(2);
        return contents < 0 ? NxFingerprint() : NxFingerprint{number(1), 7, quint64(contents)};
    }

    QStringList words;
};

struct Case
{
    void want(const QString &text)
    {
        const Description said(text);
        NxRelinkWanted one;
        one.id = qint64(wanted.size()) + 1;
        one.name = said.words.at(0);
        one.size = said.number(1);
        one.fingerprint = said.fingerprint();
        one.length = said.number(3);
        wanted.push_back(one);
    }
    void add(const QString &text)
    {
        const Description said(text);
        NxRelinkCandidate one;
        one.path = said.words.at(0);
        one.name = one.path.section(QLatin1Char('/'), -1);
        one.size = said.number(1);
        one.fingerprint = said.fingerprint();
        one.length = said.number(3);
        one.isOut = said.words.contains(QStringLiteral("out"));
        files.push_back(one);
    }
    [[nodiscard]] QString findings() const
    {
        static constexpr const char *words[] = {"none", "contents", "name", "several"};
        QStringList lines;
        const QVector<NxRelinkFinding> all = NxRelinkMatcher(wanted, files).findings();
        for (const NxRelinkFinding &one : all) {
            const QStringList line = QStringList(QLatin1String(words[int(one.match)])) + one.paths;
            lines.append(line.join(QLatin1Char(' ')));
        }
        return lines.join(QStringLiteral("; "));
    }

    std::vector<NxRelinkWanted> wanted;
    std::vector<NxRelinkCandidate> files;
};

Case caseOf(const QString &wanted, const QString &files)
{
    Case made;
    for (const QString &text : wanted.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        made.want(text);
    for (const QString &text : files.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        made.add(text);
    return made;
}

} // namespace

class tst_NxRelinkMatcher : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void findings_data();
    void findings();
    void lengthsNeeded_data();
    void lengthsNeeded();
    void hashesThatAgreeByHalfAreOtherContents_data();
    void hashesThatAgreeByHalfAreOtherContents();
    void whatIsNotLookedForAnyMoreTakesNothing();
};

void tst_NxRelinkMatcher::findings_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *wanted, const char *files,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(wanted) << QString::fromLatin1(files)
                            << QString::fromLatin1(expected);
    };
    row("nothing there", "a 10 1 100", "", "none");
    row("same contents, other name", "a 10 1 100", "x/b 10 1 -", "contents x/b");
    row("other contents, other name", "a 10 1 100", "x/b 10 2 100", "none");
    row("copies: the one of its name", "a 10 1 100", "x/b 10 1 -;x/a 10 1 -", "contents x/a");
    row("copies: names differ in case", "a 10 1 -", "x/A 10 1 -;y/b 10 1 -", "several x/A y/b");
    row("copies: none of its name", "a 10 1 -", "x/c 10 1 -;x/b 10 1 -", "several x/b x/c");
    row("copies: two of its name", "a 10 1 -", "y/a 10 1 -;x/b 10 1 -;x/a 10 1 -",
        "several x/a y/a");
    row("several stand in natural order", "a 10 1 -", "x/f10 10 1 -;x/f9 10 1 -;x/F1 10 1 -",
        "several x/F1 x/f9 x/f10");
    row("contents before name", "a 10 1 100", "x/a 10 2 100;x/b 10 1 -", "contents x/b");
    row("a file that is out", "a 10 1 -", "x/a 10 1 - out;x/b 10 1 -", "contents x/b");

    row("never read: name and size", "a 10 - -", "x/a 10 - -", "name x/a");
    row("never read: other contents known of the file", "a 10 - -", "x/a 10 5 33", "name x/a");
    row("never read: other size", "a 10 - -", "x/a 11 - -", "none");
    row("never read: other name", "a 10 - -", "x/b 10 - -", "none");
    row("never read: two of that name", "a 10 - -", "y/a 10 - -;x/a 10 - -", "several x/a y/a");
    row("never read: one of them out", "a 10 - -", "y/a 10 - -;x/a 10 - - out", "name y/a");
    row("of unknown size", "a - - -", "x/a 10 - -", "none");

    row("read: same length", "a 10 - 100", "x/a 10 - 100", "name x/a");
    row("read: other length", "a 10 - 100", "x/a 10 - 99", "none");
    row("read: length unknown", "a 10 - 100", "x/a 10 - -", "none");
    row("a picture has no length", "a 10 - 0", "x/a 10 - 0", "name x/a");
    row("the length tells two apart", "a 10 - 100", "y/a 10 - 99;x/a 10 - 100", "name x/a");

    row("other contents of the same length", "a 10 1 100", "x/a 10 2 100", "name x/a");
    row("other contents of another length", "a 10 1 100", "x/a 10 2 99", "none");
    row("other contents, no length", "a 10 1 -", "x/a 10 2 100", "none");
    row("contents not compared, no length", "a 10 1 -", "x/a 10 - -", "none");

    row("two for one file", "a 10 1 -;b 10 1 -", "x/a 10 1 -", "several x/a; several x/a");
    row("two for one file, in two ways", "a 10 1 -;b 10 - -", "x/b 10 1 -",
        "several x/b; several x/b");
    row("each its own copy", "a 10 1 -;b 10 1 -", "x/a 10 1 -;x/b 10 1 -",
        "contents x/a; contents x/b");
    row("one named, one not", "a 10 1 -;c 10 1 -", "x/a 10 1 -;x/b 10 1 -",
        "contents x/a; several x/a x/b");
    row("others go unharmed", "a 10 1 -;b 10 1 -;c 10 3 -", "x/a 10 1 -;x/q 10 3 -",
        "several x/a; several x/a; contents x/q");
}

void tst_NxRelinkMatcher::findings()
{
    QFETCH(QString, wanted);
    QFETCH(QString, files);
    QTEST(caseOf(wanted, files).findings(), "expected");
}

void tst_NxRelinkMatcher::lengthsNeeded_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("files");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const char *wanted, const char *files,
                        const char *expected) {
        QTest::newRow(name) << QString::fromLatin1(wanted) << QString::fromLatin1(files)
                            << QString::fromLatin1(expected);
    };
    row("found by contents", "a 10 1 100", "x/a 10 2 -;x/b 10 1 -", "");
    row("of that name and size", "a 10 1 100", "x/b 10 2 -;x/a 10 2 -;y/a 11 2 -", "1");
    row("never read", "a 10 - -", "x/a 10 - -", "");
    row("known already", "a 10 - 100", "x/a 10 - 3;y/a 10 - -", "1");
    row("once for two", "a 10 - 100;a 10 - 99", "x/a 10 - -", "0");
    row("out", "a 10 - 100", "x/a 10 - - out", "");
}

void tst_NxRelinkMatcher::lengthsNeeded()
{
    QFETCH(QString, wanted);
    QFETCH(QString, files);
    const Case made = caseOf(wanted, files);
    QStringList places;
    for (const int place : NxRelinkMatcher(made.wanted, made.files).lengthsNeeded())
        places.append(QString::number(place));
    QTEST(places.join(QLatin1Char(' ')), "expected");
}

void tst_NxRelinkMatcher::hashesThatAgreeByHalfAreOtherContents_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<quint64>("high");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the other half differs") << qint64(10) << quint64(8) << QStringLiteral("none");
    QTest::newRow("the size differs") << qint64(11) << quint64(7) << QStringLiteral("none");
    QTest::newRow("all agree") << qint64(10) << quint64(7) << QStringLiteral("contents x/b");
}

void tst_NxRelinkMatcher::hashesThatAgreeByHalfAreOtherContents()
{
    QFETCH(qint64, size);
    QFETCH(quint64, high);
    Case made = caseOf(QStringLiteral("a 10 1 -"), QStringLiteral("x/b 10 1 -"));
    made.files.front().fingerprint.size = size;
    made.files.front().fingerprint.high = high;
    QTEST(made.findings(), "expected");
}

void tst_NxRelinkMatcher::whatIsNotLookedForAnyMoreTakesNothing()
{
    Case made = caseOf(QStringLiteral("a 10 1 -;b 10 1 -"), QStringLiteral("x/a 10 1 -"));
    made.wanted.front().id = 0;
    QCOMPARE(made.findings(), QStringLiteral("none; contents x/a"));
}

NX_TEST_MAIN(tst_NxRelinkMatcher)
#include "tst_NxRelinkMatcher.moc"
