// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxSkinPicture.h>

#include <NxCore/NxDiskBan.h>

#include <QImage>

namespace {

constexpr qreal crispRatio = 2.0;

/// "x@2x.png" for "x.png".
QString crispPath(const QString &path)
{
    QString crisp = path;
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    const bool hasSuffix = dot > path.lastIndexOf(QLatin1Char('/'));
    return crisp.insert(hasSuffix ? dot : path.size(), QLatin1String("@2x"));
}

QPixmap loaded(const QString &path, qreal devicePixelRatio)
{
    QPixmap picture = QPixmap::fromImage(QImage(path)); // QPixmap itself would load "@2x" as well.
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

} // namespace

NxSkinPicture::NxSkinPicture(const QString &formattedPath)
{
    if (formattedPath.isEmpty())
        return;
    if (!formattedPath.startsWith(QLatin1Char(':')))
        NxDiskBan::note("NxSkinPicture::NxSkinPicture");
    m_plain = loaded(formattedPath, 1.0);
    m_crisp = loaded(crispPath(formattedPath), crispRatio);
}

QPixmap NxSkinPicture::pixmap(qreal devicePixelRatio) const
{
    const bool wantsCrisp = devicePixelRatio > 1.0;
    return (wantsCrisp && !m_crisp.isNull()) || m_plain.isNull() ? m_crisp : m_plain;
}

bool NxSkinPicture::isNull() const
{
    return m_plain.isNull() && m_crisp.isNull();
}
