// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxCustomProductInfo.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxAudioSyncService.h>
#include <NxVBLModel/NxTimelineAudioSynMessage.h>
#include <NxWidgets/NxWidgetView.h>

#include <NxWidgets/DialogUser.h>
#include <NxWidgets/FileDialogUser.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QCheckBox>
#include <QLabel>
#include <QTextEdit>

#include <algorithm>
#include <memory>

#include "FlowStand.h"
#include "ScriptedFolders.h"
#include "ScriptedScene.h"

using namespace NXVBLMODEL;

namespace {

struct AudioSync final : INxAudioSyncService
{
    qint64 minLength() const override { return 1000; }
    qint64 maxLength() const override { return 10000; }
};

/// Presenters with a view on the screen, and whatever their questions are about: A is a video, S a
/// sound.
struct Stage : FlowStand
{
    Stage()
    {
        presenter->setView(view.get());
        NxPresenter::registerScene(&scene);
        scene.look = [this](NxMessage *message) {
            const auto *sync = dynamic_cast<NxTimelineAudioSynMessage *>(message);
            journal.append(sync ? QStringLiteral("sent %1").arg(sync->muteChoice) : QString());
        };
        engine.audioSync = &audioSync;
        folders.calls = &journal;
        plant(folders.root.get(), QStringLiteral("Trips"));
    }
    ~Stage()
    {
        NxPresenter::registerScene(nullptr);
        closeView();
    }
    void closeView()
    {
        if (presenter)
            presenter->setView(nullptr);
        view.reset();
    }
    FlowItem *addLong(const char *called, int mediaType, int infoKind, qint64 frames)
    {
        FlowItem *item = add(called, mediaType);
        item->facts.k = infoKind;
        item->facts.frames = frames;
        item->facts.rate = {25, 1};
        item->facts.length = frames;
        return item;
    }
    void removeA() { presenter->removeMediaItems(folder, list("A")); }

    /// What came of it, in a few words; empty when nothing did.
    QString outcome()
    {
        QStringList parts;
        for (const QString &line : takeJournal()) {
            const bool isRemoval = line.contains(QLatin1String(" is emptied of A"))
                                   || line == QLatin1String("remove Trips");
            if (isRemoval)
                parts += QStringLiteral("removed");
            if (line.startsWith(QLatin1String("sent")) || line.contains(QLatin1String(" takes ")))
                parts += line;
        }
        if (filesAskedFor > 0)
            parts += QStringLiteral("asked for a file");
        if (!NxConfig::Instance()->getMediaDeleteConfirm())
            parts += QStringLiteral("asks no more");
        return parts.join(QLatin1String(", "));
    }

    std::unique_ptr<NxWidgetView> view = std::make_unique<NxWidgetView>();
    ScriptedScene scene;
    AudioSync audioSync;
    ScriptedFolderManager folders;
    NxFolderMediaManagerPresenter folderPresenter{&folders, nullptr};
    const NxTempDir dir;
    QString chosenFile; ///< What the user chooses where a file is asked for; empty: none.
    int filesAskedFor = 0;
};

/// Something the user does that brings up a dialog.
struct Flow
{
    const char *name;
    void (*begin)(Stage *stage);

    // How the dialog looks
    int style;
    const char *title; // Empty: the product's name.
    const char *text;
    const char *detail;
    const char *buttons; // From left to right, by code.
    const char *captions;
    const char *checkBox;
    int defaultButton;
    bool isAboveTheView;

    // What comes of the answers
    int escapeButton;
    const char *yes;
    const char *no;
    const char *closed;
};

} // namespace

Q_DECLARE_METATYPE(const Flow *)
Q_DECLARE_METATYPE(DialogUser::Deed)

