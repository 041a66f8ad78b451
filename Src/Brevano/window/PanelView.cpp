// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/PanelView.h>

#include <Brevano/window/CategoryBar.h>
#include <Brevano/window/SearchField.h>
#include <Brevano/window/ToolRow.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxFolderMediaManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/delegate/NxMediaFolderComboBox.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaNotice.h>
#include <NxMediaViews/NxMediaPanelBinder.h>

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int NarrowWidth = 620; // px; below, the folders are a drop-down list.
constexpr int TreeWidth = 220; // px, at first.
constexpr int MediaWidth = 700;

} // namespace

PanelView::PanelView(const PanelActions *actions, NxUIView *parent)
    : NxWidgetView(parent),
      m_view(new NxMediaItemView(this)),
      m_tree(new NxFolderTreeView(this)),
      m_categories(new CategoryBar(this)),
      m_tools(new ToolRow(actions, this)),
      m_notice(new NxMediaNotice(m_view)),
      m_splitter(new QSplitter(this)),
      m_binder(new NxMediaPanelBinder(this, m_view, m_tree, this))
{
    layOut();
    connectParts();
    retranslate();
}

PanelView::~PanelView() = default;

void PanelView::layOut()
{
    auto *mediaSide = new QWidget(m_splitter);
    m_mediaSide = new QVBoxLayout(mediaSide);
    m_mediaSide->setContentsMargins(0, 0, 0, 0);
    m_mediaSide->setSpacing(0);
    m_mediaSide->addWidget(m_tools);
    m_mediaSide->addWidget(m_view, 1);
    m_splitter->addWidget(m_tree);
    m_splitter->addWidget(mediaSide);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setSizes({TreeWidth, MediaWidth});
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_categories);
    column->addWidget(m_splitter, 1);
    m_view->setFrameShape(QFrame::NoFrame);
    m_tree->setFrameShape(QFrame::NoFrame);
}

void PanelView::connectParts()
{
    m_countsSoon.setSingleShot(true);
    m_comboSoon.setSingleShot(true);
    connect(&m_countsSoon, &QTimer::timeout, this, &PanelView::showCounts);
    connect(&m_comboSoon, &QTimer::timeout, this, &PanelView::reloadCombo);
    connect(m_binder, &NxMediaPanelBinder::sigShownChanged, this, &PanelView::showCategory);
    connect(m_binder, &NxMediaPanelBinder::sigRowsChanged, this, [this] { m_countsSoon.start(0); });
    connect(m_binder, &NxMediaPanelBinder::sigSelectionChanged, this,
            [this] { m_countsSoon.start(0); });
    connect(m_notice, &NxMediaNotice::sigImportWanted, m_binder,
            &NxMediaPanelBinder::sigImportDialogWanted);
    connect(m_notice, &NxMediaNotice::sigClearWanted, m_binder, &NxMediaPanelBinder::clearFilters);
    connect(m_tools->searchField(), &SearchField::sigLeave, m_view,
            [this] { m_view->setFocus(Qt::OtherFocusReason); });
    const QAbstractItemModel *folders = m_tree->model();
    const auto reload = [this] {
        if (m_combo)
            m_comboSoon.start(0);
    };
    connect(folders, &QAbstractItemModel::rowsInserted, this, reload);
    connect(folders, &QAbstractItemModel::rowsRemoved, this, reload);
    connect(folders, &QAbstractItemModel::dataChanged, this, reload);
}

void PanelView::setPresenter(NxMediaLibraryPresenter *presenter)
{
    m_categories->setPresenter(presenter);
    m_binder->setPresenter(presenter);
}

void PanelView::setFoldersShown(bool shown)
{
    m_areFoldersShown = shown;
    fitFolders();
}

void PanelView::showCategory()
{
    m_tools->setPresenter(m_binder->items());
    m_notice->follow(m_binder->items(), m_binder->model());
    if (m_combo)
        m_comboSoon.start(0);
    m_countsSoon.start(0);
}

void PanelView::showCounts()
{
    const NxMediaItemManagerPresenter *items = m_binder->items();
    const bool isSearching = items && !items->getFilter().keyword.isEmpty();
    m_tools->searchField()->setResultCount(isSearching ? m_binder->listedCount() : -1);
    Q_EMIT sigListedChanged();
}

void PanelView::fitFolders()
{
    const bool isNarrow = width() < NarrowWidth;
    m_tree->setVisible(m_areFoldersShown && !isNarrow);
    if (isNarrow == (m_combo != nullptr))
        return;
    if (isNarrow) {
        reloadCombo();
    } else {
        delete m_combo;
        m_combo = nullptr;
    }
}

// The list is that of the moment at which it was made.
void PanelView::reloadCombo()
{
    const bool hasKeys = m_combo && m_combo->isAncestorOf(QApplication::focusWidget());
    delete m_combo;
    m_combo = new NxMediaFolderComboBox(m_binder->folders(), this);
    m_combo->setAccessibleName(tr("Folder"));
    if (const NxFolderMediaManagerPresenter *folders = m_binder->folders())
        m_combo->showFolder(folders->currentFolder());
    m_mediaSide->insertWidget(0, m_combo);
    if (auto *field = m_combo->findChild<QComboBox *>(); field && hasKeys)
        field->setFocus(Qt::OtherFocusReason); // The user goes through the folders with it.
}

void PanelView::resizeEvent(QResizeEvent *event)
{
    NxWidgetView::resizeEvent(event);
    fitFolders();
}

void PanelView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    NxWidgetView::changeEvent(event);
}

void PanelView::retranslate()
{
    m_view->setAccessibleName(tr("Media"));
    m_tree->setAccessibleName(tr("Folders"));
}
