// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>

#include <NxCore/NxDiskBan.h>
#include <NxWidgets/NxMaskScope.h>

#include <Support/NxTestMain.h>

#include <QListView>
#include <QRegularExpression>
#include <QTest>

#include <memory>

#include "MediaDelegateStand.h"
#include "TextLines.h"

namespace {

/// A user with a mouse over the rows: what he does is written as words.
///
/// "press", "release", "double", "move" and "odd", an event of the mouse that means nothing, may
/// say a button and an area, "press.right@1"; else it is the left one and the row's body. "hover"
/// and "leave" draw the row, "hover=gone" another one. "mask" and "unmask" open and close a modal
/// dialog.
class Mouse
{
public:
    Mouse(const MediaDelegateStand *stand, const QString &row) : m_stand(stand), m_row(row) {}

    void play(const QString &words)
    {
        for (const QString &word : words.split(QLatin1Char(' ')))
            act(word);
    }

private:
    void act(const QString &word)
    {
        const QStyle::State shown = QStyle::State_Enabled;
        if (word.startsWith(QStringLiteral("hover"))) {
            const QString named = word.section(QLatin1Char('='), 1);
            m_stand->paint(m_stand->at(named.isEmpty() ? m_row : named),
                           shown | QStyle::State_MouseOver);
        } else if (word == QStringLiteral("leave")) {
            m_stand->paint(m_stand->at(m_row), shown);
        } else if (word == QStringLiteral("mask")) {
            m_mask = std::make_unique<NxMaskScope>();
        } else if (word == QStringLiteral("unmask")) {
            m_mask.reset();
        } else {
            const QString deed = word.section(QLatin1Char('@'), 0, 0);
            m_stand->send(m_stand->at(m_row), typeOf(deed.section(QLatin1Char('.'), 0, 0)),
                          placeOf(word.section(QLatin1Char('@'), 1)),
                          buttonOf(deed.section(QLatin1Char('.'), 1)));
        }
    }
    static QEvent::Type typeOf(const QString &deed)
    {
        static const QHash<QString, QEvent::Type> types{
            {QStringLiteral("press"), QEvent::MouseButtonPress},
            {QStringLiteral("release"), QEvent::MouseButtonRelease},
            {QStringLiteral("double"), QEvent::MouseButtonDblClick},
            {QStringLiteral("move"), QEvent::MouseMove},
            {QStringLiteral("odd"), QEvent::NonClientAreaMouseMove},
        };
        if (!types.contains(deed))
            qCritical("no mouse does \"%s\"", qUtf8Printable(deed));
        return types.value(deed);
    }
    static Qt::MouseButton buttonOf(const QString &name)
    {
        if (name == QStringLiteral("right"))
            return Qt::RightButton;
        return name == QStringLiteral("middle") ? Qt::MiddleButton : Qt::LeftButton;
    }
    QPoint placeOf(const QString &area) const
    {
        if (area.isEmpty())
            return {250, 22};
        const INxItemBasePainter *painter = m_stand->delegate->getItemPainter(m_stand->at(m_row));
        return painter->childRect(area.toInt()).center();
    }

