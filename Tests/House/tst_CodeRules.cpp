// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "CodeRules.h"
#include "FaultReport.h"

#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QtTest>

#include <algorithm>

namespace {

const QString projectFolder = QStringLiteral(NX_SOURCE_DIR);

/// All sources of the project, paths from its top; build folders are not among them.
QVector<SourceFile> projectFiles()
{
    QVector<SourceFile> files;
    for (const char *folder : {"Src", "Tests", "Benchmarks", "Docs"}) {
        const QString name = QString::fromLatin1(folder);
        const QVector<SourceFile> part =
            SourceFile::readTree(projectFolder + QLatin1Char('/') + name);
        for (SourceFile file : part) {
            file.path = name + QLatin1Char('/') + file.path;
            files.append(file);
        }
    }
    return files;
}

QString cmakeText(const QString &folder)
{
    QFile list(QStringLiteral("%1/%2/CMakeLists.txt").arg(projectFolder, folder));
    return list.open(QIODevice::ReadOnly) ? QString::fromUtf8(list.readAll()) : QString();
}

QString told(const QStringList &faults)
{
    return faults.join(QLatin1Char('\n'));
}

const QString head = QStringLiteral("// SPDX-FileCopyrightText: 2026 Brevano contributors\n"
                                    "// SPDX-License-Identifier: LGPL-2.1-or-later\n");

} // namespace

class tst_CodeRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noWordIsUsedThatTheHouseAvoids();
    void everyFileHasTheFormOfTheHouse();
    void everyTestIsRun();
    void theEmbeddingExampleStaysShort();

    void aForbiddenWordIsTold_data();
    void aForbiddenWordIsTold();
    void aFaultyFormIsTold_data();
    void aFaultyFormIsTold();
    void aForgottenTestIsTold();
    void blankedCodeKeepsItsPlace_data();
    void blankedCodeKeepsItsPlace();

private:
    QVector<SourceFile> m_files;
};

void tst_CodeRules::initTestCase()
{
    m_files = projectFiles();
    // An empty walk would make every test below pass.
    const auto isHere = [](const SourceFile &file) {
        return file.path == QLatin1String("Tests/House/tst_CodeRules.cpp")
               && file.lines.size() > 100;
    };
    QVERIFY(std::any_of(m_files.begin(), m_files.end(), isHere));
    QVERIFY(m_files.size() > 100);
}

void tst_CodeRules::noWordIsUsedThatTheHouseAvoids()
{
    QVector<SourceFile> files = m_files;
    // The rules themselves have to write the words that they look for.
    const auto isRule = [](const SourceFile &file) {
        return file.path == QLatin1String("Tests/House/CodeRules.cpp")
               || file.path == QLatin1String("Tests/House/tst_CodeRules.cpp");
    };
    files.erase(std::remove_if(files.begin(), files.end(), isRule), files.end());

    QVERIFY(noFaults(CodeRules::wordFaults(files)));
}

void tst_CodeRules::everyFileHasTheFormOfTheHouse()
{
    QVERIFY(noFaults(CodeRules::formFaults(m_files)));
}

void tst_CodeRules::everyTestIsRun()
{
    QVERIFY(noFaults(CodeRules::unregisteredTests(m_files, cmakeText)));
}

void tst_CodeRules::theEmbeddingExampleStaysShort()
{
    constexpr int promisedLines = 150;
    int lines = 0;
    for (const SourceFile &file : qAsConst(m_files)) {
        if (file.folder() == QLatin1String("Docs/embedding"))
            lines += file.lines.size() - 1;
    }
    QVERIFY(lines > 0);
    QVERIFY2(lines < promisedLines, qPrintable(QString::number(lines)));
}

void tst_CodeRules::aForbiddenWordIsTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("message");

    const QString test = QStringLiteral("Tests/NxCore/tst_A.cpp");
    const QString source = QStringLiteral("Src/NxCore/A.cpp");
    const QString waits =
        QStringLiteral("a test waits for a condition (QTRY_*, QSignalSpy::wait), never for time");
    const QString sleeps = QStringLiteral("a test never sleeps");
    const QString none;
    QTest::newRow("waiting for time") << test << QStringLiteral("QTest::qWait(50);") << waits;
    QTest::newRow("waiting for a condition")
        << test << QStringLiteral("QTest::qWaitFor(done);") << none;
    QTest::newRow("sleeping") << test << QStringLiteral("QThread::msleep(5);") << sleeps;
    QTest::newRow("sleeping the C++ way")
        << test << QStringLiteral("std::this_thread::sleep_for(1ms);") << sleeps;
    QTest::newRow("sleeping in the product is no fault of a test")
        << source << QStringLiteral("QThread::msleep(5);") << none;
    QTest::newRow("skipping") << test << QStringLiteral("QSKIP(\"later\");")
                              << QStringLiteral("a test passes or fails; it is not skipped");
    QTest::newRow("emit") << source << QStringLiteral("emit changed();")
                          << QStringLiteral("write Q_EMIT");
    QTest::newRow("emit in a name") << source << QStringLiteral("emitter.emitLater();") << none;
    QTest::newRow("emit in a comment") << source << QStringLiteral("// emit changed();") << none;
    QTest::newRow("emit in a text") << source << QStringLiteral("log(\"emit\");") << none;
    QTest::newRow("slots") << source << QStringLiteral("public slots:")
                           << QStringLiteral("write Q_SIGNALS and Q_SLOTS");
    QTest::newRow("Q_SLOTS") << source << QStringLiteral("public Q_SLOTS:") << none;
    QTest::newRow("connecting by text")
        << source << QStringLiteral("connect(a, SIGNAL(b()), c, d);")
        << QStringLiteral("connect by pointer to member");
    QTest::newRow("the whole of std") << source << QStringLiteral("using namespace std;")
                                      << QStringLiteral("name what is used of std");
    QTest::newRow("NULL") << source << QStringLiteral("p = NULL;")
                          << QStringLiteral("write nullptr");
    QTest::newRow("foreach") << source << QStringLiteral("foreach (int i, list)")
                             << QStringLiteral("write a range-based for");
    QTest::newRow("code put aside")
        << source << QStringLiteral("#if 0") << QStringLiteral("delete code that is not used");
    QTest::newRow("work put off") << source << QStringLiteral("// TODO: all")
                                  << QStringLiteral("finish it, or open an issue");
}

