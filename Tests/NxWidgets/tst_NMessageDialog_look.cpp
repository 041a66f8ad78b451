// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NMessageDialog.h>

#include "DialogUser.h"

#include <NxCore/NxCustomProductInfo.h>
#include <Support/NxTestMain.h>

#include <QClipboard>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QTextEdit>
#include <QTranslator>

#include <algorithm>

using Codes = QList<int>;
using Captions = QMap<int, QString>;

namespace {

QTextEdit *text(const NMessageDialog &dialog, const char *name = "text")
{
    return dialog.findChild<QTextEdit *>(QLatin1String(name));
}

QImage icon(int style)
{
    NMessageDialogInfo info;
    info.style = style;
    NMessageDialog dialog(nullptr);
    dialog.Init(info);
    const auto *label = dialog.findChild<QLabel *>(QStringLiteral("icon"));
    return label->pixmap(Qt::ReturnByValue).toImage();
}

/// What the buttons say, from left to right.
QString captionsOnScreen(const NMessageDialog &dialog)
{
    QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QWidget *a, const QWidget *b) { return a->x() < b->x(); });
    QStringList captions;
    for (const QPushButton *button : qAsConst(buttons))
        captions += button->text();
    return captions.join(QLatin1Char('|'));
}

/// Looks at a dialog that is on the screen, and closes it.
void look(const NMessageDialogInfo &info, const DialogUser::Deed &deed)
{
    const DialogUser user([&deed](NMessageDialog &dialog) {
        deed(dialog);
        dialog.close();
    });
    NMessageDialog dialog(nullptr);
    dialog.Init(info);
    dialog.ShowModel();
}

/// Speaks a language in which everything is shouted.
class Shouting : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        const bool isOurs = qstrcmp(context, "NMessageDialog") == 0;
        return isOurs ? QString::fromLatin1(source).toUpper() : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_NMessageDialog_look : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isTitled_data();
    void isTitled();
    void putsButtonsInOrder_data();
    void putsButtonsInOrder();
    void focusesTheDefaultButton();
    void speaksTheUsersLanguage();
    void tellsStylesApart();
    void showsTextAsItIs_data();
    void showsTextAsItIs();
    void detailIsSmaller_data();
    void detailIsSmaller();
    void longNamesAreBroken_data();
    void longNamesAreBroken();
    void endlessTextScrolls();
    void shortTextMakesASmallDialog();
    void textCanBeCopied();
};

void tst_NMessageDialog_look::isTitled_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("shown");
    QTest::newRow("by its title") << QStringLiteral("Alert") << QStringLiteral("Alert");
    QTest::newRow("by the product") << QString() << NxCustomProductInfo::NGetProductName();
}

void tst_NMessageDialog_look::isTitled()
{
    QFETCH(QString, title);
    QFETCH(QString, shown);
    NMessageDialogInfo info;
    info.title = title;
    look(info, [&](const QWidget &dialog) { QCOMPARE(dialog.windowTitle(), shown); });
}

void tst_NMessageDialog_look::putsButtonsInOrder_data()
{
    QTest::addColumn<Codes>("codes");
    QTest::addColumn<Captions>("captions");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const Codes &codes, const Captions &captions,
                        const char *shown) {
        QTest::newRow(name) << codes << captions << QString::fromLatin1(shown);
    };
    const Captions missing{{mdbAffirmative, QStringLiteral("RELOCATE")},
                           {mdbNegative, QStringLiteral("DELETE")}};
    const Captions understood{{mdbAffirmative, QStringLiteral("Understood")}};
    row("yes, no, close", {mdbAffirmative, mdbNegative, mdbClosed}, {}, "Yes|No|Close");
    row("close, no, yes", {mdbClosed, mdbNegative, mdbAffirmative}, {}, "Close|No|Yes");
    row("captions of one's own", {mdbAffirmative, mdbNegative}, missing, "RELOCATE|DELETE");
    row("some captions", {mdbAffirmative, mdbClosed}, missing, "RELOCATE|Close");
    row("none", {}, {}, "OK");
    row("none, but a caption", {}, understood, "Understood");
    row("a nameless code", {mdbAffirmative, 77}, {}, "Yes|OK");
}

void tst_NMessageDialog_look::putsButtonsInOrder()
{
    QFETCH(Codes, codes);
    QFETCH(Captions, captions);
    QFETCH(QString, shown);
    NMessageDialogInfo info;
    info.buttons = codes;
    info.captions = captions;
    look(info, [&](const NMessageDialog &dialog) { QCOMPARE(captionsOnScreen(dialog), shown); });
}

void tst_NMessageDialog_look::focusesTheDefaultButton()
{
    NMessageDialogInfo info;
    info.buttons = {mdbAffirmative, mdbNegative, mdbClosed};
    info.defaultButton = mdbNegative;
    info.checkBoxText = QStringLiteral("Stop asking for now.");
    look(info, [](const NMessageDialog &dialog) {
        const QPushButton *button = DialogUser::button(dialog, mdbNegative);
        QVERIFY(button->hasFocus());
        QVERIFY(button->isDefault());
    });
}

void tst_NMessageDialog_look::speaksTheUsersLanguage()
{
    Shouting shouting;
    QVERIFY(QCoreApplication::installTranslator(&shouting));
    NMessageDialogInfo info;
    info.buttons = {mdbAffirmative, mdbNegative, mdbClosed};
    look(info, [](const NMessageDialog &dialog) {
        QCOMPARE(captionsOnScreen(dialog), QStringLiteral("YES|NO|CLOSE"));
    });
}