    const MediaDelegateStand *const m_stand; // Not owned.
    const QString m_row;
    std::unique_ptr<NxMaskScope> m_mask;
};

constexpr int cover = 7; // The usage event of a painter's first area.

struct Stand : MediaDelegateStand
{
    Stand()
    {
        painter->addArea(cover);
        painter->addArea(mueHoveredOnly);
        painter->addArea(mueNone);
    }
    /// What is told of it, but for what is drawn.
    QStringList play(const QString &row, const QString &words)
    {
        Mouse(this, row).play(words);
        QStringList told;
        for (const QString &line : take()) {
            if (!line.contains(QStringLiteral(" draws ")))
                told.append(line);
        }
        return told;
    }
};

void newRow(const char *name, const char *row, const char *words, const char *told)
{
    QTest::newRow(name) << QString::fromLatin1(row) << QString::fromLatin1(words)
                        << QString::fromLatin1(told);
}

void addFileRows()
{
    newRow("a click", "file", "press release", "event 0 1 on file, event 0 3 on file");
    newRow("a double click", "file", "press release double release",
           "event 0 1 on file, event 0 3 on file, event 0 4 on file, event 0 3 on file");
    newRow("a right click", "file", "press.right release.right", "event 0 1 on file");
    newRow("a middle click", "file", "press.middle release.middle", "event 0 1 on file");
    newRow("a right double click", "file", "double.right", "event 0 4 on file");
    newRow("moves", "file", "move move", "");
    newRow("moves over areas", "file", "move move@0 move@0 move@1 move",
           "repaint file, repaint file, repaint file");
    newRow("another event", "file", "odd odd.right", "");
    newRow("a click on an area", "file", "press@0 release@0",
           "repaint file, event 7 1 on file, event 7 3 on file");
    newRow("a double click on an area", "file", "double@0", "repaint file, event 7 4 on file");
    newRow("a right click on an area", "file", "press.right@0 release.right@0",
           "repaint file, event 7 1 on file");
    newRow("from area to area", "file", "press@0 move@2 release@2",
           "repaint file, event 7 1 on file, repaint file, event 0 3 on file");
    newRow("from an area to the body", "file", "press@0 release",
           "repaint file, event 7 1 on file, repaint file, event 0 3 on file");
    newRow("from the body to an area", "file", "press release@0",
           "event 0 1 on file, repaint file, event 0 3 on file");
}

void addHoverRows()
{
    newRow("unhovered", "file", "press@1 release@1", "repaint file");
    newRow("hovered", "file", "hover press@1 release@1",
           "repaint file, event 1 1 on file, event 1 3 on file");
    newRow("hovered and double clicked", "file", "hover double@1",
           "repaint file, event 1 4 on file");
    newRow("hovered no more", "file", "hover leave press@1 release@1", "repaint file");
    newRow("another row hovered", "file", "hover hover=resource press@1", "repaint file");
    newRow("another row hovered before", "file", "hover=resource hover press@1",
           "repaint file, event 1 1 on file");
    newRow("a group hovered", "file", "hover hover=group press@1",
           "repaint file, event 1 1 on file");
    newRow("another area unhovered", "file", "press@0", "repaint file, event 7 1 on file");
}

void addMaskRows()
{
    newRow("a click below a dialog", "file", "mask press release", "");
    newRow("a right click below a dialog", "file", "mask press.right release.right", "");
    newRow("a click on an area below a dialog", "file", "mask press@0 release@0", "repaint file");
    newRow("a double click below a dialog", "file", "mask double", "event 0 4 on file");
    newRow("a move below a dialog", "file", "mask move@0", "repaint file");
    newRow("a dialog between", "file", "press mask unmask release",
           "event 0 1 on file, event 0 3 on file");
    newRow("a dialog that opens", "file", "press mask release", "event 0 1 on file");
    newRow("a dialog that closes", "file", "mask press unmask release", "event 0 3 on file");
}

void addTileRows()
{
    newRow("import pressed", "import", "press press.right", "");
    newRow("import clicked", "import", "press release", "import");
    newRow("import right clicked", "import", "press.right release.right", "import");
    newRow("import middle clicked", "import", "press.middle release.middle", "import");
    newRow("import double clicked", "import", "press release double release", "import, import");
    newRow("import below a dialog", "import", "mask press release", "import");
    newRow("import and its areas", "import", "move@0 press@0 release@0", "repaint import, import");
    newRow("more clicked", "more", "press@1 release@1",
           "repaint more, event 0 1 on more, event 10 3 on more");
    newRow("more's text clicked", "more", "press@2 release@2",
           "repaint more, event 0 1 on more, event 10 3 on more");
    newRow("more right clicked", "more", "press.right@1 release.right@1",
           "repaint more, event 0 1 on more");
    newRow("more from arrow to text", "more", "press@1 release@2",
           "repaint more, event 0 1 on more, repaint more, event 0 3 on more");
    newRow("a group's arrow clicked", "group", "press@0 release@0",
           "repaint group, event 0 1 on group, event 8 3 on group");
    newRow("a group's name clicked", "group", "press@1 release@1",
           "repaint group, event 0 1 on group, event 0 3 on group");
    newRow("a group's arrow double clicked", "group", "press@0 release@0 double@0 release@0",
           "repaint group, event 0 1 on group, event 8 3 on group, event 0 4 on group, "
           "event 8 3 on group");
    newRow("a group's arrow below a dialog", "group", "mask press@0 release@0", "repaint group");
}

void addOtherRows()
{
    newRow("a missing file", "gone", "press release double release move", "");
    newRow("a missing file's areas", "gone", "move@0 press@0 release@0 double@1",
           "repaint gone, repaint gone");
    newRow("a resource without file", "resource", "press release",
           "event 0 1 on resource, event 0 3 on resource");
    newRow("a folder", "folder", "press release", "event 0 1 on folder, event 0 3 on folder");
    newRow("a classification", "classification", "press@0 release@0",
           "repaint classification, event 7 1 on classification, event 7 3 on classification");
    newRow("no media", "nothing", "move@0 press release double", "");
}

} // namespace

