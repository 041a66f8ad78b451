// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMatterMenuFile_p.h"

#include <NxCore/INxAppInfo.h>
#include <NxCore/NxIniFileGuard.h>
#include <NxCore/NxLog.h>

#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace {

const auto groupName = QStringLiteral("NMatterViewMenu");

/// Ten times what is ever written.
constexpr qint64 LargestBytes = 16 * 1024;

/// How a value begins that is no text. Reading a damaged one may take any amount of memory and
/// stack, and QSettings does not survive the lack of either.
const char *const VariantMark = "@Variant(";

QString filePath()
{
    const QString folder = INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkUserData);
    return folder.isEmpty() ? QString() : folder + QStringLiteral("/Brevano.ini");
}

} // namespace

NxMatterMenuFile::NxMatterMenuFile() : m_path(filePath()) {}

QHash<QString, QString> NxMatterMenuFile::texts(const QStringList &keys)
{
    QHash<QString, QString> found;
    if (isBarredBy(readingTrouble()))
        return found;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(groupName);
    for (const QString &key : keys)
        found.insert(key, settings.value(key).toString());
    settings.endGroup();
    return found;
}

void NxMatterMenuFile::write(const QString &key, const QString &text)
{
    m_waiting.append({key, text});
    if (m_batches == 0)
        writeWaiting();
}

void NxMatterMenuFile::writeWaiting()
{
    const QVector<QPair<QString, QString>> texts = std::exchange(m_waiting, {});
    if (texts.isEmpty() || isBarredBy(readingTrouble())
        || isBarredBy(NxIniFileGuard::writingTrouble(m_path)))
        return;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(groupName);
    for (const auto &[key, text] : texts)
        settings.setValue(key, text);
    settings.endGroup();
}

NxMatterMenuFile::Batch::Batch(NxMatterMenuFile *file) : m_file(file)
{
    ++m_file->m_batches;
}

NxMatterMenuFile::Batch::~Batch()
{
    if (--m_file->m_batches == 0)
        m_file->writeWaiting();
}

QString NxMatterMenuFile::readingTrouble() const
{
    if (m_path.isEmpty())
        return QStringLiteral("has no folder");
    if (NxIniFileGuard::isForeign(m_path))
        return QStringLiteral("is no file");
    if (QFileInfo(m_path).size() > LargestBytes)
        return QStringLiteral("is too large to be settings");
    QFile file(m_path);
    if (file.open(QFile::ReadOnly) && file.read(LargestBytes).contains(VariantMark))
        return QStringLiteral("holds values that are no texts");
    return QString();
}

bool NxMatterMenuFile::isBarredBy(const QString &trouble)
{
    if (trouble.isEmpty())
        return false;
    if (!m_isReported)
        NX_LOG_ERROR("Brevano.ini: the view settings are not kept: it %s (%s)",
                     qUtf8Printable(trouble), qUtf8Printable(m_path));
    m_isReported = true;
    return true;
}
