// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxLineEdit.h>

#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

Q_DECLARE_METATYPE(NxLineEditSizeType)

namespace {

using Size = NxLineEditSizeType;

NxSkinStyle &style()
{
    return *NxSkinStyle::instance();
}

/// A window with two line edits below each other.
struct Window
{
    Window()
    {
        auto *layout = new QVBoxLayout(window.get());
        layout->addWidget(edit);
        layout->addWidget(other);
        window->resize(240, 120);
    }

    [[nodiscard]] bool show() const
    {
        window->show();
        window->activateWindow();
        return QTest::qWaitForWindowActive(window.get());
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QLineEdit *edit = NxLineEdit::creartNormalLineEdit(window.get(), Size::lestFolder);
    QLineEdit *other = NxLineEdit::creartNormalLineEdit(window.get(), Size::lestItem);
};

QImage picture(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// Whether the outermost pixels all have one colour.
bool isFramedIn(const QImage &image, const QColor &colour)
{
    const QRect outside = image.rect();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isEdge = !outside.adjusted(1, 1, -1, -1).contains(x, y);
            if (isEdge && image.pixelColor(x, y) != colour)
                return false;
        }
    }
    return true;
}

/// How many pixels inside the frame are not of the ground's colour.
int inked(const QImage &image, const QColor &ground)
{
    int count = 0;
    for (int y = 1; y < image.height() - 1; ++y) {
        for (int x = 1; x < image.width() - 1; ++x)
            count += image.pixelColor(x, y) != ground;
    }
    return count;
}

/// Remembers the keys that came to a widget.
class Keyhole : public QObject
{
public:
    using QObject::QObject;
    QVector<int> keys;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            keys += static_cast<QKeyEvent *>(event)->key();
        return false;
    }
};

} // namespace

class tst_NxLineEdit : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void isAsHighAsItsSizeSays_data();
    void isAsHighAsItsSizeSays();
    void keepsItsHeightWherePlaced();
    void isOwnedByItsParent();
    void textFitsIntoTheSmallOne();
    void wearsTheSkin_data();
    void wearsTheSkin();
    void followsTheSkin();
    void theFrameTellsWhereTheKeyboardIs();
    void thePlaceholderIsShownUntilTextComes();
    void textKeepsItsDistanceUnlessToldOtherwise();
    void escapeIsLeftToWhomeverAskedForText();
    void skinsChangeAfterItsDeath();
};

void tst_NxLineEdit::cleanup()
{
    style().setSkin(NxSkin::Dark);
}

void tst_NxLineEdit::isAsHighAsItsSizeSays_data()
{
    QTest::addColumn<NxLineEditSizeType>("sizeType");
    QTest::addColumn<int>("height");
    QTest::newRow("item") << Size::lestItem << 20;
    QTest::newRow("folder") << Size::lestFolder << 32;
}

void tst_NxLineEdit::isAsHighAsItsSizeSays()
{
    QFETCH(NxLineEditSizeType, sizeType);
    QFETCH(int, height);
    const std::unique_ptr<QLineEdit> edit(NxLineEdit::creartNormalLineEdit(nullptr, sizeType));
    QCOMPARE(edit->height(), height);
    QFont font = edit->font();
    font.setPixelSize(60);
    edit->setFont(font);
    edit->show();
    QCOMPARE(edit->height(), height);
}

void tst_NxLineEdit::keepsItsHeightWherePlaced()
{
    const std::unique_ptr<QLineEdit> edit(
        NxLineEdit::creartNormalLineEdit(nullptr, Size::lestItem));
    edit->setGeometry(3, 4, 150, 70);
    QCOMPARE(edit->size(), QSize(150, 20));
}

void tst_NxLineEdit::isOwnedByItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<QLineEdit> edit(NxLineEdit::creartNormalLineEdit(parent.get(), Size::lestItem));
    QCOMPARE(edit->parentWidget(), parent.get());
    parent.reset();
    QVERIFY(edit.isNull());
}

void tst_NxLineEdit::textFitsIntoTheSmallOne()
{
    const Window w;
    QFont font = w.other->font();
    font.setPixelSize(12);
    w.other->setFont(font);
    w.other->setText(QStringLiteral("Ågjpq|"));
    const QImage tight = picture(w.other);
    w.other->setFixedHeight(60);
    const QColor ground = style().GetColor(NxSkinColor::Control_Background);
    QVERIFY(inked(tight, ground) > 0);
    QCOMPARE(inked(tight, ground), inked(picture(w.other), ground));
}

