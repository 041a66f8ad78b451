// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <QStringList>

#include "ItemStand.h"

/// Writes down what an item model tells: "before reset", "changed 3", "removing 2", "added A" ...
class ItemViewer
{
public:
    explicit ItemViewer(NxMediaItemModel *model) : m_model(model)
    {
        listenToRows();
        listenToMedia();
    }

    /// What was told since the last call, separated by commas.
    [[nodiscard]] QString takeTold() { return takeTexts(&m_told); }
    /// The rows at the beginning and at the end of each reset since the last call.
    [[nodiscard]] QString takeRows() { return takeTexts(&m_rows); }

private:
    [[nodiscard]] static QString takeTexts(QStringList *texts)
    {
        const QString text = texts->join(QLatin1String(", "));
        texts->clear();
        return text;
    }
    void note(const QString &text) { m_told.append(text); }
    void noteReset(const QString &text)
    {
        note(text);
        m_rows.append(QString::number(m_model->rowCount()));
    }

    void listenToRows()
    {
        const auto listen = [this](auto signal, const char *text) {
            QObject::connect(m_model, signal, &m_here, [this, text] { note(QLatin1String(text)); });
        };
        using Model = QAbstractItemModel;
        listen(&Model::rowsInserted, "rows inserted");
        listen(&Model::rowsRemoved, "rows removed");
        listen(&Model::rowsMoved, "rows moved");
        listen(&Model::layoutChanged, "layout changed");
        QObject::connect(m_model, &Model::modelAboutToBeReset, &m_here,
                         [this] { noteReset(QStringLiteral("before reset")); });
        QObject::connect(m_model, &Model::modelReset, &m_here,
                         [this] { noteReset(QStringLiteral("reset")); });
        QObject::connect(
            m_model, &Model::dataChanged, &m_here,
            [this](const QModelIndex &first, const QModelIndex &last, const QVector<int> &roles) {
                const bool isPlain = first == last && first.column() == 0 && roles.isEmpty();
                note(QStringLiteral("%1 %2")
                         .arg(isPlain ? QStringLiteral("changed") : QStringLiteral("oddly changed"))
                         .arg(first.row()));
            });
    }

    void listenToMedia()
    {
        using Model = NxMediaItemModel;
        const auto listen = [this](auto signal, const char *text) {
            QObject::connect(m_model, signal, &m_here, [this, text](const INxAbstractMedia *item) {
                note(QLatin1String(text) + rowText(item));
            });
        };
        listen(&Model::sigDownloadFinished, "finished ");
        listen(&Model::sigDownloadFailed, "failed ");
        QObject::connect(m_model, &Model::siVCGDownloadLimit, &m_here,
                         [this] { note(QStringLiteral("limit")); });
        QObject::connect(m_model, &Model::sigFetchMoreStateChanged, &m_here,
                         [this](int state) { note(QStringLiteral("fetch more %1").arg(state)); });
        QObject::connect(m_model, &Model::sigAfterAddItem, &m_here,
                         [this](INxFolderMedia *folder, INxAbstractMedia *item) {
                             note(QStringLiteral("added %1 to %2")
                                      .arg(rowText(item), folder ? folder->name() : QString()));
                         });
        QObject::connect(m_model, &Model::sigRemoveItem, &m_here,
                         [this](const QModelIndex &parent, int first, int last) {
                             const bool isPlain = !parent.isValid() && first == last;
                             note(QStringLiteral("%1 %2")
                                      .arg(isPlain ? QStringLiteral("removing")
                                                   : QStringLiteral("oddly removing"))
                                      .arg(first));
                         });
    }

    NxMediaItemModel *const m_model; // Not owned.
    QStringList m_told;
    QStringList m_rows;
    QObject m_here; // Where connections end.
};