/// The mouse over the rows of a media view.
class tst_NxMediaItemDelegate_mouse : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theMouseIsTold_data();
    void theMouseIsTold();
    void aMoveAsksNothingAboutFiles_data();
    void aMoveAsksNothingAboutFiles();
    void aClickAsksAboutTheFile();
    void aFileThatComesBackIsClickedAgain();
    void aPressBelowADialogPressesNothing();
    void anInvalidIndexIsNotForThePainter();
    void withoutPainterNothingIsTold();
    void theModelMayEmptyWhileItIsTold_data();
    void theModelMayEmptyWhileItIsTold();
    void theModelMayGoWhileItIsTold_data();
    void theModelMayGoWhileItIsTold();
    void theDelegateMayGoWhileItTells_data();
    void theDelegateMayGoWhileItTells();
    void thePainterMayBeReplacedWhileItIsTold();
    void aViewTellsClicksOnItsRows();
    void aViewTellsTheRowUnderTheMouse();
};

void tst_NxMediaItemDelegate_mouse::theMouseIsTold_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("told");
    addFileRows();
    addHoverRows();
    addMaskRows();
    addTileRows();
    addOtherRows();
}

void tst_NxMediaItemDelegate_mouse::theMouseIsTold()
{
    QFETCH(QString, row);
    QFETCH(QString, words);
    QFETCH(QString, told);
    Stand stand;
    QCOMPARE(stand.play(row, words).join(QStringLiteral(", ")), told);
}

void tst_NxMediaItemDelegate_mouse::aMoveAsksNothingAboutFiles_data()
{
    QTest::addColumn<QString>("words");
    QTest::newRow("moves") << QStringLiteral("move move@0 move@1 move");
    QTest::newRow("another event") << QStringLiteral("odd");
    QTest::newRow("the release of another button") << QStringLiteral("release.right@0");
    QTest::newRow("presses below a dialog") << QStringLiteral("mask press release");
    QTest::newRow("drawing") << QStringLiteral("hover leave");
}

