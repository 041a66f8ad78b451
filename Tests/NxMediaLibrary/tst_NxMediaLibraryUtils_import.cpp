// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxCore/NxConfig.h>
#include <NxCore/NxDir.h>
#include <NxCore/NxMemorySettingsStore.h>

#include <NxVBLModel/FileTypeLists.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <memory>

using Utils = NxMediaLibraryUtils;
using Maker = QString (*)();
Q_DECLARE_METATYPE(Maker)

namespace {

const QString Video = QString::fromLatin1(VideoPatterns);
const QString Image = QString::fromLatin1(ImagePatterns);
const QString Audio = QString::fromLatin1(AudioPatterns);
const QString Subtitle = QString::fromLatin1(SubtitlePatterns);
const QString Unsupported = QString::fromLatin1(UnsupportedPatterns);

/// NUL as "|", which stands in no filter, so that rows can be read.
QString readable(QString native)
{
    return native.replace(QChar::Null, QLatin1Char('|'));
}

QString nativePair(const QString &patterns)
{
    return QLatin1Char('(') + patterns + QLatin1String(")|") + patterns + QLatin1Char('|');
}

QStringList suffixesOf(const QString &patterns)
{
    QString suffixes = patterns;
    suffixes.remove(QLatin1String("*."));
    return suffixes.split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

void listRows()
{
    QTest::addColumn<Maker>("made");
    QTest::addColumn<QString>("patterns");
}

} // namespace

class tst_NxMediaLibraryUtils_import : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void answersTheLists_data();
    void answersTheLists();
    void joinsAllImportableListsForWalks();
    void writesTheFilterOfTheImportDialog();
    void writesTheFilterForPictures();
    void writesNativePairs_data();
    void writesNativePairs();
    void writesTheNativeFilterOfAllKinds();
    void endsTheNativeFilterInTwoNuls();
    void writesNamePatterns_data();
    void writesNamePatterns();
    void writesTheSubtitlePatternWithoutEmptyParts();
    void namePatternsFitTheNamesOfTheirList_data();
    void namePatternsFitTheNamesOfTheirList();
    void theCombinedPatternFitsEveryImportableName_data();
    void theCombinedPatternFitsEveryImportableName();
    void patternsAreUpperCase();

    void proposesSampleMusicBeforeTheFirstImport();
    void remembersTheFolderOfTheLastImport();

    void judgesDroppedPaths_data();
    void judgesDroppedPaths();
    void looksIntoFolders_data();
    void looksIntoFolders();
    void findsAFileDeepInAFolder();
    void takesAFileAfterRefusedOnes();
    void doesNotFollowLinksInAFolder();
};

void tst_NxMediaLibraryUtils_import::init()
{
    NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
}

void tst_NxMediaLibraryUtils_import::cleanup()
{
    NxConfig::Instance()->setStore(nullptr);
}

void tst_NxMediaLibraryUtils_import::answersTheLists_data()
{
    listRows();
    QTest::newRow("video") << Maker(&Utils::getImportVideoFilter) << Video;
    QTest::newRow("image") << Maker(&Utils::getImportImageFilter) << Image;
    QTest::newRow("audio") << Maker(&Utils::getImportAudioFilter) << Audio;
    QTest::newRow("subtitle") << Maker(&Utils::getImportSrtFilter) << Subtitle;
    QTest::newRow("unsupported") << Maker(&Utils::getImportUnsupportFilter) << Unsupported;
}

void tst_NxMediaLibraryUtils_import::answersTheLists()
{
    QFETCH(Maker, made);
    QTEST(made(), "patterns");
}

void tst_NxMediaLibraryUtils_import::joinsAllImportableListsForWalks()
{
    const QStringList importable = Utils::getImportAllSupportFilter();
    QCOMPARE(importable, (QStringList{Video, Image, Audio, Subtitle}));
    QCOMPARE(Utils::getImportAllUnsupportFilter(), QStringList{Unsupported});
    QVERIFY(NxDir::CheckFilters(QStringLiteral("/clips/a.mp4"), importable));
    QVERIFY(NxDir::CheckFilters(QStringLiteral("/clips/a.lrc"), importable));
    QVERIFY(!NxDir::CheckFilters(QStringLiteral("/clips/a.pdf"), importable));
}