void tst_NxLineEdit::wearsTheSkin_data()
{
    QTest::addColumn<int>("skin");
    QTest::newRow("dark") << int(NxSkin::Dark);
    QTest::newRow("light") << int(NxSkin::Light);
}

void tst_NxLineEdit::wearsTheSkin()
{
    QFETCH(int, skin);
    style().setSkin(NxSkin(skin));
    const Window w;
    QCOMPARE(w.edit->palette().color(QPalette::Text),
             style().GetColor(NxSkinColor::Text_Icon_Primary));
    const QImage image = picture(w.edit);
    QCOMPARE(inked(image, style().GetColor(NxSkinColor::Control_Background)), 0);
    QVERIFY(isFramedIn(image, style().GetColor(NxSkinColor::Control_Border)));
}

void tst_NxLineEdit::followsTheSkin()
{
    const Window w;
    w.edit->setText(QStringLiteral("Holiday"));
    const QImage before = picture(w.edit);
    style().setSkin(NxSkin::Light);
    const QImage light = picture(w.edit);
    QCOMPARE(light.pixelColor(2, 2), style().GetColor(NxSkinColor::Control_Background));
    QVERIFY(isFramedIn(light, style().GetColor(NxSkinColor::Control_Border)));
    style().setSkin(NxSkin::Dark);
    QCOMPARE(picture(w.edit), before);
}

void tst_NxLineEdit::theFrameTellsWhereTheKeyboardIs()
{
    const Window w;
    QVERIFY(w.show());
    w.edit->setFocus();
    QTRY_VERIFY(w.edit->hasFocus());
    const QColor focus = style().GetColor(NxSkinColor::Control_Focus);
    QVERIFY(isFramedIn(picture(w.edit), focus));
    QVERIFY(!isFramedIn(picture(w.other), focus));
    w.other->setFocus();
    QTRY_VERIFY(w.other->hasFocus());
    QVERIFY(!isFramedIn(picture(w.edit), focus));
    QVERIFY(isFramedIn(picture(w.other), focus));
}

void tst_NxLineEdit::thePlaceholderIsShownUntilTextComes()
{
    const Window w;
    const QColor ground = style().GetColor(NxSkinColor::Control_Background);
    const QColor secondary = style().GetColor(NxSkinColor::Text_Icon_Secondary);
    w.edit->setPlaceholderText(QStringLiteral("||||||"));
    const QImage placeholder = picture(w.edit);
    QVERIFY(inked(placeholder, ground) > 0);
    QCOMPARE(w.edit->palette().color(QPalette::PlaceholderText), secondary);
    w.edit->setText(QStringLiteral("||||||"));
    QVERIFY(picture(w.edit) != placeholder);
    w.edit->clear();
    QCOMPARE(picture(w.edit), placeholder);
}

void tst_NxLineEdit::textKeepsItsDistanceUnlessToldOtherwise()
{
    const Window w;
    const auto firstInkedColumn = [&w] {
        const QImage image = picture(w.edit);
        int x = 1;
        while (x < image.width() - 1
               && inked(image.copy(x - 1, 0, 3, image.height()),
                        style().GetColor(NxSkinColor::Control_Background))
                      == 0)
            ++x;
        return x;
    };
    w.edit->setText(QStringLiteral("HHHH"));
    const int margin = w.edit->textMargins().left();
    QVERIFY(margin > 0);
    QCOMPARE(w.edit->textMargins().right(), margin);
    const int distant = firstInkedColumn();
    w.edit->setTextMargins(0, 0, 0, 0);
    QCOMPARE(firstInkedColumn(), distant - margin);
}

void tst_NxLineEdit::escapeIsLeftToWhomeverAskedForText()
{
    const Window w;
    QVERIFY(w.show());
    w.edit->setText(QStringLiteral("Holiday"));
    Keyhole keyhole;
    w.window->installEventFilter(&keyhole);
    QTest::keyClick(w.edit, Qt::Key_A);
    QTest::keyClick(w.edit, Qt::Key_Escape);
    QCOMPARE(keyhole.keys, QVector<int>{Qt::Key_Escape});
    QCOMPARE(w.edit->text(), QStringLiteral("Holidaya"));
}

void tst_NxLineEdit::skinsChangeAfterItsDeath()
{
    const Window w;
    delete NxLineEdit::creartNormalLineEdit(nullptr, Size::lestItem);
    style().setSkin(NxSkin::Light);
    QCOMPARE(w.edit->palette().color(QPalette::Base),
             style().GetColor(NxSkinColor::Control_Background));
}

NX_TEST_MAIN_WIDGETS(tst_NxLineEdit)
#include "tst_NxLineEdit.moc"
