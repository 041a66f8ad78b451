// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainSettings.h"
#include "SettingYard.h"

#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/setting/NxMatterMenuFile_p.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>
#include <NxVBLEngine/Support/NxAsNobody.h>

#include <Support/NxTestMain.h>

#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QSysInfo>
#include <QTest>
#include <QVariant>

#include <csignal>
#include <memory>
#include <random>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace PlainTables;
using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {


/// A file in which every key has a text of its own.
QByteArray fullIni()
{
    QByteArray text = "[NMatterViewMenu]\n";
    for (int code = 0; code <= mctStockMedia; ++code) {
        const QByteArray prefix = prefixOf(code).toUtf8();
        text += prefix + "_GroupBy=" + (code == 0 ? "gbDuration" : "gbCategory") + '\n';
        text += prefix + "_GroupByOrder=soDESC\n";
        text += prefix + "_SortBy=sbType\n";
        text += prefix + "_SortByOrder=soASC\n";
        text += prefix + "_View=" + (code % 2 ? "ListView" : "MiddleThumbnailView") + '\n';
    }
    return text;
}

/// Compares what was read with what any other reader of the file finds in it.
QString differenceToFile(const QString &path, const NxMediaLibrarySetting *setting)
{
    QSettings other(path, QSettings::IniFormat);
    other.beginGroup(QStringLiteral("NMatterViewMenu"));
    QMap<QString, QString> texts;
    for (int code = 0; code < Categories; ++code) {
        for (int kind = 0; kind < KindCount; ++kind)
            texts.insert(keyOf(code, kind), other.value(keyOf(code, kind)).toString());
    }
    return PlainSettings(texts).differenceTo(setting);
}

/// What is wrong when nothing can be read and nothing written; empty when all is well.
QString complaintsWithoutFile()
{
    const NxLogCapture capture;
    NxMediaLibrarySetting *setting = SettingYard::restart();
    QString complaints = PlainSettings().differenceTo(setting);
    setting->SetViewType(mctAudio, vmList);
    setting->SetViewType(mctTitle, vmSmallThumbnail);
    setting->SetSortBy(mctAudio, sbType);
    if (setting->GetViewType(mctAudio) != vmSmallThumbnail)
        complaints += QStringLiteral(" the view is forgotten");
    if (setting->GetSortBy(mctAudio) != sbType)
        complaints += QStringLiteral(" the sort key is forgotten");
    if (capture.texts(NxLogLevel::Error).size() > 1)
        complaints += QStringLiteral(" many error lines");
    return complaints;
}

/// A value as QSettings writes those that are no texts.
QByteArray variantText(const QByteArray &bytes)
{
    return "@Variant(" + bytes.toPercentEncoding({}, {}, 'x').replace("x", "\\x") + ')';
}

/// A list of variants that claims to have this many elements, with nothing behind.
QByteArray listOf(quint32 count)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << quint32(QMetaType::QVariantList) << count;
    return bytes;
}

QByteArray mutated(QByteArray text, std::mt19937 &random)
{
    static const QByteArray tokens[] = {
        "=",  "\n",   "[",  "]", "\\", "\\x", "\"", ",",    ";",           "@",           "%",
        "%U", "\r\n", "@@", "_", "()", "[]",  "\0", "\xff", "@ByteArray(", "[General]\n", "=="};
    constexpr int kinds = 5;
    const int changes = 1 + int(random() % 12);
    for (int i = 0; i < changes; ++i) {
        const int at = text.isEmpty() ? 0 : int(random() % quint32(text.size()));
        const int length = int(random() % 40);
        switch (random() % kinds) {
        case 0:
            if (!text.isEmpty())
                text[at] = char(random() % 256);
            break;
        case 1:
            text.remove(at, length);
            break;
        case 2:
            text.insert(at, text.mid(int(random() % quint32(text.size() + 1)), length));
            break;
        case 3:
            text.insert(at, tokens[random() % std::size(tokens)]);
            break;
        default:
            text.truncate(text.size() - length / 4);
        }
    }
    return text;
}

} // namespace

