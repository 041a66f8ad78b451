// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxFolderTreeView.h>

#include "FolderTreeYard.h"

#include <NxMediaLibrary/TextLines.h>
#include <NxVBLModel/NxMediaItemMimeData.h>
#include <NxWidgets/DialogUser.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QMimeData>
#include <QSignalSpy>
#include <QTextEdit>
#include <QUrl>

#include <functional>

using namespace NXVBLMODEL;

namespace {

/// Where in a row the pointer is.
enum class Part { Top, Middle, Bottom };

QPoint pointIn(const FolderTreeYard &yard, const INxFolderMedia *folder, Part part)
{
    const QRect row = yard.tree->visualRect(yard.index(folder));
    const int y = part == Part::Top      ? row.top() + 1
                  : part == Part::Middle ? row.center().y()
                                         : row.bottom() - 1;
    return {row.center().x(), y};
}

/// The action that a drop there would have; Qt::IgnoreAction where it may not be dropped.
Qt::DropAction hover(const FolderTreeYard &yard, const QMimeData &data, const QPoint &at,
                     Qt::DropActions possible)
{
    QDragEnterEvent enter(at, possible, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(yard.tree->viewport(), &enter);
    QDragMoveEvent move(at, possible, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(yard.tree->viewport(), &move);
    return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
}

/// The action that the drop had.
Qt::DropAction drop(const FolderTreeYard &yard, const QMimeData &data, const QPoint &at,
                    Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction)
{
    const Qt::DropAction promised = hover(yard, data, at, possible);
    QDropEvent event(at, possible, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(yard.tree->viewport(), &event);
    const Qt::DropAction done = event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    return done == promised ? done : Qt::TargetMoveAction; // A promise that was not kept.
}

/// What happens while a folder is being dragged; false when no drag begins.
bool dragging(const FolderTreeYard &yard, const INxFolderMedia *folder,
              const std::function<void(const QMimeData &)> &deed)
{
    bool hasBegun = false;
    yard.tree->carried = [&](const QMimeData &data) {
        hasBegun = true;
        deed(data);
    };
    const QPoint from = yard.at(folder);
    QWidget *viewport = yard.tree->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    const QPoint away(from.x() + 2 * QApplication::startDragDistance(), from.y());
    for (const QPoint &to : {from + QPoint(2, 0), away, away + QPoint(2, 0)}) {
        QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, {1, viewport->height() - 2});
    yard.tree->carried = nullptr;
    return hasBegun;
}

/// Drags a folder to a place in the row of another one; what a drop there did.
Qt::DropAction dragTo(const FolderTreeYard &yard, const INxFolderMedia *folder,
                      const INxFolderMedia *target, Part part)
{
    Qt::DropAction action = Qt::LinkAction; // No drag began.
    dragging(yard, folder, [&](const QMimeData &data) {
        action = drop(yard, data, pointIn(yard, target, part), Qt::MoveAction);
    });
    return action;
}

QStringList namesIn(const INxFolderMedia *folder)
{
    QStringList names;
    const QList<INxAbstractMedia *> items = folder->items(false, true);
    for (const INxAbstractMedia *media : items)
        names.append(media->name());
    return names;
}

} // namespace

/// What is dragged onto a folder tree, and out of its rows.
class tst_NxFolderTreeView_drops : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void foldersGoOntoAndBetweenOthers_data();
    void foldersGoOntoAndBetweenOthers();
    void foldersStayOutOfThemselves();
    void sectionsCannotBeDragged();
    void aDragPicksNothing();
    void foldersStayInTheirCategory();
    void aNameThatIsTakenIsExplained();
    void mediaGoToTheFolder();
    void mediaAreRefusedWhereNoneAreTaken();
    void filesAreAnnounced();
    void onlyFilesOfThisComputerAreTaken();
    void filesAreNeverMoved();
    void readOnlyProjectsTakeNothing();
    void foldersUnfoldUnderThePointer();
    void thePlaceOfTheDropIsShown();
};

void tst_NxFolderTreeView_drops::foldersGoOntoAndBetweenOthers_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("part");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("onto a folder")
        << QStringLiteral("Day 2") << int(Part::Middle)
        << lines({"Project Media - *", "  Day 1 +", "  Day 2 -", "    Night", "Shared Media"});
    QTest::newRow("above a folder")
        << QStringLiteral("Day 1") << int(Part::Top)
        << lines({"Project Media - *", "  Night", "  Day 1 +", "  Day 2", "Shared Media"});
    QTest::newRow("below a folder")
        << QStringLiteral("Day 1") << int(Part::Bottom)
        << lines({"Project Media - *", "  Day 1 +", "  Night", "  Day 2", "Shared Media"});
    QTest::newRow("onto a section")
        << QStringLiteral("Shared Media") << int(Part::Top)
        << lines({"Project Media - *", "  Day 1 +", "  Day 2", "Shared Media -", "  Night"});
    QTest::newRow("where it stands")
        << QStringLiteral("Day 2") << int(Part::Bottom)
        << lines({"Project Media - *", "  Day 1 +", "  Day 2", "  Night", "Shared Media"});
}

void tst_NxFolderTreeView_drops::foldersGoOntoAndBetweenOthers()
{
    QFETCH(QString, target);
    QFETCH(int, part);
    QFETCH(QStringList, rows);
    const FolderTreeYard yard;
    const INxFolderMedia *night = yard.add(yard.section(), "Night");
    const QStringList before = yard.rows();
    const int steps = yard.undo()->count();
    const QList<INxFolderMedia *> targets{yard.first, yard.second, yard.shared()};
    for (const INxFolderMedia *one : targets) {
        if (one->name() == target)
            QCOMPARE(dragTo(yard, night, one, Part(part)), Qt::MoveAction);
    }
    QCOMPARE(yard.rows(), rows);
    const bool hasMoved = rows != before;
    QCOMPARE(yard.undo()->count(), steps + (hasMoved ? 1 : 0));
    if (hasMoved)
        yard.undo()->undo();
    QCOMPARE(yard.section()->childFolder(2), night);
}

void tst_NxFolderTreeView_drops::foldersStayOutOfThemselves()
{
    const FolderTreeYard yard;
    yard.tree->expandAll();
    const QStringList before = yard.rows();
    QCOMPARE(dragTo(yard, yard.first, yard.first, Part::Middle), Qt::IgnoreAction);
    QCOMPARE(dragTo(yard, yard.first, yard.takes, Part::Middle), Qt::IgnoreAction);
    QCOMPARE(dragTo(yard, yard.first, yard.takes, Part::Bottom), Qt::IgnoreAction);
    // Right below an unfolded folder lies its inside.
    QCOMPARE(dragTo(yard, yard.first, yard.first, Part::Bottom), Qt::IgnoreAction);
    QCOMPARE(yard.rows(), before);
    QCOMPARE(dragTo(yard, yard.second, yard.first, Part::Bottom), Qt::MoveAction);
    QCOMPARE(yard.rows(),
             lines({"Project Media - *", "  Day 1 -", "    Day 2", "    Takes", "Shared Media"}));
}

void tst_NxFolderTreeView_drops::sectionsCannotBeDragged()
{
    const FolderTreeYard yard;
    QCOMPARE(dragTo(yard, yard.shared(), yard.second, Part::Middle), Qt::LinkAction);
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 +", "  Day 2", "Shared Media"}));
}

void tst_NxFolderTreeView_drops::aDragPicksNothing()
{
    const FolderTreeYard yard;
    QSignalSpy changed(yard.folders(), &NxFolderMediaManagerPresenter::sigCurrentFolderChanged);
    QVERIFY(dragging(yard, yard.second, [](const QMimeData &data) {
        QVERIFY(data.hasFormat(QStringLiteral("application/ntreemodeldatalist")));
    }));
    QCOMPARE(changed.count(), 0);
    QCOMPARE(yard.rows(), lines({"Project Media - *", "  Day 1 +", "  Day 2", "Shared Media"}));
}

void tst_NxFolderTreeView_drops::foldersStayInTheirCategory()
{
    FolderTreeYard yard;
    yard.show(mctTitle);
    NxFolderMediaManagerPresenter *titles =
        yard.library->getMediaCategoryPresenter(mctTitle)->folderManagerPresenter();
    INxFolderMedia *all = titles->folderManager()->folder(fidRoot);
    const INxFolderMedia *mine = yard.add(all, "none");
    QVERIFY(!mine);
    mine = titles->addFolder(all, QStringLiteral("Mine"));
    const INxFolderMedia *loved = titles->folderManager()->folder(fkFavourites);
    QCOMPARE(dragTo(yard, mine, loved, Part::Middle), Qt::IgnoreAction);
    QCOMPARE(dragTo(yard, mine, all, Part::Middle), Qt::MoveAction);
    // What another view drags is nothing that this one could move.
    QMimeData foreign;
    foreign.setData(QStringLiteral("application/ntreemodeldatalist"), "x");
    QCOMPARE(drop(yard, foreign, yard.at(mine)), Qt::IgnoreAction);
}

void tst_NxFolderTreeView_drops::aNameThatIsTakenIsExplained()
{
    const FolderTreeYard yard;
    const INxFolderMedia *other = yard.add(yard.second, "Takes");
    yard.tree->expandAll();
    QStringList messages;
    const DialogUser user([&](NMessageDialog &dialog) {
        messages.append(dialog.findChild<QTextEdit *>(QStringLiteral("text"))->toPlainText());
        dialog.reject();
    });
    QVERIFY(dragging(yard, other, [&](const QMimeData &data) {
        QCOMPARE(drop(yard, data, yard.at(yard.first), Qt::MoveAction), Qt::MoveAction);
        QCOMPARE(messages, QStringList()); // The drag has to end first.
    }));
    QTRY_COMPARE(messages, lines({"There is a folder \"Takes\" in \"Day 1\" already."}));
    QCOMPARE(other->parentFolder(), yard.second);
}

void tst_NxFolderTreeView_drops::mediaGoToTheFolder()
{
    const FolderTreeYard yard;
    const QList<INxAbstractMedia *> media =
        yard.addMedia(yard.section(), lines({"a.mov", "b.mov", "c.mov"}));
    const int steps = yard.undo()->count();
    NxMediaItemMimeData data;
    data.append(media.at(0));
    data.append(media.at(2));
    // Also where a folder would go between two rows.
    QCOMPARE(drop(yard, data, pointIn(yard, yard.second, Part::Top)), Qt::MoveAction);
    QCOMPARE(namesIn(yard.second), lines({"a.mov", "c.mov"}));
    QCOMPARE(namesIn(yard.section()), lines({"b.mov"}));
    QCOMPARE(yard.undo()->count(), steps + 1);
    yard.undo()->undo();
    QCOMPARE(namesIn(yard.section()), lines({"a.mov", "b.mov", "c.mov"}));
}

void tst_NxFolderTreeView_drops::mediaAreRefusedWhereNoneAreTaken()
{
    FolderTreeYard yard;
    const QList<INxAbstractMedia *> media = yard.addMedia(yard.section(), lines({"a.mov"}));
    NxMediaItemMimeData data;
    QCOMPARE(drop(yard, data, yard.at(yard.second)), Qt::IgnoreAction);
    data.append(media.first());
    QCOMPARE(drop(yard, data, yard.at(yard.section())), Qt::IgnoreAction); // It stands there.
    QCOMPARE(drop(yard, data, {50, 390}), Qt::IgnoreAction); // Empty ground.
    yard.show(mctTitle);
    const QModelIndex all = yard.tree->model()->index(0, 0);
    QCOMPARE(drop(yard, data, yard.tree->visualRect(all).center()), Qt::IgnoreAction);
    NxFolderMediaManagerPresenter *titles =
        yard.library->getMediaCategoryPresenter(mctTitle)->folderManagerPresenter();
    const INxFolderMedia *mine = titles->addFolder(folderAt(all), QStringLiteral("Mine"));
    QCOMPARE(drop(yard, data, yard.at(mine)), Qt::IgnoreAction); // Another category's.
    QCOMPARE(namesIn(yard.section()), lines({"a.mov"}));
}

void tst_NxFolderTreeView_drops::filesAreAnnounced()
{
    const FolderTreeYard yard;
    QSignalSpy dropped(yard.tree.get(), &NxFolderTreeView::sigFilesDropped);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/footage/a b.mov")),
                  QUrl(QStringLiteral("https://example.org/c.mov")),
                  QUrl::fromLocalFile(QStringLiteral("/footage/days"))});
    QCOMPARE(drop(yard, data, yard.at(yard.second)), Qt::CopyAction);
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(dropped.at(0).at(0).value<INxFolderMedia *>(), yard.second);
    QCOMPARE(dropped.at(0).at(1).toStringList(), lines({"/footage/a b.mov", "/footage/days"}));
    QCOMPARE(drop(yard, data, {50, 390}), Qt::CopyAction);
    QCOMPARE(dropped.count(), 2);
    QCOMPARE(dropped.at(1).at(0).value<INxFolderMedia *>(), nullptr);
}

