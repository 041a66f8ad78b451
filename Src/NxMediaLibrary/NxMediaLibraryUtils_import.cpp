// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <NxCore/NxConfig.h>
#include <NxCore/NxDir.h>
#include <NxVBLModel/NxMediaFileTypes.h>

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

using NXVBLMODEL::NxSuffixList;
using NXVBLMODEL::suffixPatterns;

namespace {

constexpr QLatin1Char Separator(';');

QString withoutEmptyParts(const QString &patterns)
{
    return patterns.split(Separator, Qt::SkipEmptyParts).join(Separator);
}

QString nativePair(const QString &patterns)
{
    return QStringLiteral("(%1)%2%1%2").arg(patterns, QString(QChar::Null));
}

/// "MP4|FLV|..." of "*.MP4;*.FLV;...".
QString alternation(NxSuffixList list)
{
    QString suffixes = suffixPatterns(list);
    suffixes.remove(QLatin1String("*."));
    return suffixes.split(Separator, Qt::SkipEmptyParts).join(QLatin1Char('|'));
}

QString namePattern(NxSuffixList list)
{
    return QStringLiteral("^.*?\\.(%1)$").arg(alternation(list));
}

bool isImportableFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    return !NxDir::CheckFilters(suffix, NxMediaLibraryUtils::getImportAllUnsupportFilter());
}

bool holdsImportableFile(const QString &folder)
{
    const QDir::Filters files = QDir::Files | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QDirIterator walk(folder, files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        if (isImportableFile(walk.next()))
            return true;
    }
    return false;
}

} // namespace

QString NxMediaLibraryUtils::getImportVideoFilter()
{
    return suffixPatterns(NxSuffixList::Video);
}

QString NxMediaLibraryUtils::getImportImageFilter()
{
    return suffixPatterns(NxSuffixList::Image);
}

QString NxMediaLibraryUtils::getImportAudioFilter()
{
    return suffixPatterns(NxSuffixList::Audio);
}

QString NxMediaLibraryUtils::getImportSrtFilter()
{
    return suffixPatterns(NxSuffixList::Subtitle);
}

QString NxMediaLibraryUtils::getImportUnsupportFilter()
{
    return suffixPatterns(NxSuffixList::Unsupported);
}

QString NxMediaLibraryUtils::getImportFileFilter()
{
    return QStringLiteral("All supported files(%1; %2; %3;);;Video files(%1;);;Audio files(%2;);;"
                          "Image files(%3;);;All files(*.*)")
        .arg(getImportVideoFilter(), getImportAudioFilter(), getImportImageFilter());
}

QString NxMediaLibraryUtils::getImportVideoAnImageFilter()
{
    return QStringLiteral("All supported files(%1; %2;);;Video files(%1;);;Image files(%2;);;"
                          "All files(*.*)")
        .arg(getImportVideoFilter(), getImportImageFilter());
}

QString NxMediaLibraryUtils::getImportVideoFilterEx()
{
    return nativePair(getImportVideoFilter());
}

QString NxMediaLibraryUtils::getImportImageFilterEx()
{
    return nativePair(getImportImageFilter());
}

QString NxMediaLibraryUtils::getImportAudioFilterEx()
{
    return nativePair(getImportAudioFilter());
}

QString NxMediaLibraryUtils::getImportSrtTextFilterEx()
{
    return nativePair(getImportSrtFilter());
}

QString NxMediaLibraryUtils::getImportFileFilterEx()
{
    const QString all = withoutEmptyParts(getImportAllSupportFilter().join(Separator));
    return QStringLiteral("All supported files%1Video files%2Audio files%3Image files%4"
                          "Text files%5All files(*.*)%6*.*%6%6")
        .arg(nativePair(all), getImportVideoFilterEx(), getImportAudioFilterEx(),
             getImportImageFilterEx(), getImportSrtTextFilterEx(), QString(QChar::Null));
}

QString NxMediaLibraryUtils::getImportVideoRegexFilter()
{
    return namePattern(NxSuffixList::Video);
}

QString NxMediaLibraryUtils::getImportImageRegexFilter()
{
    return namePattern(NxSuffixList::Image);
}

QString NxMediaLibraryUtils::getImportAudioRegexFilter()
{
    return namePattern(NxSuffixList::Audio);
}

QString NxMediaLibraryUtils::getImportSrtRegexFilter()
{
    return namePattern(NxSuffixList::Subtitle);
}

QString NxMediaLibraryUtils::getImportFileRegexFilter()
{
    return QStringLiteral("^.*?\\.(%1|%2|%3|%4)$")
        .arg(alternation(NxSuffixList::Video), alternation(NxSuffixList::Image),
             alternation(NxSuffixList::Audio), alternation(NxSuffixList::Subtitle));
}

QStringList NxMediaLibraryUtils::getImportAllSupportFilter()
{
    return {getImportVideoFilter(), getImportImageFilter(), getImportAudioFilter(),
            getImportSrtFilter()};
}

QStringList NxMediaLibraryUtils::getImportAllUnsupportFilter()
{
    return {getImportUnsupportFilter()};
}

QString NxMediaLibraryUtils::getImportMediaFileDir()
{
    const QString sampleMusic = QStringLiteral("C:\\Users\\Public\\Music\\Sample Music");
    return NxConfig::Instance()->getDefaultImportDir(sampleMusic);
}

void NxMediaLibraryUtils::writeImportMediaFileDir(const QString &directory)
{
    NxConfig::Instance()->setDefaultImportDir(directory);
}

bool NxMediaLibraryUtils::hasValidFile(const QStringList &paths)
{
    return std::any_of(paths.begin(), paths.end(), [](const QString &path) {
        return QFileInfo(path).isDir() ? holdsImportableFile(path) : isImportableFile(path);
    });
}
