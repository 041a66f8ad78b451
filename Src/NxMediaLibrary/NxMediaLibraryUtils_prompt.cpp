// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxCore/NxConfig.h>
#include <NxCore/NxCustomProductInfo.h>
#include <NxCore/NxDesktopService.h>
#include <NxWidgets/NMessageDialog.h>

#include <QCoreApplication>
#include <QGuiApplication>

void NxMediaLibraryUtils::ShowHEVCHintWidget(QWidget *parent)
{
    // A user who is to read and click does not want the hourglass of whoever failed to decode.
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    NMessageDialog::Infomation(
        parent, NxCustomProductInfo::NGetProductName(),
        QCoreApplication::translate("NxMediaLibraryUtils",
                                    "HEVC Codec must be installed to solve this failure. Clicking "
                                    "Yes will install and enabled this codec for immediate use."));
    NxDesktopService::openURL(NxConfig::Instance()->GetCBSUrl(QStringLiteral("HevcPage")));
    QGuiApplication::restoreOverrideCursor();
}
