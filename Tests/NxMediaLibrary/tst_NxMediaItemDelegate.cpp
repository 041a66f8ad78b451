// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>

#include <NxMediaLibrary/delegate/INxGroupHeaderBasePainter.h>
#include <NxMediaLibrary/delegate/INxViewMoreSplitLinePainter.h>
#include <NxWidgets/NxLineEdit.h>

#include <Support/NxTestMain.h>

#include <QListView>
#include <QMetaMethod>
#include <QPointer>
#include <QTest>

#include <memory>

#include "MediaDelegateStand.h"
#include "TextLines.h"

namespace {

/// Hears of clicks later.
class Presenter : public QObject
{
    Q_OBJECT
public:
    QStringList heard;

public Q_SLOTS:
    void hear(int usage, NxMediaItemEventCondition condition, const QModelIndex &index)
    {
        heard.append(QStringLiteral("%1 %2 %3").arg(usage).arg(condition).arg(index.row()));
    }
};

QMetaMethod methodOf(const QMetaObject &meta, const char *signature)
{
    return meta.method(meta.indexOfMethod(signature));
}

/// The media of a stand in a view, the file's row current.
struct Screen : MediaDelegateStand
{
    Screen()
    {
        painter->setSize(rowSize);
        view.setModel(model.get());
        view.setItemDelegate(delegate.get());
        view.setEditTriggers(QAbstractItemView::EditKeyPressed);
        view.resize(320, 400);
        view.setCurrentIndex(at(QStringLiteral("file")));
    }
    [[nodiscard]] bool edit()
    {
        view.show();
        view.activateWindow();
        view.setFocus();
        if (!QTest::qWaitForWindowActive(&view))
            return false;
        QTest::keyClick(&view, Qt::Key_F2);
        return editor();
    }
    QLineEdit *editor() const
    {
        return view.findChild<QLineEdit *>(QStringLiteral("NxEditItem_LineEdit"));
    }
    QStringList renames() const { return journal.filter(QStringLiteral("rename")); }

    QListView view;
};

} // namespace

/// Painters, rows, editors and signals of the delegate of media views.
class tst_NxMediaItemDelegate : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aClickReachesAPresenterThatHearsOfItLater();
    void bothHeaderPaintersAreThereAtFirst();
    void aReplacedPainterDiesOnce();
    void theSamePainterAgainStays();
    void takingThePainterAwayDeletesIt();
    void aPainterThatDiedIsUsedNoMore();
    void paintersDieWithTheDelegate();
    void theGroupPainterIsReplacedTheSameWay();
    void theMediaPainterPlaysPreviews();
    void eachRowHasItsPainter_data();
    void eachRowHasItsPainter();
    void headerSizesReachTheirPaintersOnly();
    void rowsAreTold_data();
    void rowsAreTold();
    void aMissingFileIsOneThatIsNotThere();
    void theEditorIsThatOfItems();
    void theEditorShowsTheName();
    void theEditorStandsWhereThePainterSays();
    void aNewNameIsAnnounced_data();
    void aNewNameIsAnnounced();
    void strangeEditorsAndRowsAreIgnored();
    void theMouseThatEntersIsTold();
    void theSignalsStandInTheirOrder();
    void f2AndEnterRenameInTheView();
    void escapeKeepsTheNameInTheView();
};

// The first function: no other one may have made the type known by then.
void tst_NxMediaItemDelegate::aClickReachesAPresenterThatHearsOfItLater()
{
    MediaDelegateStand stand;
    Presenter presenter;
    const QMetaMethod event =
        methodOf(NxMediaItemDelegate::staticMetaObject,
                 "sigMediaItemEvent(int,NxMediaItemEventCondition,QModelIndex)");
    const QMetaMethod hear =
        methodOf(Presenter::staticMetaObject, "hear(int,NxMediaItemEventCondition,QModelIndex)");
    QVERIFY(connect(stand.delegate.get(), event, &presenter, hear, Qt::QueuedConnection));
    stand.send(stand.at(QStringLiteral("resource")), QEvent::MouseButtonPress, QPoint(5, 5));
    QCOMPARE(presenter.heard, QStringList());
    QTRY_COMPARE(presenter.heard, lines({"0 1 2"}));
}

void tst_NxMediaItemDelegate::bothHeaderPaintersAreThereAtFirst()
{
    const NxMediaItemDelegate delegate;
    QCOMPARE(delegate.findChildren<INxGroupHeaderBasePainter *>().size(), 1);
    QCOMPARE(delegate.findChildren<INxViewMoreSplitLinePainter *>().size(), 1);
    QVERIFY(!delegate.getItemPainter(QModelIndex()));
}