void tst_CodeRules::aForbiddenWordIsTold()
{
    QFETCH(QString, path);
    QFETCH(QString, line);
    QFETCH(QString, message);

    const SourceFile file = SourceFile::fromText(path, QStringLiteral("\n") + line);

    const QString expected = message.isEmpty() ? QString() : file.fault(1, message);
    QCOMPARE(told(CodeRules::wordFaults({file})), expected);
}

void tst_CodeRules::aFaultyFormIsTold_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fault");

    const QString source = QStringLiteral("a.cpp");
    QTest::newRow("sound") << source << QString(head + QStringLiteral("int a;\n")) << QString();
    QTest::newRow("no copyright")
        << source << QString(QStringLiteral("\n") + head.section(QLatin1Char('\n'), 1))
        << QStringLiteral("a.cpp:1: does not begin with its copyright line");
    QTest::newRow("no licence")
        << source << QString(head.section(QLatin1Char('\n'), 0, 0) + QLatin1Char('\n'))
        << QStringLiteral("a.cpp:2: does not tell its licence in the second line");
    QTest::newRow("no guard") << QStringLiteral("a.h") << head
                              << QStringLiteral("a.h:1: has no #pragma once");
    QTest::newRow("a sound header")
        << QStringLiteral("a.h") << QString(head + QStringLiteral("\n#pragma once\n")) << QString();
    QTest::newRow("no end") << source << QString(head + QStringLiteral("int a;"))
                            << QStringLiteral("a.cpp:3: does not end with a line end");
    QTest::newRow("tab") << source << QString(head + QStringLiteral("\tint a;\n"))
                         << QStringLiteral("a.cpp:3: is indented with a tab");
    QTest::newRow("spaces") << source << QString(head + QStringLiteral("int a; \n"))
                            << QStringLiteral("a.cpp:3: ends in spaces");
    QTest::newRow("Windows") << source << QString(head + QStringLiteral("int a;\r\n"))
                             << QStringLiteral("a.cpp:3: has a Windows line end");
    QTest::newRow("100 columns") << source
                                 << QString(head + QString(100, QLatin1Char('a'))
                                            + QLatin1Char('\n'))
                                 << QString();
    QTest::newRow("101 columns") << source
                                 << QString(head + QString(101, QLatin1Char('a'))
                                            + QLatin1Char('\n'))
                                 << QStringLiteral("a.cpp:3: is longer than 100 columns");
}

void tst_CodeRules::aFaultyFormIsTold()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QFETCH(QString, fault);

    QCOMPARE(told(CodeRules::formFaults({SourceFile::fromText(path, text)})), fault);
}

void tst_CodeRules::aForgottenTestIsTold()
{
    const QVector<SourceFile> files{
        SourceFile::fromText(QStringLiteral("Tests/A/tst_Named.cpp"), head),
        SourceFile::fromText(QStringLiteral("Tests/A/tst_Forgotten.cpp"), head),
        SourceFile::fromText(QStringLiteral("Tests/A/Helper.cpp"), head)};
    const auto text = [](const QString &folder) {
        return folder == QLatin1String("Tests/A") ? QStringLiteral("nx_add_test(tst_Named)")
                                                  : QString();
    };
    QCOMPARE(told(CodeRules::unregisteredTests(files, text)),
             QStringLiteral(
                 "Tests/A/tst_Forgotten.cpp:1: is named in no CMakeLists.txt, so it never runs"));
}

void tst_CodeRules::blankedCodeKeepsItsPlace_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("blanked");

    QTest::newRow("line comment") << QStringLiteral("a; // b") << QStringLiteral("a;     ");
    QTest::newRow("block comment") << QStringLiteral("a/*b*/c") << QStringLiteral("a     c");
    QTest::newRow("text") << QStringLiteral("f(\"b\") + c") << QStringLiteral("f(\" \") + c");
    QTest::newRow("escaped quote")
        << QStringLiteral(R"(f("\"b") + c)") << QStringLiteral(R"(f("   ") + c)");
    QTest::newRow("raw text") << QStringLiteral("R\"x(a\")\" b)x\" + c")
                              << QStringLiteral("R\"          \" + c");
    QTest::newRow("character") << QStringLiteral("f('b') + c") << QStringLiteral("f(' ') + c");
    QTest::newRow("quote character")
        << QStringLiteral("f('\"') + c") << QStringLiteral("f(' ') + c");
    QTest::newRow("digit separator")
        << QStringLiteral("1'000 + 'a'") << QStringLiteral("1'000 + ' '");
    QTest::newRow("slashes in a text") << QStringLiteral("\"//\" a") << QStringLiteral("\"  \" a");
}

void tst_CodeRules::blankedCodeKeepsItsPlace()
{
    QFETCH(QString, line);
    QFETCH(QString, blanked);

    const SourceFile file =
        SourceFile::fromText(QStringLiteral("a.cpp"), line + QStringLiteral("\nd"));

    QCOMPARE(file.codeLines, QStringList({blanked, QStringLiteral("d")}));
}

NX_TEST_MAIN(tst_CodeRules)
#include "tst_CodeRules.moc"
