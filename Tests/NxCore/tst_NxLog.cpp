// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLog.h>
#include <NxCore/NxLogCapture.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <memory>
#include <thread>
#include <vector>

namespace {

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList linesOf(const QString &path)
{
    return contentOf(path).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

struct ProbeOutput
{
    int exitCode = -1;
    QString output;
    QString errors;
};

ProbeOutput runProbe(const QStringList &arguments, const QString &folder)
{
    QProcess probe;
    probe.setWorkingDirectory(folder);
    probe.start(QStringLiteral(NX_PROBE), arguments);
    if (!probe.waitForFinished())
        return {};
    return {probe.exitCode(), QString::fromUtf8(probe.readAllStandardOutput()),
            QString::fromUtf8(probe.readAllStandardError())};
}

} // namespace

/// Stands for a class that logs.
class Logger
{
public:
    static void info() { NX_LOG_INFO("%d and %s", 5, "text"); }
    static int lineOfError()
    {
        const int before = __LINE__;
        NX_LOG_ERROR("broken");
        return before + 1;
    }
    static void named() { NX_LOG_INFO_AS("Other::name", "hello"); }
    static void fromLambda()
    {
        const auto say = [] { NX_LOG_INFO("hello"); };
        say();
    }
};

class tst_NxLog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void recordsWhoSaidWhat();
    void recordsTheRealLine();
    void cutsFoldersOff_data();
    void cutsFoldersOff();
    void keepsTextsOfAllLanguages();
    void capturesWhileTheCaptureLives();
    void capturesDoNotTakeFromEachOther();
    void capturesClear();
    void namesFunctions_data();
    void namesFunctions();
    void collectsFromManyThreads();
    void writesNoFileUnasked();
    void writesAFile();
    void appendsToAFile();
    void changesTheFile();
    void keepsOneLineALine();
    void setsBigFilesAside();
    void refusesAnUnusableFile_data();
    void refusesAnUnusableFile();
    void writesAFileFromManyThreads();
    void finishesTheFileAtExit();
    void errorsGoToStandardErrorOnlyWhenAsked();

    void cleanup() { GetGlobalLogInstance()->stopFile(); }
};

void tst_NxLog::recordsWhoSaidWhat()
{
    const NxLogCapture capture;
    Logger::info();
    Logger::named();
    Logger::fromLambda();
    const QVector<NxLogRecord> records = capture.records();
    QCOMPARE(records.size(), 3);
    QCOMPARE(records.at(0).level, NxLogLevel::Info);
    QCOMPARE(records.at(0).file, QByteArray("tst_NxLog.cpp"));
    QCOMPARE(records.at(0).function, QByteArray("Logger::info"));
    QCOMPARE(records.at(0).text, QStringLiteral("5 and text"));
    QCOMPARE(records.at(1).function, QByteArray("Other::name"));
    QCOMPARE(records.at(2).function, QByteArray("Logger::fromLambda"));
}

void tst_NxLog::recordsTheRealLine()
{
    NxTestLog::expectError(QStringLiteral("broken"));
    const NxLogCapture capture;
    const int line = Logger::lineOfError();
    QCOMPARE(capture.records().size(), 1);
    QCOMPARE(capture.records().constFirst().level, NxLogLevel::Error);
    QCOMPARE(capture.records().constFirst().line, line);
}

void tst_NxLog::cutsFoldersOff_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("kept");

    QTest::newRow("slashes") << QByteArray("/home/src/A.cpp") << QByteArray("A.cpp");
    QTest::newRow("backslashes") << QByteArray("C:\\src\\A.cpp") << QByteArray("A.cpp");
    QTest::newRow("name alone") << QByteArray("A.cpp") << QByteArray("A.cpp");
}

void tst_NxLog::cutsFoldersOff()
{
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, kept);
    const NxLogCapture capture;
    GetGlobalLogInstance()->info(given.constData(), "A::b", 1, "text");
    QCOMPARE(capture.records().constFirst().file, kept);
}

void tst_NxLog::keepsTextsOfAllLanguages()
{
    const NxLogCapture capture;
    const QString name = QStringLiteral("Größe 日本 🎬.mp4");
    NX_LOG_INFO("%s: %lld of 100%%, %.2f", qUtf8Printable(name), Q_INT64_C(1) << 40, 0.5);
    QCOMPARE(capture.texts(), QStringList{name + QStringLiteral(": 1099511627776 of 100%, 0.50")});
}

void tst_NxLog::capturesWhileTheCaptureLives()
{
    NX_LOG_INFO("before");
    auto capture = std::make_unique<NxLogCapture>();
    NX_LOG_INFO("during");
    QCOMPARE(capture->texts(), QStringList{QStringLiteral("during")});
    capture.reset();
    NX_LOG_INFO("after");
}

