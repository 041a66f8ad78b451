// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDiskBan.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/delegate/INxPreviewFrameHelper.h>
#include <NxMediaLibrary/delegate/NxGifPreviewHelper.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxWidgets/NxMaskScope.h>
#include <NxWidgets/NxSkinStyle.h>
#include <NxWorkerProtocol/NxPictureFile.h>

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>
#include <Footage/NxNumberedFrames.h>
#include <NxWidgets/DialogUser.h>
#include <Support/NxTestMain.h>

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSet>
#include <QSignalSpy>

#include "PanelList.h"
#include "PanelYard.h"
#include "TextLines.h"

using namespace NXMEDIALIBRARY;

namespace {

constexpr int Patience = 60'000; // ms

/// A film, a GIF and a sound, shown as middle thumbnails; workers read them unless told otherwise.
struct DrawnPanel : PanelYard
{
    explicit DrawnPanel(Reading reading = Reading::Everything) : PanelYard(reading)
    {
        footage = dir.makeDir(QStringLiteral("footage"));
        add({copied("30.mov"), copied("many.gif"), copied("tone.wav")});
        items()->setViewMode(vmMiddleThumbnail);
        film = item(QStringLiteral("30.mov"));
        if (reading == Reading::Everything) {
            // A machine that stands still may have a file tried again later.
            QTRY_VERIFY_WITH_TIMEOUT(!film->thumbnailStripPath().isEmpty()
                                         && project->footageService()->isIdle(),
                                     Patience);
        }
    }

    PanelList *list() const { return panel->list(); }
    INxAbstractMediaItem *item(const QString &name) const
    {
        return dynamic_cast<INxAbstractMediaItem *>(media(name));
    }
    QModelIndex index(const QString &name) const
    {
        return list()->model()->index(panel->model()->rows(media(name)).value(0, -1), 0);
    }
    QRect rect(const QString &name) const { return list()->visualRect(index(name)); }
    QImage row(const QString &name) const { return list()->viewport()->grab(rect(name)).toImage(); }
    /// The number of the frame that a row shows; -1: none.
    int frame(const QString &name) const
    {
        const QRect cover = list()->mediaDelegate()->getItemPainter(index(name))->childRect(0);
        return NxNumberedFrames::read(row(name).copy(cover)).value_or(-1);
    }
    void moveTo(const QString &name) const
    {
        moveAway(); // A pointer that stands there already would not move.
        QTest::mouseMove(list()->viewport(), rect(name).center());
    }
    void moveAway() const
    {
        QTest::mouseMove(list()->viewport(), list()->viewport()->rect().bottomRight());
    }
    QString copied(const char *recipe) const
    {
        const NxFootageRecipe &one = NxFootageRecipes::named(QLatin1String(recipe));
        const QString to = footage + QLatin1Char('/') + one.name;
        return QFile::copy(NxFootageSet::path(one), to) ? to : QString();
    }

    QString footage;
    INxAbstractMediaItem *film = nullptr; // Not owned.
};

} // namespace

/// What users see and do on the rows themselves: real footage, real pictures, real events.
class tst_PanelFlows_drawing : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void rowsShowTheCoversOfTheirFootage();
    void aFilmPlaysUnderThePointer();
    void leavingTheRowBringsItsCoverBack();
    void aHoveredFilmThatIsRemovedStopsPlaying();
    void aHoveredFilmThatVanishesKeepsPlayingItsStrip();
    void aGifMovesByItself();
    void aPanelThatIsHiddenPaintsNothing();
    void aPanelWithoutGifsPaintsNothingByItself();
    void aGroupFoldsWhereItsArrowIsClicked();
    void clicksReachTheHostTwice();
    void aModalMaskKeepsClicksAway();
    void aNameIsEditedWhereItStands();
    void aMissingFileIsNeitherClickedNorDragged();
    void movingThePointerAsksNoDisk();
    void anotherSkinIsSeenAtOnce();
};

