// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ShotYard.h"

#include <Footage/NxNumberedFrames.h>
#include <NxVBLEngine/NxEmbeddedEngine.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxFootageGuard.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QtTest>

namespace {

constexpr QSize CoverSize(224, 126); // Of the large view.
constexpr int NameHeight = 34; // px below a cover, in which its name stands.

/// The part of a row below its cover.
QRect nameBelow(const QRect &cover, int scale = 1)
{
    return {cover.left(), cover.bottom() + 1 + 2 * scale, cover.width(), NameHeight * scale};
}

/// The grey levels of a part; text is drawn with soft edges.
QSet<int> greys(const QImage &picture, const QRect &part)
{
    QSet<int> found;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            found.insert(qGray(picture.pixel(x, y)));
    }
    return found;
}

/// Whether a part consists of squares of 2 x 2 equal pixels.
bool isCoarse(const QImage &picture, const QRect &part)
{
    for (int y = part.top() & ~1; y < part.bottom(); y += 2) {
        for (int x = part.left() & ~1; x < part.right(); x += 2) {
            const QRgb pixel = picture.pixel(x, y);
            if (picture.pixel(x + 1, y) != pixel || picture.pixel(x, y + 1) != pixel)
                return false;
        }
    }
    return true;
}

QColor colourOf(NxSkin skin, NxSkinColor colour)
{
    NxSkinStyle::instance()->setSkin(skin);
    return NxSkinStyle::instance()->GetColor(colour);
}

bool isBefore(const QRect &a, const QRect &b)
{
    return a.top() < b.top() || (a.top() == b.top() && a.right() < b.left());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// shot: what stands in the picture, and what does not change.
class tst_ShotCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyMediaHasItsCoverAndItsName();
    void aFilmHasAFrameForACover();
    void theSamePictureComesAgain();
    void pictureHasTheSizeThatIsSaid_data();
    void pictureHasTheSizeThatIsSaid();
    void aFineScreenShowsMoreThanLargerPixels();
    void theSurroundingsDoNotScaleIt();
    void skinsHaveTheirOwnGround_data();
    void skinsHaveTheirOwnGround();
    void aSelectedMediaHasAFrameAndItsFacts();
    void theListHasARowForEachMedia();
    void groupsStandBelowEachOther();
    void theOrderCanBeTurned();
    void whatIsFilteredOutIsNotShown_data();
    void whatIsFilteredOutIsNotShown();
    void textsAreInTheLanguage();
    void otherCategoriesAreShown();
    void theUsersChoiceHoldsWhereNothingIsSaid();
    void nothingOfTheUsersIsChanged();
    void aProjectThatIsHeldIsDrawn();
    void filesThatAreGoneOrBrokenAreNotWaitedFor();
    void wrongWordsAreWrongUsage_data();
    void wrongWordsAreWrongUsage();
    void aProjectThatCannotBeOpenedIsSaid_data();
    void aProjectThatCannotBeOpenedIsSaid();
    void whatCannotBeDrawnIsSaidAndNothingIsWritten_data();
    void whatCannotBeDrawnIsSaidAndNothingIsWritten();
    void aPictureThatCannotBeWrittenIsSaid_data();
    void aPictureThatCannotBeWrittenIsSaid();
    void footageIsNeverThePicture();

private:
    std::unique_ptr<ShotYard> m_yard;
    std::unique_ptr<NxFootageGuard> m_guard;
};

void tst_ShotCommand::init()
{
    m_yard = std::make_unique<ShotYard>();
    m_guard = std::make_unique<NxFootageGuard>(m_yard->footage());
}

void tst_ShotCommand::cleanup()
{
    NX_VERIFY_UNTOUCHED(*m_guard);
    m_guard.reset();
    m_yard.reset();
}

