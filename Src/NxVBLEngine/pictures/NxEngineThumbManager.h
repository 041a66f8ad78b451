// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLModel/INxBsThumbManager.h>

#include <QPointer>

#include <memory>

class NxPictureService;

/// A painter's handle to the pictures of whatever project is open. It may outlive projects and
/// the engine; then it has no pictures.
class NXVBLENGINE_TEST_EXPORT NxEngineThumbManager final : public INxBsThumbManager
{
public:
    /// Where the pictures of the open project are; null while none is open.
    using Current = std::shared_ptr<QPointer<NxPictureService>>;

    explicit NxEngineThumbManager(Current current);
    ~NxEngineThumbManager() override;

    QImage thumbnail(INxAbstractMedia *media, const QSize &devicePixels) override;
    QImage filmStrip(INxAbstractMedia *media) override;
    bool servesFilmStrips() const override { return true; }
    void setArrivalTeller(ArrivalTeller teller) override;
    void cancelRequests() override;

private:
    /// The open project's pictures, which know of the teller; null while none is open.
    [[nodiscard]] NxPictureService *service();

    const Current m_current;
    ArrivalTeller m_teller;
    QPointer<NxPictureService> m_told; // Knows of the teller.
};