namespace {

void useA(Stage *stage)
{
    stage->add("A");
    stage->project->addTimeline(QStringLiteral("film"))
        ->add(QStringLiteral("clip"), QStringLiteral("id-A"));
    stage->removeA();
}

void relinkToALongerFile(Stage *stage)
{
    stage->addLong("A", mtVideo, mikVideo, 100);
    stage->chosenFile = stage->dir.write(QStringLiteral("longer.mp4"));
    stage->manager->lengths.insert(stage->chosenFile, 102);
    stage->presenter->relinkMedia(stage->list("A"));
    stage->filesAskedFor = 0; // Before the dialog that this is about.
}

void measureAFullDisk(Stage *stage)
{
    stage->add("A");
    stage->proxies.fits = false;
    stage->proxies.needed = 2048;
    stage->proxies.remaining = 512;
    if (stage->presenter->checkFreeSpaceForProxy(stage->list("A")))
        stage->journal.append(QStringLiteral("sent to a full disk"));
}

void syncSoundAndPictures(Stage *stage)
{
    stage->addLong("A", mtVideoAudio, mikVideo, 100);
    stage->addLong("S", mtAudio, mikAudio, 100);
    stage->presenter->startAudioSyn(stage->list("A S"));
}

void syncTooShortMedia(Stage *stage)
{
    stage->addLong("A", mtVideoAudio, mikVideo, 24);
    stage->addLong("S", mtAudio, mikAudio, 100);
    stage->presenter->startAudioSyn(stage->list("A S"));
}

const Flow Flows[] = {
    {"stock media are removed",
     [](Stage *stage) {
         stage->add<FlowStockItem>("A");
         stage->removeA();
     },
     mdsDelete, "", "Are you sure you want to delete the selected matter?",
     "Deleting the file will affect the used project. You can retrieve it by downloading the "
     "record",
     "2 3", "Yes No", "", mdbAffirmative, true, mdbNegative, "removed", "", ""},
    {"used media are removed", useA, mdsQuestion, "",
     "One or more of your selected clips have been added to the timeline. Deleting them from the "
     "library will also delete them from the timeline.",
     "", "2 3", "Yes No", "", mdbAffirmative, true, mdbNegative, "removed", "", ""},
    {"a project template is removed",
     [](Stage *stage) {
         stage->add("A", mtProjectTemplate);
         stage->removeA();
     },
     mdsDelete, "", "Are you sure you want to delete the custom project template item \"A?\"", "",
     "2 3", "Yes No", "", mdbAffirmative, true, mdbNegative, "removed", "", ""},
    {"media are removed",
     [](Stage *stage) {
         stage->add("A");
         stage->removeA();
     },
     mdsDelete, "", "Are you sure you want to delete the selected item?", "", "2 3", "Yes No",
     "Stop asking for now.", mdbAffirmative, true, mdbNegative, "removed", "", ""},
    {"a folder is removed",
     [](Stage *stage) { stage->folderPresenter.removeFolder(stage->folders.root->child(0)); },
     mdsQuestion, "Alert", "Are you sure you want to delete the selected folder(Trips)?", "", "2 3",
     "Yes No", "", mdbAffirmative, false, mdbNegative, "removed", "", ""},
    {"files are missing",
     [](Stage *stage) {
         stage->add("A");
         stage->presenter->dealWithMissingFiles(stage->list("A"));
     },
     mdsQuestion, "",
     "Unable to locate file. Click 'RELOCATE' to try importing the file again, 'DELETE' to delete "
     "it, or 'IGNORE' to abort this operation.",
     "", "2 3 4", "RELOCATE DELETE IGNORE", "", mdbAffirmative, true, mdbClosed, "asked for a file",
     "removed", ""},
    {"a file of another length is chosen", relinkToALongerFile, mdsMessage, "",
     "The selected file's duration is different from the clip you used in project and may cause "
     "issues, please reselect another file with the same duration.",
     "", "2", "OK", "", mdbAffirmative, true, mdbClosed, "", "", ""},
    {"proxies do not fit on their disk", measureAFullDisk, mdsMessage, "",
     "There is not enough space in the specified output directory, please choose another one.\n"
     "Dise Space needed :2048 MB, remaining:512 MB.",
     "", "2", "OK", "", mdbAffirmative, true, mdbClosed, "", "", ""},
    {"sound and pictures are aligned", syncSoundAndPictures, mdsQuestion, "",
     "After the audio and video are synced, the audio and video will be added to the timeline "
     "simultaneously. Do you want to mute the original audio within the video file automatically?",
     "", "2 3", "Yes No", "", mdbAffirmative, true, mdbClosed, "sent 1", "sent 2", ""},
    {"media cannot be aligned", syncTooShortMedia, mdsMessage, "Auto Synchronization",
     "The selected clips cannot be synchronized, please reselect the clips.", "", "2", "OK", "",
     mdbAffirmative, true, mdbClosed, "", "", ""},
};

QString text(const char *latin)
{
    return QString::fromLatin1(latin);
}

QString outcomeOf(const Flow &flow, int button)
{
    if (button == mdbClosed)
        return text(flow.closed);
    return text(button == mdbAffirmative ? flow.yes : flow.no);
}

QList<int> buttonsOf(const Flow &flow)
{
    QList<int> codes;
    const QStringList words = text(flow.buttons).split(QLatin1Char(' '));
    for (const QString &word : words)
        codes += word.toInt();
    return codes;
}

/// Begins a flow whose dialog is answered by the deed.
QString outcome(Stage *stage, const Flow &flow, const DialogUser::Deed &deed)
{
    const DialogUser user(deed);
    const FileDialogUser chooser([stage](QFileDialog &dialog) {
        ++stage->filesAskedFor;
        if (stage->chosenFile.isEmpty())
            dialog.close();
        else
            FileDialogUser::choose(dialog, stage->chosenFile);
    });
    flow.begin(stage);
    return user.dialogs() == 1 ? stage->outcome()
                               : QStringLiteral("%1 dialogs").arg(user.dialogs());
}

QString shownText(const NMessageDialog &dialog, const char *name)
{
    const auto *edit = dialog.findChild<QTextEdit *>(QLatin1String(name));
    return edit ? edit->toPlainText() : QString();
}

QImage icon(const NMessageDialog &dialog)
{
    const auto *label = dialog.findChild<QLabel *>(QStringLiteral("icon"));
    return label->pixmap(Qt::ReturnByValue).toImage();
}

QImage iconOfStyle(int style)
{
    NMessageDialogInfo info;
    info.style = style;
    NMessageDialog dialog(nullptr);
    dialog.Init(info);
    return icon(dialog);
}

QString captionsOnScreen(const NMessageDialog &dialog)
{
    QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QWidget *a, const QWidget *b) { return a->x() < b->x(); });
    QStringList captions;
    for (const QPushButton *button : qAsConst(buttons))
        captions += button->text();
    return captions.join(QLatin1Char(' '));
}

