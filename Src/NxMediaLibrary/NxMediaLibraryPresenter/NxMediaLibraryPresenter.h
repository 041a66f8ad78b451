// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxBaseMediaPresenter.h>
#include <NxVBLModel/NxMediaTypes.h>

class INxMediaLibrary;
class NxMediaCategoryPresenter;
class NxMediaLibraryPresenterPrivate;

/// The top of the panel: which category is shown, one presenter for each category that was ever
/// asked for, and the way in for every message of the rest of the editor.
///
/// The host makes one over the media library of the open project and deletes it before it closes
/// the project.
class NXMEDIALIBRARY_EXPORT NxMediaLibraryPresenter : public NxBaseMediaPresenter
{
    Q_OBJECT
public:
    /// The library is not owned; it may be null, and must outlive the presenter.
    NxMediaLibraryPresenter(INxMediaLibrary *library, QObject *parent);
    ~NxMediaLibraryPresenter() override;

    [[nodiscard]] INxMediaLibrary *mediaLibrary() const;

    /// NXVBLMODEL::mctNone at first.
    [[nodiscard]] NXVBLMODEL::NxMediaCategoryType currentCategoryType() const;
    void setCurrentCategoryType(NXVBLMODEL::NxMediaCategoryType category);

    /// The presenter of a category, made at the first request; a child of this one. Null for a
    /// category that the library does not have.
    [[nodiscard]] NxMediaCategoryPresenter *getMediaCategoryPresenter(
        NXVBLMODEL::NxMediaCategoryType category);
    [[nodiscard]] NxMediaCategoryPresenter *currentMediaCategoryPresenter();

    /// Does what the message asks for. False only for messages that other receivers have to see,
    /// too; true ends the message's road, also for null, for unknown codes, and for messages
    /// whose class does not fit their code.
    bool dispatchMessage(NxMessage *message) override;

Q_SIGNALS:
    void sigCurrentCategoryTypeChanged();

protected:
    NxMediaLibraryPresenter(NxMediaLibraryPresenterPrivate &dd, QObject *parent);

private:
    friend class NxMediaLibraryPresenterPrivate;
    [[nodiscard]] NxMediaLibraryPresenterPrivate *d_func() const;
};
