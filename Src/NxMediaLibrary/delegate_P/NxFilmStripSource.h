// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaRef.h>

#include <QImage>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <memory>

class INxAbstractMediaItem;
class INxBsThumbManager;
class INxMediaEngine;
class NxFilmStripLoader;

/// Film strips of media, without waiting for a disk: from the engine's memory where it hands them
/// out, else from the files that it names. GUI thread only.
class NxFilmStripSource
{
    Q_DISABLE_COPY_MOVE(NxFilmStripSource)
public:
    /// Null: there is no strip to be had. May destroy the source.
    using Arrived = std::function<void(const QImage &strip)>;

    explicit NxFilmStripSource(Arrived arrived);
    ~NxFilmStripSource();

    /// The item's strip if it is in memory. Otherwise null; if it is fetched, `arrived` follows.
    /// What was asked for before is forgotten.
    [[nodiscard]] QImage ask(INxAbstractMediaItem *item);
    /// Nothing arrives any more until the next question.
    void forget();
    /// Whether the last question is still open.
    [[nodiscard]] bool isAwaited() const { return m_isAwaited; }

private:
    using Handle = std::unique_ptr<INxBsThumbManager, void (*)(INxBsThumbManager *)>;

    [[nodiscard]] INxBsThumbManager *handle();
    void onCame(INxAbstractMedia *media);
    void onLoaded(const QString &path, const QImage &strip);
    void answer(const QImage &strip);

    const Arrived m_arrived;
    bool m_isAwaited = false;
    NxMediaRef m_asked; // Whose strip comes by the handle.
    QString m_path; // Of the strip that the loader brings.
    const INxMediaEngine *m_engine = nullptr; // Which made the handle; never looked into.
    Handle m_handle;
    std::unique_ptr<NxFilmStripLoader> m_loader; // Made when it is first needed.
};