/// The settings' file in bad hands: the panel opens all the same.
class tst_NxMatterMenuFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void damagedFileIsReadAsFarAsItGoes_data();
    void damagedFileIsReadAsFarAsItGoes();
    void everyBeginningOfAFileIsRead();
    void mutationsAreSurvived();
    void unreadableFileIsLeftAlone();
    void unwritableFolderIsBorne();
    void fullDiskKeepsTheOlderFile();
    void missingFolderIsMade();
    void whatIsNoFileIsLeftAlone_data();
    void whatIsNoFileIsLeftAlone();
    void linkIsWrittenThrough();
    void aBatchIsWrittenWhenItEnds();
    void hugeFileIsLeftAlone();
    void largestFileIsRead();
    void valuesThatAreNoTextsAreLeftAlone_data();
    void valuesThatAreNoTextsAreLeftAlone();
    void foreignLockIsNotWaitedFor();
    void lockThatIsNoFileIsNotWaitedFor_data();
    void lockThatIsNoFileIsNotWaitedFor();
    void lockOfADeadProgramIsTakenOver();
    void noFolderAtAllIsBorne();

private:
    std::unique_ptr<SettingYard> m_yard;
};

void tst_NxMatterMenuFile::init()
{
    m_yard = std::make_unique<SettingYard>();
}

void tst_NxMatterMenuFile::cleanup()
{
    m_yard.reset();
}

void tst_NxMatterMenuFile::damagedFileIsReadAsFarAsItGoes_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("audioView");
    QTest::addColumn<int>("audioSort");

    const QByteArray group = "[NMatterViewMenu]\n";
    QTest::newRow("empty") << QByteArray() << 3 << 14;
    QTest::newRow("zeros") << QByteArray(4096, '\0') << 3 << 14;
    QTest::newRow("one endless line") << QByteArray(8000, 'x') << 3 << 14;
    QTest::newRow("open brackets") << QByteArray(8000, '[') << 3 << 14;
    QTest::newRow("open quotes") << group + "Audio_View=\"ListView\n" << 3 << 14;
    QTest::newRow("no group") << QByteArray("Audio_View=ListView\n") << 3 << 14;
    QTest::newRow("another group") << QByteArray("[Other]\nAudio_View=ListView\n") << 3 << 14;
    QTest::newRow("garbage before") << "\xff\xfe=\x01\n" + group + "Audio_View=ListView\n"
                                    << 0 << 14;
    QTest::newRow("garbage between")
        << group + "Audio_View=ListView\n;;=\n%%%\nAudio_SortBy=sbType" << 0 << 13;
    QTest::newRow("line ends of Windows")
        << QByteArray("[NMatterViewMenu]\r\nAudio_View=ListView\r\n") << 0 << 14;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + group + "Audio_View=ListView\n" << 0 << 14;
    QTest::newRow("quoted text") << group + "Audio_View=\"ListView\"\n" << 0 << 14;
    QTest::newRow("list of texts")
        << group + "Audio_View=ListView, ListView\n" + "Audio_SortBy=sbType, sbType\n"
        << 3 << 14;
    QTest::newRow("nested group") << group + "Audio_View\\View=ListView\n" << 3 << 14;
    QTest::newRow("key twice") << group + "Audio_View=ListView\nAudio_View=SmallThumbnailView\n"
                               << 1 << 14;
    QTest::newRow("bytes") << group + "Audio_View=@ByteArray(ListView)\nAudio_SortBy=@Invalid()\n"
                           << 0 << 14;
}

void tst_NxMatterMenuFile::damagedFileIsReadAsFarAsItGoes()
{
    QFETCH(QByteArray, text);
    m_yard->writeIni(text);
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    QTEST(get(setting, mctAudio, View), "audioView");
    QTEST(get(setting, mctAudio, SortBy), "audioSort");

    setting->SetSortBy(mctAudio, sbDuration); // The damaged file can be written to.
    QCOMPARE(SettingYard::restart()->GetSortBy(mctAudio), sbDuration);
}

