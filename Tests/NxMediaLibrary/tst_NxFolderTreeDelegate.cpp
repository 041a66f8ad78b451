// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxFolderTreeDelegate.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/delegate/NxFolderTreeItemPainter.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxWidgets/NxLineEdit.h>

#include <Support/NxTestMain.h>

#include <QApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QStringListModel>
#include <QTest>
#include <QTreeView>

#include <memory>

#include "RecordingPainter.h"
#include "ScriptedFolders.h"
#include "TextLines.h"

namespace {

using FolderPainter = RecordingPainter<NxFolderTreeItemPainter>;

/// A host's delegate, which makes a painter when it is asked to.
class HostDelegate : public NxFolderTreeDelegate
{
public:
    explicit HostDelegate(QStringList *journal) : m_journal(journal) {}

    using NxFolderTreeDelegate::itemPainter;
    using NxFolderTreeDelegate::setItemPainter;
    FolderPainter *folderPainter() const { return static_cast<FolderPainter *>(itemPainter()); }

    bool hasPainter = true;

protected:
    void createItemPaintTool() override
    {
        m_journal->append(QStringLiteral("asked for a painter"));
        if (hasPainter)
            setItemPainter(new FolderPainter(QStringLiteral("own"), m_journal));
    }

private:
    QStringList *const m_journal; // Not owned.
};

/// The folders A with B and C, and D beside A; a delegate for them, and all that happens.
struct Stand
{
    Stand()
    {
        plant(manager.root.get(), QStringLiteral("A(B C) D"));
        manager.calls = &journal;
        model.load(manager.root.get());
        model.subscribeFoderManager(&manager);
        const auto noteName = [this](const QString &name) {
            journal.append(QStringLiteral("rename to '%1'").arg(name));
        };
        const auto noteFolder = [this](const QModelIndex &index, const QString &name) {
            journal.append(QStringLiteral("rename %1 to '%2'").arg(folderAt(index)->name(), name));
        };
        QObject::connect(delegate.get(), &NxFolderTreeDelegate::sigFolderItemRenameEvent, noteName);
        QObject::connect(delegate.get(), &NxFolderTreeDelegate::sigFolderRenameEvent, noteFolder);
    }

    ScriptedFolder *folder(const char *name) const
    {
        return called(manager.root.get(), QLatin1String(name));
    }
    QModelIndex at(const char *name) const { return model.findIndex(folder(name)); }
    QStringList take() { return std::exchange(journal, {}); }

    /// The picture of a row, 40 x 20 px.
    QImage paint(const QStyledItemDelegate &with, QStyle::State state,
                 const QModelIndex &index) const
    {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionViewItem option;
        option.rect = image.rect();
        option.state = state;
        option.palette.setColor(QPalette::Highlight, Qt::blue);
        option.showDecorationSelected = true;
        with.paint(&painter, option, index);
        return image;
    }
    QImage paint(QStyle::State state, const char *name) const
    {
        return paint(*delegate, state, at(name));
    }
    /// Has a folder renamed as a view does once the user has typed.
    void type(const QString &text, const char *name) const
    {
        QLineEdit editor;
        editor.setText(text);
        delegate->setModelData(&editor, nullptr, at(name));
    }

    QStringList journal;
    ScriptedFolderManager manager;
    NxMediaTreeModel model;
    std::unique_ptr<HostDelegate> delegate = std::make_unique<HostDelegate>(&journal);
};

/// A tree on the screen, in which A is the current folder.
struct Screen : Stand
{
    Screen()
    {
        tree.setModel(&model);
        tree.setItemDelegate(delegate.get());
        tree.setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
        tree.expandAll();
        tree.resize(300, 200);
        tree.setMouseTracking(true);
        tree.setCurrentIndex(at("A"));
    }
    [[nodiscard]] bool show()
    {
        tree.show();
        tree.activateWindow();
        tree.setFocus();
        const bool isShown = QTest::qWaitForWindowActive(&tree);
        journal.clear();
        return isShown;
    }
    QLineEdit *editor() const
    {
        return tree.findChild<QLineEdit *>(QStringLiteral("NxEditItem_LineEdit"));
    }
    QStringList renames() const { return journal.filter(QStringLiteral("rename")); }