void tst_ShotCommand::everyMediaHasItsCoverAndItsName()
{
    const QImage picture = m_yard->picture(QStringLiteral("--sort=name"));
    QRect last;
    for (const QColor &colour : {ShotYard::Red, ShotYard::Green, ShotYard::Blue}) {
        const QRect cover = ShotYard::patch(picture, colour);
        QCOMPARE(cover.size(), CoverSize);
        constexpr double most = 0.95; // A mark lies over a corner.
        const int all = cover.width() * cover.height();
        QVERIFY(ShotYard::pixels(picture, cover, colour) > most * all);
        const QSet<int> name = greys(picture, nameBelow(cover));
        QVERIFY2(name.size() >= 3, qPrintable(QString::number(name.size())));
        QVERIFY(last.isNull() || isBefore(last, cover));
        last = cover;
    }
}

void tst_ShotCommand::aFilmHasAFrameForACover()
{
    const QImage picture = m_yard->picture(QStringLiteral("--type=video"));
    const QImage others = m_yard->picture(QStringLiteral("--search=nothing like this"));
    // Where the first media stands; before it is the tile that imports.
    const QRect red = ShotYard::patch(m_yard->picture(), ShotYard::Red);
    const auto number = NxNumberedFrames::readFitted(picture.copy(red), QSize(320, 180));
    QVERIFY(number);
    QVERIFY(*number > 0);
    QVERIFY(!NxNumberedFrames::readFitted(others.copy(red), QSize(320, 180)));
}

void tst_ShotCommand::theSamePictureComesAgain()
{
    const QString words = QStringLiteral("--select=c blue.png");
    const QImage first = m_yard->picture(words);
    QVERIFY(!first.isNull());
    QCOMPARE(m_yard->picture(words), first);
}

void tst_ShotCommand::pictureHasTheSizeThatIsSaid_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("cover");

    QTest::newRow("nothing") << QString() << QSize(1280, 800) << CoverSize;
    QTest::newRow("size") << "--size=1500x700" << QSize(1500, 700) << CoverSize;
    QTest::newRow("scale 1") << "--scale=1" << QSize(1280, 800) << CoverSize;
    QTest::newRow("scale 2") << "--scale=2" << QSize(2560, 1600) << CoverSize * 2;
    QTest::newRow("both") << "--scale=2|--size=1100x650" << QSize(2200, 1300) << CoverSize * 2;
}

void tst_ShotCommand::pictureHasTheSizeThatIsSaid()
{
    QFETCH(QString, words);
    QFETCH(QSize, size);
    QFETCH(QSize, cover);

    const QImage picture = m_yard->picture(words);
    QCOMPARE(picture.size(), size);
    QCOMPARE(ShotYard::patch(picture, ShotYard::Red).size(), cover);
}

void tst_ShotCommand::aFineScreenShowsMoreThanLargerPixels()
{
    const QImage fine = m_yard->picture(QStringLiteral("--scale=2"));
    const QRect cover = ShotYard::patch(fine, ShotYard::Red);
    QVERIFY(!isCoarse(fine, nameBelow(cover, 2)));
    const QImage plain = m_yard->picture();
    QVERIFY(isCoarse(plain.scaled(plain.size() * 2), nameBelow(cover, 2)));
}

void tst_ShotCommand::theSurroundingsDoNotScaleIt()
{
    const QImage plain = m_yard->picture();
    const QStringList words{QStringLiteral("shot"), m_yard->project(), QStringLiteral("--out"),
                            m_yard->path(QStringLiteral("other.png"))};
    VERIFY_CODE(ProgramRun::runShell(QStringLiteral("QT_SCALE_FACTOR=2 QT_QPA_PLATFORM=minimal "
                                                    "DISPLAY=:77 exec \"$BREVANO\" \"$@\""),
                                     words),
                0);
    QCOMPARE(QImage(words.constLast()).convertToFormat(plain.format()), plain);
}

void tst_ShotCommand::skinsHaveTheirOwnGround_data()
{
    QTest::addColumn<int>("code");

    QTest::newRow("dark") << int(NxSkin::Dark);
    QTest::newRow("light") << int(NxSkin::Light);
}

