// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxComboBox.h>

#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTest>

#include <cstdlib>
#include <memory>

namespace {

NxSkinStyle &style()
{
    return *NxSkinStyle::instance();
}

std::unique_ptr<NxComboBox> boxOf(const QStringList &entries)
{
    std::unique_ptr<NxComboBox> box(NxComboBox::CreateComboBox(nullptr));
    box->addItems(entries);
    box->resize(140, 26);
    return box;
}

bool open(QComboBox &box)
{
    box.show();
    box.activateWindow();
    if (!QTest::qWaitForWindowActive(&box))
        return false;
    box.showPopup();
    return QTest::qWaitForWindowExposed(box.view()->window());
}

QImage picture(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage pictureOfRow(const QComboBox &box, int row)
{
    const QAbstractItemView &view = *box.view();
    const QRect place = view.visualRect(box.model()->index(row, 0));
    return picture(view.viewport()).copy(place);
}

/// Whether most of a picture has nearly one colour; styles shade what they fill.
bool isMostly(const QImage &image, const QColor &colour)
{
    constexpr int shading = 16;
    const auto isNear = [&colour](const QColor &other) {
        return std::abs(colour.red() - other.red()) < shading
               && std::abs(colour.green() - other.green()) < shading
               && std::abs(colour.blue() - other.blue()) < shading;
    };
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += isNear(image.pixelColor(x, y));
    }
    return count * 10 > image.width() * image.height() * 7;
}

const QString longName = QStringLiteral("A folder with a name that no panel of the editor holds, ");

} // namespace

class tst_NxComboBox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void isOwnedByItsParent();
    void wearsTheSkin_data();
    void wearsTheSkin();
    void thePopupWearsTheSkin_data();
    void thePopupWearsTheSkin();
    void followsTheSkin();
    void otherStylesAndMenusKeepTheColours_data();
    void otherStylesAndMenusKeepTheColours();
    void longEntriesNeedNoMoreRoom();
    void thePopupStaysNarrow_data();
    void thePopupStaysNarrow();
    void longEntriesAreToldApart_data();
    void longEntriesAreToldApart();
    void theChosenLongEntryIsToldApart();
    void shortEntriesAreShownWhole();
    void obeysTheKeyboard_data();
    void obeysTheKeyboard();
    void theKeyboardChoosesInThePopup();
    void theMouseChoosesInThePopup();
    void skinsChangeAfterItsDeath();
};

void tst_NxComboBox::cleanup()
{
    style().setSkin(NxSkin::Dark);
}

void tst_NxComboBox::isOwnedByItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<NxComboBox> box(NxComboBox::CreateComboBox(parent.get()));
    QCOMPARE(box->parentWidget(), parent.get());
    QCOMPARE(box->count(), 0);
    parent.reset();
    QVERIFY(box.isNull());
}

void tst_NxComboBox::wearsTheSkin_data()
{
    QTest::addColumn<int>("skin");
    QTest::newRow("dark") << int(NxSkin::Dark);
    QTest::newRow("light") << int(NxSkin::Light);
}

void tst_NxComboBox::wearsTheSkin()
{
    QFETCH(int, skin);
    const auto box = boxOf({QStringLiteral("Holiday")});
    style().setSkin(NxSkin(skin));
    QCOMPARE(box->palette().color(QPalette::ButtonText),
             style().GetColor(NxSkinColor::Text_Icon_Primary));
    const QColor middle = picture(box.get()).pixelColor(box->width() - 26, box->height() / 2);
    QCOMPARE(qGray(middle.rgb()) < 128, NxSkin(skin) == NxSkin::Dark);
}

void tst_NxComboBox::thePopupWearsTheSkin_data()
{
    wearsTheSkin_data();
}

void tst_NxComboBox::thePopupWearsTheSkin()
{
    QFETCH(int, skin);
    style().setSkin(NxSkin(skin));
    const auto box = boxOf({QStringLiteral("i"), QStringLiteral("l")});
    QVERIFY(open(*box));
    box->view()->setCurrentIndex(box->model()->index(0, 0));
    const QColor selected = style().GetColor(NxSkinColor::State_Selected);
    const QColor ground = style().GetColor(NxSkinColor::Control_Background);
    QVERIFY(isMostly(pictureOfRow(*box, 0), selected));
    QVERIFY(isMostly(pictureOfRow(*box, 1), ground));
    QCOMPARE(box->view()->window()->palette().color(QPalette::Window),
             style().GetColor(NxSkinColor::Background_Panel));
}

void tst_NxComboBox::followsTheSkin()
{
    const auto box = boxOf({QStringLiteral("Holiday"), QStringLiteral("Stills")});
    QVERIFY(open(*box));
    box->view()->setCurrentIndex(box->model()->index(0, 0));
    const QImage dark = picture(box->view()->viewport());
    style().setSkin(NxSkin::Light);
    QVERIFY(isMostly(pictureOfRow(*box, 1), style().GetColor(NxSkinColor::Control_Background)));
    style().setSkin(NxSkin::Dark);
    QCOMPARE(picture(box->view()->viewport()), dark);
}

void tst_NxComboBox::otherStylesAndMenusKeepTheColours_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("entries in a menu") << QStringLiteral("Fusion");
    QTest::newRow("entries in a list") << QStringLiteral("Windows");
}

void tst_NxComboBox::otherStylesAndMenusKeepTheColours()
{
    QFETCH(QString, style);
    const std::unique_ptr<QStyle> look(QStyleFactory::create(style));
    const auto box = boxOf({QStringLiteral("i"), QStringLiteral("l")});
    QApplication::setPalette(QPalette(Qt::red), "QMenu");
    box->setStyle(look.get());
    const bool isOpen = open(*box);
    const QImage entry = pictureOfRow(*box, 1);
    const QPalette popup = box->view()->window()->palette();
    QApplication::setPalette(QPalette(), "QMenu");
    QVERIFY(isOpen);
    QVERIFY(isMostly(entry, ::style().GetColor(NxSkinColor::Control_Background)));
    QCOMPARE(popup.color(QPalette::Window), ::style().GetColor(NxSkinColor::Background_Panel));
}