    QTreeView tree;
};

using Need = void (*)(const Stand &stand);

const QStyle::State plain = QStyle::State_Enabled;
const QStyle::State hovered = plain | QStyle::State_MouseOver;

} // namespace

Q_DECLARE_METATYPE(Need)
Q_DECLARE_METATYPE(QStyle::State)

class tst_NxFolderTreeDelegate : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aPainterIsMadeWhenItIsNeededFirst_data();
    void aPainterIsMadeWhenItIsNeededFirst();
    void aHostWithoutPainterIsAskedOnce();
    void withoutPainterARowIsItsGround();
    void aPainterThatWasGivenIsKept();
    void theDelegateOwnsItsPainter();
    void aPainterThatDiedIsDrawnNoMore();
    void theStateReachesThePainter_data();
    void theStateReachesThePainter();
    void theGroundIsDrawnBeforeThePainter();
    void aRowWithoutFolderIsItsGround();
    void noRowIsRememberedAsHovered();
    void indentsReachFolderPaintersOnly();
    void theWidthFollowsTheTreeAndTheHeightStays();
    void rowsAreAsHighAsTheStyleSays();
    void theEditorIsThatOfFolders();
    void theEditorShowsTheFoldersName();
    void theEditorStandsWhereThePainterSays();
    void aNewNameIsAnnounced_data();
    void aNewNameIsAnnounced();
    void announcingRenamesNothing();
    void theFolderMayGoWhileItsNameIsAnnounced();
    void theDelegateMayGoWhileANameIsAnnounced();
    void strangeEditorsAndRowsAreIgnored();
    void theSignalsStandInTheirOrder();
    void f2AndEnterRenameInTheTree();
    void typingReplacesTheNameInTheTree();
    void escapeKeepsTheName();
    void theEditedFolderIsRenamedAndNotTheCurrentOne();
    void thePresenterRefusesAnEmptyName();
    void theMouseHoversRowsOfTheTree();
};

void tst_NxFolderTreeDelegate::aPainterIsMadeWhenItIsNeededFirst_data()
{
    QTest::addColumn<Need>("need");
    QTest::newRow("drawing") << Need([](const Stand &stand) { (void)stand.paint(plain, "A"); });
    QTest::newRow("a size") << Need([](const Stand &stand) {
        stand.delegate->setItemSize({1, 2});
    });
    QTest::newRow("a width") << Need([](const Stand &stand) { stand.delegate->setItemWidth(1); });
    QTest::newRow("indents") << Need(
        [](const Stand &stand) { stand.delegate->setIndent(1, 2, 3, 4); });
}

void tst_NxFolderTreeDelegate::aPainterIsMadeWhenItIsNeededFirst()
{
    QFETCH(Need, need);
    Stand stand;
    QCOMPARE(stand.take(), QStringList());
    need(stand);
    QCOMPARE(stand.take().value(0), QStringLiteral("asked for a painter"));
    need(stand);
    QVERIFY(!stand.take().contains(QStringLiteral("asked for a painter")));
}

void tst_NxFolderTreeDelegate::aHostWithoutPainterIsAskedOnce()
{
    Stand stand;
    stand.delegate->hasPainter = false;
    stand.delegate->setItemSize(QSize(10, 20));
    stand.delegate->setItemWidth(30);
    stand.delegate->setIndent(1, 2, 3, 4);
    (void)stand.paint(hovered, "A");
    QCOMPARE(stand.take(), lines({"asked for a painter"}));
    QVERIFY(!stand.delegate->itemPainter());
}

