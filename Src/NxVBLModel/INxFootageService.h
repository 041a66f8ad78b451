// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

/// How far something that is read or made of a file has come.
enum class NxFootageStatus {
    Waiting, ///< Not tried yet.
    Done,
    NoneThere, ///< There is nothing to show: sound has no film strip.
    Failed, ///< For a reason; INxFootageService::read() tries again.
};

/// What is known about the reading of one media.
struct NxFootageState
{
    NxFootageStatus facts = NxFootageStatus::Waiting;
    QString reason; ///< Why the file cannot be read, a sentence.
    NxFootageStatus cover = NxFootageStatus::Waiting;
    QString coverReason;
    QString coverPath; ///< When done: a JPEG in the user's cache, which may be emptied at any time.
    NxFootageStatus strip = NxFootageStatus::Waiting;
    QString stripReason;
    QString stripPath;
    QByteArray fingerprint; ///< Identity of the contents; equal ones are copies. Empty: not known.
};

/// Reads in the background what the files of a project contain, and makes their pictures.
///
/// What was found is told to the observers of the item manager, media by media; at the end of a
/// batch its folders announce that all their media changed. GUI thread only.
class NXVBLMODEL_EXPORT INxFootageService : public QObject
{
    Q_OBJECT
public:
    enum Wish {
        wFacts = 1,
        wPictures = 2, ///< With the fingerprint.
        wFingerprint = 4,
    };

    explicit INxFootageService(QObject *parent = nullptr);
    ~INxFootageService() override;

    /// From now on all that is not read yet is read, and whatever comes to the project or changes
    /// on disk: facts first, then pictures.
    virtual void start() = 0;
    /// Reads nothing more until start() or read().
    virtual void stop() = 0;
    /// Reads of these, before all others, what is not read yet. `wishes`: Wish.
    virtual void want(const QList<INxAbstractMediaItem *> &items, int wishes) = 0;
    /// Reads these before all others; what was read, or has failed, once more. `wishes`: Wish.
    virtual void read(const QList<INxAbstractMediaItem *> &items, int wishes) = 0;
    [[nodiscard]] virtual NxFootageState state(const INxAbstractMediaItem *item) const = 0;
    /// True when nothing waits and nothing is being read.
    [[nodiscard]] virtual bool isIdle() const = 0;
    /// Why nothing can be read at all, a sentence; empty when all is well.
    [[nodiscard]] virtual QString trouble() const = 0;

Q_SIGNALS:
    /// Facts were read, or the file turned out unreadable.
    void itemRead(INxAbstractMediaItem *item);
    /// The pictures of a media were made, or failed.
    void picturesMade(INxAbstractMediaItem *item);
    /// Files read of those that were to be read, since all was last idle.
    void progress(qint64 read, qint64 known);
    /// Nothing waits any more, though media on silent drives may be left.
    void idle();
};
