// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "FaultReport.h"
#include "IncludeRules.h"

#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QSet>
#include <QtTest>

#include <algorithm>

Q_DECLARE_METATYPE(SourceFile)

namespace {

const QString sourceFolder = QStringLiteral(NX_SOURCE_DIR "/Src");

QStringList widgetHeaders()
{
    const QString headers = QLibraryInfo::location(QLibraryInfo::HeadersPath);
    return QDir(headers + QStringLiteral("/QtWidgets")).entryList(QDir::Files);
}

QString told(const QStringList &faults)
{
    return faults.join(QLatin1Char('\n'));
}

SourceFile file(const char *path, const char *text)
{
    return SourceFile::fromText(QString::fromLatin1(path), QString::fromLatin1(text));
}

} // namespace

class tst_IncludeDirections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void modulesIncludeOnlyWhatTheyStandOn();
    void foreignHeadersStayWhereTheyAreKnown();
    void noFileIncludesItself();
    void noFoldersIncludeEachOther();
    void modulesLinkOnlyWhatTheyStandOn();
    void plainReferencesDoNotKnowWhatTheyAreComparedWith();

    void aFaultyTreeIsTold_data();
    void aFaultyTreeIsTold();
    void aSoundTreeHasNoFaults();
    void aFaultyLinkIsTold_data();
    void aFaultyLinkIsTold();

private:
    QVector<SourceFile> m_files;
};

void tst_IncludeDirections::initTestCase()
{
    m_files = SourceFile::readTree(sourceFolder);
    // An empty walk would make every test below pass.
    const auto isInternal = [](const IncludeLine &include) { return !include.resolved.isEmpty(); };
    const QVector<IncludeLine> includes = includeLines(m_files);
    QVERIFY(std::count_if(includes.begin(), includes.end(), isInternal) > 100);
    QVERIFY(widgetHeaders().contains(QStringLiteral("QPushButton")));
}

void tst_IncludeDirections::modulesIncludeOnlyWhatTheyStandOn()
{
    QVERIFY(noFaults(IncludeRules::directionFaults(m_files)));
}

void tst_IncludeDirections::foreignHeadersStayWhereTheyAreKnown()
{
    QVERIFY(noFaults(IncludeRules::foreignHeaderFaults(m_files, widgetHeaders())));
}

void tst_IncludeDirections::noFileIncludesItself()
{
    QVERIFY(noFaults(IncludeRules::fileCycleFaults(m_files)));
}

void tst_IncludeDirections::noFoldersIncludeEachOther()
{
    QVERIFY(noFaults(IncludeRules::folderCycleFaults(m_files)));
}

void tst_IncludeDirections::modulesLinkOnlyWhatTheyStandOn()
{
    QStringList faults;
    const QStringList modules = QDir(sourceFolder).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &module : modules) {
        QFile list(QStringLiteral("%1/%2/CMakeLists.txt").arg(sourceFolder, module));
        QVERIFY2(list.open(QIODevice::ReadOnly), qPrintable(list.fileName()));
        faults += IncludeRules::linkFaults(module, QString::fromUtf8(list.readAll()));
    }
    QVERIFY(modules.contains(QStringLiteral("NxCore")));
    QVERIFY(noFaults(faults));
}

void tst_IncludeDirections::plainReferencesDoNotKnowWhatTheyAreComparedWith()
{
    const QVector<SourceFile> tests =
        SourceFile::readTree(QStringLiteral(NX_SOURCE_DIR "/Tests/NxMediaLibrary"));
    QStringList faults;
    QSet<QString> references;
    for (const IncludeLine &include : includeLines(tests)) {
        const QString &from = tests.at(include.file).path;
        if (!from.startsWith(QLatin1String("Plain")))
            continue;
        references.insert(from);
        const bool isPlain = include.target.startsWith(QLatin1String("Plain"));
        const bool isOutside = !include.target.contains(QLatin1String("NxMediaDataModel/"))
                               && !include.target.endsWith(QLatin1String("_p.h"));
        if (!isPlain && !isOutside)
            faults.append(from + QStringLiteral(" knows ") + include.target);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(told(faults)));
    QVERIFY2(references.size() > 8, "the references are elsewhere");
}

