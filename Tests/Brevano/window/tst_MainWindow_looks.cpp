// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/Languages.h>
#include <Brevano/window/MainWindow.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ToolRow.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/delegate/NxMediaItemDelegate.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemPainter.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxWidgets/NxSkinStyle.h>

#include <NxMediaLibrary/TextLines.h>
#include <Support/NxTestMain.h>

#include <QAccessible>
#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSet>
#include <QToolButton>

#include <cstdlib>

#include "WindowYard.h"

using namespace NXMEDIALIBRARY;
using Id = PanelActions::Id;
using Reading = WindowYard::Reading;

namespace {

constexpr int Patience = WindowYard::Patience;
constexpr int ColourSlack = 12; // Of 255: covers are JPEG files.

struct Tint
{
    QString name;
    QColor colour;
};

QVector<Tint> tints()
{
    return {{QStringLiteral("blue.png"), QColor(20, 40, 200)},
            {QStringLiteral("green.png"), QColor(30, 160, 60)},
            {QStringLiteral("red.png"), QColor(200, 40, 30)}};
}

bool isNear(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) <= ColourSlack
           && std::abs(a.green() - b.green()) <= ColourSlack
           && std::abs(a.blue() - b.blue()) <= ColourSlack;
}

/// The window, 1280 x 800, with three pictures of one colour each, which were read.
struct Yard : WindowYard
{
    explicit Yard(Reading reading = Reading::Everything) : WindowYard(reading)
    {
        window()->resize(1280, 800);
        openFilm();
        QStringList paths;
        for (const Tint &tint : tints())
            paths.append(picture(tint.name, tint.colour));
        import(paths);
        choose("sort", QStringLiteral("Name"));
        if (reading == Reading::Everything)
            readAll();
    }
    ~Yard() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }

    /// Where a media's picture is, in the viewport.
    QRect cover(const QString &name) const
    {
        const QRect row = rect(name);
        const QModelIndex index = view()->indexAt(row.center());
        return view()->mediaDelegate()->getItemPainter(index)->childRect(0).translated(
            row.topLeft());
    }
    QImage rendered(qreal ratio = 1) const
    {
        QWidget *viewport = view()->viewport();
        QImage image(viewport->size() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        viewport->render(&image);
        return image;
    }
    /// Whether each media shows its own colour.
    bool hasColours(const QImage &image) const
    {
        for (const Tint &tint : tints()) {
            const QPoint at = cover(tint.name).center() * image.devicePixelRatio();
            if (!isNear(image.pixelColor(at), tint.colour))
                return false;
        }
        return true;
    }
    /// How many levels of grey there are around the text of a media.
    int greyLevels(const QImage &image, const QString &name) const
    {
        QRect text = rect(name);
        if (view()->viewMode() == vmList)
            text.setLeft(cover(name).right() + 1);
        else
            text.setTop(cover(name).bottom() + 1);
        const qreal ratio = image.devicePixelRatio();
        QSet<int> levels;
        for (int y = int(text.top() * ratio); y < int(text.bottom() * ratio); ++y) {
            for (int x = int(text.left() * ratio); x < int(text.right() * ratio); ++x) {
                if (image.valid(x, y))
                    levels.insert(qGray(image.pixel(x, y)));
            }
        }
        return levels.size();
    }
    QStringList menuTitles() const
    {
        QStringList titles;
        for (const QAction *menu : window()->menuBar()->actions())
            titles.append(menu->text().remove(QLatin1Char('&')));
        return titles;
    }
    QString heading(int column) const
    {
        return view()->columnHeader()->model()->headerData(column, Qt::Horizontal).toString();
    }
    void speak(const char *code) const
    {
        window()->languages()->setCurrent(QLatin1String(code));
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
};

/// The texts of a button or label that has less room than it needs.
QStringList cutTexts(const QWidget *window)
{
    QStringList cut;
    const QList<QLabel *> labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible() && !label->wordWrap() && !label->text().isEmpty()
            && label->sizeHint().width() > label->width())
            cut.append(label->text());
    }
    const QList<QToolButton *> buttons = window->findChildren<QToolButton *>();
    for (const QToolButton *button : buttons) {
        if (button->isVisible() && button->toolButtonStyle() != Qt::ToolButtonIconOnly
            && !button->text().isEmpty() && button->sizeHint().width() > button->width())
            cut.append(button->text());
    }
    return cut;
}

} // namespace

/// How the window looks: in every language, skin and density of the screen.
class tst_MainWindow_looks : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void picturesAndTextsAreInTheirPlaces_data();
    void picturesAndTextsAreInTheirPlaces();
    void denseScreensAreDrawnCrisply();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void noTextIsCut_data();
    void noTextIsCut();
    void skinsAreWornAtOnce();
    void controlsHaveNames();
    void controlsAreReachedByTab();
};

void tst_MainWindow_looks::picturesAndTextsAreInTheirPlaces_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isGrouped");
    QTest::newRow("list") << int(vmList) << false;
    QTest::newRow("small") << int(vmSmallThumbnail) << false;
    QTest::newRow("large") << int(vmLargeThumbnail) << false;
    QTest::newRow("grouped") << int(vmMiddleThumbnail) << true;
    QTest::newRow("grouped list") << int(vmList) << true;
}

