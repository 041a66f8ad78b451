// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaFileTypes.h>

#include <NxVBLModel/INxMediaInfo.h>

#include <QHash>
#include <QSet>
#include <QStringList>

#include <array>

namespace NXVBLMODEL {

namespace {

// By NxSuffixList. Dialogs show these texts as they stand.
constexpr std::array<const char *, 5> Patterns = {
    "*.MP4;*.FLV;*.AVI;*.VOB;*.3GP;*.ASF;*.MOV;*.F4V;*.M4V;*.M2V;*.MPG;*.WEBM;*.MPEG;*.DPG;*.TS;"
    "*.TRP;*.M2TS;*.MTS;*.DAT;*.WMV;*.MKV;*.DVR-MS;*.DV;*.TOD;*.EVO;*.OGV;*.VRO;*.GIF;*.MOD;"
    "*.MXF;*.M2T;*.M1V;*.LRV",
    "*.BMP;*.JPG;*.PNG;*.TIF;*.ICO;*.DIB;*.JPEG;*.JPE;*.JFIF;*.TIFF;*.EMF;*.DNG;*.HEIF;*.HEIC;"
    "*.WEBP;*.DNG",
    "*.AAC;*.AC3;*.AIF;*.AIFF;*.AU;*.FLAC;*.M4A;*.MKA;*.MP2;*.MP3;*.OGG;*.WAV;*.WMA;*.CAF;*.CUE",
    "*.SRT;*.LRC;",
    "*.PDF;*.DOCX;*.EXE;*.WFP;*.XML;*.ZIP;*.LNK;*.PPTX;*.DOWNLOAD;*.XLSX;*.HTML;*.TXT;*.CSS;"
    "*.JSON;*.DLL;*.URL;*.CRDOWNLOAD;*.DOC;*.RAR;*.TTF;*.DESCARGA;*.CONF;*.PSD;*.IFO;*.DAT;*.HTM;"
    "*.SFK;*.BUP;*.CR3;*.XLS;*.APK;*.CUBE;*.EXR;*.AI;*.JAR;*.PPT;*.CSV;*.ODT;*.OTF;*.INI;*.JS;"
    "*.AUP3;*.LOG;*.PART;*.TORRENT;*.EDDX;*.EMMX",
};

class ProvisionalInfo final : public INxMediaInfo
{
public:
    ProvisionalInfo(NxMediaInfoKind kind, int streams) : m_kind(kind), m_streams(streams) {}
    int kind() const override { return m_kind; }
    int streamFlags() const override { return m_streams; }

private:
    const NxMediaInfoKind m_kind;
    const int m_streams;
};

QStringList suffixesOf(NxSuffixList list)
{
    QStringList suffixes = suffixPatterns(list).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString &suffix : suffixes)
        suffix.remove(QLatin1String("*."));
    return suffixes;
}

using SuffixSets = std::array<QSet<QString>, Patterns.size()>;

const SuffixSets &suffixSets()
{
    static const SuffixSets sets = [] {
        SuffixSets made;
        for (size_t list = 0; list < made.size(); ++list) {
            const QStringList suffixes = suffixesOf(NxSuffixList(list));
            made[list] = QSet<QString>(suffixes.begin(), suffixes.end());
        }
        return made;
    }();
    return sets;
}

QHash<QString, NxSuffixFacts> makeFactsTable()
{
    static const ProvisionalInfo video(mikVideo, sfVideo | sfAudio);
    static const ProvisionalInfo silent(mikVideo, sfVideo);
    static const ProvisionalInfo sound(mikAudio, sfAudio);
    static const ProvisionalInfo picture(mikImage, sfImage);
    static const ProvisionalInfo text(mikSubtitle, sfNone);

    QHash<QString, NxSuffixFacts> table;
    const auto fill = [&table](NxSuffixList list, const NxSuffixFacts &facts) {
        const QStringList suffixes = suffixesOf(list);
        for (const QString &suffix : suffixes)
            table.insert(suffix, facts);
    };
    fill(NxSuffixList::Video, {mtVideoAudio, mskNone, mkcNone, &video});
    fill(NxSuffixList::Audio, {mtAudio, mskNone, mkcNone, &sound});
    fill(NxSuffixList::Image, {mtImage, mskNone, mkcStillImage, &picture});
    fill(NxSuffixList::Subtitle, {mtSubtitle, mskNone, mkcNone, &text});
    table.insert(QStringLiteral("GIF"), {mtElement, mskGif, mkcAnimatedImage, &silent});
    return table;
}

} // namespace

QString suffixPatterns(NxSuffixList list)
{
    return QString::fromLatin1(Patterns[size_t(list)]);
}

bool isOnSuffixList(const QString &suffix, NxSuffixList list)
{
    return suffixSets()[size_t(list)].contains(suffix.toUpper());
}

bool isImportableSuffix(const QString &suffix)
{
    return suffixFacts(suffix).type != mtNone;
}

NxSuffixFacts suffixFacts(const QString &suffix)
{
    static const QHash<QString, NxSuffixFacts> table = makeFactsTable();
    return table.value(suffix.toUpper());
}

} // namespace NXVBLMODEL
