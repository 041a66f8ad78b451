// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ToolRow.h>

#include <Brevano/window/FoldedTools.h>
#include <Brevano/window/SearchField.h>
#include <Brevano/window/ToolIcons.h>
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <iterator>

using namespace NXMEDIALIBRARY;
using Id = PanelActions::Id;
using Items = NxMediaItemManagerPresenter;

namespace {

constexpr int LeastSearchWidth = 140; // px

struct ViewTool
{
    Id action;
    NxMediaItemViewMode mode;
    ToolIcons::Id icon;
};

constexpr ViewTool ViewTools[] = {
    {Id::ViewList, vmList, ToolIcons::Id::List},
    {Id::ViewSmall, vmSmallThumbnail, ToolIcons::Id::Small},
    {Id::ViewMiddle, vmMiddleThumbnail, ToolIcons::Id::Middle},
    {Id::ViewLarge, vmLargeThumbnail, ToolIcons::Id::Large},
};

struct Word
{
    int value;
    const char *text;
};

constexpr Word SortWords[] = {
    {sbName, QT_TRANSLATE_NOOP("ToolRow", "Name")},
    {sbUsed, QT_TRANSLATE_NOOP("ToolRow", "Used")},
    {sbType, QT_TRANSLATE_NOOP("ToolRow", "Type")},
    {sbFrameRate, QT_TRANSLATE_NOOP("ToolRow", "Frame Rate")},
    {sbInPoint, QT_TRANSLATE_NOOP("ToolRow", "In Point")},
    {sbOutPoint, QT_TRANSLATE_NOOP("ToolRow", "Out Point")},
    {sbDuration, QT_TRANSLATE_NOOP("ToolRow", "Duration")},
    {sbResolution, QT_TRANSLATE_NOOP("ToolRow", "Resolution")},
    {sbAudioInfo, QT_TRANSLATE_NOOP("ToolRow", "Audio Info")},
    {sbDateCreated, QT_TRANSLATE_NOOP("ToolRow", "Date Created")},
    {sbNew, QT_TRANSLATE_NOOP("ToolRow", "Newest")},
    {sbFavourite, QT_TRANSLATE_NOOP("ToolRow", "Favorite")},
    {sbCategory, QT_TRANSLATE_NOOP("ToolRow", "Category")},
    {sbNone, QT_TRANSLATE_NOOP("ToolRow", "Order of Import")},
};

constexpr Word GroupWords[] = {
    {gbNone, QT_TRANSLATE_NOOP("ToolRow", "No Groups")},
    {gbType, QT_TRANSLATE_NOOP("ToolRow", "Type")},
    {gbDateCreated, QT_TRANSLATE_NOOP("ToolRow", "Date Created")},
    {gbDuration, QT_TRANSLATE_NOOP("ToolRow", "Duration")},
    {gbCameraName, QT_TRANSLATE_NOOP("ToolRow", "Camera")},
    {gbCategory, QT_TRANSLATE_NOOP("ToolRow", "Category")},
};

constexpr Word TypeWords[] = {
    {mtfAll, QT_TRANSLATE_NOOP("ToolRow", "All")},
    {mtfVideo, QT_TRANSLATE_NOOP("ToolRow", "Video")},
    {mtfPhoto, QT_TRANSLATE_NOOP("ToolRow", "Photo")},
    {mtfAudio, QT_TRANSLATE_NOOP("ToolRow", "Audio")},
    {mtfSubtitle, QT_TRANSLATE_NOOP("ToolRow", "Subtitle")},
};

template<size_t Count>
QString textOf(const Word (&words)[Count], int value)
{
    const auto *word = std::find_if(std::begin(words), std::end(words),
                                    [value](const Word &one) { return one.value == value; });
    return word == std::end(words) ? QString() : ToolRow::tr(word->text);
}

QString sortText(int key)
{
    return textOf(SortWords, key);
}

QString groupText(int key)
{
    return textOf(GroupWords, key);
}

QString typeText(int type)
{
    return textOf(TypeWords, type);
}

bool isProjectMedia(const Items &items)
{
    return items.categoryType() == NXVBLMODEL::mctMedia;
}

QVector<int> sortKeys(const Items &items)
{
    if (isProjectMedia(items))
        return {sbName,     sbUsed,       sbType,      sbFrameRate,   sbInPoint, sbOutPoint,
                sbDuration, sbResolution, sbAudioInfo, sbDateCreated, sbNone};
    return {sbNew, sbName, sbFavourite, sbCategory, sbNone};
}

QVector<int> groupKeys(const Items &items)
{
    if (isProjectMedia(items))
        return {gbNone, gbType, gbDateCreated, gbDuration, gbCameraName};
    return {gbNone, gbCategory};
}

void mark(const QActionGroup *entries, int value)
{
    const QList<QAction *> actions = entries->actions();
    for (QAction *entry : actions)
        entry->setChecked(entry->data().toInt() == value);
}

NxMediaItemViewSortOrder orderOf(bool isDescending)
{
    return isDescending ? soDESC : soASC;
}

} // namespace