void tst_NxLog::capturesDoNotTakeFromEachOther()
{
    NxTestLog::expectError(QStringLiteral("bad"));
    const NxLogCapture outer;
    {
        const NxLogCapture inner;
        NX_LOG_INFO("good");
        NX_LOG_ERROR("bad");
        QCOMPARE(inner.texts().size(), 2);
    }
    QCOMPARE(outer.texts(), (QStringList{QStringLiteral("good"), QStringLiteral("bad")}));
    QCOMPARE(outer.texts(NxLogLevel::Info), QStringList{QStringLiteral("good")});
    QCOMPARE(outer.texts(NxLogLevel::Error), QStringList{QStringLiteral("bad")});
}

void tst_NxLog::capturesClear()
{
    NxLogCapture capture;
    NX_LOG_INFO("one");
    capture.clear();
    QVERIFY(capture.records().isEmpty());
    NX_LOG_INFO("two");
    QCOMPARE(capture.texts(), QStringList{QStringLiteral("two")});
}

void tst_NxLog::namesFunctions_data()
{
    QTest::addColumn<QByteArray>("pretty");
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("method") << QByteArray("void A::b(int) const") << QByteArray("A::b");
    QTest::newRow("virtual method")
        << QByteArray("virtual bool A::b(const QString&)") << QByteArray("A::b");
    QTest::newRow("in a namespace") << QByteArray("QString N::A::b()") << QByteArray("A::b");
    QTest::newRow("constructor") << QByteArray("N::A::A(QObject*)") << QByteArray("A::A");
    QTest::newRow("destructor") << QByteArray("virtual A::~A()") << QByteArray("A::~A");
    QTest::newRow("template result")
        << QByteArray("std::unique_ptr<B<int, C> > A::b(QList<B>)") << QByteArray("A::b");
    QTest::newRow("pointer result") << QByteArray("N::C* A::b()") << QByteArray("A::b");
    QTest::newRow("pointer result, no blank") << QByteArray("N::C *A::b()") << QByteArray("A::b");
    QTest::newRow("method of a template")
        << QByteArray("void A<T>::b() [with T = N::C]") << QByteArray("A::b");
    QTest::newRow("free function") << QByteArray("int main(int, char**)") << QByteArray("main");
    QTest::newRow("hidden function") << QByteArray("void {anonymous}::f(int)") << QByteArray("f");
    QTest::newRow("hidden function, Clang")
        << QByteArray("void (anonymous namespace)::f(int)") << QByteArray("f");
    QTest::newRow("lambda") << QByteArray("A::b(int)::<lambda(bool)>") << QByteArray("A::b");
    QTest::newRow("lambda, Clang")
        << QByteArray("auto A::b(int)::(anonymous class)::operator()(bool) const")
        << QByteArray("A::b");
    QTest::newRow("call operator")
        << QByteArray("bool A::operator()(int) const") << QByteArray("A::operator()");
    QTest::newRow("comparison operator")
        << QByteArray("bool A::operator<(const A&) const") << QByteArray("A::operator<");
    QTest::newRow("arrow operator")
        << QByteArray("T* A::operator->()") << QByteArray("A::operator->");
}

void tst_NxLog::namesFunctions()
{
    QFETCH(QByteArray, pretty);
    QFETCH(QByteArray, name);
    QCOMPARE(NxLog::qualifiedName(pretty.constData()), name);
}

void tst_NxLog::collectsFromManyThreads()
{
    constexpr int threads = 4;
    constexpr int each = 500;
    const NxLogCapture capture;
    std::vector<std::thread> writers;
    for (int t = 0; t < threads; ++t) {
        writers.emplace_back([t] {
            const NxLogCapture mine; // Captures may come and go meanwhile.
            for (int i = 0; i < each; ++i)
                NX_LOG_INFO("%d %d", t, i);
        });
    }
    for (std::thread &writer : writers)
        writer.join();

    QStringList texts = capture.texts();
    QCOMPARE(texts.size(), threads * each);
    QCOMPARE(texts.removeDuplicates(), 0);
}

void tst_NxLog::writesNoFileUnasked()
{
    const NxTempDir dir;
    const ProbeOutput probe = runProbe({QStringLiteral("quiet")}, dir.path());
    QCOMPARE(probe.exitCode, 0);
    QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
}

void tst_NxLog::writesAFile()
{
    NxTestLog::expectError(QStringLiteral("broken"));
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("new folder/größe.log"));
    const NxResult<void> started = GetGlobalLogInstance()->startFile(path);
    QVERIFY2(started, qUtf8Printable(started.errorText()));
    Logger::info();
    const int line = Logger::lineOfError();
    GetGlobalLogInstance()->stopFile();
    Logger::info();

    const QStringList lines = linesOf(path);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(0).endsWith(QStringLiteral(" Logger::info: 5 and text")),
             qUtf8Printable(lines.at(0)));
    const QString place = QStringLiteral("tst_NxLog.cpp:%1 Logger::lineOfError: broken").arg(line);
    QVERIFY2(lines.at(1).endsWith(place), qUtf8Printable(lines.at(1)));
    QVERIFY2(lines.at(1).contains(QStringLiteral(" E ")), qUtf8Printable(lines.at(1)));
}