void tst_NxMediaItemDelegate::aReplacedPainterDiesOnce()
{
    MediaDelegateStand stand;
    auto *next = new RecordingPainter<>(QStringLiteral("next"), &stand.journal);
    stand.delegate->setItemPainter(next);
    QCOMPARE(stand.take(), lines({"media dies"}));
    QCOMPARE(next->parent(), stand.delegate.get());
    QCOMPARE(stand.delegate->getItemPainter(QModelIndex()), next);
    stand.delegate.reset();
    QCOMPARE(stand.take(), lines({"next dies"}));
}

void tst_NxMediaItemDelegate::theSamePainterAgainStays()
{
    MediaDelegateStand stand;
    stand.delegate->setItemPainter(stand.painter);
    QCOMPARE(stand.take(), QStringList());
    QCOMPARE(stand.delegate->getItemPainter(QModelIndex()), stand.painter);
}

void tst_NxMediaItemDelegate::takingThePainterAwayDeletesIt()
{
    MediaDelegateStand stand;
    stand.delegate->setItemPainter(nullptr);
    QCOMPARE(stand.take(), lines({"media dies"}));
    QVERIFY(!stand.delegate->getItemPainter(QModelIndex()));
    stand.delegate->setItemPainter(nullptr);
}

void tst_NxMediaItemDelegate::aPainterThatDiedIsUsedNoMore()
{
    MediaDelegateStand stand;
    delete stand.painter;
    QVERIFY(!stand.delegate->getItemPainter(stand.at(QStringLiteral("file"))));
    stand.delegate->setItemPainter(new RecordingPainter<>(QStringLiteral("next"), &stand.journal));
    QCOMPARE(stand.take(), lines({"media dies"}));
}

void tst_NxMediaItemDelegate::paintersDieWithTheDelegate()
{
    MediaDelegateStand stand;
    const QPointer<QObject> more(stand.delegate->getItemPainter(stand.at(QStringLiteral("more"))));
    stand.delegate->setGroupPainter(
        new RecordingPainter<>(QStringLiteral("groups"), &stand.journal));
    QVERIFY(more);
    stand.delegate.reset();
    QStringList dead = stand.take();
    dead.sort();
    QCOMPARE(dead, lines({"groups dies", "media dies"}));
    QVERIFY(!more);
}

void tst_NxMediaItemDelegate::theGroupPainterIsReplacedTheSameWay()
{
    MediaDelegateStand stand;
    const QModelIndex group = stand.at(QStringLiteral("group"));
    const QPointer<QObject> first(stand.delegate->getItemPainter(group));
    auto *groups = new RecordingPainter<>(QStringLiteral("groups"), &stand.journal);
    stand.delegate->setGroupPainter(groups);
    QVERIFY(!first);
    QCOMPARE(stand.delegate->getItemPainter(group), groups);
    stand.delegate->setGroupPainter(groups);
    QCOMPARE(stand.take(), QStringList());
    stand.delegate->setGroupPainter(nullptr);
    QCOMPARE(stand.take(), lines({"groups dies"}));
    QVERIFY(!stand.delegate->getItemPainter(group));
}

void tst_NxMediaItemDelegate::theMediaPainterPlaysPreviews()
{
    MediaDelegateStand stand;
    QCOMPARE(stand.painter->preview(), stand.delegate->previewFrameHelper());
    auto *groups = new RecordingPainter<>(QStringLiteral("groups"), &stand.journal);
    stand.delegate->setGroupPainter(groups);
    QVERIFY(!groups->preview());
}

void tst_NxMediaItemDelegate::eachRowHasItsPainter_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QByteArray>("painter");
    const QByteArray media = "INxItemBasePainter";
    QTest::newRow("group") << QStringLiteral("group") << QByteArray("INxGroupHeaderBasePainter");
    QTest::newRow("more") << QStringLiteral("more") << QByteArray("INxViewMoreSplitLinePainter");
    for (const char *row : {"file", "gone", "resource", "nothing", "import", "folder",
                            "classification", "no row of the model"})
        QTest::newRow(row) << QString::fromLatin1(row) << media;
}

void tst_NxMediaItemDelegate::eachRowHasItsPainter()
{
    QFETCH(QString, row);
    QFETCH(QByteArray, painter);
    const MediaDelegateStand stand;
    const INxItemBasePainter *found = stand.delegate->getItemPainter(stand.at(row));
    QVERIFY(found);
    QCOMPARE(QByteArray(found->metaObject()->className()), painter);
    QCOMPARE(found == stand.painter, painter == "INxItemBasePainter");
}