void tst_NxFolderTreeDelegate::withoutPainterARowIsItsGround()
{
    const Stand stand;
    const NxFolderTreeDelegate bare;
    const QStyledItemDelegate ground;
    const QStyle::State selected = plain | QStyle::State_Selected;
    const QImage expected = stand.paint(ground, selected, stand.at("A"));
    QCOMPARE(stand.paint(bare, selected, stand.at("A")), expected);
    QVERIFY(expected != stand.paint(ground, plain, stand.at("A")));
}

void tst_NxFolderTreeDelegate::aPainterThatWasGivenIsKept()
{
    Stand stand;
    stand.delegate->setItemPainter(new FolderPainter(QStringLiteral("given"), &stand.journal));
    (void)stand.paint(plain, "D");
    QCOMPARE(stand.take(), lines({"given draws 1 in state 0"}));
}

void tst_NxFolderTreeDelegate::theDelegateOwnsItsPainter()
{
    Stand stand;
    auto *first = new FolderPainter(QStringLiteral("first"), &stand.journal);
    stand.delegate->setItemPainter(first);
    QCOMPARE(first->parent(), stand.delegate.get());
    stand.delegate->setItemPainter(first);
    QCOMPARE(stand.take(), QStringList());
    stand.delegate->setItemPainter(new FolderPainter(QStringLiteral("second"), &stand.journal));
    QCOMPARE(stand.take(), lines({"first dies"}));
    stand.delegate->setItemPainter(nullptr);
    QCOMPARE(stand.take(), lines({"second dies"}));
    (void)stand.paint(plain, "A");
    stand.take();
    stand.delegate.reset();
    QCOMPARE(stand.take(), lines({"own dies"}));
}