ToolRow::ToolRow(const PanelActions *actions, QWidget *parent)
    : QWidget(parent),
      m_actions(actions),
      m_tools(new QToolBar(this)),
      m_search(new SearchField(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_tools);
    row->addWidget(m_search, 1);
    m_search->setMinimumWidth(LeastSearchWidth);
    m_tools->setContextMenuPolicy(Qt::PreventContextMenu);
    m_import = addChoice(ToolIcons::icon(ToolIcons::Id::Import), "import");
    m_import.menu->addActions({action(Id::ImportFiles), action(Id::ImportFolder)});
    m_tools->addSeparator();
    addViewModes();
    m_tools->addSeparator();
    m_sort = addChoice(ToolIcons::icon(ToolIcons::Id::Sort), "sort");
    m_group = addChoice(ToolIcons::icon(ToolIcons::Id::Group), "group");
    m_type = addChoice(ToolIcons::icon(ToolIcons::Id::Filter), "type");
    m_type.button->setCheckable(true);
    serveActions();
    retranslate();
    setPresenter(nullptr);
}

ToolRow::~ToolRow() = default;

ToolRow::Choice ToolRow::addChoice(const QIcon &icon, const char *name)
{
    Choice choice;
    choice.menu = new QMenu(this);
    choice.entries = new QActionGroup(choice.menu);
    choice.button = m_tools->addAction(icon, QString());
    choice.button->setMenu(choice.menu);
    choice.button->setObjectName(QLatin1String(name));
    auto *button = qobject_cast<QToolButton *>(m_tools->widgetForAction(choice.button));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setObjectName(QLatin1String(name));
    button->setFocusPolicy(Qt::TabFocus);
    return choice;
}

void ToolRow::addViewModes()
{
    for (const ViewTool &tool : ViewTools) {
        QAction *mode = action(tool.action);
        mode->setCheckable(true);
        mode->setIcon(ToolIcons::icon(tool.icon));
        m_tools->addAction(mode);
        m_tools->widgetForAction(mode)->setFocusPolicy(Qt::TabFocus);
        // What is shown already stays marked when it is chosen again.
        connect(mode, &QAction::triggered, this, [this, tool] {
            if (m_presenter)
                m_presenter->setViewMode(tool.mode);
            followViewMode();
        });
    }
}