void tst_NMessageDialog_look::tellsStylesApart()
{
    QVERIFY(!icon(mdsMessage).isNull());
    QVERIFY(icon(mdsMessage) != icon(mdsQuestion));
    QVERIFY(icon(mdsMessage) != icon(mdsDelete));
    QVERIFY(icon(mdsQuestion) != icon(mdsDelete));
    QCOMPARE(icon(12345), icon(mdsMessage));
}

void tst_NMessageDialog_look::showsTextAsItIs_data()
{
    QTest::addColumn<QString>("shown");
    QTest::newRow("tags") << QStringLiteral("<b>clip</b><br>.mp4");
    QTest::newRow("entities") << QStringLiteral("this &amp; that &");
    QTest::newRow("lines") << QStringLiteral("first\nsecond");
    QTest::newRow("emoji") << QString::fromUtf8("f\xC3\xAAte \xF0\x9F\x8E\x89.mp4");
    QTest::newRow("right to left") << QString::fromUtf8("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D.mp4");
}

void tst_NMessageDialog_look::showsTextAsItIs()
{
    QFETCH(QString, shown);
    NMessageDialogInfo info;
    info.text = shown;
    info.detail = shown;
    look(info, [&](const NMessageDialog &dialog) {
        QCOMPARE(text(dialog)->toPlainText(), shown);
        QCOMPARE(text(dialog, "detail")->toPlainText(), shown);
        QCOMPARE(dialog.accessibleDescription(), shown);
    });
}

void tst_NMessageDialog_look::detailIsSmaller_data()
{
    QTest::addColumn<QFont>("font");
    QFont points;
    points.setPointSizeF(12);
    QFont pixels;
    pixels.setPixelSize(20);
    QTest::newRow("a font in points") << points;
    QTest::newRow("a font in pixels") << pixels;
}

void tst_NMessageDialog_look::detailIsSmaller()
{
    QFETCH(QFont, font);
    const QFont before = QApplication::font();
    QApplication::setFont(font);
    NMessageDialogInfo info;
    info.text = QStringLiteral("Are you sure you want to delete the selected matter?");
    look(info, [](const NMessageDialog &dialog) { QVERIFY(!text(dialog, "detail")); });
    info.detail = QStringLiteral("You can retrieve it by downloading the record");
    look(info, [](const NMessageDialog &dialog) {
        const QTextEdit *detail = text(dialog, "detail");
        QVERIFY(detail->fontMetrics().height() < text(dialog)->fontMetrics().height());
        QVERIFY(detail->y() >= text(dialog)->geometry().bottom());
    });
    QApplication::setFont(before);
}

void tst_NMessageDialog_look::longNamesAreBroken_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("without blanks")
        << QStringLiteral("holiday_").repeated(31) + QStringLiteral("mp4");
    QTest::newRow("with blanks") << QStringLiteral("holiday ").repeated(31) + QStringLiteral("mp4");
    QTest::newRow("emoji") << QString::fromUtf8("\xF0\x9F\x8E\x89").repeated(120);
}

void tst_NMessageDialog_look::longNamesAreBroken()
{
    QFETCH(QString, name);
    NMessageDialogInfo info;
    info.text = QStringLiteral("Are you sure you want to delete the item \"%1\"?").arg(name);
    info.detail = name;
    look(info, [](const NMessageDialog &dialog) {
        const QRect screen = dialog.screen()->availableGeometry();
        QVERIFY(screen.contains(dialog.geometry()));
        QVERIFY(dialog.width() < screen.width() * 3 / 4);
        for (const char *part : {"text", "detail"}) {
            const QTextEdit *shown = text(dialog, part);
            QVERIFY(shown->document()->idealWidth() <= shown->viewport()->width());
            QCOMPARE(shown->verticalScrollBar()->maximum(), 0);
            QVERIFY(shown->height() > 2 * shown->fontMetrics().height());
        }
    });
}

void tst_NMessageDialog_look::endlessTextScrolls()
{
    NMessageDialogInfo info;
    info.text = QStringLiteral("line\n").repeated(2000);
    info.detail = QString(5000, QLatin1Char('x'));
    info.checkBoxText = QStringLiteral("Stop asking for now.");
    look(info, [](const NMessageDialog &dialog) {
        QVERIFY(dialog.screen()->availableGeometry().contains(dialog.geometry()));
        QVERIFY(text(dialog)->verticalScrollBar()->maximum() > 0);
        QVERIFY(text(dialog, "detail")->verticalScrollBar()->maximum() > 0);
        QVERIFY(dialog.rect().contains(DialogUser::button(dialog, mdbAffirmative)->geometry()));
    });
}

void tst_NMessageDialog_look::shortTextMakesASmallDialog()
{
    NMessageDialogInfo info;
    info.text = QStringLiteral("Go?");
    look(info, [](const NMessageDialog &dialog) {
        QCOMPARE(text(dialog)->height(), text(dialog)->fontMetrics().height());
        QVERIFY(dialog.width() < 300);
        QVERIFY(dialog.height() < 200);
        QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    });
}

void tst_NMessageDialog_look::textCanBeCopied()
{
    const QString name(200, QLatin1Char('n'));
    NMessageDialogInfo info;
    info.text = name;
    look(info, [](const NMessageDialog &dialog) {
        QTest::mouseDClick(text(dialog)->viewport(), Qt::LeftButton, {}, QPoint(5, 5));
        QTest::keySequence(text(dialog), QKeySequence::Copy);
        QTest::keyClicks(text(dialog), QStringLiteral("x"));
    });
    QCOMPARE(QGuiApplication::clipboard()->text(), name);
}

NX_TEST_MAIN_WIDGETS(tst_NMessageDialog_look)
#include "tst_NMessageDialog_look.moc"
