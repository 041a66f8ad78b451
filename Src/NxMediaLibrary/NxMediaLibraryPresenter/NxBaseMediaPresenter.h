// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryExport.h>

#include <memory>

class NxBaseMediaPresenterPrivate;

/// Base of the panel's presenters: a public object over one private object.
///
/// A derived presenter makes a private object of its own derived class and hands it to the
/// protected constructor; what that object is for stands in the presenter that makes it. Presenters
/// never own the managers of the media model that they work over. All public operations survive
/// null arguments and managers that died. GUI thread only; a dialog that a presenter shows may
/// see the presenter die, which ends the operation without touching anything.
class NXMEDIALIBRARY_EXPORT NxBaseMediaPresenter : public NxPresenter
{
    Q_OBJECT
public:
    explicit NxBaseMediaPresenter(QObject *parent = nullptr);
    ~NxBaseMediaPresenter() override;

protected:
    /// Takes the private object over.
    NxBaseMediaPresenter(NxBaseMediaPresenterPrivate &dd, QObject *parent);

    [[nodiscard]] NxBaseMediaPresenterPrivate *d_func() const { return d_ptr.get(); }

private:
    const std::unique_ptr<NxBaseMediaPresenterPrivate> d_ptr;
};
