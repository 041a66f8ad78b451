// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NMessageDialog.h>

#include "DialogUser.h"

#include <NxWidgets/NMaskManager.h>
#include <Support/NxTestMain.h>

#include <QCheckBox>
#include <QTextEdit>

#include <memory>

using Keys = QList<QKeySequence>;

namespace {

NMessageDialogInfo yesOrNo()
{
    NMessageDialogInfo info;
    info.text = QStringLiteral("Are you sure you want to delete the selected item?");
    info.buttons = {mdbAffirmative, mdbNegative};
    info.escapeButton = mdbNegative;
    return info;
}

NMessageDialogInfo threeWays()
{
    NMessageDialogInfo info;
    info.text = QStringLiteral("Unable to locate file.");
    info.buttons = {mdbAffirmative, mdbNegative, mdbClosed};
    info.captions = {{mdbAffirmative, QStringLiteral("RELOCATE")},
                     {mdbNegative, QStringLiteral("DELETE")},
                     {mdbClosed, QStringLiteral("IGNORE")}};
    return info;
}

int answer(const NMessageDialogInfo &info, const DialogUser::Deed &deed)
{
    const DialogUser user(deed);
    NMessageDialog dialog(nullptr);
    dialog.Init(info);
    return dialog.ShowModel();
}

/// A window with a widget in it, one in another.
struct Window
{
    Window()
    {
        box->setGeometry(0, 0, 50, 50);
        window->resize(300, 200);
        window->show();
    }
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QWidget *box = new QWidget(window.get());
    QWidget *view = new QWidget(box);
};

} // namespace

class tst_NMessageDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersTheButtonThatTheMousePresses_data();
    void answersTheButtonThatTheMousePresses();
    void answersTheKeyboard_data();
    void answersTheKeyboard();
    void lettersForAltAreShared_data();
    void lettersForAltAreShared();
    void answersTheEscapeButtonWhenItIsClosed_data();
    void answersTheEscapeButtonWhenItIsClosed();
    void keysWorkWhileTextIsSelected_data();
    void keysWorkWhileTextIsSelected();
    void tellsWhatTheCheckBoxSays_data();
    void tellsWhatTheCheckBoxSays();
    void anotherMessageReplacesTheFirst();
    void canBeShownAgain();
    void windowsAreMaskedWhileItWaits();
    void survivesItsParent_data();
    void survivesItsParent();
    void canBeShownAfterItsParentDied();
    void mayBeDeletedWhileItWaits();
    void asksForAnAnswer_data();
    void asksForAnAnswer();
    void asksAboveItsParent();
    void answersAsClosedWhenItsParentDies();
    void asksYesOrNo_data();
    void asksYesOrNo();
    void tellsWithASingleButton_data();
    void tellsWithASingleButton();
};

void tst_NMessageDialog::answersTheButtonThatTheMousePresses_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("affirmative") << int(mdbAffirmative);
    QTest::newRow("negative") << int(mdbNegative);
    QTest::newRow("ignore") << int(mdbClosed);
    QTest::newRow("a code of the dialog's own") << 77;
}

void tst_NMessageDialog::answersTheButtonThatTheMousePresses()
{
    QFETCH(int, code);
    NMessageDialogInfo info = threeWays();
    info.buttons += 77;
    info.escapeButton = 99;
    QCOMPARE(answer(info, DialogUser::clicking(code)), code);
}

void tst_NMessageDialog::answersTheKeyboard_data()
{
    QTest::addColumn<int>("defaultButton");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<int>("code");
    const auto row = [](const char *name, int defaultButton, const Keys &keys, int code) {
        QTest::newRow(name) << defaultButton << keys << code;
    };
    const int missing = 50;
    row("Return presses the default", mdbAffirmative, {Qt::Key_Return}, mdbAffirmative);
    row("Enter presses the default", mdbAffirmative, {Qt::Key_Enter}, mdbAffirmative);
    row("Return presses another default", mdbNegative, {Qt::Key_Return}, mdbNegative);
    row("Space presses the default", mdbNegative, {Qt::Key_Space}, mdbNegative);
    row("Return presses the first without a default", missing, {Qt::Key_Return}, mdbAffirmative);
    row("Tab goes on", mdbAffirmative, {Qt::Key_Tab, Qt::Key_Return}, mdbNegative);
    row("Escape", mdbAffirmative, {Qt::Key_Escape}, 99);
    row("Alt and a letter", mdbAffirmative, {Qt::ALT + Qt::Key_D}, mdbNegative);
    row("Return on the check box", mdbClosed,
        {Qt::ALT + Qt::Key_S, Qt::SHIFT + Qt::Key_Tab, Qt::Key_Return}, mdbClosed);
}