void tst_NxMediaItemDelegate::headerSizesReachTheirPaintersOnly()
{
    const MediaDelegateStand stand;
    const QModelIndex group = stand.at(QStringLiteral("group"));
    const QModelIndex more = stand.at(QStringLiteral("more"));
    stand.painter->setSize(QSize(160, 120));
    stand.delegate->setGroupHeaderSize(QSize(500, 30));
    stand.delegate->setViewMoreHeaderSize(QSize(600, 40));
    QCOMPARE(stand.delegate->getItemPainter(group)->size(), QSize(500, 30));
    QCOMPARE(stand.delegate->getItemPainter(more)->size(), QSize(600, 40));
    QCOMPARE(stand.delegate->getItemPainter(more)->childRect(0).height(), 40);
    for (const QString &row : stand.names())
        QCOMPARE(stand.delegate->sizeHint({}, stand.at(row)), QSize(160, 120));
    QCOMPARE(stand.delegate->sizeHint({}, QModelIndex()), QSize(160, 120));
    stand.delegate->setGroupPainter(nullptr);
    stand.delegate->setGroupHeaderSize(QSize(1, 1));
}

void tst_NxMediaItemDelegate::rowsAreTold_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("told");
    const auto newRow = [](const char *row, const char *told) {
        QTest::newRow(row) << QString::fromLatin1(row) << QString::fromLatin1(told);
    };
    newRow("file", "");
    newRow("gone", "missing");
    newRow("resource", "");
    newRow("nothing", "");
    newRow("group", "group");
    newRow("import", "import");
    newRow("more", "more");
    newRow("folder", "");
    newRow("classification", "classification");
    newRow("no row of the model", "");
}

void tst_NxMediaItemDelegate::rowsAreTold()
{
    QFETCH(QString, row);
    QFETCH(QString, told);
    const MediaDelegateStand stand;
    const QModelIndex index = stand.at(row);
    QStringList found;
    if (stand.delegate->isGroupItem(index))
        found.append(QStringLiteral("group"));
    if (stand.delegate->isExtraImportItem(index))
        found.append(QStringLiteral("import"));
    if (stand.delegate->isViewMoreItem(index))
        found.append(QStringLiteral("more"));
    if (stand.delegate->isVCGClassifyItem(index))
        found.append(QStringLiteral("classification"));
    if (stand.delegate->isMissingItem(index))
        found.append(QStringLiteral("missing"));
    QCOMPARE(found.join(QLatin1Char(' ')), told);
}

void tst_NxMediaItemDelegate::aMissingFileIsOneThatIsNotThere()
{
    MediaDelegateStand stand;
    const QModelIndex gone = stand.at(QStringLiteral("gone"));
    QVERIFY(stand.delegate->isMissingItem(gone));
    stand.gone.path = stand.file.path;
    QVERIFY(!stand.delegate->isMissingItem(gone));
    stand.gone.path.clear();
    QVERIFY(stand.delegate->isMissingItem(gone));
    stand.gone.resource = true;
    QVERIFY(!stand.delegate->isMissingItem(gone));
}

void tst_NxMediaItemDelegate::theEditorIsThatOfItems()
{
    const MediaDelegateStand stand;
    QWidget parent;
    const auto *editor = qobject_cast<NxLineEdit *>(
        stand.delegate->createEditor(&parent, {}, stand.at(QStringLiteral("file"))));
    QVERIFY(editor);
    QCOMPARE(editor->parentWidget(), &parent);
    QCOMPARE(editor->objectName(), QStringLiteral("NxEditItem_LineEdit"));
    QCOMPARE(editor->height(), 20);
    QCOMPARE(editor->textMargins(), QMargins());
}

void tst_NxMediaItemDelegate::theEditorShowsTheName()
{
    MediaDelegateStand stand;
    stand.file.title = QStringLiteral("Music & %1");
    QLineEdit editor;
    stand.delegate->setEditorData(&editor, stand.at(QStringLiteral("file")));
    QCOMPARE(editor.text(), QStringLiteral("Music & %1"));
    stand.delegate->setEditorData(&editor, stand.at(QStringLiteral("folder")));
    QCOMPARE(editor.text(), QStringLiteral("folder"));
}