void tst_NxMediaLibraryUtils_import::writesTheFilterOfTheImportDialog()
{
    const QString semicolon = QStringLiteral("; ");
    QCOMPARE(Utils::getImportFileFilter(),
             QLatin1String("All supported files(") + Video + semicolon + Audio + semicolon + Image
                 + QLatin1String(";);;Video files(") + Video + QLatin1String(";);;Audio files(")
                 + Audio + QLatin1String(";);;Image files(") + Image
                 + QLatin1String(";);;All files(*.*)"));
}

void tst_NxMediaLibraryUtils_import::writesTheFilterForPictures()
{
    QCOMPARE(Utils::getImportVideoAnImageFilter(),
             QLatin1String("All supported files(") + Video + QLatin1String("; ") + Image
                 + QLatin1String(";);;Video files(") + Video + QLatin1String(";);;Image files(")
                 + Image + QLatin1String(";);;All files(*.*)"));
}

void tst_NxMediaLibraryUtils_import::writesNativePairs_data()
{
    listRows();
    QTest::newRow("video") << Maker(&Utils::getImportVideoFilterEx) << Video;
    QTest::newRow("image") << Maker(&Utils::getImportImageFilterEx) << Image;
    QTest::newRow("audio") << Maker(&Utils::getImportAudioFilterEx) << Audio;
    QTest::newRow("subtitle") << Maker(&Utils::getImportSrtTextFilterEx) << Subtitle;
}

void tst_NxMediaLibraryUtils_import::writesNativePairs()
{
    QFETCH(Maker, made);
    QFETCH(QString, patterns);
    QCOMPARE(readable(made()), nativePair(patterns));
    QCOMPARE(made().count(QChar(QChar::Null)), 2);
}

void tst_NxMediaLibraryUtils_import::writesTheNativeFilterOfAllKinds()
{
    const QString all =
        Video + QLatin1Char(';') + Image + QLatin1Char(';') + Audio + QLatin1String(";*.SRT;*.LRC");
    QCOMPARE(readable(Utils::getImportFileFilterEx()),
             QLatin1String("All supported files") + nativePair(all) + QLatin1String("Video files")
                 + nativePair(Video) + QLatin1String("Audio files") + nativePair(Audio)
                 + QLatin1String("Image files") + nativePair(Image) + QLatin1String("Text files")
                 + nativePair(Subtitle) + QLatin1String("All files(*.*)|*.*||"));
}

void tst_NxMediaLibraryUtils_import::endsTheNativeFilterInTwoNuls()
{
    const QString native = Utils::getImportFileFilterEx();
    QCOMPARE(native.right(2), QString(2, QChar::Null));
    QVERIFY(!native.at(native.size() - 3).isNull());
    QCOMPARE(native.indexOf(QString(2, QChar::Null)), native.size() - 2);
}

void tst_NxMediaLibraryUtils_import::writesNamePatterns_data()
{
    listRows();
    QTest::newRow("video") << Maker(&Utils::getImportVideoRegexFilter) << Video;
    QTest::newRow("image") << Maker(&Utils::getImportImageRegexFilter) << Image;
    QTest::newRow("audio") << Maker(&Utils::getImportAudioRegexFilter) << Audio;
    QTest::newRow("subtitle") << Maker(&Utils::getImportSrtRegexFilter) << Subtitle;
    QTest::newRow("all") << Maker(&Utils::getImportFileRegexFilter)
                         << QStringList{Video, Image, Audio, Subtitle}.join(QLatin1Char(';'));
}

void tst_NxMediaLibraryUtils_import::writesNamePatterns()
{
    QFETCH(Maker, made);
    QFETCH(QString, patterns);
    QCOMPARE(made(), QLatin1String("^.*?\\.(") + suffixesOf(patterns).join(QLatin1Char('|'))
                         + QLatin1String(")$"));
}

void tst_NxMediaLibraryUtils_import::writesTheSubtitlePatternWithoutEmptyParts()
{
    QCOMPARE(Utils::getImportSrtRegexFilter(), QStringLiteral("^.*?\\.(SRT|LRC)$"));
}