void ToolRow::serveActions()
{
    action(Id::SortDescending)->setCheckable(true);
    connect(action(Id::SortDescending), &QAction::triggered, this, [this](bool isDescending) {
        if (m_presenter)
            sortBy({m_presenter->getSortBy().sortBy, orderOf(isDescending)});
    });
    action(Id::GroupDescending)->setCheckable(true);
    connect(action(Id::GroupDescending), &QAction::triggered, this, [this](bool isDescending) {
        if (m_presenter)
            groupBy({m_presenter->getGroupBy().groupBy, orderOf(isDescending), nullptr});
    });
    connect(action(Id::Find), &QAction::triggered, m_search, &SearchField::activate);
    connect(action(Id::ClearFilters), &QAction::triggered, this, &ToolRow::clearFilters);

    connect(m_sort.entries, &QActionGroup::triggered, this, [this](const QAction *entry) {
        const auto key = NxMediaItemViewSortBy(entry->data().toInt());
        if (m_presenter)
            sortBy({key, m_presenter->getSortBy().order});
    });
    connect(m_group.entries, &QActionGroup::triggered, this, [this](const QAction *entry) {
        const auto key = NxMediaItemViewGroupBy(entry->data().toInt());
        if (m_presenter)
            groupBy({key, m_presenter->getGroupBy().order, nullptr});
    });
    connect(m_type.entries, &QActionGroup::triggered, this, [this](const QAction *entry) {
        if (m_presenter)
            m_presenter->setFilterType(NxMediaTypeFilter(entry->data().toInt()));
    });
}

void ToolRow::setPresenter(Items *presenter)
{
    if (m_presenter)
        m_presenter->disconnect(this);
    m_presenter = presenter;
    m_search->setPresenter(presenter);
    if (presenter) {
        connect(presenter, &Items::sigViewModeChanged, this, &ToolRow::followViewMode);
        connect(presenter, &Items::sigSortByChanged, this, &ToolRow::followSort);
        connect(presenter, &Items::sigGroupByChanged, this, &ToolRow::followGroup);
        connect(presenter, &Items::sigRootFolderChanged, this, &ToolRow::followGroup);
        connect(presenter, &Items::sigFilterChanged, this, &ToolRow::followFilter);
        connect(presenter, &Items::sigFilterKeywordChanged, this, &ToolRow::followFilter);
        connect(presenter, &QObject::destroyed, this, [this] { setPresenter(nullptr); });
    }
    fillMenus();
}

void ToolRow::fill(const Choice &choice, const QVector<int> &values, QString (*text)(int)) const
{
    qDeleteAll(choice.entries->actions());
    choice.menu->clear();
    for (const int value : values) {
        QAction *entry = choice.entries->addAction(text(value));
        entry->setCheckable(true);
        entry->setData(value);
        choice.menu->addAction(entry);
    }
}

void ToolRow::fillMenus()
{
    QVector<int> types;
    for (const Word &word : TypeWords)
        types.append(word.value);
    fill(m_sort, m_presenter ? sortKeys(*m_presenter) : QVector<int>(), sortText);
    fill(m_group, m_presenter ? groupKeys(*m_presenter) : QVector<int>(), groupText);
    fill(m_type, types, typeText);
    m_sort.menu->addSeparator();
    m_sort.menu->addAction(action(Id::SortDescending));
    m_group.menu->addSeparator();
    m_group.menu->addAction(action(Id::GroupDescending));
    m_type.menu->addSeparator();
    m_type.menu->addAction(action(Id::ClearFilters));
    follow();
}

// What is shown

void ToolRow::follow()
{
    m_import.button->setEnabled(m_presenter);
    m_sort.button->setEnabled(m_presenter);
    m_type.button->setEnabled(m_presenter);
    action(Id::Find)->setEnabled(m_presenter);
    followViewMode();
    followSort();
    followFilter();
}

void ToolRow::followViewMode()
{
    for (const ViewTool &tool : ViewTools) {
        action(tool.action)->setEnabled(m_presenter);
        action(tool.action)->setChecked(m_presenter && m_presenter->viewMode() == tool.mode);
    }
}

void ToolRow::followSort()
{
    const NxMediaItemViewSort sort = m_presenter ? m_presenter->getSortBy() : NxMediaItemViewSort();
    mark(m_sort.entries, sort.sortBy);
    action(Id::SortDescending)->setEnabled(sort.sortBy != sbNone);
    action(Id::SortDescending)->setChecked(sort.order != soASC);
    const QString key = sortText(sort.sortBy);
    m_sort.button->setToolTip(key.isEmpty() ? tr("Sort") : tr("Sort: %1").arg(key));
}