void tst_NxMediaItemDelegate::theEditorStandsWhereThePainterSays()
{
    const MediaDelegateStand stand;
    const QModelIndex file = stand.at(QStringLiteral("file"));
    const QStyledItemDelegate ground;
    QLineEdit plainEditor;
    ground.updateEditorGeometry(&plainEditor, stand.option(file), file);
    QLineEdit editor;
    stand.delegate->updateEditorGeometry(&editor, stand.option(file), file);
    QCOMPARE(editor.geometry(), plainEditor.geometry());
    stand.painter->setNameRect(QRect(40, 60, 120, 18));
    stand.delegate->updateEditorGeometry(&editor, stand.option(file), file);
    QCOMPARE(editor.geometry(), QRect(40, 60, 120, 18));
    stand.delegate->updateEditorGeometry(nullptr, stand.option(file), file);
}

void tst_NxMediaItemDelegate::aNewNameIsAnnounced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAnnounced");
    QTest::newRow("another name") << QStringLiteral("Music") << true;
    QTest::newRow("the same name") << QStringLiteral("Holiday") << false;
    QTest::newRow("the same letters in other case") << QStringLiteral("HOLIDAY") << true;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("blanks") << QStringLiteral("  ") << true;
    QTest::newRow("the same name and a blank") << QStringLiteral("Holiday ") << true;
}

void tst_NxMediaItemDelegate::aNewNameIsAnnounced()
{
    QFETCH(QString, text);
    QFETCH(bool, isAnnounced);
    MediaDelegateStand stand;
    stand.file.title = QStringLiteral("Holiday");
    QLineEdit editor;
    editor.setText(text);
    stand.delegate->setModelData(&editor, stand.model.get(), stand.at(QStringLiteral("file")));
    const QStringList told{QStringLiteral("rename file to '%1'").arg(text)};
    QCOMPARE(stand.take(), isAnnounced ? told : QStringList());
    QCOMPARE(stand.file.title, QStringLiteral("Holiday"));
}

void tst_NxMediaItemDelegate::strangeEditorsAndRowsAreIgnored()
{
    MediaDelegateStand stand;
    const QModelIndex file = stand.at(QStringLiteral("file"));
    const QModelIndex nothing = stand.at(QStringLiteral("nothing"));
    QWidget widget;
    QLineEdit editor;
    editor.setText(QStringLiteral("x"));
    for (QWidget *strange : {&widget, static_cast<QWidget *>(nullptr)}) {
        stand.delegate->setEditorData(strange, file);
        stand.delegate->setModelData(strange, stand.model.get(), file);
    }
    for (const QModelIndex &index : {nothing, QModelIndex()}) {
        stand.delegate->setEditorData(&editor, index);
        stand.delegate->setModelData(&editor, stand.model.get(), index);
    }
    QCOMPARE(stand.take(), QStringList());
    QCOMPARE(editor.text(), QStringLiteral("x"));
}

void tst_NxMediaItemDelegate::theMouseThatEntersIsTold()
{
    MediaDelegateStand stand;
    stand.delegate->itemEntered(stand.at(QStringLiteral("group")));
    stand.delegate->viewportEntered();
    stand.delegate->itemLeave();
    stand.delegate->init();
    QCOMPARE(stand.take(), lines({"entered group", "entered no row"}));
}

void tst_NxMediaItemDelegate::theSignalsStandInTheirOrder()
{
    const QMetaObject &meta = NxMediaItemDelegate::staticMetaObject;
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    QCOMPARE(signatures, lines({"sigMediaItemEvent(int,NxMediaItemEventCondition,QModelIndex)",
                                "sigMediaItemRenameEvent(QModelIndex,QString)",
                                "sigItemEnterEvent(QModelIndex)", "sigViewportEnterEvent()",
                                "sigExtraImportEvent()", "sigDealMissingItemEvent(QModelIndex)"}));
}

void tst_NxMediaItemDelegate::f2AndEnterRenameInTheView()
{
    Screen screen;
    QVERIFY(screen.edit());
    QCOMPARE(screen.editor()->text(), QStringLiteral("file"));
    QTest::keyClicks(screen.editor(), QStringLiteral("Music"));
    QTest::keyClick(screen.editor(), Qt::Key_Return);
    QTRY_COMPARE(screen.renames(), lines({"rename file to 'Music'"}));
    QTRY_VERIFY(!screen.editor());
}

void tst_NxMediaItemDelegate::escapeKeepsTheNameInTheView()
{
    Screen screen;
    QVERIFY(screen.edit());
    QTest::keyClicks(screen.editor(), QStringLiteral("Music"));
    QTest::keyClick(screen.editor(), Qt::Key_Escape);
    QTRY_VERIFY(!screen.editor());
    QCOMPARE(screen.renames(), QStringList());
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaItemDelegate)
#include "tst_NxMediaItemDelegate.moc"