void tst_NxMatterMenuFile::everyBeginningOfAFileIsRead()
{
    const QByteArray whole = fullIni();
    for (int size = 0; size <= whole.size(); ++size) {
        m_yard->writeIni(whole.left(size));
        QCOMPARE(differenceToFile(m_yard->iniPath(), SettingYard::restart()), QString());
    }
    QCOMPARE(NxMediaLibrarySetting::instance()->GetViewType(mctStockMedia), vmList);
    QCOMPARE(NxMediaLibrarySetting::instance()->GetGroupBy(mctMedia), gbDuration);
}

void tst_NxMatterMenuFile::mutationsAreSurvived()
{
    constexpr int runs = 2000;
    constexpr int runsPerWrite = 10; // Writing waits for the disk.
    const NxLogCapture capture;
    for (int seed = 1; seed <= runs; ++seed) {
        std::mt19937 random{quint32(seed)};
        const QByteArray text = mutated(fullIni(), random);
        m_yard->writeIni(text);
        NxMediaLibrarySetting *setting = SettingYard::restart();
        const QString difference = differenceToFile(m_yard->iniPath(), setting);
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(difference)));
        if (seed % runsPerWrite != 0)
            continue;
        const auto key = setting->GetSortBy(mctAudio) == sbDuration ? sbDateCreated : sbDuration;
        setting->SetSortBy(mctAudio, key);
        QVERIFY2(SettingYard::restart()->GetSortBy(mctAudio) == key,
                 QByteArray::number(seed).constData());
    }
    QCOMPARE(capture.texts(NxLogLevel::Error), QStringList());
}

void tst_NxMatterMenuFile::unreadableFileIsLeftAlone()
{
    m_yard->writeIni(fullIni());
    NxAsNobody::give(m_yard->folder());
    QVERIFY(chmod(QFile::encodeName(m_yard->iniPath()).constData(), 0) == 0);
    QCOMPARE(NxAsNobody::run(&complaintsWithoutFile), QString());
    QVERIFY(chmod(QFile::encodeName(m_yard->iniPath()).constData(), 0600) == 0);
    QCOMPARE(m_yard->iniText(), fullIni());
}

