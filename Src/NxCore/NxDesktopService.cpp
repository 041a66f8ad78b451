// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDesktopService.h>

#include <NxCore/NxLog.h>

#include <QDesktopServices>
#include <QUrl>

#include <utility>

namespace {

NxDesktopService::Opener &installedOpener()
{
    static NxDesktopService::Opener opener;
    return opener;
}

bool open(const QUrl &url)
{
    const NxDesktopService::Opener &opener = installedOpener();
    return opener ? opener(url) : QDesktopServices::openUrl(url);
}

} // namespace

bool NxDesktopService::openURL(const QString &address)
{
    const QUrl url(address, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty()) {
        NX_LOG_ERROR("\"%s\" is no address that could be opened", qUtf8Printable(address));
        return false;
    }
    if (!open(url)) {
        NX_LOG_ERROR("%s could not be opened", qUtf8Printable(address));
        return false;
    }
    return true;
}

void NxDesktopService::setOpener(Opener opener)
{
    installedOpener() = std::move(opener);
}
