// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxWidgetView.h>

#include <Support/NxTestMain.h>

#include <QPointer>
#include <QTest>

class tst_NxWidgetView : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isItsOwnWidget();
    void livesInsideItsParentView();
    void isAWindowWithoutAParent();
};

void tst_NxWidgetView::isItsOwnWidget()
{
    NxWidgetView view;
    NxUIView *asView = &view;
    QCOMPARE(asView->widget(), static_cast<QWidget *>(&view));
}

void tst_NxWidgetView::livesInsideItsParentView()
{
    QPointer<NxWidgetView> child;
    {
        NxWidgetView parent;
        child = new NxWidgetView(&parent);
        QCOMPARE(child->parentWidget(), parent.widget());
    }
    QVERIFY(child.isNull());
}

void tst_NxWidgetView::isAWindowWithoutAParent()
{
    NxWidgetView view(nullptr);
    QVERIFY(view.isWindow());
}

NX_TEST_MAIN_WIDGETS(tst_NxWidgetView)
#include "tst_NxWidgetView.moc"
