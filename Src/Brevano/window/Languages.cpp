// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/Languages.h>

#include <NxCore/NxDiskBan.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>

// A resource of a static library comes in only by name; Qt wants this outside every namespace.
static void bringInTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

const QString English = QStringLiteral("en");
const QString TranslationsFolder = QStringLiteral(":/translations");

bool isAvailable(const QString &code)
{
    const QList<Languages::Language> all = Languages::available();
    return std::any_of(all.begin(), all.end(),
                       [&code](const Languages::Language &one) { return one.code == code; });
}

// "en" for "en-GB", "zh_CN" for every way to write simplified Chinese; other Chinese is another
// script that we do not have.
QString codeFor(const QString &wanted)
{
    const QStringList parts =
        QString(wanted).replace(QLatin1Char('_'), QLatin1Char('-')).split(QLatin1Char('-'));
    if (parts.first() != QLatin1String("zh"))
        return parts.first();
    static const QStringList traditional{QStringLiteral("Hant"), QStringLiteral("TW"),
                                         QStringLiteral("HK"), QStringLiteral("MO")};
    const bool isTraditional = !parts.contains(QLatin1String("Hans"))
                               && std::any_of(parts.begin(), parts.end(), [](const QString &part) {
                                      return traditional.contains(part);
                                  });
    return isTraditional ? QString() : QStringLiteral("zh_CN");
}

// The user's own country where the language is the system's.
QLocale localeOf(const QString &code)
{
    const QLocale own(code);
    const QLocale system = QLocale::system();
    const bool isSystems = system.language() == own.language() && system.script() == own.script();
    return isSystems ? system : own;
}

} // namespace

Languages::Languages()
{
    bringInTranslations();
    setCurrent(QString());
}

Languages::~Languages()
{
    removeTranslators();
    QLocale::setDefault(m_localeBefore);
}

QList<Languages::Language> Languages::available()
{
    return {{English, QStringLiteral("English")},
            {QStringLiteral("de"), QStringLiteral("Deutsch")},
            {QStringLiteral("zh_CN"), QStringLiteral("简体中文")}};
}

QString Languages::bestOf(const QStringList &wanted)
{
    for (const QString &language : wanted) {
        const QString code = codeFor(language);
        if (isAvailable(code))
            return code;
    }
    return English;
}

void Languages::setCurrent(const QString &code)
{
    const QString chosen = isAvailable(code) ? code : bestOf(QLocale::system().uiLanguages());
    if (chosen == m_current)
        return;
    m_current = chosen;
    NxDiskBan::note("Languages::setCurrent");
    QLocale::setDefault(localeOf(chosen)); // First: who hears of the language asks for it.
    removeTranslators();
    if (chosen == English)
        return;
    add(QStringLiteral("qtbase_") + chosen, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    add(QStringLiteral("brevano_") + chosen, TranslationsFolder);
}

void Languages::removeTranslators()
{
    m_translators.clear(); // Each takes itself out of the application.
}

void Languages::add(const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder))
        return; // Qt's own texts are not installed everywhere.
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}