void tst_ShotCommand::skinsHaveTheirOwnGround()
{
    QFETCH(int, code);

    const NxSkin skin = NxSkin(code);
    const QString word = QStringLiteral("--skin=") + QLatin1String(QTest::currentDataTag());
    const QImage picture = m_yard->picture(word);
    const QRect cover = ShotYard::patch(picture, ShotYard::Red);
    const QRect between(cover.right() + 4, cover.top(), 8, cover.height());
    QCOMPARE(ShotYard::pixels(picture, between, colourOf(skin, NxSkinColor::Background_Panel)),
             between.width() * between.height());
    const QColor text = colourOf(skin, NxSkinColor::Text_Icon_Primary);
    QVERIFY(ShotYard::pixels(picture, nameBelow(cover), text) > 0);
}

void tst_ShotCommand::aSelectedMediaHasAFrameAndItsFacts()
{
    const QColor accent = colourOf(NxSkin::Dark, NxSkinColor::Accent);
    const QImage plain = m_yard->picture();
    const QImage selected = m_yard->picture(QStringLiteral("--select=b green.png"));
    const QRect green = ShotYard::patch(plain, ShotYard::Green);
    const QRect red = ShotYard::patch(plain, ShotYard::Red);
    const QMargins around(7, 7, 7, 7);
    QCOMPARE(ShotYard::patch(selected, ShotYard::Green), green);
    QCOMPARE(ShotYard::pixels(plain, green + around, accent), 0);
    QVERIFY(ShotYard::pixels(selected, green + around, accent) > green.width());
    QCOMPARE(ShotYard::pixels(selected, red + around, accent), 0);

    // The information beside shows its cover.
    const QRect beside = selected.rect().adjusted(selected.width() * 4 / 5, 0, 0, 0);
    QCOMPARE(ShotYard::pixels(plain, beside, ShotYard::Green), 0);
    QVERIFY(ShotYard::pixels(selected, beside, ShotYard::Green) > beside.width() * 2);
    QCOMPARE(ShotYard::pixels(selected, beside, ShotYard::Red), 0);
}

void tst_ShotCommand::theListHasARowForEachMedia()
{
    const QImage picture = m_yard->picture(QStringLiteral("--view=list|--sort=name"));
    const QRect red = ShotYard::patch(picture, ShotYard::Red);
    const QRect green = ShotYard::patch(picture, ShotYard::Green);
    const QRect blue = ShotYard::patch(picture, ShotYard::Blue);
    QVERIFY(!red.isNull() && red.width() < CoverSize.width() / 2);
    QCOMPARE(green.left(), red.left());
    QCOMPARE(blue.left(), red.left());
    QVERIFY(red.bottom() < green.top());
    QCOMPARE(blue.top() - green.top(), green.top() - red.top());
    const QRect name(red.right() + 4, red.top(), CoverSize.width(), red.height());
    QVERIFY(greys(picture, name).size() >= 3);

    int width = CoverSize.width();
    for (const char *view : {"large", "middle", "small"}) {
        const QImage tiles = m_yard->picture(QStringLiteral("--view=") + QLatin1String(view));
        const QRect tile = ShotYard::patch(tiles, ShotYard::Red);
        QVERIFY2(tile.width() <= width && tile.width() > red.width(), view);
        width = tile.width() - 1;
    }
}

void tst_ShotCommand::groupsStandBelowEachOther()
{
    const QRect alone = ShotYard::patch(m_yard->picture(), ShotYard::Red);
    const QImage grouped = m_yard->picture(QStringLiteral("--group=type"));
    const QRect red = ShotYard::patch(grouped, ShotYard::Red);
    // The film with its header comes first, then the header of the photos.
    QVERIFY(red.top() > alone.bottom() + 2 * NameHeight);
    QCOMPARE(red.left(), alone.left());
    const QImage turned = m_yard->picture(QStringLiteral("--group=type|--group-desc"));
    const QRect first = ShotYard::patch(turned, ShotYard::Red);
    QVERIFY(first.top() > alone.top());
    QVERIFY(first.top() < alone.bottom());
    const QRect header(first.left() - CoverSize.width(), alone.top(), CoverSize.width(),
                       first.top() - alone.top() - 8);
    QVERIFY(greys(turned, header).size() >= 3);
}