void tst_NxFolderTreeDelegate::aPainterThatDiedIsDrawnNoMore()
{
    Stand stand;
    (void)stand.paint(plain, "A");
    delete stand.delegate->itemPainter();
    stand.take();
    stand.delegate->setItemWidth(20);
    (void)stand.paint(plain, "A");
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxFolderTreeDelegate::theStateReachesThePainter_data()
{
    const QStyle::State selected = QStyle::State_Selected;
    QTest::addColumn<QStyle::State>("shown");
    QTest::addColumn<int>("state");
    QTest::newRow("at rest") << plain << int(misNormal);
    QTest::newRow("hovered") << hovered << int(misHovered);
    QTest::newRow("selected") << (plain | selected) << int(misSelected);
    QTest::newRow("selected and hovered") << (hovered | selected) << int(misSelectedHovered);
    QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << int(misDisabled);
    QTest::newRow("disabled in all ways")
        << (selected | QStyle::State_MouseOver) << int(misDisabled);
}

void tst_NxFolderTreeDelegate::theStateReachesThePainter()
{
    QFETCH(QStyle::State, shown);
    QFETCH(int, state);
    Stand stand;
    (void)stand.paint(shown, "C");
    QCOMPARE(stand.take().last(), QStringLiteral("own draws 1 in state %1").arg(state));
}

void tst_NxFolderTreeDelegate::theGroundIsDrawnBeforeThePainter()
{
    Stand stand;
    stand.delegate->folderPainter()->setInk(Qt::red);
    const QImage image = stand.paint(plain | QStyle::State_Selected, "A");
    QCOMPARE(image.pixelColor(1, 1), QColor(Qt::red));
    const QStyledItemDelegate ground;
    const QImage bare = stand.paint(ground, plain | QStyle::State_Selected, stand.at("A"));
    QCOMPARE(image.copy(4, 4, 36, 16), bare.copy(4, 4, 36, 16));
}

void tst_NxFolderTreeDelegate::aRowWithoutFolderIsItsGround()
{
    Stand stand;
    const QStringListModel strangers({QStringLiteral("x")});
    (void)stand.paint(*stand.delegate, plain, strangers.index(0));
    QCOMPARE(stand.take(), QStringList());
}

void tst_NxFolderTreeDelegate::noRowIsRememberedAsHovered()
{
    const Stand stand;
    (void)stand.paint(hovered, "D");
    QCOMPARE(stand.delegate->itemPainter()->getHoverItem(), -1);
}

void tst_NxFolderTreeDelegate::indentsReachFolderPaintersOnly()
{
    Stand stand;
    stand.delegate->setIndent(5, 6, 7, 8);
    const NxFolderTreeItemPainter::Indents indents = stand.delegate->folderPainter()->indent();
    QCOMPARE(QVector<int>({indents.first, indents.second, indents.third, indents.fourth}),
             QVector<int>({5, 6, 7, 8}));
    stand.delegate->setItemPainter(new RecordingPainter<>(QStringLiteral("plain"), &stand.journal));
    stand.take();
    stand.delegate->setIndent(1, 2, 3, 4);
    (void)stand.paint(plain, "A");
    QCOMPARE(stand.take(), lines({"plain draws 0 in state 0"}));
}

void tst_NxFolderTreeDelegate::theWidthFollowsTheTreeAndTheHeightStays()
{
    const Stand stand;
    stand.delegate->setItemSize(QSize(200, 32));
    QCOMPARE(stand.delegate->itemPainter()->size(), QSize(200, 32));
    stand.delegate->setItemWidth(90);
    QCOMPARE(stand.delegate->itemPainter()->size(), QSize(90, 32));
    stand.delegate->setItemWidth(0);
    QCOMPARE(stand.delegate->itemPainter()->size(), QSize(0, 32));
}

void tst_NxFolderTreeDelegate::rowsAreAsHighAsTheStyleSays()
{
    const Stand stand;
    const QStyledItemDelegate ground;
    const QStyleOptionViewItem option;
    stand.delegate->setItemSize(QSize(200, 77));
    QCOMPARE(stand.delegate->sizeHint(option, stand.at("A")),
             ground.sizeHint(option, stand.at("A")));
}

void tst_NxFolderTreeDelegate::theEditorIsThatOfFolders()
{
    const Stand stand;
    QWidget parent;
    const auto *editor =
        qobject_cast<NxLineEdit *>(stand.delegate->createEditor(&parent, {}, stand.at("A")));
    QVERIFY(editor);
    QCOMPARE(editor->parentWidget(), &parent);
    QCOMPARE(editor->objectName(), QStringLiteral("NxEditItem_LineEdit"));
    QCOMPARE(editor->height(), 32);
    const std::unique_ptr<QLineEdit> untouched(
        NxLineEdit::creartNormalLineEdit(nullptr, NxLineEditSizeType::lestFolder));
    QVERIFY(!untouched->textMargins().isNull());
    QCOMPARE(editor->textMargins(), untouched->textMargins());
}

void tst_NxFolderTreeDelegate::theEditorShowsTheFoldersName()
{
    const Stand stand;
    stand.folder("C")->title = QStringLiteral("Music & %1");
    QLineEdit editor;
    stand.delegate->setEditorData(&editor, stand.model.index(1, 0, stand.at("A")));
    QCOMPARE(editor.text(), QStringLiteral("Music & %1"));
}

void tst_NxFolderTreeDelegate::theEditorStandsWhereThePainterSays()
{
    const Stand stand;
    QLineEdit editor;
    QStyleOptionViewItem option;
    option.rect = QRect(10, 40, 200, 32);
    QLineEdit plainEditor;
    const QStyledItemDelegate ground;
    ground.updateEditorGeometry(&plainEditor, option, stand.at("A"));
    stand.delegate->updateEditorGeometry(&editor, option, stand.at("A"));
    QCOMPARE(editor.geometry(), plainEditor.geometry());
    stand.delegate->folderPainter()->setNameRect(QRect(50, 44, 120, 24));
    stand.delegate->updateEditorGeometry(&editor, option, stand.at("A"));
    QCOMPARE(editor.geometry(), QRect(50, 44, 120, 24));
    stand.delegate->updateEditorGeometry(nullptr, option, stand.at("A"));
}

void tst_NxFolderTreeDelegate::aNewNameIsAnnounced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAnnounced");
    QTest::newRow("another name") << QStringLiteral("Music") << true;
    QTest::newRow("the same name") << QStringLiteral("Holiday") << false;
    QTest::newRow("the same letters in other case") << QStringLiteral("HOLIDAY") << true;
    QTest::newRow("nothing") << QString() << true;
    QTest::newRow("blanks") << QStringLiteral("  ") << true;
    QTest::newRow("the same name and a blank") << QStringLiteral("Holiday ") << true;
}