void tst_NxMediaLibraryUtils_import::namePatternsFitTheNamesOfTheirList_data()
{
    QTest::addColumn<Maker>("made");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("fits");
    const auto row = [](const char *what, Maker made, const char *name, bool fits) {
        QTest::addRow("%s: %s", what, name) << made << QString::fromLatin1(name) << fits;
    };
    const Maker video = &Utils::getImportVideoRegexFilter;
    const Maker subtitle = &Utils::getImportSrtRegexFilter;
    row("video", video, "clip.MP4", true);
    row("video", video, "clip.mp4", false);
    row("video", video, "holiday.day.1.MP4", true);
    row("video", video, ".MP4", true);
    row("video", video, "show.DVR-MS", true);
    row("video", video, "MP4", false);
    row("video", video, "clip.MP4.txt", false);
    row("video", video, "clip.XMP4", false);
    row("video", video, "clip.", false);
    row("image", &Utils::getImportImageRegexFilter, "raw.DNG", true);
    row("audio", &Utils::getImportAudioRegexFilter, "disc.CUE", true);
    row("audio", &Utils::getImportAudioRegexFilter, "clip.MP4", false);
    row("subtitle", subtitle, "film.SRT", true);
    row("subtitle", subtitle, "song.LRC", true);
    row("subtitle", subtitle, "song.", false);
}

void tst_NxMediaLibraryUtils_import::namePatternsFitTheNamesOfTheirList()
{
    QFETCH(Maker, made);
    QFETCH(QString, name);
    QFETCH(bool, fits);
    const QRegularExpression pattern(made());
    QVERIFY2(pattern.isValid(), qUtf8Printable(pattern.errorString()));
    QCOMPARE(pattern.match(name).hasMatch(), fits);
    const QRegularExpression ignoringCase(made(), QRegularExpression::CaseInsensitiveOption);
    if (fits)
        QVERIFY(ignoringCase.match(name.toLower()).hasMatch());
}

void tst_NxMediaLibraryUtils_import::theCombinedPatternFitsEveryImportableName_data()
{
    QTest::addColumn<QString>("suffix");
    QSet<QString> seen;
    for (const QString &list : {Video, Image, Audio, Subtitle}) {
        const QStringList suffixes = suffixesOf(list);
        for (const QString &suffix : suffixes) {
            if (!seen.contains(suffix))
                QTest::newRow(qUtf8Printable(suffix)) << suffix;
            seen.insert(suffix);
        }
    }
}

void tst_NxMediaLibraryUtils_import::theCombinedPatternFitsEveryImportableName()
{
    QFETCH(QString, suffix);
    const QRegularExpression pattern(Utils::getImportFileRegexFilter());
    QVERIFY(pattern.match(QLatin1String("a.") + suffix).hasMatch());
    QVERIFY(!pattern.match(QLatin1String("a.PDF")).hasMatch());
}

void tst_NxMediaLibraryUtils_import::patternsAreUpperCase()
{
    for (const QString &list : {Utils::getImportVideoFilter(), Utils::getImportImageFilter(),
                                Utils::getImportAudioFilter(), Utils::getImportSrtFilter(),
                                Utils::getImportUnsupportFilter()})
        QCOMPARE(list, list.toUpper());
}

void tst_NxMediaLibraryUtils_import::proposesSampleMusicBeforeTheFirstImport()
{
    QCOMPARE(Utils::getImportMediaFileDir(),
             QStringLiteral("C:\\Users\\Public\\Music\\Sample Music"));
}

void tst_NxMediaLibraryUtils_import::remembersTheFolderOfTheLastImport()
{
    const QString folder = QStringLiteral("/films/Été 2024");
    Utils::writeImportMediaFileDir(folder);
    QCOMPARE(Utils::getImportMediaFileDir(), folder);
    QCOMPARE(NxConfig::Instance()->getDefaultImportDir(QString()), folder);
    Utils::writeImportMediaFileDir(QStringLiteral("/clips"));
    QCOMPARE(Utils::getImportMediaFileDir(), QStringLiteral("/clips"));
}

void tst_NxMediaLibraryUtils_import::judgesDroppedPaths_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("valid");
    const auto row = [](const char *what, const QStringList &names, bool valid) {
        QTest::newRow(what) << names << valid;
    };
    const QString clip = QStringLiteral("a.mp4");
    const QString paper = QStringLiteral("a.pdf");
    row("nothing", {}, false);
    row("a clip", {clip}, true);
    row("refused", {paper}, false);
    row("refused in capitals", {QStringLiteral("A.PDF")}, false);
    row("refused in mixed case", {QStringLiteral("a.Docx")}, false);
    row("several refused", {paper, QStringLiteral("b.zip"), QStringLiteral("c.txt")}, false);
    row("a clip after a refused file", {paper, clip}, true);
    row("a refused file after a clip", {clip, paper}, true);
    row("refused as dropped although importable", {QStringLiteral("a.dat")}, false);
    row("a suffix on no list", {QStringLiteral("a.xyz")}, true);
    row("no suffix", {QStringLiteral("README")}, true);
    row("a name that is a refused suffix", {QStringLiteral("pdf")}, true);
    row("only the last suffix counts", {QStringLiteral("a.pdf.mp4")}, true);
    row("only the last suffix counts, refused", {QStringLiteral("a.mp4.pdf")}, false);
    row("hidden", {QStringLiteral(".a.mp4")}, true);
}