void tst_ShotCommand::theOrderCanBeTurned()
{
    const QImage picture = m_yard->picture(QStringLiteral("--sort=name|--desc"));
    const QRect blue = ShotYard::patch(picture, ShotYard::Blue);
    const QRect green = ShotYard::patch(picture, ShotYard::Green);
    QVERIFY(isBefore(blue, green));
    QVERIFY(isBefore(green, ShotYard::patch(picture, ShotYard::Red)));
}

void tst_ShotCommand::whatIsFilteredOutIsNotShown_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<bool>("red");
    QTest::addColumn<bool>("green");
    QTest::addColumn<bool>("blue");

    QTest::newRow("text") << "--search=BLUE" << false << false << true;
    QTest::newRow("type") << "--type=photo" << true << true << true;
    QTest::newRow("another type") << "--type=video" << false << false << false;
    QTest::newRow("folder") << "--folder=Day 1" << false << true << false;
    QTest::newRow("section") << "--section=shared" << false << false << false;
    QTest::newRow("all") << "--folder=/" << true << true << true;
}

void tst_ShotCommand::whatIsFilteredOutIsNotShown()
{
    QFETCH(QString, words);

    const QImage picture = m_yard->picture(words);
    QTEST(!ShotYard::patch(picture, ShotYard::Red).isNull(), "red");
    QTEST(!ShotYard::patch(picture, ShotYard::Green).isNull(), "green");
    QTEST(!ShotYard::patch(picture, ShotYard::Blue).isNull(), "blue");
}

void tst_ShotCommand::textsAreInTheLanguage()
{
    const QImage english = m_yard->picture();
    const QImage german = m_yard->picture(QStringLiteral("--lang=de"));
    constexpr int menuHeight = 24; // px
    const QRect menus(0, 0, english.width() / 2, menuHeight);
    QVERIFY(german.copy(menus) != english.copy(menus));
    QCOMPARE(m_yard->picture(QStringLiteral("--lang=en")), english);
}

void tst_ShotCommand::otherCategoriesAreShown()
{
    const QImage media = m_yard->picture();
    QCOMPARE(m_yard->picture(QStringLiteral("--category=0")), media);
    const QImage titles = m_yard->picture(QStringLiteral("--category=2"));
    QVERIFY(ShotYard::patch(titles, ShotYard::Red).isNull());
    QVERIFY(titles != media);
}

void tst_ShotCommand::theUsersChoiceHoldsWhereNothingIsSaid()
{
    const QImage grouped = m_yard->picture(QStringLiteral("--group=type"));
    const QImage plain = m_yard->picture();
    QVERIFY(grouped != plain);
    m_yard->writeSettings("[NMatterViewMenu]\nMedia_GroupBy=gbType\n");
    QCOMPARE(m_yard->picture(), grouped);
    QCOMPARE(m_yard->picture(QStringLiteral("--group=none")), plain);
}

void tst_ShotCommand::nothingOfTheUsersIsChanged()
{
    m_yard->writeSettings("; mine\n[NMatterViewMenu]\nMedia_SortBy=sbNoSuch\nOther=1\n");
    m_yard->folder().write(QStringLiteral("config/Brevano/Settings.ini"),
                           "[Window]\nRecentProjects=/a.brevano\nSkin=light\n");
    const QByteArray project = contentOf(m_yard->project());
    const NxFootageGuard data(m_yard->path(QStringLiteral("data")));
    const NxFootageGuard config(m_yard->path(QStringLiteral("config")));
    const QImage picture = m_yard->picture(
        QStringLiteral("--view=list|--sort=type|--desc|--group=type|--group-desc|--type=photo|"
                       "--skin=light|--lang=de|--select=a red.png"));
    QVERIFY(!picture.isNull());
    QVERIFY(!m_yard->picture(QStringLiteral("--category=4|--view=small")).isNull());
    NX_VERIFY_UNTOUCHED(data);
    NX_VERIFY_UNTOUCHED(config);
    QCOMPARE(contentOf(m_yard->project()), project);
}

