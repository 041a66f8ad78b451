// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

class INxAbstractMedia;

/// Adds up what is known of many media, a slice in each turn of the event loop, so that a hundred
/// thousand of them are summed up without anybody having to wait. Never reaches for a disk.
class MediaSums : public QObject
{
    Q_OBJECT
public:
    struct Totals
    {
        QMap<QString, int> kinds; ///< How many of each kind, by its name in the user's language.
        qint64 milliseconds = 0;
        qint64 bytes = 0;
        int unknownSizes = 0; ///< Media whose size is not known.
    };
    /// The media of a place; null for one that died. Asked only while the sums are running.
    using Media = std::function<const INxAbstractMedia *(int place)>;

    explicit MediaSums(QObject *parent = nullptr);
    ~MediaSums() override;

    /// Begins anew.
    void start(int count, Media media);
    /// Gives up: media are not asked for any more.
    void stop();
    [[nodiscard]] bool isRunning() const { return m_turn.isActive(); }
    /// Of what has been added up until now.
    [[nodiscard]] const Totals &totals() const { return m_totals; }

Q_SIGNALS:
    /// The totals are complete.
    void sigDone();

private:
    void addSlice();
    void add(const INxAbstractMedia *media);

    QTimer m_turn;
    Media m_media;
    int m_count = 0;
    int m_next = 0;
    Totals m_totals;
};
