// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "Command.h"
#include "FaultReport.h"
#include "SourceFile.h"

#include <Support/NxTestMain.h>

#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <algorithm>

namespace {

QString libraryPath(const QString &module)
{
    return QStringLiteral(NX_LIBRARY_DIR "/lib%1.so").arg(module);
}

QStringList lines(const QString &text)
{
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

/// What the headers among \a files mark with an export macro: names of classes and functions.
QSet<QString> markedNames(const QVector<SourceFile> &files)
{
    static const QRegularExpression type(
        QStringLiteral("\\b(?:class|struct)\\s+[A-Z]+_EXPORT\\s+(\\w+)"));
    static const QRegularExpression function(
        QStringLiteral("\\b[A-Z]+_EXPORT\\s+[^;{}()]*?(\\w+)\\s*\\("));
    QSet<QString> names;
    for (const SourceFile &file : files) {
        QString code = file.isHeader() ? file.codeLines.join(QLatin1Char(' ')) : QString();
        code.replace(QLatin1String("_TEST_EXPORT"), QLatin1String("_EXPORT"));
        for (const QRegularExpression &pattern : {type, function}) {
            QRegularExpressionMatchIterator found = pattern.globalMatch(code);
            while (found.hasNext())
                names += found.next().captured(1);
        }
    }
    return names;
}

/// Whether the class or function that \a symbol belongs to is among \a marked.
bool isMarked(const QString &symbol, const QSet<QString> &marked)
{
    static const QRegularExpression extras(QStringLiteral("^.* (for|to) "));
    QString name = symbol;
    name.remove(extras);
    const QStringList parts =
        name.section(QLatin1Char('('), 0, 0).split(QStringLiteral("::"), Qt::SkipEmptyParts);
    return std::any_of(parts.begin(), parts.end(),
                       [&marked](const QString &part) { return marked.contains(part); });
}

/// The symbols that \a nmOutput (of nm --defined-only -C) lists as strong definitions although no
/// header marks them. Weak ones are copies of inline code, which may stand in any library.
QStringList unmarkedSymbols(const QString &nmOutput, const QSet<QString> &marked)
{
    static const QRegularExpression strong(QStringLiteral("^[0-9a-f]+ [TDBR] (.*)$"));
    // What the linker and the address sanitizer add to every library.
    static const QRegularExpression added(
        QStringLiteral("^(__bss_start|_edata|_end|__odr_asan\\..*)$"));
    QStringList unmarked;
    const QStringList all = lines(nmOutput);
    for (const QString &line : all) {
        const QString symbol = strong.match(line).captured(1);
        const bool ours = added.match(symbol).hasMatch() || isMarked(symbol, marked);
        if (!symbol.isEmpty() && !ours)
            unmarked += symbol;
    }
    return unmarked;
}

} // namespace

class tst_Libraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void onlyWhatIsMarkedIsExported_data();
    void onlyWhatIsMarkedIsExported();
    void librariesBelowTheWidgetsDoNotLinkThem_data();
    void librariesBelowTheWidgetsDoNotLinkThem();
    void noDecoderIsLoadedIntoTheHost_data();
    void noDecoderIsLoadedIntoTheHost();
    void unmarkedSymbolsAreTold_data();
    void unmarkedSymbolsAreTold();

private:
    static void addModules(const QStringList &modules);

    QSet<QString> m_marked;
};

void tst_Libraries::initTestCase()
{
    m_marked = markedNames(SourceFile::readTree(QStringLiteral(NX_SOURCE_DIR "/Src")));
    QVERIFY(m_marked.contains(QStringLiteral("NxFile")));
}

void tst_Libraries::addModules(const QStringList &modules)
{
    QTest::addColumn<QString>("library");
    for (const QString &module : modules)
        QTest::newRow(qPrintable(module)) << libraryPath(module);
}

void tst_Libraries::onlyWhatIsMarkedIsExported_data()
{
    addModules(QStringLiteral(NX_MODULES).split(QLatin1Char(' ')));
}