void tst_PanelFlows_drawing::rowsShowTheCoversOfTheirFootage()
{
    const DrawnPanel yard;
    QTRY_VERIFY_WITH_TIMEOUT(yard.frame(QStringLiteral("30.mov")) >= 0, Patience);
    const int cover = yard.frame(QStringLiteral("30.mov"));
    QVERIFY2(cover >= 11 && cover <= 13, qPrintable(QString::number(cover))); // A tenth of 120.
}

void tst_PanelFlows_drawing::aFilmPlaysUnderThePointer()
{
    const DrawnPanel yard;
    yard.moveTo(QStringLiteral("30.mov"));
    QVector<int> seen;
    const auto look = [&] {
        const int frame = yard.frame(QStringLiteral("30.mov"));
        if (frame >= 0 && (seen.isEmpty() || seen.last() != frame))
            seen.append(frame);
        return seen.size();
    };
    QTRY_VERIFY_WITH_TIMEOUT(look() >= 6, Patience);
    // Whatever stood there before it played, and the jump back to the beginning, go down once each.
    int falls = 0;
    for (int at = 1; at < seen.size(); ++at)
        falls += seen.at(at) < seen.at(at - 1) ? 1 : 0;
    QVERIFY(falls <= 2);
    QVERIFY(yard.list()->rowRepaints() > 0);
}

void tst_PanelFlows_drawing::leavingTheRowBringsItsCoverBack()
{
    const DrawnPanel yard;
    QTRY_VERIFY_WITH_TIMEOUT(yard.frame(QStringLiteral("30.mov")) >= 0, Patience);
    const int cover = yard.frame(QStringLiteral("30.mov"));
    yard.moveTo(QStringLiteral("30.mov"));
    QTRY_VERIFY_WITH_TIMEOUT(yard.frame(QStringLiteral("30.mov")) != cover, Patience);
    yard.moveAway();
    QTRY_COMPARE_WITH_TIMEOUT(yard.frame(QStringLiteral("30.mov")), cover, Patience);
    QVERIFY(!yard.list()->mediaDelegate()->previewFrameHelper()->getMedia());
}

void tst_PanelFlows_drawing::aHoveredFilmThatIsRemovedStopsPlaying()
{
    const DrawnPanel yard;
    yard.moveTo(QStringLiteral("30.mov"));
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->rowRepaints() > 2, Patience);
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    yard.click(QStringLiteral("30.mov"));
    yard.press(QKeySequence::Delete);
    QCOMPARE(yard.rows(), lines({"many.gif", "tone.wav"}));
    yard.list()->viewport()->grab();
    QSignalSpy steps(yard.list()->mediaDelegate(), &NxCustomDelegate::sigRepaint);
    yard.moveTo(QStringLiteral("tone.wav"));
    QVERIFY(yard.list()->mediaDelegate()->previewFrameHelper()->getMedia()
            == yard.media(QStringLiteral("tone.wav")));
    yard.list()->viewport()->grab();
}

void tst_PanelFlows_drawing::aHoveredFilmThatVanishesKeepsPlayingItsStrip()
{
    DrawnPanel yard;
    yard.moveTo(QStringLiteral("30.mov"));
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->rowRepaints() > 2, Patience);
    QVERIFY(QFile::remove(yard.footage + QStringLiteral("/30.mov")));
    QVERIFY(QFile::remove(yard.film->thumbnailStripPath()));
    yard.lookAtFiles(); // From here on the row is drawn as that of a missing file.
    const int before = yard.list()->rowRepaints();
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->rowRepaints() > before + 5, Patience);
    const INxPreviewFrameHelper *preview = yard.list()->mediaDelegate()->previewFrameHelper();
    QVERIFY(preview->getMedia() == yard.film);
    constexpr QRect firstFrame(0, 0, NxPictureFile::FrameWidth, NxPictureFile::FrameHeight);
    QVERIFY(NxNumberedFrames::read(preview->getPlayThumbnail().copy(firstFrame)).has_value());
}

