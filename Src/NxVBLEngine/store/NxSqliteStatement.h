// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QByteArray>
#include <QString>

#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// One prepared statement, kept for many runs. Must not outlive its database.
///
/// Parameters count from 1, columns from 0, as in SQLite. A statement that could not be prepared
/// fails at every step; the reason is the database's last error.
class NXVBLENGINE_TEST_EXPORT NxSqliteStatement
{
public:
    enum class Step {
        Row,
        Done,
        Failed,
    };

    NxSqliteStatement() = default;
    NxSqliteStatement(sqlite3 *database, const char *sql);
    ~NxSqliteStatement();
    NxSqliteStatement(NxSqliteStatement &&other) noexcept;
    NxSqliteStatement &operator=(NxSqliteStatement &&other) noexcept;

    [[nodiscard]] bool isValid() const { return m_statement != nullptr; }

    void bind(int parameter, qint64 value);
    void bindNull(int parameter);
    void bind(int parameter, const QByteArray &value);
    /// Binds several texts to neighbouring parameters, each with everything it holds.
    template<typename... Texts>
    void bindTexts(int firstParameter, const Texts &...texts)
    {
        reserveText((texts.size() + ... + 0));
        char *free = m_text.data();
        (bindTextAt(firstParameter++, texts, &free), ...);
    }

    [[nodiscard]] Step step();
    /// Runs a statement that answers no rows, and makes it ready for the next run.
    [[nodiscard]] bool run();
    void reset();

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] qint64 integer(int column) const;
    [[nodiscard]] QString text(int column) const;
    [[nodiscard]] QByteArray blob(int column) const;

private:
    void reserveText(int length);
    void bindTextAt(int parameter, const QString &text, char **free);

    sqlite3_stmt *m_statement = nullptr;
    std::vector<char> m_text; ///< What the bound texts point to, until the next bindTexts().
};
