// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/InfoPanel.h>

#include <Brevano/commands/InfoFacts.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/ShownText.h>
#include <Brevano/window/CoverView.h>
#include <Brevano/window/FactSheet.h>
#include <Brevano/window/PanelActions.h>
#include <Brevano/window/PathField.h>
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaViews/NxMediaColumns.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxTimeline.h>
#include <NxVBLModel/NxTimelineUse.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace NXVBLMODEL;

namespace {

/// While an import or the reading of files goes on, sums are outdated as soon as they are made.
constexpr int SumsPause = 500; // ms

QString clockText(qint64 milliseconds)
{
    constexpr qint64 minute = 60;
    constexpr int base = 10;
    const qint64 seconds = milliseconds / 1'000;
    const auto twoDigits = [](qint64 number) {
        return QStringLiteral("%1").arg(number, 2, base, QLatin1Char('0'));
    };
    return QStringLiteral("%1:%2:%3")
        .arg(twoDigits(seconds / (minute * minute)), twoDigits(seconds / minute % minute),
             twoDigits(seconds % minute));
}

QString sizeText(qint64 bytes)
{
    constexpr int digits = 1;
    return QLocale().formattedDataSize(bytes, digits, QLocale::DataSizeIecFormat);
}

QString kindText(const INxAbstractMediaItem &media)
{
    const int column = NxMediaColumns::column(mctMedia, NXMEDIALIBRARY::sbType);
    return NxMediaColumns::text(media, mctMedia, column);
}

NxFootageState footageState(INxProject *project, const INxAbstractMediaItem &media)
{
    INxFootageService *service = project ? project->footageService() : nullptr;
    NxFootageState unknown;
    unknown.facts = NxFootageStatus::Done; // Where nobody reads, nothing is to come.
    return service ? service->state(&media) : unknown;
}

bool isToBeShown(NxFootageStatus cover)
{
    return cover == NxFootageStatus::Waiting || cover == NxFootageStatus::Done;
}

} // namespace

InfoPanel::InfoPanel(PanelActions *actions, QWidget *parent) : QScrollArea(parent)
{
    build(actions);
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &InfoPanel::refresh);
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, [this] {
        // Sums that are nearly made are better than none.
        if (m_sums.isRunning())
            m_later.start(SumsPause);
        else
            refreshSoon();
    });
    connect(&m_sums, &MediaSums::sigDone, this, &InfoPanel::showSums);
    refresh();
}

InfoPanel::~InfoPanel() = default;

void InfoPanel::setMedia(const QList<INxAbstractMedia *> &medias, INxProject *project)
{
    m_sums.stop();
    m_gone.clear();
    m_medias.clear();
    for (INxAbstractMediaItem *item : NxMediaLibraryUtils::extractMediaItems(medias))
        m_medias.append(NxMediaRef(item));
    follow(project);
    const INxAbstractMedia *first = m_medias.isEmpty() ? nullptr : m_medias.constFirst().get();
    observe(first ? first->parentFolder() : m_folder.data());
    refreshSoon();
}

void InfoPanel::setFolder(INxFolderMedia *folder)
{
    if (m_medias.isEmpty()) {
        m_sums.stop();
        observe(folder);
    }
    if (m_folder)
        m_folder->disconnect(this);
    m_folder = folder;
    if (folder)
        connect(folder, &QObject::destroyed, this, &InfoPanel::refreshSoon);
    refreshSoon();
}

InfoPanel::Facts InfoPanel::facts() const
{
    return m_facts->facts();
}

void InfoPanel::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        refreshSoon();
}

void InfoPanel::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    if (m_isStale)
        refresh();
}

void InfoPanel::onAfterAddItemEvent(INxFolderMedia *, INxAbstractMedia *item)
{
    m_gone.remove(item);
    refreshSumsLater();
}

void InfoPanel::onAfterRemoveItemEvent(INxFolderMedia *, INxAbstractMedia *item)
{
    m_sums.stop(); // It walks along media that may die now.
    refreshSumsLater();
    if (m_medias.isEmpty())
        return;
    m_gone.insert(item);
    refreshSoon();
}

void InfoPanel::onAfterMoveItemEvent(INxFolderMedia *, INxFolderMedia *, INxAbstractMedia *item)
{
    m_gone.remove(item);
    onMediaStateChangedEvent(item);
}

void InfoPanel::onRenameFolderEvent(INxFolderMedia *)
{
    refreshSoon();
}

void InfoPanel::onBeforeClearItemsEvent(INxFolderMedia *)
{
    m_sums.stop();
    refreshSumsLater();
}

void InfoPanel::onRenameItemEvent(INxFolderMedia *, INxAbstractMedia *item)
{
    onMediaStateChangedEvent(item);
}

void InfoPanel::onMediaStateChangedEvent(INxAbstractMedia *item)
{
    if (m_medias.size() == 1 && m_medias.constFirst().get() == item)
        refreshSoon();
    else
        refreshSumsLater();
}