void tst_IncludeDirections::aFaultyTreeIsTold_data()
{
    QTest::addColumn<QVector<SourceFile>>("files");
    QTest::addColumn<QString>("fault");

    const SourceFile engine = file("NxVBLEngine/NxEngine.h", "");
    QTest::newRow("the library includes the engine")
        << QVector<SourceFile>{engine,
                               file("NxMediaLibrary/a.cpp", "\n#include <NxVBLEngine/NxEngine.h>")}
        << QStringLiteral("NxMediaLibrary/a.cpp:2: NxMediaLibrary may not know NxVBLEngine "
                          "(<NxVBLEngine/NxEngine.h>)");
    QTest::newRow("by way of a relative path")
        << QVector<SourceFile>{engine, file("NxCore/a.h", "#include \"../NxVBLEngine/NxEngine.h\"")}
        << QStringLiteral(
               "NxCore/a.h:1: NxCore may not know NxVBLEngine (<../NxVBLEngine/NxEngine.h>)");
    QTest::newRow("a generated header")
        << QVector<SourceFile>{file("NxCore/a.h", "#include <NxWidgets/NxWidgetsExport.h>")}
        << QStringLiteral(
               "NxCore/a.h:1: NxCore may not know NxWidgets (<NxWidgets/NxWidgetsExport.h>)");
    QTest::newRow("a private header of another module")
        << QVector<SourceFile>{file("NxWidgets/a.cpp", "# include <NxCore/NxLog_p.h>")}
        << QStringLiteral("NxWidgets/a.cpp:1: <NxCore/NxLog_p.h> is private to NxCore");
    QTest::newRow("a private half of another module")
        << QVector<SourceFile>{file("Brevano/a.cpp", "#include <NxMediaLibrary/In_P/b.h>")}
        << QStringLiteral(
               "Brevano/a.cpp:1: <NxMediaLibrary/In_P/b.h> is private to NxMediaLibrary");
    QTest::newRow("a folder that is no module")
        << QVector<SourceFile>{file("Misc/a.cpp", "")}
        << QStringLiteral("Misc/a.cpp:1: lies in no module of the house");
    QTest::newRow("SQLite in the library")
        << QVector<SourceFile>{file("NxMediaLibrary/a.cpp", "#include <sqlite3.h>")}
        << QStringLiteral(
               "NxMediaLibrary/a.cpp:1: SQLite is known to the engine's store folder alone");
    QTest::newRow("SQLite in the engine outside the store")
        << QVector<SourceFile>{file("NxVBLEngine/a.cpp", "#include <sqlite3.h>")}
        << QStringLiteral(
               "NxVBLEngine/a.cpp:1: SQLite is known to the engine's store folder alone");
    QTest::newRow("FFmpeg in the engine")
        << QVector<SourceFile>{file("NxVBLEngine/a.cpp", "#include <libavformat/avformat.h>")}
        << QStringLiteral("NxVBLEngine/a.cpp:1: FFmpeg is known to the worker program alone");
    QTest::newRow("MLT in the library")
        << QVector<SourceFile>{file("NxMediaLibrary/a.cpp", "#include <mlt++/Mlt.h>")}
        << QStringLiteral("NxMediaLibrary/a.cpp:1: MLT is known to the worker program alone");
    QTest::newRow("spdlog in a header")
        << QVector<SourceFile>{file("NxCore/NxLog.h", "#include <spdlog/spdlog.h>")}
        << QStringLiteral("NxCore/NxLog.h:1: spdlog stays behind the log of NxCore, in no header");
    QTest::newRow("a widget in the core")
        << QVector<SourceFile>{file("NxCore/a.cpp", "#include <QPushButton>")}
        << QStringLiteral("NxCore/a.cpp:1: NxCore works without QtWidgets");
    QTest::newRow("all widgets in the model")
        << QVector<SourceFile>{file("NxVBLModel/a.cpp", "#include <QtWidgets>")}
        << QStringLiteral("NxVBLModel/a.cpp:1: NxVBLModel works without QtWidgets");
    QTest::newRow("two files that include each other")
        << QVector<SourceFile>{file("NxCore/a.h", "#include \"b.h\""),
                               file("NxCore/b.h", "#include <NxCore/a.h>")}
        << QStringLiteral("NxCore/a.h -> NxCore/b.h -> NxCore/a.h");
    QTest::newRow("a file that includes itself")
        << QVector<SourceFile>{file("NxCore/a.h", "#include \"a.h\"")}
        << QStringLiteral("NxCore/a.h -> NxCore/a.h");
    QTest::newRow("two folders, by way of different files")
        << QVector<SourceFile>{file("NxCore/a.h", ""), file("NxCore/b.cpp", "#include \"In/d.h\""),
                               file("NxCore/In/c.cpp", "#include \"../a.h\""),
                               file("NxCore/In/d.h", "")}
        << QStringLiteral("NxCore -> NxCore/In -> NxCore");
}