void check(const NMessageDialog &dialog)
{
    auto *box = dialog.findChild<QCheckBox *>(QStringLiteral("checkBox"));
    QVERIFY(box);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

void addFlowsAboveTheView()
{
    QTest::addColumn<const Flow *>("flow");
    for (const Flow &flow : Flows) {
        if (flow.isAboveTheView)
            QTest::newRow(flow.name) << &flow;
    }
}

} // namespace

/// The dialogs of the panel as they come up on the screen, answered by a user.
class tst_PresenterDialogs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void showsWhatItIsAbout_data();
    void showsWhatItIsAbout();
    void doesWhatTheUserSays_data();
    void doesWhatTheUserSays();
    void closesWithItsView_data();
    void closesWithItsView();
    void doesNothingForADeadPresenter_data();
    void doesNothingForADeadPresenter();
    void asksNoMoreWhenTheBoxIsChecked_data();
    void asksNoMoreWhenTheBoxIsChecked();
};

void tst_PresenterDialogs::showsWhatItIsAbout_data()
{
    QTest::addColumn<const Flow *>("flow");
    for (const Flow &flow : Flows)
        QTest::newRow(flow.name) << &flow;
}

void tst_PresenterDialogs::showsWhatItIsAbout()
{
    QFETCH(const Flow *, flow);
    Stage stage;
    const QString title = text(flow->title);
    outcome(&stage, *flow, [&](NMessageDialog &dialog) {
        QCOMPARE(dialog.windowTitle(),
                 title.isEmpty() ? NxCustomProductInfo::NGetProductName() : title);
        QCOMPARE(shownText(dialog, "text"), text(flow->text));
        QCOMPARE(shownText(dialog, "detail"), text(flow->detail));
        QCOMPARE(captionsOnScreen(dialog), text(flow->captions));
        const QPushButton *preset = DialogUser::button(dialog, flow->defaultButton);
        QVERIFY(preset->isDefault());
        QVERIFY(preset->hasFocus());
        const auto *box = dialog.findChild<QCheckBox *>(QStringLiteral("checkBox"));
        QCOMPARE(box ? box->text() : QString(), text(flow->checkBox));
        QVERIFY(!dialog.isCheckBoxChecked());
        QCOMPARE(icon(dialog), iconOfStyle(flow->style));
        QCOMPARE(dialog.parentWidget(), flow->isAboveTheView ? stage.view->widget() : nullptr);
        dialog.close();
    });
}