void tst_NMessageDialog::answersTheKeyboard()
{
    QFETCH(int, defaultButton);
    QFETCH(Keys, keys);
    QFETCH(int, code);
    NMessageDialogInfo info = threeWays();
    info.checkBoxText = QStringLiteral("Stop asking");
    info.defaultButton = defaultButton;
    info.escapeButton = 99;
    QCOMPARE(answer(info, DialogUser::typing(keys)), code);
}

void tst_NMessageDialog::lettersForAltAreShared_data()
{
    QTest::addColumn<QString>("captions");
    QTest::addColumn<QString>("letters");
    const auto row = [](const char *name, const char *captions, const char *letters) {
        QTest::newRow(name) << QString::fromUtf8(captions) << QString::fromUtf8(letters);
    };
    row("first letters", "Yes|No", "Alt+Y|Alt+N");
    row("the next letter when the first is taken", "Delete|Discard", "Alt+D|Alt+I");
    row("marked letters come first", "Delete|&Discard", "Alt+E|Alt+D");
    row("only letters and figures", "... 7|No", "Alt+7|Alt+N");
    row("none left", "A|a", "Alt+A|");
    row("other scripts", "Да|Нет", "Alt+Д|Alt+Н");
}

void tst_NMessageDialog::lettersForAltAreShared()
{
    QFETCH(QString, captions);
    QFETCH(QString, letters);
    NMessageDialogInfo info = yesOrNo();
    info.captions = {{mdbAffirmative, captions.section(QLatin1Char('|'), 0, 0)},
                     {mdbNegative, captions.section(QLatin1Char('|'), 1)}};
    NMessageDialog dialog(nullptr);
    dialog.Init(info);
    QStringList given;
    for (const int code : qAsConst(info.buttons))
        given += DialogUser::button(dialog, code)->shortcut().toString(QKeySequence::PortableText);
    QCOMPARE(given.join(QLatin1Char('|')), letters);
}

void tst_NMessageDialog::answersTheEscapeButtonWhenItIsClosed_data()
{
    QTest::addColumn<int>("escapeButton");
    QTest::newRow("negative") << int(mdbNegative);
    QTest::newRow("closed") << int(mdbClosed);
    QTest::newRow("not told") << int(NMessageDialogInfo().escapeButton);
}

void tst_NMessageDialog::answersTheEscapeButtonWhenItIsClosed()
{
    QFETCH(int, escapeButton);
    NMessageDialogInfo info = yesOrNo();
    info.escapeButton = escapeButton;
    QCOMPARE(answer(info, [](QWidget &dialog) { dialog.close(); }), escapeButton);
    QCOMPARE(answer(info, [](QWidget &dialog) { dialog.hide(); }), escapeButton);
    QCOMPARE(answer(info, DialogUser::typing({Qt::Key_Escape})), escapeButton);
    QCOMPARE(NMessageDialogInfo().escapeButton, int(mdbClosed));
}

void tst_NMessageDialog::keysWorkWhileTextIsSelected_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("code");
    QTest::newRow("Return") << int(Qt::Key_Return) << int(mdbAffirmative);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << int(mdbNegative);
}

void tst_NMessageDialog::keysWorkWhileTextIsSelected()
{
    QFETCH(int, key);
    QFETCH(int, code);
    const auto deed = [key](const NMessageDialog &dialog) {
        auto *text = dialog.findChild<QTextEdit *>(QStringLiteral("text"));
        QTest::mouseDClick(text->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QVERIFY(text->hasFocus());
        QCOMPARE(text->textCursor().selectedText(), QStringLiteral("Are"));
        QTest::keyClick(text, Qt::Key(key));
    };
    QCOMPARE(answer(yesOrNo(), deed), code);
}

void tst_NMessageDialog::tellsWhatTheCheckBoxSays_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<int>("code");
    QTest::newRow("unchecked, Yes") << false << int(mdbAffirmative);
    QTest::newRow("unchecked, No") << false << int(mdbNegative);
    QTest::newRow("checked, Yes") << true << int(mdbAffirmative);
    QTest::newRow("checked, No") << true << int(mdbNegative);
}

void tst_NMessageDialog::tellsWhatTheCheckBoxSays()
{
    QFETCH(bool, isChecked);
    QFETCH(int, code);
    NMessageDialogInfo info = yesOrNo();
    info.checkBoxText = QStringLiteral("Stop asking for now.");
    info.isCheckBoxChecked = isChecked;
    NMessageDialog dialog(nullptr);
    dialog.Init(info);
    QCOMPARE(dialog.isCheckBoxChecked(), isChecked);
    const DialogUser user([code](NMessageDialog &shown) {
        auto *box = shown.findChild<QCheckBox *>(QStringLiteral("checkBox"));
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        DialogUser::clicking(code)(shown);
    });
    QCOMPARE(dialog.ShowModel(), code);
    QCOMPARE(dialog.isCheckBoxChecked(), !isChecked);
}