void tst_NxMatterMenuFile::unwritableFolderIsBorne()
{
    NxAsNobody::give(m_yard->folder());
    const QByteArray folder = QFile::encodeName(m_yard->folder());
    QVERIFY(chmod(folder.constData(), 0555) == 0);
    QCOMPARE(NxAsNobody::run(&complaintsWithoutFile), QString());
    QVERIFY(chmod(folder.constData(), 0755) == 0);
    QVERIFY(QDir(m_yard->folder()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

/// No file of the child process may grow beyond what its lock needs, as if the disk were full.
void tst_NxMatterMenuFile::fullDiskKeepsTheOlderFile()
{
    m_yard->writeIni(fullIni());
    NxAsNobody::give(m_yard->folder());
    const QString complaints = NxAsNobody::run([] {
        constexpr rlim_t lockBytes = 256;
        const rlimit limit{lockBytes, lockBytes};
        if (std::signal(SIGXFSZ, SIG_IGN) == SIG_ERR || setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return QStringLiteral("the disk cannot be made full");
        const NxLogCapture capture;
        NxMediaLibrarySetting *setting = SettingYard::restart();
        if (setting->GetSortBy(mctAudio) != sbType)
            return QStringLiteral("not read");
        setting->SetSortBy(mctAudio, sbDuration);
        setting->SetViewType(mctAudio, vmSmallThumbnail);
        const bool isKept = setting->GetSortBy(mctAudio) == sbDuration
                            && setting->GetViewType(mctMedia) == vmSmallThumbnail;
        if (capture.texts(NxLogLevel::Error).size() != 1)
            return QStringLiteral("not one error line");
        return isKept ? QString() : QStringLiteral("forgotten");
    });
    QCOMPARE(complaints, QString());
    QCOMPARE(m_yard->iniText(), fullIni());
    QCOMPARE(
        QDir(m_yard->folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList(QStringLiteral("Brevano.ini")));
}

void tst_NxMatterMenuFile::missingFolderIsMade()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    QVERIFY(QDir(m_yard->folder()).removeRecursively());
    setting->SetViewType(mctAudio, vmList);
    QCOMPARE(setting->GetViewType(mctAudio), vmList);
    setting->SetViewType(mctTitle, vmList);
    QCOMPARE(m_yard->iniKeys().value(QStringLiteral("Title_View")), QStringLiteral("ListView"));
}

void tst_NxMatterMenuFile::whatIsNoFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("what");

    QTest::newRow("folder") << QStringLiteral("folder");
    QTest::newRow("pipe that nobody writes to") << QStringLiteral("pipe");
    QTest::newRow("device that is always full") << QStringLiteral("/dev/full");
    QTest::newRow("device without end") << QStringLiteral("/dev/zero");
}

void tst_NxMatterMenuFile::whatIsNoFileIsLeftAlone()
{
    QFETCH(QString, what);
    if (what == QLatin1String("folder"))
        QVERIFY(QDir().mkdir(m_yard->iniPath()));
    else if (what == QLatin1String("pipe"))
        QVERIFY(mkfifo(QFile::encodeName(m_yard->iniPath()).constData(), 0600) == 0);
    else
        QVERIFY(QFile::link(what, m_yard->iniPath()));
    NxTestLog::expectError(QStringLiteral("is no file"));
    QCOMPARE(complaintsWithoutFile(), QString());
    QVERIFY(!QFileInfo(m_yard->iniPath()).isFile());
}

void tst_NxMatterMenuFile::linkIsWrittenThrough()
{
    const NxTempDir elsewhere;
    const QString target = elsewhere.write(QStringLiteral("mine.ini"), fullIni());
    QVERIFY(QFile::link(target, m_yard->iniPath()));
    NxMediaLibrarySetting::instance()->SetSortBy(mctAudio, sbDuration);
    QVERIFY(QFileInfo(m_yard->iniPath()).isSymLink());
    QVERIFY(m_yard->iniText().contains("\nAudio_SortBy=sbDuration\n"));
}

void tst_NxMatterMenuFile::hugeFileIsLeftAlone()
{
    m_yard->writeIni(fullIni());
    constexpr qint64 huge = qint64(1) << 20;
    QVERIFY(QFile::resize(m_yard->iniPath(), huge));
    NxTestLog::expectError(QStringLiteral("is too large to be settings"));
    QCOMPARE(complaintsWithoutFile(), QString());
    QCOMPARE(QFileInfo(m_yard->iniPath()).size(), huge);
}

void tst_NxMatterMenuFile::largestFileIsRead()
{
    constexpr int largest = 16 * 1024;
    QByteArray text = fullIni() + ';';
    text += QByteArray(largest - text.size(), 'x');
    m_yard->writeIni(text);
    QCOMPARE(NxMediaLibrarySetting::instance()->GetSortBy(mctAudio), sbType);

    m_yard->writeIni(text + 'x');
    NxTestLog::expectError(QStringLiteral("is too large to be settings"));
    QCOMPARE(complaintsWithoutFile(), QString());
    QCOMPARE(m_yard->iniText(), text + 'x');
}

void tst_NxMatterMenuFile::valuesThatAreNoTextsAreLeftAlone_data()
{
    QTest::addColumn<QByteArray>("text");

    const QByteArray group = "[NMatterViewMenu]\n";
    const QByteArray giant = variantText(listOf(0x7fffffff));
    QTest::newRow("giant list") << group + "Audio_View=" + giant + '\n';
    QTest::newRow("giant list in another group") << fullIni() + "\n[Other]\nlist=" + giant + '\n';
    QTest::newRow("cut off") << group + "Audio_View=@Variant(\\0\\0\\0\n";
    QByteArray nested = group + "Audio_View=@Variant(";
    while (nested.size() < 16 * 1000)
        nested += listOf(1); // Its bytes stand for themselves: the deepest that fits.
    QTest::newRow("nested lists") << nested + ")\n";
}

void tst_NxMatterMenuFile::valuesThatAreNoTextsAreLeftAlone()
{
    QFETCH(QByteArray, text);
    m_yard->writeIni(text);
    NxTestLog::expectError(QStringLiteral("holds values that are no texts"));
    QCOMPARE(complaintsWithoutFile(), QString());
    QCOMPARE(m_yard->iniText(), text);
}

void tst_NxMatterMenuFile::foreignLockIsNotWaitedFor()
{
    QLockFile lock(m_yard->lockPath());
    QVERIFY(lock.tryLock());
    QElapsedTimer timer;
    timer.start();
    NxTestLog::expectError(QStringLiteral("is kept locked by another program"));
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    setting->SetViewType(mctTitle, vmList);
    QVERIFY(timer.elapsed() < NxPatience);
    QCOMPARE(setting->GetViewType(mctAudio), vmList);
    QCOMPARE(m_yard->iniText(), QByteArray());

    lock.unlock();
    setting->SetViewType(mctEffect, vmList);
    QCOMPARE(m_yard->iniText(), QByteArray("[NMatterViewMenu]\nEffect_View=ListView\n"));
}

void tst_NxMatterMenuFile::lockThatIsNoFileIsNotWaitedFor_data()
{
    QTest::addColumn<bool>("isPipe");

    QTest::newRow("folder") << false;
    QTest::newRow("pipe") << true;
}

void tst_NxMatterMenuFile::lockThatIsNoFileIsNotWaitedFor()
{
    QFETCH(bool, isPipe);
    if (isPipe)
        QVERIFY(mkfifo(QFile::encodeName(m_yard->lockPath()).constData(), 0600) == 0);
    else
        QVERIFY(QDir().mkdir(m_yard->lockPath()));
    NxTestLog::expectError(QStringLiteral("is locked for ever"));
    QCOMPARE(complaintsWithoutFile(), QString());
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
}

void tst_NxMatterMenuFile::lockOfADeadProgramIsTakenOver()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    QCOMPARE(waitpid(child, nullptr, 0), child);
    QFile lock(m_yard->lockPath());
    QVERIFY(lock.open(QFile::WriteOnly));
    lock.write(QByteArray::number(child) + "\nbrevano\n" + QSysInfo::machineHostName().toUtf8()
               + '\n');
    lock.close();
    NxMediaLibrarySetting::instance()->SetViewType(mctAudio, vmList);
    QCOMPARE(m_yard->iniText(), QByteArray("[NMatterViewMenu]\nAudio_View=ListView\n"));
}

void tst_NxMatterMenuFile::noFolderAtAllIsBorne()
{
    class NoFolders : public INxAppInfo
    {
        QString getDirectory(int) override { return QString(); }
    };
    NoFolders none;
    INxAppInfo::setInstance(&none);
    NxTestLog::expectError(QStringLiteral("has no folder"));
    const QString complaints = complaintsWithoutFile();
    NxMediaLibrarySetting::release();
    INxAppInfo::setInstance(m_yard.get());
    QCOMPARE(complaints, QString());
    QVERIFY(!QFileInfo::exists(QStringLiteral("/Brevano.ini")));
}

void tst_NxMatterMenuFile::aBatchIsWrittenWhenItEnds()
{
    NxMatterMenuFile file;
    const QStringList keys{QStringLiteral("Media_View"), QStringLiteral("Audio_View")};
    {
        const NxMatterMenuFile::Batch outer(&file);
        {
            const NxMatterMenuFile::Batch inner(&file);
            file.write(keys[0], QStringLiteral("ListView"));
            file.write(keys[1], QStringLiteral("SmallThumbnailView"));
        }
        file.write(keys[0], QStringLiteral("MiddleThumbnailView"));
        QCOMPARE(m_yard->iniText(), QByteArray());
    }
    QCOMPARE(m_yard->iniKeys(),
             (QMap<QString, QString>{{keys[0], QStringLiteral("MiddleThumbnailView")},
                                     {keys[1], QStringLiteral("SmallThumbnailView")}}));
    file.write(keys[0], QStringLiteral("ListView"));
    QCOMPARE(m_yard->iniKeys().value(keys[0]), QStringLiteral("ListView"));
}

NX_TEST_MAIN(tst_NxMatterMenuFile)
#include "tst_NxMatterMenuFile.moc"