void tst_NxMediaItemDelegate_mouse::aMoveAsksNothingAboutFiles()
{
    QFETCH(QString, words);
    Stand stand;
    const NxDiskBan ban;
    for (const QString &row : stand.names())
        (void)stand.play(row, words);
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_NxMediaItemDelegate_mouse::aClickAsksAboutTheFile()
{
    NxTestLog::expectErrors(QStringLiteral("NxFile::exists"));
    Stand stand;
    const NxDiskBan ban;
    QCOMPARE(stand.play(QStringLiteral("gone"), QStringLiteral("press")), QStringList());
    QCOMPARE(ban.breaches().size(), 1);
    QCOMPARE(stand.play(QStringLiteral("resource"), QStringLiteral("press")),
             lines({"event 0 1 on resource"}));
    QCOMPARE(ban.breaches().size(), 1);
}

void tst_NxMediaItemDelegate_mouse::aFileThatComesBackIsClickedAgain()
{
    Stand stand;
    const QString press = QStringLiteral("press");
    QCOMPARE(stand.play(QStringLiteral("gone"), press), QStringList());
    stand.gone.path = stand.file.path;
    QCOMPARE(stand.play(QStringLiteral("gone"), press), lines({"event 0 1 on gone"}));
    stand.gone.path.clear();
    QCOMPARE(stand.play(QStringLiteral("gone"), press), QStringList());
}

void tst_NxMediaItemDelegate_mouse::aPressBelowADialogPressesNothing()
{
    Stand stand;
    (void)stand.play(QStringLiteral("file"), QStringLiteral("mask press@0"));
    QVERIFY(stand.painter->childStatus(0) != mcsPressed);
    QCOMPARE(stand.painter->mouseInChild(), 0);
    QCOMPARE(stand.painter->mousePressedChild(), -1);
    (void)stand.play(QStringLiteral("file"), QStringLiteral("press@0"));
    QCOMPARE(stand.painter->childStatus(0), mcsPressed);
}

void tst_NxMediaItemDelegate_mouse::anInvalidIndexIsNotForThePainter()
{
    Stand stand;
    QVERIFY(!stand.send(QModelIndex(), QEvent::MouseButtonPress, QPoint(5, 5)));
    QCOMPARE(stand.take(), QStringList());
    QCOMPARE(stand.painter->mouseInChild(), -1);
}

void tst_NxMediaItemDelegate_mouse::withoutPainterNothingIsTold()
{
    Stand stand;
    stand.delegate->setItemPainter(nullptr);
    stand.take();
    for (const char *row : {"file", "import", "resource"})
        QCOMPARE(stand.play(QLatin1String(row), QStringLiteral("press move release")),
                 QStringList());
    QCOMPARE(stand.play(QStringLiteral("group"), QStringLiteral("press@0")).size(), 2);
    stand.delegate->setGroupPainter(nullptr);
    QVERIFY(!stand.send(stand.at(QStringLiteral("group")), QEvent::MouseButtonPress, {5, 5}));
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxMediaItemDelegate_mouse::theModelMayEmptyWhileItIsTold_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("told");
    QTest::newRow("to be repainted") << QStringLiteral("file") << QStringLiteral("repaint file");
    QTest::newRow("an event") << QStringLiteral("group") << QStringLiteral("event 8 3 on group");
    QTest::newRow("an import") << QStringLiteral("import") << QStringLiteral("import");
}

void tst_NxMediaItemDelegate_mouse::theModelMayEmptyWhileItIsTold()
{
    QFETCH(QString, row);
    QFETCH(QString, told);
    Stand stand;
    if (row != QStringLiteral("file"))
        (void)stand.play(row, QStringLiteral("press@0"));
    const auto empty = [&stand] { stand.model->empty(); };
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigRepaint, this, empty);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigMediaItemEvent, this, empty);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigExtraImportEvent, this, empty);
    const QEvent::Type type =
        row == QStringLiteral("file") ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease;
    QVERIFY(!stand.send(stand.at(row), type, QPoint(5, 5)));
    QCOMPARE(stand.take(), QStringList{told});
    QCOMPARE(stand.model->rowCount(), 0);
}

void tst_NxMediaItemDelegate_mouse::theModelMayGoWhileItIsTold_data()
{
    theModelMayEmptyWhileItIsTold_data();
}

void tst_NxMediaItemDelegate_mouse::theModelMayGoWhileItIsTold()
{
    QFETCH(QString, row);
    QFETCH(QString, told);
    Stand stand;
    if (row != QStringLiteral("file"))
        (void)stand.play(row, QStringLiteral("press@0"));
    const auto close = [&stand] { stand.model.reset(); };
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigRepaint, this, close);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigMediaItemEvent, this, close);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigExtraImportEvent, this, close);
    const QEvent::Type type =
        row == QStringLiteral("file") ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease;
    QVERIFY(!stand.send(stand.at(row), type, QPoint(5, 5)));
    QCOMPARE(stand.take(), QStringList{told});
    QVERIFY(!stand.model);
}

void tst_NxMediaItemDelegate_mouse::theDelegateMayGoWhileItTells_data()
{
    theModelMayEmptyWhileItIsTold_data();
}

