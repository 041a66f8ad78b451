// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>

#include <QMap>
#include <QString>
#include <QVector>

class NxMediaLibrarySetting;

/// The texts of the settings file and what they mean, spelled out anew, with all enums as numbers.
namespace PlainTables {

constexpr int Categories = 11;
enum Kind { View, SortBy, SortByOrder, GroupBy, GroupByOrder, KindCount };

NXVBLMODEL::NxMediaCategoryType category(int code);
QString prefixOf(int code);
const char *kindName(int kind);
/// "Media_View" and the like.
QString keyOf(int code, int kind);
/// What stands in the file for a value; empty when the value is not written.
QString writtenText(int code, int kind, int value);
/// What a text of the file means.
int readValue(int code, int kind, const QString &text);

/// The setter and the getter of a kind.
void set(NxMediaLibrarySetting *setting, int code, int kind, int value);
int get(const NxMediaLibrarySetting *setting, int code, int kind);

} // namespace PlainTables

/// The settings in the plainest way: numbers in memory and a map for the file.
class PlainSettings
{
public:
    /// Begins with a file of these keys.
    explicit PlainSettings(const QMap<QString, QString> &file = {});

    /// A new start of the program.
    void start();
    void set(int code, int kind, int value);
    void setFilter(int code, int value);
    void save();
    void restore();

    /// The first value that the real settings have otherwise; empty when there is none.
    [[nodiscard]] QString differenceTo(const NxMediaLibrarySetting *setting) const;
    [[nodiscard]] QMap<QString, QString> file() const { return m_file; }

private:
    struct State
    {
        int values[PlainTables::Categories][PlainTables::KindCount];
        int filters[PlainTables::Categories];
    };

    void put(int code, int kind, int value);

    State m_now;
    QVector<State> m_saved;
    QMap<QString, QString> m_file;
};
