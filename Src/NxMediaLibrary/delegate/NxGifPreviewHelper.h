// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaLibraryExport.h>
#include <NxVBLModel/NxMediaRef.h>

#include <QHash>
#include <QImage>
#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <memory>

class INxAbstractMedia;
class NxGifFiles;
struct NxGifFile;
class QMovie;
class QTimer;

/// Plays the animated GIFs that are on screen: one object for all views of the process.
///
/// A painter asks for a GIF's present frame each time it paints; every 50 ms all views are told to
/// paint again. What nobody asked for during five seconds is put away. Files are read on a thread
/// of their own: until one is there, and for pictures that do not move, the cover stays. A file
/// that is replaced is noticed within about a second while its media is painted. GUI thread only.
class NXMEDIALIBRARY_EXPORT NxGifPreviewHelper : public QObject
{
    Q_OBJECT
public:
    /// Milliseconds since midnight.
    using Clock = std::function<int()>;

    /// The one object; made at the first call, gone with the application object.
    [[nodiscard]] static NxGifPreviewHelper *getInstance();
    ~NxGifPreviewHelper() override;

    /// Makes the timer of the ticks anew; it does not run then.
    void init();
    /// Starts and stops the ticks. While they stand still, no GIF is decoded.
    void startPlay();
    void stopPlay();

    /// The present frame, which shares its pixels with the film; false when the media is no
    /// animated GIF, or its file is not read yet. Then views are told when it is.
    bool getImage(INxAbstractMedia *media, QImage &out);
    /// Whether the media was asked for and its file is being read.
    [[nodiscard]] bool isAwaited(INxAbstractMedia *media) const;
    /// Whether the media shows another frame at this tick than at the one before; only then its
    /// row needs to be painted. Counts as asking for it.
    [[nodiscard]] bool hasNewFrame(INxAbstractMedia *media);
    /// Puts all films away.
    void clear();

    /// Replaces the time of day by which it is known what nobody asked for; an empty one puts it
    /// back.
    void setClock(Clock clock);

Q_SIGNALS:
    /// The tick: views paint their GIFs again. Comes also when there are none.
    void sigUpdate();

private:
    struct Entry
    {
        NxMediaRef media; // Null: the media died, and this is no entry.
        QString path;
        int lastAccess = 0;
        QMovie *movie = nullptr; // Owned.
        int shownAtTick = -1; // Frame number.
        bool isMoved = true; // Another frame than at the tick before.
    };
    using Table = std::map<INxAbstractMedia *, Entry>;

    NxGifPreviewHelper();
    static void destroyInstance();
    [[nodiscard]] Table::iterator livingEntry(INxAbstractMedia *media);
    bool addMedia(INxAbstractMedia *media);
    bool updateMedia(INxAbstractMedia *media);
    [[nodiscard]] QMovie *startedMovie(const QString &path, const NxGifFile &file);
    Table::iterator drop(Table::iterator entry);
    static void release(QMovie *movie);
    void lookAgain(INxAbstractMedia *media, const QString &path);
    void onFileRead(const QString &path);
    void onTimeout();
    [[nodiscard]] int now() const;

    Table m_movies;
    std::unique_ptr<QTimer> m_timer;
    Clock m_clock;
    QHash<INxAbstractMedia *, NxMediaRef> m_waiting; // Asked for; their files are being read.
    bool m_isTickWanted = false; // Start the ticks when a file that is being read plays.
    const std::unique_ptr<NxGifFiles> m_files;
};