void tst_MainWindow_looks::picturesAndTextsAreInTheirPlaces()
{
    QFETCH(const int, mode);
    QFETCH(const bool, isGrouped);
    const Yard yard;
    yard.items()->setViewMode(NxMediaItemViewMode(mode));
    if (isGrouped)
        yard.items()->setGroupBy({gbType, soASC, nullptr});
    QTRY_VERIFY_WITH_TIMEOUT(yard.hasColours(yard.rendered()), Patience);
    for (const Tint &tint : tints())
        QVERIFY2(yard.greyLevels(yard.rendered(), tint.name) >= 3, qPrintable(tint.name));
}

void tst_MainWindow_looks::denseScreensAreDrawnCrisply()
{
    const Yard yard;
    yard.items()->setViewMode(vmMiddleThumbnail);
    QTRY_VERIFY_WITH_TIMEOUT(yard.hasColours(yard.rendered(2)), Patience);
    const QString name = tints().constFirst().name;
    QVERIFY(yard.greyLevels(yard.rendered(2), name) >= 3);
    const QImage plain = yard.rendered();
    QVERIFY(yard.rendered(2) != plain.scaled(plain.size() * 2)); // Not the plain one blown up.
}

void tst_MainWindow_looks::textsFollowTheLanguage_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QStringList>("menus");
    QTest::newRow("German") << QByteArray("de")
                            << lines({"Datei", "Bearbeiten", "Ansicht", "Medien", "Hilfe"});
    QTest::newRow("Chinese") << QByteArray("zh_CN") << QStringList();
}

void tst_MainWindow_looks::textsFollowTheLanguage()
{
    QFETCH(const QByteArray, code);
    QFETCH(const QStringList, menus);
    const Yard yard(Reading::Nothing);
    yard.items()->setViewMode(vmList);
    yard.items()->setGroupBy({gbType, soASC, nullptr});
    const auto texts = [&yard] {
        const auto *type =
            yard.panel()->toolRow()->findChild<QToolButton *>(QStringLiteral("type"));
        QStringList all{yard.rows().constFirst(),
                        yard.heading(1),
                        type->toolTip(),
                        yard.view()->accessibleName(),
                        yard.tree()->accessibleName(),
                        yard.action(Id::Undo)->text()};
        return all + yard.menuTitles();
    };
    const QStringList english = texts();
    yard.speak(code.constData());
    const QStringList spoken = texts();
    if (!menus.isEmpty())
        QCOMPARE(yard.menuTitles(), menus);
    for (int i = 0; i < english.size(); ++i)
        QVERIFY2(spoken.at(i) != english.at(i), qPrintable(english.at(i)));
    yard.speak("en");
    QCOMPARE(texts(), english);
}

void tst_MainWindow_looks::noTextIsCut_data()
{
    QTest::addColumn<QByteArray>("code");
    for (const Languages::Language &language : Languages::available())
        QTest::newRow(qPrintable(language.code)) << language.code.toUtf8();
}

void tst_MainWindow_looks::noTextIsCut()
{
    QFETCH(const QByteArray, code);
    const Yard yard(Reading::Nothing);
    yard.speak(code.constData());
    yard.click(QStringLiteral("red.png"));
    yard.press(Qt::Key_F9);
    QTRY_COMPARE(cutTexts(yard.window()), QStringList());
    QCOMPARE(yard.window()->size(), QSize(1280, 800));
}

void tst_MainWindow_looks::skinsAreWornAtOnce()
{
    const Yard yard;
    const auto ground = [&yard] {
        const QImage image = yard.rendered();
        return image.pixelColor(image.width() - 3, image.height() - 3).lightness();
    };
    const int dark = ground();
    const int darkBar = yard.window()->menuBar()->palette().color(QPalette::Window).lightness();
    yard.choose(Id::SkinLight);
    QCOMPARE(NxSkinStyle::instance()->skin(), NxSkin::Light);
    QVERIFY(ground() > dark + 60);
    QVERIFY(yard.window()->menuBar()->palette().color(QPalette::Window).lightness() > darkBar + 60);
    yard.choose(Id::SkinDark);
    QCOMPARE(ground(), dark);
}

void tst_MainWindow_looks::controlsHaveNames()
{
    const Yard yard(Reading::Nothing);
    yard.press(Qt::Key_F9);
    const QList<QWidget *> all = yard.window()->findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
        const QString name = told ? told->text(QAccessible::Name) : QString();
        QVERIFY2(!name.isEmpty(), qPrintable(QLatin1String(widget->metaObject()->className())
                                             + QLatin1Char(' ') + widget->objectName()));
    }
}

void tst_MainWindow_looks::controlsAreReachedByTab()
{
    const Yard yard(Reading::Nothing);
    yard.comeForward();
    yard.view()->setFocus();
    QSet<QWidget *> reached;
    for (int i = 0; i < 200 && !reached.contains(QApplication::focusWidget()); ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QVERIFY(reached.contains(yard.tree()));
    QVERIFY(reached.contains(yard.view()));
    const QList<QToolButton *> tools = yard.panel()->toolRow()->findChildren<QToolButton *>();
    for (QToolButton *tool : tools) {
        if (tool->isVisible() && tool->isEnabled() && !tool->text().isEmpty()
            && !qobject_cast<QLineEdit *>(tool->parentWidget()))
            QVERIFY2(reached.contains(tool), qPrintable(tool->text()));
    }
}

NX_TEST_MAIN_WIDGETS(tst_MainWindow_looks)
#include "tst_MainWindow_looks.moc"