void tst_NxLog::appendsToAFile()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("a.log"));
    for (int run = 0; run < 2; ++run) {
        QVERIFY(GetGlobalLogInstance()->startFile(path));
        NX_LOG_INFO("run %d", run);
        GetGlobalLogInstance()->stopFile();
    }
    QCOMPARE(linesOf(path).size(), 2);
}

void tst_NxLog::changesTheFile()
{
    const NxTempDir dir;
    const QString first = dir.filePath(QStringLiteral("1.log"));
    const QString second = dir.filePath(QStringLiteral("2.log"));
    QVERIFY(GetGlobalLogInstance()->startFile(first));
    NX_LOG_INFO("to the first");
    QVERIFY(GetGlobalLogInstance()->startFile(second));
    NX_LOG_INFO("to the second");
    GetGlobalLogInstance()->stopFile();
    QCOMPARE(linesOf(first).size(), 1);
    QVERIFY(contentOf(first).contains(QStringLiteral("to the first")));
    QCOMPARE(linesOf(second).size(), 1);
    QVERIFY(contentOf(second).contains(QStringLiteral("to the second")));
}

void tst_NxLog::keepsOneLineALine()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("a.log"));
    QVERIFY(GetGlobalLogInstance()->startFile(path));
    NX_LOG_INFO("a name with a\nnewline {} {0}");
    GetGlobalLogInstance()->stopFile();
    QCOMPARE(linesOf(path).size(), 1);
    QVERIFY(contentOf(path).contains(QStringLiteral("a\\nnewline {} {0}")));
}

void tst_NxLog::setsBigFilesAside()
{
    const NxTempDir dir;
    QVERIFY(GetGlobalLogInstance()->startFile(dir.filePath(QStringLiteral("a.log"))));
    const QByteArray kilobytes(64 * 1024, 'x');
    for (int i = 0; i < 400; ++i)
        NX_LOG_INFO("%s", kilobytes.constData());
    GetGlobalLogInstance()->stopFile();

    const QFileInfoList files = QDir(dir.path()).entryInfoList(QDir::Files);
    QCOMPARE(files.size(), 4);
    for (const QFileInfo &file : files)
        QVERIFY2(file.size() <= 5 * 1024 * 1024, qUtf8Printable(file.fileName()));
}

void tst_NxLog::refusesAnUnusableFile_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("below a file") << QStringLiteral("file/a.log");
}

void tst_NxLog::refusesAnUnusableFile()
{
    QFETCH(QString, name);
    const NxTempDir dir;
    dir.makeDir(QStringLiteral("folder"));
    dir.write(QStringLiteral("file"));
    const NxResult<void> started = GetGlobalLogInstance()->startFile(dir.filePath(name));
    QVERIFY(!started);
    QVERIFY2(started.errorText().startsWith(dir.filePath(name) + QStringLiteral(": ")),
             qUtf8Printable(started.errorText()));
}

void tst_NxLog::writesAFileFromManyThreads()
{
    constexpr int threads = 4;
    constexpr int each = 2500; // Together more than may wait at a time.
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("a.log"));
    QVERIFY(GetGlobalLogInstance()->startFile(path));
    std::vector<std::thread> writers;
    for (int t = 0; t < threads; ++t) {
        writers.emplace_back([] {
            for (int i = 0; i < each; ++i)
                NX_LOG_INFO("line %d", i);
        });
    }
    for (std::thread &writer : writers)
        writer.join();
    GetGlobalLogInstance()->stopFile();
    QCOMPARE(linesOf(path).size(), threads * each);
}

void tst_NxLog::finishesTheFileAtExit()
{
    const NxTempDir dir;
    const QString path = dir.filePath(QStringLiteral("exit.log"));
    const ProbeOutput probe = runProbe({QStringLiteral("file"), path}, dir.path());
    QCOMPARE(probe.exitCode, 0);
    QCOMPARE(linesOf(path).size(), 501);
    QVERIFY(linesOf(path).constLast().contains(QStringLiteral("something failed")));
}

void tst_NxLog::errorsGoToStandardErrorOnlyWhenAsked()
{
    const NxTempDir dir;
    const ProbeOutput quiet = runProbe({QStringLiteral("quiet")}, dir.path());
    QCOMPARE(quiet.errors, QString());
    QCOMPARE(quiet.output, QString());
    const ProbeOutput asked = runProbe({QStringLiteral("errors")}, dir.path());
    QCOMPARE(asked.errors.trimmed(), QStringLiteral("something failed"));
    QCOMPARE(asked.output, QString());
}

NX_TEST_MAIN(tst_NxLog)
#include "tst_NxLog.moc"