void tst_Libraries::onlyWhatIsMarkedIsExported()
{
    QFETCH(QString, library);

    const QStringList arguments{QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                QStringLiteral("-C"), library};
    const CommandResult symbols = runCommand(QStringLiteral("nm"), arguments);

    QVERIFY2(symbols.code == 0, qPrintable(symbols.errors));
    QVERIFY(symbols.output.contains(QLatin1String(" T ")));
    QVERIFY(noFaults(unmarkedSymbols(symbols.output, m_marked)));
}

void tst_Libraries::librariesBelowTheWidgetsDoNotLinkThem_data()
{
    addModules({QStringLiteral("NxCore"), QStringLiteral("NxAppSettings"),
                QStringLiteral("NxVBLModel"), QStringLiteral("NxVBLEngine")});
}

void tst_Libraries::librariesBelowTheWidgetsDoNotLinkThem()
{
    QFETCH(QString, library);

    const CommandResult needs =
        runCommand(QStringLiteral("readelf"), {QStringLiteral("-d"), library});

    QVERIFY2(needs.code == 0, qPrintable(needs.errors));
    QVERIFY(needs.output.contains(QLatin1String("libQt5Core")));
    QVERIFY2(!needs.output.contains(QLatin1String("libQt5Widgets")), qPrintable(needs.output));
}

void tst_Libraries::noDecoderIsLoadedIntoTheHost_data()
{
    addModules(QStringLiteral(NX_MODULES).split(QLatin1Char(' ')));
}

void tst_Libraries::noDecoderIsLoadedIntoTheHost()
{
    QFETCH(QString, library);

    const CommandResult needs = runCommand(QStringLiteral("ldd"), {library});

    QVERIFY2(needs.code == 0, qPrintable(needs.errors));
    QVERIFY(needs.output.contains(QLatin1String("libQt5Core")));
    static const QRegularExpression decoders(
        QStringLiteral("lib(av|sw|mlt|exiv2)[a-z+0-9-]*\\.so"));
    const QString found = decoders.match(needs.output).captured();
    QCOMPARE(found, QString());
}

void tst_Libraries::unmarkedSymbolsAreTold_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("unmarked");

    const auto row = [](const char *name, const char *line, const QStringList &unmarked) {
        QTest::newRow(name) << QString::fromLatin1(line) << unmarked;
    };
    row("a marked class", "0000000000001234 T NxA::exists(QString const&)", {});
    row("one in a namespace", "0000000000001234 T NXSPACE::NxA::NxA()", {});
    row("its vtable", "0000000000001234 D vtable for NxA", {});
    row("a thunk", "0000000000001234 T non-virtual thunk to NxA::~NxA()", {});
    row("a marked function", "0000000000001234 T makeA(int)", {});
    row("a function marked for tests", "0000000000001234 T makeB(NxB const&)", {});
    row("inline code of the standard library", "0000000000001234 W std::vector<int>::~vector()",
        {});
    row("SQLite", "0000000000001234 T sqlite3_open_v2", {QStringLiteral("sqlite3_open_v2")});
    row("the log's library", "0000000000001234 T spdlog::drop_all()",
        {QStringLiteral("spdlog::drop_all()")});
    row("a class that is not marked", "0000000000001234 D vtable for NxB",
        {QStringLiteral("vtable for NxB")});
    row("a function that takes a marked class", "0000000000001234 T helper(NxA*)",
        {QStringLiteral("helper(NxA*)")});
}

void tst_Libraries::unmarkedSymbolsAreTold()
{
    QFETCH(QString, line);
    QFETCH(QStringList, unmarked);
    const QSet<QString> marked = markedNames({SourceFile::fromText(
        QStringLiteral("a.h"), QStringLiteral("class NXA_EXPORT NxA : public NxB\n{\n};\n"
                                              "[[nodiscard]] NXA_EXPORT NxB *makeA(int number);\n"
                                              "NXA_TEST_EXPORT void makeB(\n    const NxB &b);\n"
                                              "class NxB;\n"))});

    QCOMPARE(unmarkedSymbols(line, marked), unmarked);
}

NX_TEST_MAIN(tst_Libraries)
#include "tst_Libraries.moc"
