// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The language of everything that the program shows, which can be changed while it runs.
///
/// A change reaches every window as QEvent::LanguageChange; numbers and dates follow it through
/// the default QLocale. One object serves the process; it takes its translators with it as it
/// goes. Needs a QCoreApplication. GUI thread only.
class Languages
{
public:
    struct Language
    {
        QString code; ///< "de", "zh_CN".
        QString name; ///< As those who speak it call it.
    };

    /// Begins in the system's language, or in English.
    Languages();
    ~Languages();

    /// In the order of a menu.
    [[nodiscard]] static QList<Language> available();
    /// The code of the first of these languages ("de-AT", "zh-Hans-CN"; the user's, the most
    /// wanted first) that there is; English's when there is none.
    [[nodiscard]] static QString bestOf(const QStringList &wanted);

    /// The code of the language in use.
    [[nodiscard]] QString current() const { return m_current; }
    /// Changes the language; an empty or unknown code is the system's. Reads Qt's own texts from
    /// the disk, where they are installed.
    void setCurrent(const QString &code);

private:
    Q_DISABLE_COPY_MOVE(Languages)
    void removeTranslators();
    void add(const QString &name, const QString &folder);

    const QLocale m_localeBefore;
    QString m_current;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
