// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaNotice.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <iterator>

using namespace NXMEDIALIBRARY;
using Items = NxMediaItemManagerPresenter;
using Reason = NxMediaNotice::Reason;

namespace {

constexpr qreal TitleScale = 1.3; // Of the font's size.
constexpr int MostKeywordLetters = 60; // What is longer is shortened.

struct Text
{
    Reason reason;
    const char *title;
    const char *sentence; // Empty: made of the filter.
};

constexpr Text Texts[] = {
    {Reason::NoFolder, QT_TRANSLATE_NOOP("NxMediaNotice", "No folder is shown"),
     QT_TRANSLATE_NOOP("NxMediaNotice", "Choose a folder to see its media.")},
    {Reason::EmptyFolder, QT_TRANSLATE_NOOP("NxMediaNotice", "This folder is empty"),
     QT_TRANSLATE_NOOP("NxMediaNotice", "Drop files here or import them.")},
    {Reason::EmptyFolderNoImport, QT_TRANSLATE_NOOP("NxMediaNotice", "This folder is empty"),
     QT_TRANSLATE_NOOP("NxMediaNotice", "Files cannot be imported into it.")},
    {Reason::FilteredOut, QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing found"), ""},
    {Reason::EmptySearch, QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing found"),
     QT_TRANSLATE_NOOP("NxMediaNotice", "The search found no media.")},
    {Reason::Loading, QT_TRANSLATE_NOOP("NxMediaNotice", "Loading..."),
     QT_TRANSLATE_NOOP("NxMediaNotice", "The media of this folder are on their way.")},
    {Reason::LoadFailed, QT_TRANSLATE_NOOP("NxMediaNotice", "Loading failed"),
     QT_TRANSLATE_NOOP("NxMediaNotice", "The media of this folder did not arrive.")},
};

struct FilterText
{
    int type;
    const char *ofType;
    const char *ofTypeAndName;
};

constexpr FilterText FilterTexts[] = {
    {mtfAll, "", QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here has a name that holds \"%1\".")},
    {mtfVideo, QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is a video."),
     QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is a video whose name holds \"%1\".")},
    {mtfPhoto, QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is a photo."),
     QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is a photo whose name holds \"%1\".")},
    {mtfAudio, QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is audio."),
     QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is audio whose name holds \"%1\".")},
    {mtfSubtitle, QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is a subtitle."),
     QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here is a subtitle whose name holds \"%1\".")},
};

/// Of the types that have no sentence of their own.
constexpr FilterText OtherFilter = {
    mtfAll, QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here passes the filter."),
    QT_TRANSLATE_NOOP("NxMediaNotice", "Nothing here passes the filter with \"%1\" in its name.")};

bool isSearch(const INxFolderMedia &folder, const NxMediaItemViewFilter &filter)
{
    return folder.isSearchResult() || folder.isSearchFolder() || filter.searchMode == esmSimilar;
}

bool isFiltered(const NxMediaItemViewFilter &filter)
{
    return filter.type != mtfAll || !filter.keyword.isEmpty();
}

bool canImport(const INxFolderMedia &folder)
{
    INxMediaManager *manager = folder.mediaManager();
    return folder.canAddMedia() && manager && manager->importer();
}

QLabel *addText(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

QPushButton *addButton(QWidget *parent, const char *name)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true);
    return button;
}

} // namespace

NxMediaNotice::NxMediaNotice(QAbstractScrollArea *view)
    : QWidget(view->viewport()),
      m_view(view),
      m_title(addText(this)),
      m_sentence(addText(this)),
      m_import(addButton(this, "import")),
      m_clear(addButton(this, "clear"))
{
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * TitleScale);
    m_title->setFont(font);
    m_title->setObjectName(QStringLiteral("title"));
    m_sentence->setObjectName(QStringLiteral("sentence"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_import);
    buttons->addWidget(m_clear);
    buttons->addStretch();
    auto *column = new QVBoxLayout(this);
    column->addStretch();
    column->addWidget(m_title);
    column->addWidget(m_sentence);
    column->addLayout(buttons);
    column->addStretch();
    connect(m_import, &QPushButton::clicked, this, &NxMediaNotice::sigImportWanted);
    connect(m_clear, &QPushButton::clicked, this, &NxMediaNotice::sigClearWanted);
    view->viewport()->installEventFilter(this);
    setGeometry(view->viewport()->rect());
    NxSkinStyle::instance()->Attach(this);
    wear();
    hide();
}

NxMediaNotice::~NxMediaNotice()
{
    NxSkinStyle::instance()->Detach(this);
}