void tst_PanelFlows_drawing::aGifMovesByItself()
{
    const DrawnPanel yard;
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->paints() > 3, Patience);
    QSet<int> seen;
    const auto look = [&] {
        seen.insert(yard.frame(QStringLiteral("many.gif")));
        return seen.size();
    };
    QTRY_VERIFY_WITH_TIMEOUT(look() >= 4, Patience);
}

void tst_PanelFlows_drawing::aPanelThatIsHiddenPaintsNothing()
{
    const DrawnPanel yard;
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->paints() > 3, Patience);
    yard.panel->hide();
    QSignalSpy ticks(NxGifPreviewHelper::getInstance(), &NxGifPreviewHelper::sigUpdate);
    const int before = yard.list()->paints();
    QVERIFY(!ticks.wait(300));
    QCOMPARE(yard.list()->paints(), before);
    yard.panel->show();
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->paints() > before + 3, Patience);
}

void tst_PanelFlows_drawing::aPanelWithoutGifsPaintsNothingByItself()
{
    const DrawnPanel yard;
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->paints() > 3, Patience);
    INxFolderMedia *empty = yard.addFolder(QStringLiteral("Empty"));
    yard.pick(empty);
    QSignalSpy ticks(NxGifPreviewHelper::getInstance(), &NxGifPreviewHelper::sigUpdate);
    QVERIFY(ticks.wait(Patience)); // Rows that went are asked for once more, in vain.
    const int before = yard.list()->paints();
    for (int tick = 0; tick < 5; ++tick)
        QVERIFY(ticks.wait(Patience));
    QCOMPARE(yard.list()->paints(), before);
}

void tst_PanelFlows_drawing::aGroupFoldsWhereItsArrowIsClicked()
{
    const DrawnPanel yard;
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    const auto headerOf = [&](const char *title) {
        for (int row = 0; row < yard.panel->model()->rowCount(); ++row) {
            const INxAbstractMedia *media = yard.panel->model()->mediaItem(row);
            if (media->name() == QLatin1String(title))
                return yard.list()->visualRect(yard.panel->model()->index(row, 0));
        }
        return QRect();
    };
    const auto clickAt = [&](int x) {
        const QRect header = headerOf("Audio");
        QTest::mouseClick(yard.list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          {header.left() + x, header.center().y()});
    };
    QVERIFY(headerOf("Audio").isValid());
    const QStringList all = yard.rows();
    constexpr int arrow = 4; // px
    constexpr int title = 60; // px
    clickAt(title);
    QCOMPARE(yard.rows(), all);
    clickAt(arrow);
    QCOMPARE(yard.rows(), lines({"30.mov", "many.gif"}));
    clickAt(arrow);
    QCOMPARE(yard.rows(), all);
}

void tst_PanelFlows_drawing::clicksReachTheHostTwice()
{
    const DrawnPanel yard;
    QSignalSpy events(yard.list()->mediaDelegate(), &NxMediaItemDelegate::sigMediaItemEvent);
    yard.click(QStringLiteral("tone.wav"));
    QCOMPARE(events.size(), 2);
    const auto condition = [&](int at) {
        return events.at(at).at(1).value<NxMediaItemEventCondition>();
    };
    QCOMPARE(events.at(0).at(0).toInt(), int(mueNone));
    QCOMPARE(condition(0), mecPress);
    QCOMPARE(condition(1), mecRelease);
    QCOMPARE(yard.selection(), lines({"tone.wav"}));
}

void tst_PanelFlows_drawing::aModalMaskKeepsClicksAway()
{
    const DrawnPanel yard;
    QSignalSpy events(yard.list()->mediaDelegate(), &NxMediaItemDelegate::sigMediaItemEvent);
    {
        const NxMaskScope mask(nullptr);
        yard.click(QStringLiteral("tone.wav"));
        QCOMPARE(events.size(), 0);
    }
    yard.click(QStringLiteral("tone.wav"));
    QCOMPARE(events.size(), 2);
}