void tst_NxFolderTreeDelegate::aNewNameIsAnnounced()
{
    QFETCH(QString, text);
    QFETCH(bool, isAnnounced);
    Stand stand;
    stand.folder("B")->title = QStringLiteral("Holiday");
    stand.type(text, "Holiday");
    const QStringList both{QStringLiteral("rename to '%1'").arg(text),
                           QStringLiteral("rename Holiday to '%1'").arg(text)};
    QCOMPARE(stand.take(), isAnnounced ? both : QStringList());
}

void tst_NxFolderTreeDelegate::announcingRenamesNothing()
{
    Stand stand;
    QLineEdit editor;
    editor.setText(QStringLiteral("Music"));
    stand.delegate->setModelData(&editor, &stand.model, stand.at("B"));
    QCOMPARE(stand.take().size(), 2);
    QVERIFY(stand.folder("B"));
}

void tst_NxFolderTreeDelegate::theFolderMayGoWhileItsNameIsAnnounced()
{
    Stand stand;
    std::unique_ptr<ScriptedFolder> taken;
    connect(stand.delegate.get(), &NxFolderTreeDelegate::sigFolderItemRenameEvent, this,
            [&] { taken = stand.manager.take(stand.folder("B")); });
    stand.type(QStringLiteral("x"), "B");
    QCOMPARE(stand.take(), lines({"rename to 'x'"}));
}

void tst_NxFolderTreeDelegate::theDelegateMayGoWhileANameIsAnnounced()
{
    Stand stand;
    connect(stand.delegate.get(), &NxFolderTreeDelegate::sigFolderItemRenameEvent, this,
            [&] { stand.delegate.reset(); });
    stand.type(QStringLiteral("x"), "B");
    QCOMPARE(stand.take(), lines({"rename to 'x'"}));
}

void tst_NxFolderTreeDelegate::strangeEditorsAndRowsAreIgnored()
{
    Stand stand;
    QWidget widget;
    QLineEdit editor;
    editor.setText(QStringLiteral("x"));
    stand.delegate->setEditorData(&widget, stand.at("A"));
    stand.delegate->setModelData(&widget, &stand.model, stand.at("A"));
    stand.delegate->setEditorData(nullptr, stand.at("A"));
    stand.delegate->setModelData(nullptr, &stand.model, stand.at("A"));
    stand.delegate->setEditorData(&editor, QModelIndex());
    stand.delegate->setModelData(&editor, &stand.model, QModelIndex());
    QCOMPARE(stand.take(), QStringList());
    QCOMPARE(editor.text(), QStringLiteral("x"));
}

void tst_NxFolderTreeDelegate::theSignalsStandInTheirOrder()
{
    const QMetaObject &meta = NxFolderTreeDelegate::staticMetaObject;
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             QByteArray("sigFolderItemRenameEvent(QString)"));
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             QByteArray("sigFolderRenameEvent(QModelIndex,QString)"));
}

void tst_NxFolderTreeDelegate::f2AndEnterRenameInTheTree()
{
    Screen screen;
    QVERIFY(screen.show());
    QTest::keyClick(&screen.tree, Qt::Key_F2);
    QVERIFY(screen.editor());
    QCOMPARE(screen.editor()->text(), QStringLiteral("A"));
    QTest::keyClicks(screen.editor(), QStringLiteral("Music"));
    QTest::keyClick(screen.editor(), Qt::Key_Return);
    QTRY_COMPARE(screen.renames(), lines({"rename to 'Music'", "rename A to 'Music'"}));
    QTRY_VERIFY(!screen.editor());
}