Reason NxMediaNotice::reasonFor(const Items &presenter, const NxMediaItemModel &model,
                                FetchState state)
{
    if (model.rowCount() > 0)
        return Reason::Nothing;
    const INxFolderMedia *folder = presenter.folder();
    if (!folder)
        return Reason::NoFolder;
    if (state == INxFolderMedia::FetchMoreFailed)
        return Reason::LoadFailed;
    if (state == INxFolderMedia::FetchMoreLoading || !folder->isLoaded())
        return Reason::Loading;
    const NxMediaItemViewFilter filter = presenter.getFilter();
    if (isSearch(*folder, filter))
        return Reason::EmptySearch;
    if (isFiltered(filter) && folder->lastMedia(true))
        return Reason::FilteredOut;
    return canImport(*folder) ? Reason::EmptyFolder : Reason::EmptyFolderNoImport;
}

void NxMediaNotice::follow(Items *presenter, NxMediaItemModel *model)
{
    if (m_presenter)
        m_presenter->disconnect(this);
    if (m_model)
        m_model->disconnect(this);
    m_presenter = presenter;
    m_model = model;
    m_state = INxFolderMedia::FetchMoreNone;
    if (presenter) {
        connect(presenter, &Items::sigRootFolderChanged, this, &NxMediaNotice::changed);
        connect(presenter, &Items::sigFilterChanged, this, &NxMediaNotice::changed);
        connect(presenter, &Items::sigFilterKeywordChanged, this, &NxMediaNotice::changed);
        connect(presenter, &QObject::destroyed, this, &NxMediaNotice::changed);
    }
    if (model) {
        connect(model, &QAbstractItemModel::modelReset, this, &NxMediaNotice::changed);
        connect(model, &NxMediaItemModel::sigFetchMoreStateChanged, this,
                &NxMediaNotice::keepState);
        connect(model, &QObject::destroyed, this, &NxMediaNotice::changed);
    }
    refresh();
}

void NxMediaNotice::keepState(FetchState state)
{
    m_state = state;
    m_stateFolder = m_model->folder();
    changed();
}

// Resets come one for each media that is imported; what they lead to is said once.
void NxMediaNotice::changed()
{
    if (m_isRefreshDue)
        return;
    m_isRefreshDue = true;
    QMetaObject::invokeMethod(
        this, [this] { refresh(); }, Qt::QueuedConnection);
}

void NxMediaNotice::refresh()
{
    m_isRefreshDue = false;
    // The keyboard does not get lost with a button that goes.
    const QWidget *focus = QApplication::focusWidget();
    const bool hasKeyboard = focus && isAncestorOf(focus);
    m_reason = currentReason();
    say();
    if (hasKeyboard && (focus->isHidden() || m_reason == Reason::Nothing))
        m_view->setFocus();
    setVisible(m_reason != Reason::Nothing);
}

Reason NxMediaNotice::currentReason() const
{
    if (!m_presenter || !m_model)
        return Reason::Nothing;
    const bool isOfFolder = m_stateFolder && m_stateFolder == m_presenter->folder();
    return reasonFor(*m_presenter, *m_model, isOfFolder ? m_state : INxFolderMedia::FetchMoreNone);
}

void NxMediaNotice::say()
{
    const auto *text = std::find_if(std::begin(Texts), std::end(Texts),
                                    [this](const Text &one) { return one.reason == m_reason; });
    const bool isKnown = text != std::end(Texts);
    const bool isFilter = m_reason == Reason::FilteredOut;
    m_title->setText(isKnown ? tr(text->title) : QString());
    m_sentence->setText(isFilter ? filterText() : isKnown ? tr(text->sentence) : QString());
    m_import->setText(tr("Import"));
    m_import->setVisible(m_reason == Reason::EmptyFolder);
    m_clear->setText(tr("Clear"));
    m_clear->setToolTip(tr("Show all media of the folder"));
    m_clear->setVisible(isFilter);
    setAccessibleName(m_title->text());
    setAccessibleDescription(m_sentence->text());
}

QString NxMediaNotice::filterText() const
{
    const NxMediaItemViewFilter filter = m_presenter->getFilter();
    const auto *known =
        std::find_if(std::begin(FilterTexts), std::end(FilterTexts),
                     [&filter](const FilterText &one) { return one.type == filter.type; });
    const FilterText &text = known == std::end(FilterTexts) ? OtherFilter : *known;
    if (filter.keyword.isEmpty())
        return tr(text.ofType);
    const bool isLong = filter.keyword.size() > MostKeywordLetters;
    const QString keyword =
        isLong ? filter.keyword.left(MostKeywordLetters) + QChar(0x2026) : filter.keyword;
    return tr(text.ofTypeAndName).arg(keyword);
}

void NxMediaNotice::OnSkinChangedEvent(INxSkinEvent *)
{
    wear();
}

void NxMediaNotice::wear()
{
    const NxSkinStyle *skin = NxSkinStyle::instance();
    QPalette colours = skin->palette();
    setPalette(colours);
    colours.setColor(QPalette::WindowText, skin->GetColor(NxSkinColor::Text_Icon_Secondary));
    m_sentence->setPalette(colours);
}

bool NxMediaNotice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget())
        resize(parentWidget()->size());
    return QWidget::eventFilter(watched, event);
}

void NxMediaNotice::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        say();
}
