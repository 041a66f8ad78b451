// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NMaskManager.h>
#include <NxWidgets/NxMaskScope.h>

#include <Support/NxTestMain.h>

#include <QMouseEvent>
#include <QTest>

#include <memory>

namespace {

/// A white window that counts the presses it gets.
class Window : public QWidget
{
    Q_OBJECT
public:
    explicit Window(Qt::WindowFlags flags = Qt::Window) : QWidget(nullptr, flags)
    {
        setPalette(QPalette(Qt::white));
        setAutoFillBackground(true);
        resize(80, 60);
        show();
    }

    bool isDimmed(const QPoint &at = QPoint(5, 5))
    {
        return grab().toImage().pixelColor(at).lightness() < 200;
    }
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

bool isMasked()
{
    return NMaskManager::GetInstance()->IsMaskVisible();
}

void click(QWidget &window)
{
    QWidget *target = window.childAt(10, 10);
    QTest::mouseClick(target ? target : &window, Qt::LeftButton, {}, QPoint(10, 10));
}

} // namespace

class tst_NxMaskScope : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void masksWhileItLives();
    void masksWithoutAnyWindow();
    void dimsWindows();
    void keepsTheMouseAway();
    void followsTheWindowsSize();
    void leavesSomeWindowsBright();
    void nestsWithoutDimmingTwice();
    void outlivesAWindow();
};

void tst_NxMaskScope::masksWhileItLives()
{
    QVERIFY(!isMasked());
    {
        const NxMaskScope outer;
        QVERIFY(isMasked());
        {
            const NxMaskScope inner;
            QVERIFY(isMasked());
        }
        QVERIFY(isMasked());
    }
    QVERIFY(!isMasked());
}

void tst_NxMaskScope::masksWithoutAnyWindow()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    const NxMaskScope scope;
    QVERIFY(isMasked());
}

void tst_NxMaskScope::dimsWindows()
{
    Window window;
    QVERIFY(!window.isDimmed());
    {
        const NxMaskScope scope;
        QVERIFY(window.isDimmed());
    }
    QVERIFY(!window.isDimmed());
}

void tst_NxMaskScope::keepsTheMouseAway()
{
    Window window;
    click(window);
    QCOMPARE(window.presses, 1);
    {
        const NxMaskScope scope;
        click(window);
        QCOMPARE(window.presses, 1);
    }
    click(window);
    QCOMPARE(window.presses, 2);
}

void tst_NxMaskScope::followsTheWindowsSize()
{
    Window window;
    const NxMaskScope scope;
    window.resize(300, 200);
    QVERIFY(window.isDimmed(QPoint(290, 190)));
}

void tst_NxMaskScope::leavesSomeWindowsBright()
{
    Window before;
    Window chosen;
    Window popup(Qt::Popup);
    const NxMaskScope scope(&chosen);
    Window later;
    QVERIFY(before.isDimmed());
    QVERIFY(!chosen.isDimmed());
    QVERIFY(!popup.isDimmed());
    QVERIFY(!later.isDimmed());
}

void tst_NxMaskScope::nestsWithoutDimmingTwice()
{
    Window window;
    const NxMaskScope outer;
    const QImage dimmedOnce = window.grab().toImage();
    Window dialog(Qt::Dialog);
    {
        const NxMaskScope inner;
        QCOMPARE(window.grab().toImage(), dimmedOnce);
        QVERIFY(dialog.isDimmed());
    }
    QVERIFY(window.isDimmed());
    QVERIFY(!dialog.isDimmed());
}

void tst_NxMaskScope::outlivesAWindow()
{
    auto window = std::make_unique<Window>();
    {
        const NxMaskScope scope;
        window.reset();
    }
    QVERIFY(!isMasked());
}

NX_TEST_MAIN_WIDGETS(tst_NxMaskScope)
#include "tst_NxMaskScope.moc"