void tst_NxFolderTreeView_drops::onlyFilesOfThisComputerAreTaken()
{
    const FolderTreeYard yard;
    QSignalSpy dropped(yard.tree.get(), &NxFolderTreeView::sigFilesDropped);
    QMimeData data;
    data.setText(QStringLiteral("/footage/a.mov"));
    QCOMPARE(drop(yard, data, yard.at(yard.second)), Qt::IgnoreAction);
    data.setUrls({QUrl(QStringLiteral("https://example.org/c.mov"))});
    QCOMPARE(drop(yard, data, yard.at(yard.second)), Qt::IgnoreAction);
    QCOMPARE(dropped.count(), 0);
}

void tst_NxFolderTreeView_drops::filesAreNeverMoved()
{
    const FolderTreeYard yard;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QStringLiteral("/footage/a.mov"))});
    QCOMPARE(drop(yard, data, yard.at(yard.second), Qt::MoveAction), Qt::IgnoreAction);
    QCOMPARE(drop(yard, data, yard.at(yard.second), Qt::MoveAction | Qt::LinkAction),
             Qt::LinkAction);
}

void tst_NxFolderTreeView_drops::readOnlyProjectsTakeNothing()
{
    FolderTreeYard yard;
    yard.addMedia(yard.section(), lines({"a.mov"}));
    yard.reopenReadOnly();
    NxMediaItemMimeData media;
    media.append(yard.section()->items(false, true).first());
    QCOMPARE(drop(yard, media, yard.at(yard.second)), Qt::IgnoreAction);
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QStringLiteral("/footage/a.mov"))});
    QCOMPARE(drop(yard, files, yard.at(yard.second)), Qt::IgnoreAction);
    QCOMPARE(dragTo(yard, yard.first, yard.second, Part::Middle), Qt::LinkAction);
}