void tst_NxMediaItemDelegate_mouse::theDelegateMayGoWhileItTells()
{
    QFETCH(QString, row);
    QFETCH(QString, told);
    Stand stand;
    if (row != QStringLiteral("file"))
        (void)stand.play(row, QStringLiteral("press@0"));
    const auto close = [&stand] { stand.delegate.reset(); };
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigRepaint, this, close);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigMediaItemEvent, this, close);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigExtraImportEvent, this, close);
    const QEvent::Type type =
        row == QStringLiteral("file") ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease;
    QVERIFY(!stand.send(stand.at(row), type, QPoint(5, 5)));
    QCOMPARE(stand.take(), (QStringList{told, QStringLiteral("media dies")}));
}

void tst_NxMediaItemDelegate_mouse::thePainterMayBeReplacedWhileItIsTold()
{
    Stand stand;
    auto *next = new RecordingPainter<>(QStringLiteral("next"), &stand.journal);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigRepaint, this,
            [&] { stand.delegate->setItemPainter(next); });
    stand.send(stand.at(QStringLiteral("file")), QEvent::MouseButtonPress, QPoint(5, 5));
    QCOMPARE(stand.take(), lines({"repaint file", "media dies"}));
    stand.send(stand.at(QStringLiteral("file")), QEvent::MouseButtonPress, QPoint(5, 5));
    QCOMPARE(stand.take(), lines({"event 0 1 on file"}));
}

void tst_NxMediaItemDelegate_mouse::aViewTellsClicksOnItsRows()
{
    Stand stand;
    stand.painter->setSize(stand.rowSize);
    QListView view;
    view.setModel(stand.model.get());
    view.setItemDelegate(stand.delegate.get());
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.resize(320, 400);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    stand.take();
    const QPoint file = view.visualRect(stand.at(QStringLiteral("file"))).topLeft();
    const QPoint folder = view.visualRect(stand.at(QStringLiteral("folder"))).topLeft();
    const auto told = [&stand] {
        return stand.take().filter(QRegularExpression(QStringLiteral("^(event|import)")));
    };
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, file + QPoint(5, 5));
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, file + QPoint(5, 5));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, file + QPoint(5, 5));
    // A view keeps the release of a double click to itself.
    QCOMPARE(told(), lines({"event 7 1 on file", "event 7 3 on file", "event 7 4 on file"}));
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, folder + QPoint(250, 5));
    QCOMPARE(told(), lines({"event 0 1 on folder"}));
    const QPoint import = view.visualRect(stand.at(QStringLiteral("import"))).center();
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, import);
    QCOMPARE(told(), lines({"import"}));
}

void tst_NxMediaItemDelegate_mouse::aViewTellsTheRowUnderTheMouse()
{
    Stand stand;
    stand.painter->setSize(stand.rowSize);
    QListView view;
    view.setModel(stand.model.get());
    view.setItemDelegate(stand.delegate.get());
    view.setMouseTracking(true);
    view.resize(320, 400);
    connect(&view, &QListView::entered, stand.delegate.get(), &NxMediaItemDelegate::itemEntered);
    connect(&view, &QListView::viewportEntered, stand.delegate.get(),
            &NxMediaItemDelegate::viewportEntered);
    connect(stand.delegate.get(), &NxMediaItemDelegate::sigRepaint, &view,
            [&view](const QModelIndex &index) { view.update(index); });
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    stand.take();
    const QRect file = view.visualRect(stand.at(QStringLiteral("file")));
    QTest::mouseMove(view.viewport(), file.topLeft() + QPoint(5, 5));
    QTRY_VERIFY(stand.journal.contains(QStringLiteral("entered file")));
    QTRY_VERIFY(stand.journal.contains(QStringLiteral("repaint file")));
    QTRY_VERIFY(stand.journal.contains(QStringLiteral("media draws 0 in state 1")));
    QTest::mouseMove(view.viewport(), QPoint(150, 390));
    QTRY_VERIFY(stand.journal.contains(QStringLiteral("entered no row")));
    QTRY_COMPARE(stand.painter->getHoverItem(), -1);
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemDelegate_mouse)
#include "tst_NxMediaItemDelegate_mouse.moc"