void tst_NMessageDialog::anotherMessageReplacesTheFirst()
{
    NMessageDialogInfo info = threeWays();
    info.detail = QStringLiteral("It may have been moved.");
    info.checkBoxText = QStringLiteral("Stop asking for now.");
    info.isCheckBoxChecked = true;
    info.escapeButton = 99;
    NMessageDialog dialog(nullptr);
    dialog.Init(info);
    dialog.Init(yesOrNo());
    QVERIFY(!dialog.isCheckBoxChecked());
    QCOMPARE(dialog.findChildren<QPushButton *>().size(), 2);
    QCOMPARE(dialog.findChildren<QTextEdit *>().size(), 1);
    const DialogUser user(DialogUser::typing({Qt::Key_Escape}));
    QCOMPARE(dialog.ShowModel(), int(mdbNegative));
}

void tst_NMessageDialog::canBeShownAgain()
{
    NMessageDialog dialog(nullptr);
    dialog.Init(yesOrNo());
    {
        const DialogUser user(DialogUser::clicking(mdbAffirmative));
        QCOMPARE(dialog.ShowModel(), int(mdbAffirmative));
    }
    const DialogUser user([](QWidget &shown) { shown.close(); });
    QCOMPARE(dialog.ShowModel(), int(mdbNegative));
}

void tst_NMessageDialog::windowsAreMaskedWhileItWaits()
{
    const Window window;
    const auto lightness = [](QWidget *grabbed) {
        return grabbed->grab().toImage().pixelColor(1, 1).lightness();
    };
    const int before = lightness(window.window.get());
    const DialogUser user([&](NMessageDialog &dialog) {
        QVERIFY(NMaskManager::GetInstance()->IsMaskVisible());
        QVERIFY(lightness(window.window.get()) < before);
        QCOMPARE(lightness(&dialog), before);
        dialog.close();
    });
    QVERIFY(!NMessageDialog::Question_YesNo(window.view, {}, QStringLiteral("Go?")));
    QVERIFY(!NMaskManager::GetInstance()->IsMaskVisible());
    QCOMPARE(lightness(window.window.get()), before);
}

void tst_NMessageDialog::survivesItsParent_data()
{
    QTest::addColumn<int>("generations");
    QTest::newRow("the parent dies") << 0;
    QTest::newRow("the parent's parent dies") << 1;
    QTest::newRow("the window dies") << 2;
}

void tst_NMessageDialog::survivesItsParent()
{
    QFETCH(int, generations);
    Window window;
    NMessageDialog dialog(window.view);
    NMessageDialogInfo info = yesOrNo();
    info.escapeButton = 99;
    info.checkBoxText = QStringLiteral("Stop asking for now.");
    info.isCheckBoxChecked = true;
    dialog.Init(info);
    QCOMPARE(dialog.parentWidget(), window.view);
    const DialogUser user([&](NMessageDialog &) {
        if (generations == 2)
            window.window.reset();
        else
            delete (generations == 1 ? window.box : window.view);
    });
    QCOMPARE(dialog.ShowModel(), 99);
    QVERIFY(!dialog.parentWidget());
    QVERIFY(dialog.isCheckBoxChecked());
    QVERIFY(!NMaskManager::GetInstance()->IsMaskVisible());
}

void tst_NMessageDialog::canBeShownAfterItsParentDied()
{
    Window window;
    NMessageDialog dialog(window.view);
    dialog.Init(yesOrNo());
    window.window.reset();
    const DialogUser user(DialogUser::clicking(mdbAffirmative));
    QCOMPARE(dialog.ShowModel(), int(mdbAffirmative));
    QVERIFY(dialog.isWindow());
}

void tst_NMessageDialog::mayBeDeletedWhileItWaits()
{
    auto *dialog = new NMessageDialog(nullptr);
    dialog->Init(yesOrNo());
    const DialogUser user([](NMessageDialog &shown) { delete &shown; });
    QCOMPARE(dialog->ShowModel(), int(mdbNegative));
    QVERIFY(!NMaskManager::GetInstance()->IsMaskVisible());
}