void tst_NxFolderTreeView_drops::foldersUnfoldUnderThePointer()
{
    const FolderTreeYard yard;
    yard.tree->setAutoExpandDelay(1);
    const QList<INxAbstractMedia *> media = yard.addMedia(yard.section(), lines({"a.mov"}));
    NxMediaItemMimeData data;
    data.append(media.first());
    const auto isUnfolded = [&] { return yard.tree->isExpanded(yard.index(yard.first)); };
    QCOMPARE(hover(yard, data, yard.at(yard.first), Qt::MoveAction), Qt::MoveAction);
    QTRY_VERIFY(isUnfolded());
    // One that it passed by does not.
    yard.tree->collapse(yard.index(yard.first));
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(yard.tree->viewport(), &leave);
    hover(yard, data, yard.at(yard.first), Qt::MoveAction);
    hover(yard, data, yard.at(yard.second), Qt::MoveAction);
    QTRY_VERIFY(yard.tree->isExpanded(yard.index(yard.second)));
    QVERIFY(!isUnfolded());
}

void tst_NxFolderTreeView_drops::thePlaceOfTheDropIsShown()
{
    const FolderTreeYard yard;
    yard.tree->setAutoExpandDelay(-1);
    const QRgb accent = NxSkinStyle::instance()->GetColor(NxSkinColor::Accent).rgb();
    const auto marked = [&] { // Where it is drawn.
        const QImage picture = yard.tree->viewport()->grab().toImage();
        QRect bounds;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) == accent)
                    bounds |= QRect(x, y, 1, 1);
            }
        }
        return bounds;
    };
    const QRect row = yard.tree->visualRect(yard.index(yard.second));
    QVERIFY(marked().isNull());
    QVERIFY(dragging(yard, yard.first, [&](const QMimeData &data) {
        hover(yard, data, pointIn(yard, yard.second, Part::Middle), Qt::MoveAction);
        QVERIFY(row.contains(marked()));
        QVERIFY(marked().height() > row.height() - 6);
        hover(yard, data, pointIn(yard, yard.second, Part::Bottom), Qt::MoveAction);
        QVERIFY(marked().height() <= 2 && qAbs(marked().center().y() - row.bottom()) <= 2);
        hover(yard, data, pointIn(yard, yard.second, Part::Top), Qt::MoveAction);
        QVERIFY(marked().height() <= 2 && qAbs(marked().center().y() - row.top()) <= 2);
        hover(yard, data, yard.at(yard.first), Qt::MoveAction);
        QVERIFY(marked().isNull());
        hover(yard, data, yard.at(yard.second), Qt::MoveAction);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(yard.tree->viewport(), &leave);
        QVERIFY(marked().isNull());
    }));
}

NX_TEST_MAIN_WIDGETS(tst_NxFolderTreeView_drops)
#include "tst_NxFolderTreeView_drops.moc"