void tst_IncludeDirections::aFaultyTreeIsTold()
{
    QFETCH(QVector<SourceFile>, files);
    QFETCH(QString, fault);

    QStringList faults = IncludeRules::directionFaults(files);
    faults += IncludeRules::foreignHeaderFaults(files, widgetHeaders());
    faults += IncludeRules::fileCycleFaults(files);
    faults += IncludeRules::folderCycleFaults(files);

    QCOMPARE(told(faults), fault);
}

void tst_IncludeDirections::aSoundTreeHasNoFaults()
{
    const QVector<SourceFile> files{
        file("NxCore/a.h",
             "// #include <QPushButton>\n/*\n#include <sqlite3.h>\n*/\n#include <QString>"),
        file("NxCore/NxLogFile.cpp", "#include <spdlog/spdlog.h>\n#include \"NxLogFile.moc\""),
        file("NxVBLEngine/store/b.cpp", "#include <sqlite3.h>\n#include <NxCore/a.h>"),
        file("NxMediaLibrary/c.cpp", "#include <QPushButton>\n#include <NxVBLModel/NxMediaRef.h>"),
        file("NxMediaLibrary/In/d.h", ""),
        file("NxMediaLibrary/In/d.cpp", "#include <NxMediaLibrary/In_P/d.h>"),
        file("NxMediaLibrary/In_P/d.h", ""),
        file("NxMediaLibrary/In_P/d.cpp", "#include <NxMediaLibrary/In/d.h>"),
        file("Brevano/main.cpp", "#include <NxVBLEngine/NxVBLEngineExport.h>"),
    };
    QStringList faults = IncludeRules::directionFaults(files);
    faults += IncludeRules::foreignHeaderFaults(files, widgetHeaders());
    faults += IncludeRules::fileCycleFaults(files);
    faults += IncludeRules::folderCycleFaults(files);

    QCOMPARE(told(faults), QString());
}

void tst_IncludeDirections::aFaultyLinkIsTold_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fault");

    QTest::newRow("widgets under the core")
        << QStringLiteral("NxCore")
        << QStringLiteral("nx_add_library(NxCore\n PUBLIC_LINK Qt5::Widgets)")
        << QStringLiteral("NxCore/CMakeLists.txt:2: NxCore may not link Qt5::Widgets");
    QTest::newRow("the engine under the library")
        << QStringLiteral("NxMediaLibrary") << QStringLiteral("PRIVATE_LINK NxVBLEngine")
        << QStringLiteral(
               "NxMediaLibrary/CMakeLists.txt:1: NxMediaLibrary may not link NxVBLEngine");
    QTest::newRow("by its other name")
        << QStringLiteral("NxVBLModel") << QStringLiteral("PRIVATE_LINK Nx::NxWidgets")
        << QStringLiteral("NxVBLModel/CMakeLists.txt:1: NxVBLModel may not link NxWidgets");
    QTest::newRow("a comment links nothing")
        << QStringLiteral("NxCore") << QStringLiteral("# without Qt5::Widgets and NxWidgets")
        << QString();
    QTest::newRow("what is allowed")
        << QStringLiteral("NxVBLEngine") << QStringLiteral("PUBLIC_LINK NxVBLModel Nx::NxCore")
        << QString();
}

void tst_IncludeDirections::aFaultyLinkIsTold()
{
    QFETCH(QString, module);
    QFETCH(QString, text);
    QFETCH(QString, fault);

    QCOMPARE(told(IncludeRules::linkFaults(module, text)), fault);
}

NX_TEST_MAIN(tst_IncludeDirections)
#include "tst_IncludeDirections.moc"