void tst_NMessageDialog::asksForAnAnswer_data()
{
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<bool>("checks");
    QTest::addColumn<int>("code");
    const auto row = [](const char *name, const Keys &keys, int code) {
        const QByteArray checked = QByteArray(name) + ", checked";
        QTest::newRow(name) << keys << false << code;
        QTest::newRow(checked.constData()) << keys << true << code;
    };
    row("RELOCATE", {Qt::ALT + Qt::Key_R}, mdbAffirmative);
    row("DELETE", {Qt::ALT + Qt::Key_D}, mdbNegative);
    row("IGNORE", {Qt::ALT + Qt::Key_I}, mdbClosed);
    row("Return", {Qt::Key_Return}, mdbNegative);
    row("Escape", {Qt::Key_Escape}, 99);
    row("the window's close", {}, 99);
}

void tst_NMessageDialog::asksForAnAnswer()
{
    QFETCH(Keys, keys);
    QFETCH(bool, checks);
    QFETCH(int, code);
    NMessageDialogInfo info = threeWays();
    info.checkBoxText = QStringLiteral("Stop asking for now.");
    info.defaultButton = mdbNegative;
    info.escapeButton = 99;
    const DialogUser user([&](NMessageDialog &dialog) {
        auto *box = dialog.findChild<QCheckBox *>(QStringLiteral("checkBox"));
        if (checks)
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        if (keys.isEmpty())
            dialog.close();
        else
            DialogUser::typing(keys)(dialog);
    });
    const NMessageDialogAnswer answer = NMessageDialog::Ask(nullptr, info);
    QCOMPARE(answer.button, code);
    QCOMPARE(answer.isChecked, checks);
    QCOMPARE(user.dialogs(), 1);
}

void tst_NMessageDialog::asksAboveItsParent()
{
    QWidget parent;
    const DialogUser user([&parent](NMessageDialog &dialog) {
        QCOMPARE(dialog.parentWidget(), &parent);
        QVERIFY(NMaskManager::GetInstance()->IsMaskVisible());
        DialogUser::clicking(mdbAffirmative)(dialog);
    });
    const NMessageDialogAnswer answer = NMessageDialog::Ask(&parent, yesOrNo());
    QCOMPARE(answer.button, int(mdbAffirmative));
    QVERIFY(!answer.isChecked);
}

void tst_NMessageDialog::answersAsClosedWhenItsParentDies()
{
    Window window;
    NMessageDialogInfo info = yesOrNo();
    info.checkBoxText = QStringLiteral("Stop asking for now.");
    info.isCheckBoxChecked = true;
    const DialogUser user([&window](const NMessageDialog &) { window.window.reset(); });
    const NMessageDialogAnswer answer = NMessageDialog::Ask(window.view, info);
    QCOMPARE(answer.button, int(mdbNegative));
    QVERIFY(answer.isChecked);
}

void tst_NMessageDialog::asksYesOrNo_data()
{
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<bool>("isYes");
    QTest::newRow("Return") << Keys{Qt::Key_Return} << true;
    QTest::newRow("Yes") << Keys{Qt::ALT + Qt::Key_Y} << true;
    QTest::newRow("No") << Keys{Qt::ALT + Qt::Key_N} << false;
    QTest::newRow("the second button") << Keys{Qt::Key_Tab, Qt::Key_Return} << false;
    QTest::newRow("Escape") << Keys{Qt::Key_Escape} << false;
}

void tst_NMessageDialog::asksYesOrNo()
{
    QFETCH(Keys, keys);
    QFETCH(bool, isYes);
    QWidget parent;
    const DialogUser user([&](NMessageDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Alert"));
        QCOMPARE(dialog.parentWidget(), &parent);
        QCOMPARE(dialog.findChild<QTextEdit *>()->toPlainText(), QStringLiteral("Go?"));
        DialogUser::typing(keys)(dialog);
    });
    const QString title = QStringLiteral("Alert");
    QCOMPARE(NMessageDialog::Question_YesNo(&parent, title, QStringLiteral("Go?")), isYes);
    QCOMPARE(user.dialogs(), 1);
}

void tst_NMessageDialog::tellsWithASingleButton_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void tst_NMessageDialog::tellsWithASingleButton()
{
    QFETCH(int, key);
    QWidget parent;
    const DialogUser user([&](NMessageDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Synchronization"));
        QCOMPARE(dialog.parentWidget(), &parent);
        QCOMPARE(dialog.findChild<QTextEdit *>()->toPlainText(), QStringLiteral("It is done."));
        QCOMPARE(dialog.findChildren<QPushButton *>().size(), 1);
        QCOMPARE(dialog.findChild<QPushButton *>()->text(), QStringLiteral("OK"));
        DialogUser::typing({QKeySequence(key)})(dialog);
    });
    NMessageDialog::Infomation(&parent, QStringLiteral("Synchronization"),
                               QStringLiteral("It is done."));
    QCOMPARE(user.dialogs(), 1);
}

NX_TEST_MAIN_WIDGETS(tst_NMessageDialog)
#include "tst_NMessageDialog.moc"