void tst_ShotCommand::aProjectThatIsHeldIsDrawn()
{
    const QImage free = m_yard->picture();
    NxEmbeddedEngine::Options options;
    options.backups = false;
    options.readsFootage = false;
    NxEmbeddedEngine engine(options);
    const NxResult<INxProject *> held =
        engine.openProject(m_yard->project(), NxProjectOpenMode::ReadWrite);
    QVERIFY2(held, qPrintable(held.errorText()));
    const QImage picture = m_yard->picture();
    QVERIFY(engine.closeProject());
    QCOMPARE(picture, free);
}

void tst_ShotCommand::filesThatAreGoneOrBrokenAreNotWaitedFor()
{
    m_guard = std::make_unique<NxFootageGuard>(m_yard->path(QStringLiteral("data")));
    m_yard->clip(QStringLiteral("broken.png"), "no picture");
    m_yard->clip(QStringLiteral("gone.mov"), "no film");
    VERIFY_CODE(m_yard->run("import", {m_yard->footage(QStringLiteral("broken.png")),
                                       m_yard->footage(QStringLiteral("gone.mov")),
                                       QStringLiteral("--no-read")}),
                0);
    QVERIFY(QFile::remove(m_yard->footage(QStringLiteral("gone.mov"))));
    QVERIFY(QFile::remove(m_yard->footage(QStringLiteral("c blue.png"))));
    m_guard = std::make_unique<NxFootageGuard>(m_yard->footage());

    const ProgramResult result = m_yard->shot();
    VERIFY_CODE(result, 0);
    QCOMPARE(result.errors, QByteArray());
    const QImage picture(m_yard->pictureFile());
    QCOMPARE(ShotYard::patch(picture, ShotYard::Red).size(), CoverSize);
}

void tst_ShotCommand::wrongWordsAreWrongUsage_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("said");

    const QString project = QStringLiteral("Film.brevano");
    const QString out = QStringLiteral("--out=a.png");
    QTest::newRow("no project") << QStringList{out} << QByteArray("shot: something is missing");
    QTest::newRow("two projects") << QStringList{project, project, out}
                                  << QByteArray("shot: there is too much");
    QTest::newRow("no picture") << QStringList{project} << QByteArray("--out FILE.png is missing");
    QTest::newRow("no PNG") << QStringList{project, QStringLiteral("--out=Film.brevano")}
                            << QByteArray("\"Film.brevano\" does not end in .png");
    QTest::newRow("size") << QStringList{project, out, QStringLiteral("--size=big")}
                          << QByteArray("\"big\" is no size");
    QTest::newRow("scale") << QStringList{project, out, QStringLiteral("--scale=3")}
                           << QByteArray("there is no scale \"3\", only 1, 2");
    QTest::newRow("view") << QStringList{project, out, QStringLiteral("--view=tiny")}
                          << QByteArray("there is no view \"tiny\"");
    QTest::newRow("key") << QStringList{project, out, QStringLiteral("--sort=size")}
                         << QByteArray("there is no sort key \"size\"");
    QTest::newRow("section") << QStringList{project, out, QStringLiteral("--category=1"),
                                            QStringLiteral("--section=shared")}
                             << QByteArray("--section is for the project's own media");
    QTest::newRow("option") << QStringList{project, out, QStringLiteral("--json")}
                            << QByteArray("there is no option --json");
}

void tst_ShotCommand::wrongWordsAreWrongUsage()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, said);

    words.prepend(QStringLiteral("shot"));
    const ProgramResult result = ProgramRun::run(words, m_yard->folder().path());
    VERIFY_CODE(result, 2);
    QVERIFY2(result.said(said.constData()), result.story().constData());
    QVERIFY(!QFileInfo::exists(m_yard->path(QStringLiteral("a.png"))));
}