void tst_PresenterDialogs::doesWhatTheUserSays_data()
{
    QTest::addColumn<const Flow *>("flow");
    QTest::addColumn<DialogUser::Deed>("deed");
    QTest::addColumn<QString>("then");
    for (const Flow &flow : Flows) {
        const auto row = [&flow](const QString &name, const DialogUser::Deed &deed, int button) {
            QTest::addRow("%s: %s", flow.name, qPrintable(name))
                << &flow << deed << outcomeOf(flow, button);
        };
        const QStringList captions = text(flow.captions).split(QLatin1Char(' '));
        const QList<int> buttons = buttonsOf(flow);
        for (int i = 0; i < buttons.size(); ++i)
            row(captions.at(i), DialogUser::clicking(buttons.at(i)), buttons.at(i));
        row(text("Return"), DialogUser::typing({Qt::Key_Return}), flow.defaultButton);
        row(text("Escape"), DialogUser::typing({Qt::Key_Escape}), flow.escapeButton);
        row(
            text("closed"), [](NMessageDialog &dialog) { dialog.close(); }, flow.escapeButton);
    }
}

void tst_PresenterDialogs::doesWhatTheUserSays()
{
    QFETCH(const Flow *, flow);
    QFETCH(DialogUser::Deed, deed);
    QFETCH(QString, then);
    Stage stage;
    QCOMPARE(outcome(&stage, *flow, deed), then);
}

void tst_PresenterDialogs::closesWithItsView_data()
{
    addFlowsAboveTheView();
}

void tst_PresenterDialogs::closesWithItsView()
{
    QFETCH(const Flow *, flow);
    Stage stage;
    const auto deed = [&stage](const NMessageDialog &) { stage.closeView(); };
    QCOMPARE(outcome(&stage, *flow, deed), outcomeOf(*flow, flow->escapeButton));
}

void tst_PresenterDialogs::doesNothingForADeadPresenter_data()
{
    addFlowsAboveTheView();
}

void tst_PresenterDialogs::doesNothingForADeadPresenter()
{
    QFETCH(const Flow *, flow);
    Stage stage;
    const auto deed = [&stage](NMessageDialog &dialog) {
        stage.presenter.reset();
        DialogUser::clicking(mdbAffirmative)(dialog);
    };
    QCOMPARE(outcome(&stage, *flow, deed), QString());
}

void tst_PresenterDialogs::asksNoMoreWhenTheBoxIsChecked_data()
{
    QTest::addColumn<DialogUser::Deed>("deed");
    QTest::addColumn<QString>("then");
    const auto row = [](const char *name, const DialogUser::Deed &deed, const char *then) {
        QTest::newRow(name) << deed << text(then);
    };
    row("Yes", DialogUser::clicking(mdbAffirmative), "removed, asks no more");
    row("No", DialogUser::clicking(mdbNegative), "asks no more");
    row("Return", DialogUser::typing({Qt::Key_Return}), "removed, asks no more");
    row("Escape", DialogUser::typing({Qt::Key_Escape}), "asks no more");
    row(
        "closed", [](NMessageDialog &dialog) { dialog.close(); }, "asks no more");
    row(
        "unchecked again, No",
        [](NMessageDialog &dialog) {
            check(dialog);
            DialogUser::clicking(mdbNegative)(dialog);
        },
        "");
}

void tst_PresenterDialogs::asksNoMoreWhenTheBoxIsChecked()
{
    QFETCH(DialogUser::Deed, deed);
    QFETCH(QString, then);
    const auto *const ordinary = std::find_if(std::begin(Flows), std::end(Flows),
                                              [](const Flow &flow) { return *flow.checkBox; });
    Stage stage;
    const QString came = outcome(&stage, *ordinary, [&deed](NMessageDialog &dialog) {
        check(dialog);
        deed(dialog);
    });
    QCOMPARE(came, then);
}

NX_TEST_MAIN_WIDGETS(tst_PresenterDialogs)
#include "tst_PresenterDialogs.moc"
