// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxExtraMedia.h>

namespace {

class ExtraMedia final : public INxExtraMedia
{
public:
    explicit ExtraMedia(NXVBLMODEL::NxMediaType type) : m_type(type) {}
    NXVBLMODEL::NxMediaType mediaType() const override { return m_type; }
    QString name() const override { return m_title; }
    void setTitle(const QString &title) override { m_title = title; }

private:
    const NXVBLMODEL::NxMediaType m_type;
    QString m_title;
};

} // namespace

INxExtraMedia::~INxExtraMedia() = default;

INxExtraMedia *INxExtraMedia::createExtraMedia(NXVBLMODEL::NxMediaType type)
{
    return new ExtraMedia(type);
}

void INxExtraMedia::releaseExtraMedia(INxExtraMedia *tile)
{
    delete tile;
}