void tst_PanelFlows_drawing::aNameIsEditedWhereItStands()
{
    DrawnPanel yard(PanelYard::Reading::Nothing); // News of the file would end the editing.
    yard.click(QStringLiteral("tone.wav"));
    yard.press(Qt::Key_F2);
    auto *editor = yard.list()->findChild<QLineEdit *>(QStringLiteral("NxEditItem_LineEdit"));
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("tone.wav"));
    QVERIFY(yard.rect(QStringLiteral("tone.wav")).contains(editor->geometry().center()));
    yard.enter(QStringLiteral("Tone.wav"));
    QTRY_COMPARE(yard.rows(), lines({"30.mov", "many.gif", "Tone.wav"}));
    QVERIFY(QFile::exists(yard.footage + QStringLiteral("/tone.wav")));
}

void tst_PanelFlows_drawing::aMissingFileIsNeitherClickedNorDragged()
{
    DrawnPanel yard;
    QSignalSpy events(yard.list()->mediaDelegate(), &NxMediaItemDelegate::sigMediaItemEvent);
    QSignalSpy drags(yard.list(), &PanelList::draggedOut);
    const auto drag = [&] {
        QWidget *viewport = yard.list()->viewport();
        const QPoint from = yard.rect(QStringLiteral("tone.wav")).center();
        QTest::mousePress(viewport, Qt::LeftButton, Qt::NoModifier, from);
        for (const int way : {12, 30}) {
            QMouseEvent move(QEvent::MouseMove, from + QPoint(0, way), Qt::NoButton, Qt::LeftButton,
                             Qt::NoModifier);
            QApplication::sendEvent(viewport, &move);
        }
        QTest::mouseRelease(viewport, Qt::LeftButton, Qt::NoModifier, from + QPoint(0, 30));
    };
    yard.click(QStringLiteral("tone.wav"));
    drag();
    QCOMPARE(drags.size(), 1);
    using Medias = QList<INxAbstractMedia *>;
    QCOMPARE(drags.at(0).at(0).value<Medias>(), Medias{yard.media(QStringLiteral("tone.wav"))});

    QVERIFY(QFile::remove(yard.footage + QStringLiteral("/tone.wav")));
    yard.lookAtFiles();
    events.clear();
    yard.click(QStringLiteral("tone.wav"));
    drag();
    QCOMPARE(drags.size(), 1);
    QCOMPARE(events.size(), 0);
}

void tst_PanelFlows_drawing::movingThePointerAsksNoDisk()
{
    const DrawnPanel yard;
    QTRY_VERIFY_WITH_TIMEOUT(yard.frame(QStringLiteral("30.mov")) >= 0, Patience);
    const NxDiskBan ban;
    for (int round = 0; round < 3; ++round) {
        for (const QString &name : lines({"30.mov", "many.gif", "tone.wav"})) {
            yard.moveTo(name);
            yard.list()->viewport()->grab();
        }
        yard.moveAway();
    }
    yard.moveTo(QStringLiteral("30.mov"));
    QTRY_VERIFY_WITH_TIMEOUT(yard.list()->rowRepaints() > 5, Patience);
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_PanelFlows_drawing::anotherSkinIsSeenAtOnce()
{
    const DrawnPanel yard;
    const QImage dark = yard.row(QStringLiteral("tone.wav"));
    NxSkinStyle::instance()->setSkin(NxSkin::Light);
    const QImage light = yard.row(QStringLiteral("tone.wav"));
    NxSkinStyle::instance()->setSkin(NxSkin::Dark);
    QVERIFY(dark != light);
    QCOMPARE(yard.row(QStringLiteral("tone.wav")), dark);
}

NX_TEST_MAIN_WIDGETS(tst_PanelFlows_drawing)
#include "tst_PanelFlows_drawing.moc"
