// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/window/MediaSums.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxMediaItemEventObserver.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/NxMediaRef.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <QPair>
#include <QPointer>
#include <QScrollArea>
#include <QSet>
#include <QTimer>
#include <QVector>

#include <memory>

class CoverView;
class FactSheet;
class INxAbstractMediaItem;
class INxProject;
class INxUndoStack;
class PanelActions;
class PathField;
class QLabel;
class QToolButton;

/// All that is known of what is selected: of one media every fact, and what can be done when its
/// file is missing or cannot be read; of several, and of the shown folder, how many there are and
/// what they sum up to.
///
/// Follows its media: changes are shown at the next turn of the event loop, sums a moment later;
/// what dies or is removed leaves. Nothing here reaches for a disk: what nobody knows yet is not
/// shown. GUI thread only.
///
/// It observes the media's manager, so whoever closes the project takes away media and folder
/// before.
class InfoPanel : public QScrollArea, private INxMediaItemEventObserver
{
    Q_OBJECT
public:
    /// @param actions what the buttons do; not owned, outlives the panel.
    explicit InfoPanel(PanelActions *actions, QWidget *parent = nullptr);
    ~InfoPanel() override;

    /// What is selected; folders and tiles among it are left out. With none the folder is shown.
    /// @param project tells which timelines use a media; not owned, may be null. One without an
    /// undo stack must not die before another one, or null, is set.
    void setMedia(const QList<INxAbstractMedia *> &medias, INxProject *project);
    /// The folder whose contents are listed; not owned, may be null, may die.
    void setFolder(INxFolderMedia *folder);

    /// Names and values as they stand there.
    [[nodiscard]] QVector<QPair<QString, QString>> facts() const;

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    using Facts = QVector<QPair<QString, QString>>;
    using Connector = NxObserverConnectorT<INxMediaItemManager, INxMediaItemEventObserver>;

    void onAfterAddItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterRemoveItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onAfterMoveItemEvent(INxFolderMedia *from, INxFolderMedia *to,
                              INxAbstractMedia *item) override;
    void onRenameFolderEvent(INxFolderMedia *folder) override;
    void onBeforeClearItemsEvent(INxFolderMedia *folder) override;
    void onRenameItemEvent(INxFolderMedia *folder, INxAbstractMedia *item) override;
    void onMediaStateChangedEvent(INxAbstractMedia *item) override;

    void build(PanelActions *actions);
    [[nodiscard]] QLabel *addText(const char *name, QWidget *content);
    [[nodiscard]] QToolButton *addButton(QAction *action, QWidget *content);
    void observe(INxFolderMedia *folder);
    void follow(INxProject *project);
    [[nodiscard]] INxProject *project() const;

    void refreshSoon();
    void refreshSumsLater();
    void refresh();
    void dropGone();
    [[nodiscard]] INxAbstractMediaItem *onlyMedia() const;
    /// Whatever was shown before is gone, but for the facts.
    void showOnly(const QString &title, const QString &kind);
    void showMedia(INxAbstractMediaItem *media);
    void showState(const INxAbstractMediaItem &media, bool isWaiting);
    void showFolder();
    void showSelection();
    void sumUp(int count, const MediaSums::Media &media);
    void showSums();
    [[nodiscard]] Facts factsOf(const INxAbstractMediaItem &media) const;
    [[nodiscard]] QString usesOf(const INxAbstractMediaItem &media) const;

    CoverView *m_cover = nullptr; // The widgets are owned by the content.
    QLabel *m_name = nullptr;
    QLabel *m_kind = nullptr;
    PathField *m_path = nullptr;
    QLabel *m_state = nullptr;
    QToolButton *m_relink = nullptr;
    QToolButton *m_findMissing = nullptr;
    QToolButton *m_readAgain = nullptr;
    FactSheet *m_facts = nullptr;

    QVector<NxMediaRef> m_medias;
    QSet<const INxAbstractMedia *> m_gone; // Removed in this turn of the event loop.
    QPointer<INxFolderMedia> m_folder;
    INxProject *m_project = nullptr; // Not owned; ask project().
    QPointer<INxUndoStack> m_undoStack; // Dies with the project.
    bool m_hasUndoStack = false;
    MediaSums m_sums;
    int m_sumCount = 0;
    QTimer m_soon;
    QTimer m_later;
    bool m_isStale = true;
    INxMediaItemManager *m_manager = nullptr; // Not owned; may be dead, then nothing is connected.
    std::unique_ptr<Connector> m_connector;
};
