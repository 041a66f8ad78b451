// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxBaseMediaPresenter.h>

#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxBaseMediaPresenterPrivate.h>

NxBaseMediaPresenter::NxBaseMediaPresenter(QObject *parent)
    : NxBaseMediaPresenter(*new NxBaseMediaPresenterPrivate, parent)
{
}

NxBaseMediaPresenter::NxBaseMediaPresenter(NxBaseMediaPresenterPrivate &dd, QObject *parent)
    : NxPresenter(parent),
      d_ptr(&dd)
{
    d_ptr->q_ptr = this;
}

NxBaseMediaPresenter::~NxBaseMediaPresenter() = default;
