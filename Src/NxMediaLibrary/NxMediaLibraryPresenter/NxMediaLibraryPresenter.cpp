// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaCategoryPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxVCGMediaItemStrategy.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxMediaLibraryPresenterPrivate.h>
#include <NxVBLModel/INxMediaLibrary.h>
#include <NxVBLModel/INxMediaManager.h>

using namespace NXVBLMODEL;

NxMediaLibraryPresenter::NxMediaLibraryPresenter(INxMediaLibrary *library, QObject *parent)
    : NxMediaLibraryPresenter(*new NxMediaLibraryPresenterPrivate(library), parent)
{
}

NxMediaLibraryPresenter::NxMediaLibraryPresenter(NxMediaLibraryPresenterPrivate &dd,
                                                 QObject *parent)
    : NxBaseMediaPresenter(dd, parent)
{
}

NxMediaLibraryPresenter::~NxMediaLibraryPresenter() = default;

NxMediaLibraryPresenterPrivate *NxMediaLibraryPresenter::d_func() const
{
    return static_cast<NxMediaLibraryPresenterPrivate *>(NxBaseMediaPresenter::d_func());
}

INxMediaLibrary *NxMediaLibraryPresenter::mediaLibrary() const
{
    return d_func()->library;
}

NxMediaCategoryType NxMediaLibraryPresenter::currentCategoryType() const
{
    return NxMediaCategoryType(d_func()->currentCategory);
}

void NxMediaLibraryPresenter::setCurrentCategoryType(NxMediaCategoryType category)
{
    if (d_func()->currentCategory == category)
        return;
    d_func()->currentCategory = category;
    Q_EMIT sigCurrentCategoryTypeChanged();
}

NxMediaCategoryPresenter *NxMediaLibraryPresenter::getMediaCategoryPresenter(
    NxMediaCategoryType category)
{
    if (NxMediaCategoryPresenter *known = d_func()->categories.value(category))
        return known;
    INxMediaManager *manager = mediaLibrary() ? mediaLibrary()->mediaManager(category) : nullptr;
    if (!manager)
        return nullptr;
    if (category == mctTitle)
        manager->setProject(d_func()->currentProject());
    auto *presenter = new NxMediaCategoryPresenter(manager, this);
    if (category == mctVCGStock)
        presenter->mediaItemManagerPresenter()->setMediaItemStrategy(
            std::make_shared<NxVCGMediaItemStrategy>());
    d_func()->categories.insert(category, presenter);
    return presenter;
}

NxMediaCategoryPresenter *NxMediaLibraryPresenter::currentMediaCategoryPresenter()
{
    return getMediaCategoryPresenter(currentCategoryType());
}

bool NxMediaLibraryPresenter::dispatchMessage(NxMessage *message)
{
    return !message || d_func()->dispatch(message);
}