void tst_ShotCommand::aProjectThatCannotBeOpenedIsSaid_data()
{
    QTest::addColumn<QString>("project");
    QTest::addColumn<QByteArray>("said");

    QTest::newRow("missing") << "Gone.brevano" << QByteArray("there is no such file");
    QTest::newRow("no project") << "footage/a red.png" << QByteArray("a red.png");
    QTest::newRow("folder") << "footage" << QByteArray("footage");
}

void tst_ShotCommand::aProjectThatCannotBeOpenedIsSaid()
{
    QFETCH(QString, project);
    QFETCH(QByteArray, said);

    const ProgramResult result = ProgramRun::run({QStringLiteral("shot"), m_yard->path(project),
                                                  QStringLiteral("--out"), m_yard->pictureFile()},
                                                 m_yard->folder().path());
    VERIFY_CODE(result, 4);
    QVERIFY2(result.said(said.constData()), result.story().constData());
    QVERIFY(result.errors.startsWith("brevano: "));
    QVERIFY(!QFileInfo::exists(m_yard->pictureFile()));
    QVERIFY(!QFileInfo::exists(m_yard->path(QStringLiteral("Gone.brevano"))));
}

void tst_ShotCommand::whatCannotBeDrawnIsSaidAndNothingIsWritten_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("said");

    QTest::newRow("folder") << "--folder=Day 2"
                            << QByteArray("Day 2: the project has no such folder");
    QTest::newRow("media") << "--select=e.png" << QByteArray("no media \"e.png\" is shown");
    QTest::newRow("header") << "--group=type|--select=Photo"
                            << QByteArray("no media \"Photo\" is shown");
    QTest::newRow("tile") << "--select=Import Media"
                          << QByteArray("no media \"Import Media\" is shown");
    QTest::newRow("filtered media")
        << "--search=red|--select=c blue.png" << QByteArray("no media \"c blue.png\" is shown");
    QTest::newRow("size") << "--size=20x20" << QByteArray("the window cannot be smaller than");
}

void tst_ShotCommand::whatCannotBeDrawnIsSaidAndNothingIsWritten()
{
    QFETCH(QString, words);
    QFETCH(QByteArray, said);

    m_yard->folder().write(QStringLiteral("panel.png"), "mine");
    const ProgramResult result = m_yard->shot(words);
    VERIFY_CODE(result, 1);
    QVERIFY2(result.said(said.constData()), result.story().constData());
    QCOMPARE(contentOf(m_yard->pictureFile()), QByteArray("mine"));
}

void tst_ShotCommand::aPictureThatCannotBeWrittenIsSaid_data()
{
    QTest::addColumn<QString>("out");

    QTest::newRow("no folder") << "no folder/a.png";
    QTest::newRow("a folder") << "folder.png";
    QTest::newRow("below a file") << "Film.brevano/a.png";
}

void tst_ShotCommand::aPictureThatCannotBeWrittenIsSaid()
{
    QFETCH(QString, out);

    m_yard->folder().makeDir(QStringLiteral("folder.png"));
    const ProgramResult result = m_yard->run("shot", {QStringLiteral("--out"), m_yard->path(out)});
    VERIFY_CODE(result, 1);
    QVERIFY2(result.errors.startsWith("brevano: " + m_yard->path(out).toUtf8() + ": "),
             result.story().constData());
    QVERIFY(QFileInfo(m_yard->path(QStringLiteral("folder.png"))).isDir());
}

void tst_ShotCommand::footageIsNeverThePicture()
{
    const QString link = m_yard->path(QStringLiteral("link.png"));
    QVERIFY(QFile::link(m_yard->footage(QStringLiteral("Day 1/b green.png")), link));
    for (const QString &out : {m_yard->footage(QStringLiteral("a red.png")), link}) {
        const ProgramResult result = m_yard->run("shot", {QStringLiteral("--out"), out});
        VERIFY_CODE(result, 1);
        QVERIFY2(result.said("it is a media of the project"), result.story().constData());
    }
}

NX_TEST_MAIN(tst_ShotCommand)
#include "tst_ShotCommand.moc"
