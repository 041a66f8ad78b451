// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaViews/NxMediaViewsExport.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxWidgets/INxSkinEventHandler.h>

#include <QPointer>
#include <QWidget>

class NxMediaItemManagerPresenter;
class NxMediaItemModel;
class QAbstractScrollArea;
class QLabel;
class QPushButton;

/// Says why a view of media shows none, and offers what helps. Lies over the view's viewport.
///
/// The mouse, the wheel and whatever is dropped go to the view below, but on the notice's buttons.
/// GUI thread only; nothing here touches a disk.
class NXMEDIAVIEWS_EXPORT NxMediaNotice : public QWidget, public INxSkinEventHandler
{
    Q_OBJECT
public:
    enum class Reason : int {
        Nothing, ///< There are rows, and the notice is hidden.
        NoFolder,
        EmptyFolder, ///< Files can be imported into it.
        EmptyFolderNoImport,
        FilteredOut, ///< The folder has media, of which the filter lets none through.
        EmptySearch, ///< A search, of the service or for likes, found nothing.
        Loading,
        LoadFailed,
    };
    Q_ENUM(Reason)
    using FetchState = INxFolderMedia::FolderFetchMoreState;

    /// A child of the view's viewport, as large as that; hidden at first.
    explicit NxMediaNotice(QAbstractScrollArea *view);
    ~NxMediaNotice() override;

    /// Why the model shows no rows of the presenter's folder. Costs nothing that grows with the
    /// folder, if its engine finds the last media without listing all.
    /// @param state of the folder's paging, as it was told last.
    [[nodiscard]] static Reason reasonFor(const NxMediaItemManagerPresenter &presenter,
                                          const NxMediaItemModel &model,
                                          FetchState state = INxFolderMedia::FetchMoreNone);

    /// From now on the notice says what is true of these two, once for all that changes at a time.
    /// Neither is owned, both may die; without one of them the notice is hidden.
    void follow(NxMediaItemManagerPresenter *presenter, NxMediaItemModel *model);
    /// What is said now.
    [[nodiscard]] Reason reason() const { return m_reason; }

    void OnSkinChangedEvent(INxSkinEvent *event) override;

Q_SIGNALS:
    void sigImportWanted();
    /// The type filter and the keyword are to be taken away.
    void sigClearWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY_MOVE(NxMediaNotice)
    void keepState(FetchState state);
    void changed();
    void refresh();
    [[nodiscard]] Reason currentReason() const;
    void say();
    void wear();
    [[nodiscard]] QString filterText() const;

    QPointer<NxMediaItemManagerPresenter> m_presenter;
    QPointer<NxMediaItemModel> m_model;
    QPointer<INxFolderMedia> m_stateFolder; // Whose paging the state is of.
    FetchState m_state = INxFolderMedia::FetchMoreNone;
    Reason m_reason = Reason::Nothing;
    bool m_isRefreshDue = false;
    QAbstractScrollArea *const m_view; // Not owned; it owns this.
    QLabel *const m_title;
    QLabel *const m_sentence;
    QPushButton *const m_import;
    QPushButton *const m_clear;
};