void tst_NxMediaLibraryUtils_import::judgesDroppedPaths()
{
    QFETCH(QStringList, names);
    QFETCH(bool, valid);
    const NxTempDir dir;
    QStringList there;
    QStringList missing;
    for (const QString &name : qAsConst(names)) {
        there += dir.write(name);
        missing += QLatin1String("/nowhere/at all/") + name;
    }
    QCOMPARE(Utils::hasValidFile(there), valid);
    QCOMPARE(Utils::hasValidFile(missing), valid); // What is not there counts as a file.
    QCOMPARE(Utils::hasValidFile(names), valid); // So does a name alone.
}

void tst_NxMediaLibraryUtils_import::looksIntoFolders_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("valid");
    QTest::newRow("empty") << QStringList() << false;
    QTest::newRow("refused files")
        << QStringList{QStringLiteral("a.pdf"), QStringLiteral("b/c.zip")} << false;
    QTest::newRow("a clip") << QStringList{QStringLiteral("a.mp4")} << true;
    QTest::newRow("a clip beside refused files")
        << QStringList{QStringLiteral("a.pdf"), QStringLiteral("b.mp4")} << true;
    QTest::newRow("a clip in a folder below")
        << QStringList{QStringLiteral("a.pdf"), QStringLiteral("b/c/d.mp4")} << true;
    QTest::newRow("a hidden clip") << QStringList{QStringLiteral(".a.mp4")} << true;
    QTest::newRow("a clip in a hidden folder") << QStringList{QStringLiteral(".b/a.mp4")} << true;
    QTest::newRow("a refused file in a folder named like a clip")
        << QStringList{QStringLiteral("b.mp4/a.pdf")} << false;
}

void tst_NxMediaLibraryUtils_import::looksIntoFolders()
{
    QFETCH(QStringList, files);
    QFETCH(bool, valid);
    const NxTempDir dir;
    const QString folder = dir.makeDir(QStringLiteral("dropped.pdf"));
    for (const QString &file : qAsConst(files))
        dir.write(QLatin1String("dropped.pdf/") + file);
    QCOMPARE(Utils::hasValidFile({folder}), valid);
    QCOMPARE(Utils::hasValidFile({folder + QLatin1Char('/')}), valid);
}

void tst_NxMediaLibraryUtils_import::findsAFileDeepInAFolder()
{
    const NxTempDir dir;
    QString deep;
    for (int level = 0; level < 40; ++level)
        deep += QStringLiteral("level %1/").arg(level);
    dir.write(QLatin1String("top/") + deep + QLatin1String("a.pdf"));
    const QString top = dir.filePath(QStringLiteral("top"));
    QVERIFY(!Utils::hasValidFile({top}));
    dir.write(QLatin1String("top/") + deep + QLatin1String("a.mov"));
    QVERIFY(Utils::hasValidFile({top}));
}

void tst_NxMediaLibraryUtils_import::takesAFileAfterRefusedOnes()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("papers/a.pdf"));
    const QString papers = dir.filePath(QStringLiteral("papers"));
    QVERIFY(!Utils::hasValidFile({papers}));
    QVERIFY(Utils::hasValidFile({papers, dir.write(QStringLiteral("a.mp4"))}));
}

void tst_NxMediaLibraryUtils_import::doesNotFollowLinksInAFolder()
{
    // Links to folders are not followed, so a cycle ends; and what lies behind a link is not in it.
    const NxTempDir dir;
    dir.write(QStringLiteral("outside/a.mp4"));
    const QString folder = dir.makeDir(QStringLiteral("dropped"));
    QVERIFY(QFile::link(folder, dir.filePath(QStringLiteral("dropped/cycle"))));
    QVERIFY(QFile::link(dir.filePath(QStringLiteral("outside")),
                        dir.filePath(QStringLiteral("dropped/elsewhere"))));
    QVERIFY(!Utils::hasValidFile({folder}));
    dir.write(QStringLiteral("dropped/b.mp4"));
    QVERIFY(Utils::hasValidFile({folder}));
}

NX_TEST_MAIN(tst_NxMediaLibraryUtils_import)
#include "tst_NxMediaLibraryUtils_import.moc"