void tst_NxFolderTreeDelegate::typingReplacesTheNameInTheTree()
{
    Screen screen;
    QVERIFY(screen.show());
    screen.tree.setCurrentIndex(screen.at("D"));
    QTest::keyClick(&screen.tree, Qt::Key_M);
    QVERIFY(screen.editor());
    QTest::keyClick(screen.editor(), Qt::Key_Return);
    QTRY_COMPARE(screen.renames(), lines({"rename to 'm'", "rename D to 'm'"}));
}

void tst_NxFolderTreeDelegate::escapeKeepsTheName()
{
    Screen screen;
    QVERIFY(screen.show());
    QTest::keyClick(&screen.tree, Qt::Key_F2);
    QVERIFY(screen.editor());
    QTest::keyClicks(screen.editor(), QStringLiteral("Music"));
    QTest::keyClick(screen.editor(), Qt::Key_Escape);
    QTRY_VERIFY(!screen.editor());
    QCOMPARE(screen.renames(), QStringList());
}

void tst_NxFolderTreeDelegate::theEditedFolderIsRenamedAndNotTheCurrentOne()
{
    Screen screen;
    NxFolderMediaManagerPresenter presenter(&screen.manager, nullptr);
    connect(screen.delegate.get(), &NxFolderTreeDelegate::sigFolderRenameEvent, &presenter,
            [&](const QModelIndex &index, const QString &name) {
                (void)presenter.renameFolder(folderAt(index), name);
            });
    QVERIFY(screen.show());
    presenter.setCurrentFolder(screen.folder("A"));
    screen.tree.edit(screen.at("C"));
    screen.tree.selectionModel()->setCurrentIndex(screen.at("D"),
                                                  QItemSelectionModel::ClearAndSelect);
    QVERIFY(screen.editor());
    screen.editor()->setText(QStringLiteral("Stills"));
    QTest::keyClick(screen.editor(), Qt::Key_Return);
    QTRY_VERIFY(screen.renames().contains(QStringLiteral("rename C to Stills")));
    QVERIFY(screen.folder("Stills") && !screen.folder("C") && screen.folder("A"));
    QCOMPARE(presenter.currentFolder(), screen.folder("A"));
}

void tst_NxFolderTreeDelegate::thePresenterRefusesAnEmptyName()
{
    Screen screen;
    NxFolderMediaManagerPresenter presenter(&screen.manager, nullptr);
    connect(screen.delegate.get(), &NxFolderTreeDelegate::sigFolderItemRenameEvent, &presenter,
            [&](const QString &name) {
                (void)presenter.renameFolder(presenter.currentFolder(), name);
            });
    QVERIFY(screen.show());
    presenter.setCurrentFolder(screen.folder("A"));
    QTest::keyClick(&screen.tree, Qt::Key_F2);
    QVERIFY(screen.editor());
    QTest::keyClick(screen.editor(), Qt::Key_Delete);
    QTest::keyClick(screen.editor(), Qt::Key_Return);
    QTRY_COMPARE(screen.renames(), lines({"rename to ''", "rename A to ''"}));
    QVERIFY(screen.folder("A"));
}

void tst_NxFolderTreeDelegate::theMouseHoversRowsOfTheTree()
{
    Screen screen;
    QVERIFY(screen.show());
    QTest::mouseMove(screen.tree.viewport(), screen.tree.visualRect(screen.at("D")).center());
    QTRY_VERIFY(screen.journal.contains(QStringLiteral("own draws 1 in state 1")));
    QTest::mouseClick(screen.tree.viewport(), Qt::LeftButton, {},
                      screen.tree.visualRect(screen.at("D")).center());
    QTRY_VERIFY(screen.journal.contains(QStringLiteral("own draws 1 in state 3")));
}

NX_TEST_MAIN_WIDGETS(tst_NxFolderTreeDelegate)
#include "tst_NxFolderTreeDelegate.moc"