void tst_NxComboBox::longEntriesNeedNoMoreRoom()
{
    const auto box = boxOf({QStringLiteral("i")});
    const auto longBox = boxOf({QStringLiteral("i"), longName});
    QCOMPARE(longBox->sizeHint(), box->sizeHint());
    QCOMPARE(longBox->minimumSizeHint(), box->minimumSizeHint());
}

void tst_NxComboBox::thePopupStaysNarrow_data()
{
    QTest::addColumn<int>("boxWidth");
    QTest::addColumn<int>("widest");
    QTest::newRow("narrow box") << 140 << 360;
    QTest::newRow("wide box") << 420 << 420;
}

void tst_NxComboBox::thePopupStaysNarrow()
{
    QFETCH(int, boxWidth);
    QFETCH(int, widest);
    const auto box = boxOf({QStringLiteral("Stills"), longName});
    box->resize(boxWidth, box->height());
    QVERIFY(open(*box));
    QVERIFY(box->view()->window()->width() <= widest);
    QVERIFY(box->view()->window()->width() >= boxWidth);
}

void tst_NxComboBox::longEntriesAreToldApart_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("entries in a menu") << QStringLiteral("Fusion");
    QTest::newRow("entries in a list") << QStringLiteral("Windows");
}

void tst_NxComboBox::longEntriesAreToldApart()
{
    QFETCH(QString, style);
    const std::unique_ptr<QStyle> look(QStyleFactory::create(style));
    const auto box = boxOf({QStringLiteral("Stills"), longName + QLatin1Char('A'),
                            longName + QLatin1Char('B'), longName + QLatin1Char('A')});
    box->setStyle(look.get());
    QVERIFY(open(*box));
    QVERIFY(pictureOfRow(*box, 1) != pictureOfRow(*box, 2));
    QCOMPARE(pictureOfRow(*box, 1), pictureOfRow(*box, 3));
}

void tst_NxComboBox::theChosenLongEntryIsToldApart()
{
    const auto box = boxOf({longName + QLatin1Char('A'), longName + QLatin1Char('B')});
    const QImage first = picture(box.get());
    box->setCurrentIndex(1);
    QVERIFY(picture(box.get()) != first);
    box->setCurrentIndex(0);
    QCOMPARE(picture(box.get()), first);
}

void tst_NxComboBox::shortEntriesAreShownWhole()
{
    const auto box = boxOf({QStringLiteral("Stills")});
    QComboBox plain;
    plain.addItem(QStringLiteral("Stills"));
    plain.resize(box->size());
    plain.setPalette(box->palette());
    QCOMPARE(picture(box.get()), picture(&plain));
}

void tst_NxComboBox::obeysTheKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("down") << int(Qt::Key_Down) << QStringLiteral("Music");
    QTest::newRow("up") << int(Qt::Key_Up) << QStringLiteral("Holiday");
    QTest::newRow("home") << int(Qt::Key_Home) << QStringLiteral("Holiday");
    QTest::newRow("end") << int(Qt::Key_End) << QStringLiteral("Stills");
    QTest::newRow("a letter") << int(Qt::Key_S) << QStringLiteral("Stills");
}

void tst_NxComboBox::obeysTheKeyboard()
{
    QFETCH(int, key);
    QFETCH(QString, chosen);
    const auto box = boxOf({QStringLiteral("Holiday"), QStringLiteral("Interviews"),
                            QStringLiteral("Music"), QStringLiteral("Stills")});
    box->setCurrentIndex(1);
    const QSignalSpy activated(box.get(), QOverload<int>::of(&QComboBox::activated));
    QTest::keyClick(box.get(), Qt::Key(key));
    QCOMPARE(box->currentText(), chosen);
    QCOMPARE(activated.size(), 1);
}

void tst_NxComboBox::theKeyboardChoosesInThePopup()
{
    const auto box = boxOf({QStringLiteral("Holiday"), QStringLiteral("Music")});
    QVERIFY(open(*box));
    const QSignalSpy activated(box.get(), QOverload<int>::of(&QComboBox::activated));
    QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTRY_COMPARE(activated.size(), 1);
    QCOMPARE(box->currentText(), QStringLiteral("Music"));
    QTRY_VERIFY(!box->view()->isVisible());
}

void tst_NxComboBox::theMouseChoosesInThePopup()
{
    const auto box = boxOf({QStringLiteral("Holiday"), QStringLiteral("Music")});
    QVERIFY(open(*box));
    const QSignalSpy activated(box.get(), QOverload<int>::of(&QComboBox::activated));
    const QPoint place = box->view()->visualRect(box->model()->index(1, 0)).center();
    QTest::mouseMove(box->view()->viewport(), place);
    QTRY_COMPARE(box->view()->currentIndex().row(), 1);
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTRY_COMPARE(activated.size(), 1);
    QCOMPARE(activated.at(0).at(0).toInt(), 1);
}

void tst_NxComboBox::skinsChangeAfterItsDeath()
{
    const auto box = boxOf({});
    delete NxComboBox::CreateComboBox(nullptr);
    style().setSkin(NxSkin::Light);
    QCOMPARE(box->palette().color(QPalette::Base),
             style().GetColor(NxSkinColor::Control_Background));
}

NX_TEST_MAIN_WIDGETS(tst_NxComboBox)
#include "tst_NxComboBox.moc"
