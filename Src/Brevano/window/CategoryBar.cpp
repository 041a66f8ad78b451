// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/CategoryBar.h>

#include <Brevano/window/FoldedTools.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QActionGroup>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>

#include <algorithm>
#include <iterator>

using namespace NXVBLMODEL;

namespace {

struct Title
{
    NxMediaCategoryType category;
    const char *text;
};

constexpr Title Titles[] = {
    {mctMedia, QT_TRANSLATE_NOOP("CategoryBar", "Media")},
    {mctAudio, QT_TRANSLATE_NOOP("CategoryBar", "Audio")},
    {mctTitle, QT_TRANSLATE_NOOP("CategoryBar", "Titles")},
    {mctTransition, QT_TRANSLATE_NOOP("CategoryBar", "Transitions")},
    {mctEffect, QT_TRANSLATE_NOOP("CategoryBar", "Effects")},
    {mctElement, QT_TRANSLATE_NOOP("CategoryBar", "Elements")},
    {mctSplitScreen, QT_TRANSLATE_NOOP("CategoryBar", "Split Screen")},
    {mctStockMedia, QT_TRANSLATE_NOOP("CategoryBar", "Stock")},
    {mctVCGStock, QT_TRANSLATE_NOOP("CategoryBar", "Stock Provider")},
    {mctTemplate, QT_TRANSLATE_NOOP("CategoryBar", "Templates")},
};

bool waitsForService(const INxFolderMedia *section)
{
    return !section->isLoaded() || section->canFetchMore();
}

bool hasSomethingToShow(INxMediaManager *manager)
{
    INxFolderMediaManager *folders = manager ? manager->folderManager() : nullptr;
    const INxFolderMedia *root = folders ? folders->rootFolder() : nullptr;
    if (!root || !manager->itemManager())
        return false;
    if (manager->importer() || root->lastMedia(true))
        return true;
    const QList<INxFolderMedia *> sections = root->childFolders();
    return std::any_of(sections.cbegin(), sections.cend(), waitsForService);
}

NxMediaCategoryType categoryOf(const QAction *action)
{
    return NxMediaCategoryType(action->data().toInt());
}

} // namespace

CategoryBar::CategoryBar(QWidget *parent) : QToolBar(parent), m_categories(new QActionGroup(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    for (const Title &title : Titles) {
        QAction *action = m_categories->addAction(QString());
        action->setCheckable(true);
        action->setData(title.category);
        addAction(action);
    }
    connect(m_categories, &QActionGroup::triggered, this, &CategoryBar::choose);
    const auto *onward = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_Tab), this);
    connect(onward, &QShortcut::activated, this, [this] { goOn(1); });
    const auto *back = new QShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Tab), this);
    connect(back, &QShortcut::activated, this, [this] { goOn(-1); });
    retranslate();
    setPresenter(nullptr);
}

CategoryBar::~CategoryBar() = default;

QString CategoryBar::title(NxMediaCategoryType category)
{
    const auto *found =
        std::find_if(std::begin(Titles), std::end(Titles),
                     [category](const Title &one) { return one.category == category; });
    return found == std::end(Titles) ? QString() : tr(found->text);
}

void CategoryBar::setPresenter(NxMediaLibraryPresenter *presenter)
{
    if (m_presenter)
        m_presenter->disconnect(this);
    m_presenter = presenter;
    setEnabled(presenter);
    if (presenter) {
        connect(presenter, &NxMediaLibraryPresenter::sigCurrentCategoryTypeChanged, this,
                &CategoryBar::follow);
        connect(presenter, &QObject::destroyed, this, [this] { setPresenter(nullptr); });
    }
    INxMediaLibrary *library = presenter ? presenter->mediaLibrary() : nullptr;
    const QList<QAction *> actions = m_categories->actions();
    for (QAction *action : actions)
        action->setVisible(library
                           && hasSomethingToShow(library->mediaManager(categoryOf(action))));
    follow();
}

void CategoryBar::follow()
{
    const QList<QAction *> actions = m_categories->actions();
    for (QAction *action : actions) {
        const bool isCurrent =
            m_presenter && m_presenter->currentCategoryType() == categoryOf(action);
        action->setChecked(isCurrent);
        if (isCurrent)
            action->setVisible(true);
    }
}

void CategoryBar::choose(const QAction *action)
{
    if (m_presenter)
        m_presenter->setCurrentCategoryType(categoryOf(action));
}

QList<QAction *> CategoryBar::shownActions() const
{
    QList<QAction *> shown = m_categories->actions();
    shown.erase(std::remove_if(shown.begin(), shown.end(),
                               [](const QAction *action) { return !action->isVisible(); }),
                shown.end());
    return shown;
}

// Round the ends.
void CategoryBar::goOn(int steps)
{
    const QList<QAction *> shown = shownActions();
    if (!m_presenter || shown.isEmpty())
        return;
    const int place = shown.indexOf(m_categories->checkedAction());
    const int next = place < 0 ? 0 : (place + steps + shown.size()) % shown.size();
    choose(shown.at(next));
}

void CategoryBar::keyPressEvent(QKeyEvent *event)
{
    const QList<QAction *> shown = shownActions();
    const int onward = isLeftToRight() ? 1 : -1;
    if (event->key() == Qt::Key_Right)
        goOn(onward);
    else if (event->key() == Qt::Key_Left)
        goOn(-onward);
    else if (event->key() == Qt::Key_Home && !shown.isEmpty())
        choose(shown.first());
    else if (event->key() == Qt::Key_End && !shown.isEmpty())
        choose(shown.last());
    else
        QToolBar::keyPressEvent(event);
}

void CategoryBar::focusInEvent(QFocusEvent *event)
{
    QToolBar::focusInEvent(event);
    update();
}

void CategoryBar::focusOutEvent(QFocusEvent *event)
{
    QToolBar::focusOutEvent(event);
    update();
}

void CategoryBar::paintEvent(QPaintEvent *event)
{
    QToolBar::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(NxSkinStyle::instance()->GetColor(NxSkinColor::Control_Focus));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CategoryBar::changeEvent(QEvent *event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void CategoryBar::retranslate()
{
    setAccessibleName(tr("Categories"));
    const QList<QAction *> actions = m_categories->actions();
    for (QAction *action : actions)
        action->setText(title(categoryOf(action)));
    FoldedTools::prepare(this, tr("More categories"));
}