void ToolRow::followGroup()
{
    const NxMediaItemViewGroup group =
        m_presenter ? m_presenter->getGroupBy() : NxMediaItemViewGroup();
    const bool isPossible =
        m_presenter && NMediaItemData::canGroup(m_presenter->folder(), m_presenter->getFilter());
    mark(m_group.entries, group.groupBy);
    m_group.button->setEnabled(isPossible);
    m_group.button->setToolTip(groupHint());
    action(Id::GroupDescending)->setEnabled(isPossible && group.groupBy != gbNone);
    action(Id::GroupDescending)->setChecked(group.order != soASC);
}

void ToolRow::followFilter()
{
    const NxMediaItemViewFilter filter =
        m_presenter ? m_presenter->getFilter() : NxMediaItemViewFilter();
    mark(m_type.entries, filter.type);
    m_type.button->setChecked(filter.type != mtfAll);
    const QString type = typeText(filter.type);
    m_type.button->setToolTip(type.isEmpty() ? tr("Filter") : tr("Filter: %1").arg(type));
    action(Id::ClearFilters)->setEnabled(filter.type != mtfAll || !filter.keyword.isEmpty());
    followGroup();
}

QString ToolRow::groupHint() const
{
    const INxFolderMedia *folder = m_presenter ? m_presenter->folder() : nullptr;
    if (!folder)
        return tr("No folder is shown that could be grouped");
    if (NMediaItemData::canGroup(folder, m_presenter->getFilter()))
        return tr("Group: %1").arg(groupText(m_presenter->getGroupBy().groupBy));
    if (folder->isSearchResult() || !m_presenter->getFilter().keyword.isEmpty())
        return tr("What a search finds is not grouped");
    return tr("Media of this folder are shown in the order of its service, without groups");
}

// What the user chooses

// The order of import is announced by nobody else: presenters are silent without a key.
void ToolRow::sortBy(const NxMediaItemViewSort &sort)
{
    const QPointer<Items> presenter(m_presenter);
    presenter->setSortBy(sort);
    if (presenter && sort.sortBy == sbNone)
        Q_EMIT presenter->sigSortByChanged();
}

void ToolRow::groupBy(const NxMediaItemViewGroup &group)
{
    m_presenter->setGroupBy(group);
}

void ToolRow::clearFilters()
{
    if (m_presenter)
        m_presenter->setFilterType(mtfAll);
    if (m_presenter)
        m_presenter->setFilterKeyword(QString(), esmKeyword);
}

// Looks

void ToolRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitWidth();
}

void ToolRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        measure();
}

void ToolRow::retranslate()
{
    m_tools->setAccessibleName(tr("Tools"));
    m_import.button->setText(tr("Import"));
    m_import.button->setToolTip(tr("Import files or folders"));
    m_sort.button->setText(tr("Sort"));
    m_group.button->setText(tr("Group"));
    m_type.button->setText(tr("Filter"));
    FoldedTools::prepare(m_tools, tr("More tools"));
    fillMenus();
    measure();
}

void ToolRow::showTexts(bool areShown)
{
    for (const Choice &choice : {m_import, m_sort, m_group, m_type}) {
        auto *button = qobject_cast<QToolButton *>(m_tools->widgetForAction(choice.button));
        button->setToolButtonStyle(areShown ? Qt::ToolButtonTextBesideIcon
                                            : Qt::ToolButtonIconOnly);
    }
}

void ToolRow::measure()
{
    showTexts(true);
    m_widthWithTexts = m_tools->sizeHint().width() + layout()->spacing() + m_search->minimumWidth();
    fitWidth();
}

void ToolRow::fitWidth()
{
    showTexts(width() >= m_widthWithTexts);
}
