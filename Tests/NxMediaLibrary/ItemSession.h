// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <QStringList>
#include <QVector>

#include <array>
#include <random>

#include "ItemYard.h"
#include "PlainItemModel.h"

/// What happens to a media view and its library: the model and the plain one side by side.
///
/// An event is a few numbers, which are understood from what there is when it happens. So any
/// events may be left out of a list of them, and what is left still makes sense.
class ItemSession
{
public:
    struct Event
    {
        quint32 what;
        quint32 a, b, c, d;
    };
    using Events = QVector<Event>;
    struct Yard
    {
        int first; ///< Items in the beginning.
        int most;
        bool isLasting = false; ///< No folder is emptied.
    };

    /// Tells what happens, when asked to.
    explicit ItemSession(const Yard &yard, bool tells = false);
    ~ItemSession();

    [[nodiscard]] static Event randomEvent(std::mt19937 &random);
    void perform(const Event &event);
    /// How the model differs from the plain one; empty when it does not.
    [[nodiscard]] QString difference();
    [[nodiscard]] QStringList story() const { return m_story; }

private:
    using Row = PlainItemModel::Row;
    using Told = PlainItemModel::Told;
    using Handler = void (ItemSession::*)(const Event &event);
    struct Kind
    {
        int weight;
        Handler handler;
    };
    static const std::array<Kind, 37> s_kinds;

    void addNew(const Event &event);
    void bringBack(const Event &event);
    void remove(const Event &event);
    void rename(const Event &event);
    void move(const Event &event);
    void moveQuietly(const Event &event);
    void change(const Event &event);
    void changeRemoved(const Event &event);
    void toggleFavourite(const Event &event);
    void progress(const Event &event);
    void finishDownload(const Event &event);
    void clearFolder(const Event &event);
    void killFolder(const Event &event);
    void makeFolder(const Event &event);
    void changeFolder(const Event &event);
    void choosePack(const Event &event);
    void finishChanges(const Event &event);
    void tellFetchState(const Event &event);
    void tellOfAddition(const Event &event);
    void tellOfNothing(const Event &event);
    void tellLimit(const Event &event);
    void bury(const Event &event);

    void load(const Event &event);
    void clearModel(const Event &event);
    void setFilter(const Event &event);
    void searchSimilar(const Event &event);
    void setSortBy(const Event &event);
    void setSortEnable(const Event &event);
    void setGroupBy(const Event &event);
    void toggleHeader(const Event &event);
    void toggleRow(const Event &event);
    void viewMore(const Event &event);
    void updateSimilar(const Event &event);
    void setItemCountPerLine(const Event &event);
    void setFetchMoreEnable(const Event &event);
    void changeLanguage(const Event &event);
    void idle(const Event &event);

    void tell(const QString &what);
    void changeFact(ScriptedItem *item, quint32 fact, quint32 value);
    void planMeanwhile(quint32 number);
    void loadBoth(ScriptedItemFolder *folder);
    void applyFilter(const PlainItemModel::Filter &filter);
    [[nodiscard]] ScriptedItemFolder *someFolder(quint32 number) const;
    [[nodiscard]] ScriptedItem *someItem(const Event &event) const;

    void listen();
    void hear(PlainItemModel::Signal signal, int number = 0, const void *folder = nullptr,
              const void *media = nullptr);
    [[nodiscard]] QVector<Row> modelRows() const;
    [[nodiscard]] Row headerRow(INxAbstractMedia *header) const;
    [[nodiscard]] QString rowsDifference(const QVector<Row> &wanted) const;
    [[nodiscard]] QString toldDifference(const QVector<Told> &wanted) const;
    [[nodiscard]] QString stateDifference() const;
    [[nodiscard]] QString contractFault() const;
    [[nodiscard]] QString text(const Row &row) const;
    [[nodiscard]] QString text(const Told &told) const;

    const Yard m_size;
    const bool m_tells;
    QStringList m_story;
    ItemYard m_yard;
    PlainItemModel m_plain;
    NxMediaItemModel m_model;
    PlainItemModel::Filter m_filter;
    bool m_fetchMoreEnable = true;
    QVector<Told> m_heard;
    QString m_fault; ///< What a signal said wrongly.
};
