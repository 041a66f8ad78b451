// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GallerySheet.h"

#include <NxWidgets/NxSkinStyle.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QPainter>
#include <QScrollArea>

#include <algorithm>
#include <cstdio>

namespace {

enum ExitCode { Done = 0, NotWritten = 1, WrongUsage = 2 };

class SheetWidget final : public QWidget
{
public:
    explicit SheetWidget(GallerySheet *sheet) : m_sheet(sheet) { setFixedSize(sheet->size()); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_sheet->draw(&painter);
    }

private:
    GallerySheet *const m_sheet; // Not owned.
};

struct Wish
{
    NxSkin skin = NxSkin::Dark;
    int scale = 1;
    QString out;
    bool isUnderstood = true;
};

Wish wishOf(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows every kind of row of the media library in every state."));
    const QCommandLineOption skin(QStringLiteral("skin"), QStringLiteral("dark or light."),
                                  QStringLiteral("skin"), QStringLiteral("dark"));
    const QCommandLineOption out(QStringLiteral("out"),
                                 QStringLiteral("Writes a picture and shows no window."),
                                 QStringLiteral("file.png"));
    const QCommandLineOption scale(QStringLiteral("scale"),
                                   QStringLiteral("1, or 2 for twice as many pixels."),
                                   QStringLiteral("scale"), QStringLiteral("1"));
    parser.addOptions({skin, out, scale});
    parser.addHelpOption();
    parser.process(arguments);

    Wish wish;
    const bool isLight = parser.value(skin) == QLatin1String("light");
    const bool isDouble = parser.value(scale) == QLatin1String("2");
    wish.isUnderstood = (isLight || parser.value(skin) == QLatin1String("dark"))
                        && (isDouble || parser.value(scale) == QLatin1String("1"))
                        && parser.positionalArguments().isEmpty();
    wish.skin = isLight ? NxSkin::Light : NxSkin::Dark;
    wish.scale = isDouble ? 2 : 1;
    wish.out = parser.value(out);
    return wish;
}

/// A picture needs no display.
void renderWithoutDisplay(int argc, char **argv)
{
    const bool isPicture = std::any_of(argv + 1, argv + argc, [](const char *argument) {
        return QLatin1String(argument).startsWith(QLatin1String("--out"));
    });
    if (isPicture && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char **argv)
{
    renderWithoutDisplay(argc, argv);
    QApplication application(argc, argv);
    const Wish wish = wishOf(QCoreApplication::arguments());
    if (!wish.isUnderstood) {
        std::fputs("brevano-gallery: wrong usage (--help says how it is used)\n", stderr);
        return WrongUsage;
    }
    NxSkinStyle::instance()->setSkin(wish.skin);
    GallerySheet sheet;
    if (!wish.out.isEmpty()) {
        if (sheet.image(wish.scale).save(wish.out, "PNG"))
            return Done;
        std::fprintf(stderr, "brevano-gallery: %s cannot be written\n", qUtf8Printable(wish.out));
        return NotWritten;
    }
    QScrollArea window;
    window.setWindowTitle(QStringLiteral("Brevano gallery"));
    window.setWidget(new SheetWidget(&sheet));
    window.resize(sheet.size().width() + 24, 900);
    window.show();
    return QApplication::exec();
}