void InfoPanel::build(PanelActions *actions)
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    m_cover = new CoverView(content);
    column->addWidget(m_cover);
    m_name = addText("name", content);
    QFont bold = m_name->font();
    bold.setBold(true);
    m_name->setFont(bold);
    m_kind = addText("kind", content);
    m_path = new PathField(content);
    column->addWidget(m_path);
    m_state = addText("state", content);
    auto *buttons = new QHBoxLayout;
    m_relink = addButton(actions->action(PanelActions::Id::Relink), content);
    m_findMissing = addButton(actions->action(PanelActions::Id::FindMissing), content);
    m_readAgain = addButton(actions->action(PanelActions::Id::ReadAgain), content);
    for (QToolButton *button : {m_relink, m_findMissing, m_readAgain})
        buttons->addWidget(button);
    buttons->addStretch();
    column->addLayout(buttons);
    m_facts = new FactSheet(content);
    column->addWidget(m_facts);
    column->addStretch();
    setWidget(content);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QLabel *InfoPanel::addText(const char *name, QWidget *content)
{
    auto *label = new QLabel(content);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::StrongFocus);
    content->layout()->addWidget(label);
    return label;
}

QToolButton *InfoPanel::addButton(QAction *action, QWidget *content)
{
    auto *button = new QToolButton(content);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void InfoPanel::observe(INxFolderMedia *folder)
{
    INxMediaManager *category = folder ? folder->mediaManager() : nullptr;
    INxMediaItemManager *manager = category ? category->itemManager() : nullptr;
    if (manager == m_manager && m_connector && m_connector->isConnected())
        return;
    m_connector.reset(); // Before another one: a manager refuses an observer that it has.
    m_manager = manager;
    if (manager)
        m_connector.reset(new Connector(manager, this)); // The observer is a private base.
}

void InfoPanel::follow(INxProject *project)
{
    INxUndoStack *stack = project ? project->undoStack() : nullptr;
    if (project == m_project && stack == m_undoStack)
        return;
    if (m_undoStack)
        m_undoStack->disconnect(this);
    m_project = project;
    m_undoStack = stack;
    m_hasUndoStack = stack != nullptr;
    if (!stack)
        return;
    // Timelines change in steps of the history.
    connect(stack, &INxUndoStack::changed, this, [this] {
        if (m_medias.size() == 1)
            refreshSoon();
    });
    connect(stack, &QObject::destroyed, this, &InfoPanel::refreshSoon);
}

INxProject *InfoPanel::project() const
{
    const bool isClosed = m_hasUndoStack && !m_undoStack;
    return isClosed ? nullptr : m_project;
}

void InfoPanel::refreshSoon()
{
    m_isStale = true;
    if (isVisible() && !m_soon.isActive())
        m_soon.start(0);
}

void InfoPanel::refreshSumsLater()
{
    if (m_medias.size() != 1 && !m_later.isActive())
        m_later.start(SumsPause);
}

void InfoPanel::refresh()
{
    m_isStale = false;
    m_soon.stop();
    m_sums.stop();
    setAccessibleName(tr("Information"));
    m_path->setAccessibleName(tr("Path"));
    dropGone();
    if (INxAbstractMediaItem *media = onlyMedia())
        showMedia(media);
    else if (m_medias.isEmpty())
        showFolder();
    else
        showSelection();
}

void InfoPanel::dropGone()
{
    m_medias.erase(std::remove_if(m_medias.begin(), m_medias.end(),
                                  [this](const NxMediaRef &media) {
                                      return media.isNull() || m_gone.contains(media.get());
                                  }),
                   m_medias.end());
    m_gone.clear();
}

INxAbstractMediaItem *InfoPanel::onlyMedia() const
{
    return m_medias.size() == 1 ? dynamic_cast<INxAbstractMediaItem *>(m_medias.constFirst().get())
                                : nullptr;
}

void InfoPanel::showOnly(const QString &title, const QString &kind)
{
    m_cover->setMedia(nullptr);
    m_name->setText(ShownText::oneLine(title));
    m_name->setVisible(!title.isEmpty());
    m_kind->setText(kind);
    m_kind->setVisible(!kind.isEmpty());
    m_state->clear();
    for (QWidget *part :
         QList<QWidget *>{m_cover, m_path, m_state, m_relink, m_findMissing, m_readAgain})
        part->hide();
}

void InfoPanel::showMedia(INxAbstractMediaItem *media)
{
    const NxFootageState state = footageState(project(), *media);
    showOnly(media->name(), kindText(*media));
    m_path->setPath(media->sourcePath());
    m_path->setVisible(!media->sourcePath().isEmpty());
    const bool hasCover = isToBeShown(state.cover) && !media->isUnavailable();
    m_cover->setMedia(hasCover ? media : nullptr);
    m_cover->setVisible(hasCover);
    showState(*media, state.facts == NxFootageStatus::Waiting);
    m_facts->setFacts(factsOf(*media));
}

void InfoPanel::showState(const INxAbstractMediaItem &media, bool isWaiting)
{
    const bool isMissing = MediaFacts::isKnownMissing(media);
    const bool isUnreadable = !isMissing && media.isUnavailable();
    const QString text =
        isMissing ? tr("The file is missing. Choose where it is now, or have a folder searched "
                       "for all missing files.")
        : isUnreadable ? tr("The file cannot be read. %1").arg(media.unavailableReason())
        : isWaiting    ? tr("The file has not been read yet.")
                       : QString();
    m_state->setText(text);
    m_state->setVisible(!text.isEmpty());
    m_relink->setVisible(isMissing);
    m_findMissing->setVisible(isMissing);
    m_readAgain->setVisible(isUnreadable);
}

InfoPanel::Facts InfoPanel::factsOf(const INxAbstractMediaItem &media) const
{
    const INxFolderMedia *folder = media.parentFolder();
    const INxFolderMedia *section = folder ? folder->owner() : nullptr;
    const QString size = media.sourceSize() < 0 ? QString() : sizeText(media.sourceSize());
    const QString created =
        media.dateCreated().isValid()
            ? QLocale().toString(media.dateCreated().toLocalTime(), QLocale::ShortFormat)
            : QString();
    Facts facts = {{tr("Folder"), MediaFacts::folder(media)},
                   {tr("Section"), section ? section->name() : QString()},
                   {tr("Size"), size},
                   {tr("Created"), created}};
    if (!media.isUnavailable()) {
        for (const InfoFact &fact : InfoFacts::contents(media))
            facts.append({InfoFacts::label(fact), fact.value});
    }
    const NxFootageState state = footageState(project(), media);
    facts.append({tr("Cover"), state.coverReason});
    facts.append({tr("Film strip"), state.stripReason});
    facts.append({tr("Used on"), usesOf(media)});
    Facts known;
    for (const auto &fact : qAsConst(facts)) {
        if (!fact.second.isEmpty())
            known.append({fact.first, ShownText::oneLine(fact.second)});
    }
    return known;
}

QString InfoPanel::usesOf(const INxAbstractMediaItem &media) const
{
    INxProject *open = project();
    if (!open)
        return {};
    QVector<QPair<const INxTimeline *, int>> counts;
    for (const NxTimelineUse &use : open->timelineUses(media.mediaId())) {
        const auto known = std::find_if(counts.begin(), counts.end(), [&use](const auto &count) {
            return count.first == use.timeline;
        });
        if (known == counts.end())
            counts.append({use.timeline, 1});
        else
            ++known->second;
    }
    QStringList texts;
    for (const auto &count : qAsConst(counts)) {
        const QString name = count.first ? count.first->name() : QString();
        texts.append(count.second == 1 ? name
                                       : tr("%1 (%2 times)", "timeline, number of uses")
                                             .arg(name, QLocale().toString(count.second)));
    }
    return texts.isEmpty() ? tr("no timeline") : texts.join(QStringLiteral(", "));
}

void InfoPanel::showFolder()
{
    INxFolderMedia *folder = m_folder;
    showOnly(folder ? folder->name() : QString(), folder ? QString() : tr("Nothing is selected"));
    m_facts->setFacts({});
    if (!folder)
        return;
    observe(folder);
    const QList<INxAbstractMedia *> medias = folder->items(true, true);
    // Who is not told that a media dies must not hold on to it.
    sumUp(medias.size(), [this, medias](int place) {
        return m_connector && m_connector->isConnected() ? medias.at(place) : nullptr;
    });
}

void InfoPanel::showSelection()
{
    const int count = m_medias.size();
    showOnly(tr("%1 media", "selected ones").arg(QLocale().toString(count)), {});
    sumUp(count, [this](int place) { return m_medias.at(place).get(); });
}

void InfoPanel::sumUp(int count, const MediaSums::Media &media)
{
    m_sumCount = count;
    m_sums.start(count, media);
    showSums();
}

void InfoPanel::showSums()
{
    Facts facts = {{tr("Media"), QLocale().toString(m_sumCount)}};
    if (m_sums.isRunning()) {
        facts.append({tr("Length"), tr("being added up")});
        m_facts->setFacts(facts);
        return;
    }
    const MediaSums::Totals &totals = m_sums.totals();
    for (auto kind = totals.kinds.begin(); kind != totals.kinds.end(); ++kind) {
        if (!kind.key().isEmpty())
            facts.append({kind.key(), QLocale().toString(kind.value())});
    }
    facts.append({tr("Length"), clockText(totals.milliseconds)});
    const QString size = sizeText(totals.bytes);
    facts.append(
        {tr("Size"),
         totals.unknownSizes == 0
             ? size
             : tr("%1 (not known of %2)").arg(size, QLocale().toString(totals.unknownSizes))});
    m_facts->setFacts(facts);
}
