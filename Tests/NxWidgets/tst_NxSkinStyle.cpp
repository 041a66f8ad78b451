// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxSkinStyle.h>

#include "SkinListener.h"

#include <Support/NxTestMain.h>

#include <QFile>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

Q_DECLARE_METATYPE(NxSkin)
Q_DECLARE_METATYPE(NxSkinColor)

namespace {

constexpr NxSkin skins[] = {NxSkin::Dark, NxSkin::Light};

NxSkinStyle &style()
{
    return *NxSkinStyle::instance();
}

const char *nameOf(NxSkin skin)
{
    return skin == NxSkin::Dark ? "dark" : "light";
}

/// Relative luminance as the WCAG define it: 0 for black, 1 for white.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

/// From 1 for the same to 21 for black on white.
double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, brighter] = std::minmax({luminance(a), luminance(b)});
    return (brighter + 0.05) / (darker + 0.05);
}

using Key = NxSkinColor;

struct Pair
{
    const char *name;
    Key front;
    Key ground;
    double least;
};

constexpr double readable = 4.5;
constexpr double clear = 3.0;
constexpr double visible = 1.5;
constexpr double noticeable = 1.15;

constexpr Pair Pairs[] = {
    {"names on the panel", Key::Text_Icon_Primary, Key::Background_Panel, readable},
    {"names in the tree", Key::Text_Icon_Primary, Key::Background_Tree, readable},
    {"names under the mouse", Key::Text_Icon_Primary, Key::State_Hover, readable},
    {"selected names", Key::Text_Icon_Primary, Key::State_Selected, readable},
    {"written text", Key::Text_Icon_Primary, Key::Control_Background, readable},
    {"counts on the panel", Key::Text_Icon_Secondary, Key::Background_Panel, readable},
    {"counts in the tree", Key::Text_Icon_Secondary, Key::Background_Tree, readable},
    {"counts under the mouse", Key::Text_Icon_Secondary, Key::State_Hover, readable},
    {"selected counts", Key::Text_Icon_Secondary, Key::State_Selected, readable},
    {"text around a cover", Key::Text_Icon_Secondary, Key::Background_Cover, readable},
    {"placeholders", Key::Text_Icon_Secondary, Key::Control_Background, readable},
    {"badges", Key::Badge_Text, Key::Badge_Background, readable},
    {"links", Key::Accent, Key::Background_Panel, readable},
    {"warnings on the panel", Key::Warning, Key::Background_Panel, readable},
    {"warnings on a badge", Key::Warning, Key::Badge_Background, readable},
    {"standard licence on the panel", Key::Licence_Standard, Key::Background_Panel, readable},
    {"standard licence on a badge", Key::Licence_Standard, Key::Badge_Background, readable},
    {"premium licence on the panel", Key::Licence_Premium, Key::Background_Panel, readable},
    {"premium licence on a badge", Key::Licence_Premium, Key::Badge_Background, readable},
    {"selection frame on the panel", Key::Accent, Key::Background_Panel, clear},
    {"selection frame around a cover", Key::Accent, Key::Background_Cover, clear},
    {"selection frame under the mouse", Key::Accent, Key::State_Hover, clear},
    {"progress", Key::Progress_Done, Key::Progress_Back, clear},
    {"border of a field on the panel", Key::Control_Border, Key::Background_Panel, clear},
    {"border of a field in the tree", Key::Control_Border, Key::Background_Tree, clear},
    {"border of the field with the keyboard", Key::Control_Focus, Key::Background_Panel, clear},
    {"disabled text", Key::Text_Icon_Disabled, Key::Background_Panel, 2.5},
    {"lines on the panel", Key::Component_Divider_Primary, Key::Background_Panel, visible},
    {"lines in the tree", Key::Component_Divider_Primary, Key::Background_Tree, visible},
    {"selected text in a field", Key::State_Selected, Key::Control_Background, 1.4},
    {"the row under the mouse", Key::State_Hover, Key::Background_Panel, noticeable},
    {"the selected row", Key::State_Selected, Key::Background_Panel, noticeable},
    {"the selected folder", Key::State_Selected, Key::Background_Tree, noticeable},
    {"the rest of a bar", Key::Progress_Back, Key::Background_Panel, noticeable},
};

constexpr char arrow[] = ":/Resource/icon8_arrow-down-hover.png";
constexpr char arrowOfLight[] = ":/Resource/Light/icon8_arrow-down-hover.png";

/// Goes with the first new skin.
class Mayfly : public INxSkinEventHandler
{
public:
    explicit Mayfly(bool *isDead) : m_isDead(isDead) { style().Attach(this); }
    ~Mayfly() override
    {
        style().Detach(this);
        *m_isDead = true;
    }
    void OnSkinChangedEvent(INxSkinEvent *) override { delete this; }

private:
    Q_DISABLE_COPY_MOVE(Mayfly)
    bool *const m_isDead;
};

} // namespace

class tst_NxSkinStyle : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everyColourIsOpaqueAndAnotherInEachSkin();
    void anUnknownColourIsInvalid();
    void whatIsShownCanBeSeen_data();
    void whatIsShownCanBeSeen();
    void fieldsWithTheKeyboardHaveAnotherBorder();
    void picturesComeFromTheSkin_data();
    void picturesComeFromTheSkin();
    void theDarkFolderComesBeforeThePlainPicture();
    void widgetsWearTheSkin_data();
    void widgetsWearTheSkin();
    void disabledWidgetsLookDisabled();
    void whoIsAttachedHearsOfANewSkin();
    void theSameSkinIsNoNews();
    void whoIsAttachedTwiceIsToldOnce();
    void whoLeftHearsNothing();
    void handlersMayLeaveWhileOthersAreTold_data();
    void handlersMayLeaveWhileOthersAreTold();
    void handlersMayDieWhileOthersAreTold();
    void handlersMayDieWhileTheyAreTold();
    void whoComesWhileOthersAreToldHearsOfTheNextSkin();
    void aHandlerMayChooseAnotherSkin();
};

void tst_NxSkinStyle::initTestCase()
{
    QCOMPARE(style().skin(), NxSkin::Dark);
}

void tst_NxSkinStyle::cleanup()
{
    style().setSkin(NxSkin::Dark);
}

void tst_NxSkinStyle::anUnknownColourIsInvalid()
{
    QVERIFY(!style().GetColor(Key(-1)).isValid());
    QVERIFY(!style().GetColor(Key(1'000)).isValid());
}

void tst_NxSkinStyle::everyColourIsOpaqueAndAnotherInEachSkin()
{
    for (int key = 0; key <= int(Key::Control_Focus); ++key) {
        style().setSkin(NxSkin::Dark);
        const QColor dark = style().GetColor(Key(key));
        style().setSkin(NxSkin::Light);
        const QColor light = style().GetColor(Key(key));
        QVERIFY2(dark.alpha() == 255 && light.alpha() == 255, qPrintable(QString::number(key)));
        QVERIFY2(dark != light, qPrintable(QString::number(key)));
    }
}

void tst_NxSkinStyle::whatIsShownCanBeSeen_data()
{
    QTest::addColumn<NxSkin>("skin");
    QTest::addColumn<NxSkinColor>("front");
    QTest::addColumn<NxSkinColor>("ground");
    QTest::addColumn<double>("least");
    for (const NxSkin skin : skins) {
        for (const Pair &pair : Pairs)
            QTest::addRow("%s: %s", nameOf(skin), pair.name)
                << skin << pair.front << pair.ground << pair.least;
    }
}

void tst_NxSkinStyle::whatIsShownCanBeSeen()
{
    QFETCH(NxSkin, skin);
    QFETCH(NxSkinColor, front);
    QFETCH(NxSkinColor, ground);
    QFETCH(double, least);
    style().setSkin(skin);
    const double shown = contrast(style().GetColor(front), style().GetColor(ground));
    QVERIFY2(shown >= least, qPrintable(QString::number(shown)));
}

void tst_NxSkinStyle::fieldsWithTheKeyboardHaveAnotherBorder()
{
    for (const NxSkin skin : skins) {
        style().setSkin(skin);
        QVERIFY(style().GetColor(Key::Control_Focus) != style().GetColor(Key::Control_Border));
        QVERIFY(style().GetColor(Key::Control_Focus).hsvSaturation() > 128);
        QVERIFY(style().GetColor(Key::Control_Border).hsvSaturation() < 64);
    }
}

void tst_NxSkinStyle::picturesComeFromTheSkin_data()
{
    QTest::addColumn<NxSkin>("skin");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("formatted");
    const auto row = [](const char *name, NxSkin skin, const char *path, const char *formatted) {
        QTest::newRow(name) << skin << QString::fromLatin1(path) << QString::fromLatin1(formatted);
    };
    row("dark", NxSkin::Dark, arrow, arrow);
    row("light", NxSkin::Light, arrow, arrowOfLight);
    row("formatted already", NxSkin::Light, arrowOfLight, arrowOfLight);
    row("no such picture", NxSkin::Light, ":/Resource/none.png", ":/Resource/none.png");
    row("another folder", NxSkin::Light, ":/Other/icon8_arrow-down-hover.png",
        ":/Other/icon8_arrow-down-hover.png");
    row("a longer folder", NxSkin::Light, "/tmp:/Resource/icon8_arrow-down-hover.png",
        "/tmp:/Resource/icon8_arrow-down-hover.png");
    row("a file", NxSkin::Light, "/home/cover.png", "/home/cover.png");
    row("nothing", NxSkin::Light, "", "");
}

void tst_NxSkinStyle::picturesComeFromTheSkin()
{
    QFETCH(NxSkin, skin);
    QFETCH(QString, path);
    QFETCH(QString, formatted);
    style().setSkin(skin);
    QCOMPARE(style().FormatResourceFile(path), formatted);
}

void tst_NxSkinStyle::theDarkFolderComesBeforeThePlainPicture()
{
    const QString plain = QStringLiteral(":/Resource/hosts.png");
    QVERIFY(QFile::exists(plain));
    QCOMPARE(style().FormatResourceFile(plain), QStringLiteral(":/Resource/Dark/hosts.png"));
    style().setSkin(NxSkin::Light);
    QCOMPARE(style().FormatResourceFile(plain), plain);
}

void tst_NxSkinStyle::widgetsWearTheSkin_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<NxSkinColor>("colour");
    QTest::newRow("panel") << QPalette::Window << Key::Background_Panel;
    QTest::newRow("labels") << QPalette::WindowText << Key::Text_Icon_Primary;
    QTest::newRow("fields") << QPalette::Base << Key::Control_Background;
    QTest::newRow("written text") << QPalette::Text << Key::Text_Icon_Primary;
    QTest::newRow("placeholders") << QPalette::PlaceholderText << Key::Text_Icon_Secondary;
    QTest::newRow("captions") << QPalette::ButtonText << Key::Text_Icon_Primary;
    QTest::newRow("selection") << QPalette::Highlight << Key::State_Selected;
    QTest::newRow("selected text") << QPalette::HighlightedText << Key::Text_Icon_Primary;
    QTest::newRow("hints") << QPalette::ToolTipText << Key::Badge_Text;
    QTest::newRow("behind hints") << QPalette::ToolTipBase << Key::Badge_Background;
    QTest::newRow("links") << QPalette::Link << Key::Accent;
}

void tst_NxSkinStyle::widgetsWearTheSkin()
{
    QFETCH(QPalette::ColorRole, role);
    QFETCH(NxSkinColor, colour);
    for (const NxSkin skin : skins) {
        style().setSkin(skin);
        const QPalette worn = style().palette();
        QCOMPARE(worn.color(QPalette::Active, role), style().GetColor(colour));
        QCOMPARE(worn.color(QPalette::Inactive, role), style().GetColor(colour));
    }
}

void tst_NxSkinStyle::disabledWidgetsLookDisabled()
{
    for (const NxSkin skin : skins) {
        style().setSkin(skin);
        const QPalette worn = style().palette();
        for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text,
                                               QPalette::ButtonText, QPalette::HighlightedText})
            QCOMPARE(worn.color(QPalette::Disabled, role),
                     style().GetColor(Key::Text_Icon_Disabled));
    }
}

void tst_NxSkinStyle::whoIsAttachedHearsOfANewSkin()
{
    const SkinListener first;
    const SkinListener second;
    style().setSkin(NxSkin::Light);
    for (const SkinListener *listener : {&first, &second}) {
        QCOMPARE(listener->told, 1);
        QVERIFY(listener->isLatestChange);
        QCOMPARE(listener->found, NxSkin::Light);
    }
}

void tst_NxSkinStyle::theSameSkinIsNoNews()
{
    const SkinListener listener;
    style().setSkin(NxSkin::Dark);
    QCOMPARE(listener.told, 0);
    style().setSkin(NxSkin::Light);
    style().setSkin(NxSkin::Light);
    QCOMPARE(listener.told, 1);
}

void tst_NxSkinStyle::whoIsAttachedTwiceIsToldOnce()
{
    SkinListener listener;
    style().Attach(&listener);
    style().setSkin(NxSkin::Light);
    QCOMPARE(listener.told, 1);
    style().Detach(&listener);
    style().setSkin(NxSkin::Dark);
    QCOMPARE(listener.told, 1);
}

void tst_NxSkinStyle::whoLeftHearsNothing()
{
    SkinListener listener;
    const SkinListener other;
    style().Detach(&listener);
    style().Detach(&listener);
    style().setSkin(NxSkin::Light);
    QCOMPARE(listener.told, 0);
    QCOMPARE(other.told, 1);
}

void tst_NxSkinStyle::handlersMayLeaveWhileOthersAreTold_data()
{
    QTest::addColumn<int>("leaver");
    QTest::addColumn<QVector<int>>("told");
    QTest::newRow("one that was told") << 0 << QVector<int>{1, 1, 1};
    QTest::newRow("the one that is told") << 1 << QVector<int>{1, 1, 1};
    QTest::newRow("one whose turn would come") << 2 << QVector<int>{1, 1, 0};
}

void tst_NxSkinStyle::handlersMayLeaveWhileOthersAreTold()
{
    QFETCH(int, leaver);
    QFETCH(QVector<int>, told);
    QVector<SkinListener *> listeners;
    SkinListener first;
    SkinListener second([&] { style().Detach(listeners.at(leaver)); });
    SkinListener third;
    listeners = {&first, &second, &third};
    style().setSkin(NxSkin::Light);
    QCOMPARE((QVector<int>{first.told, second.told, third.told}), told);
}

void tst_NxSkinStyle::handlersMayDieWhileOthersAreTold()
{
    auto earlier = std::make_unique<SkinListener>();
    std::unique_ptr<SkinListener> later;
    const SkinListener killer([&] {
        earlier.reset();
        later.reset();
    });
    later = std::make_unique<SkinListener>();
    const SkinListener last;
    style().setSkin(NxSkin::Light);
    QVERIFY(!earlier && !later);
    QCOMPARE(last.told, 1);
}

void tst_NxSkinStyle::handlersMayDieWhileTheyAreTold()
{
    bool isDead = false;
    new Mayfly(&isDead);
    const SkinListener last;
    style().setSkin(NxSkin::Light);
    QVERIFY(isDead);
    QCOMPARE(last.told, 1);
    style().setSkin(NxSkin::Dark);
    QCOMPARE(last.told, 2);
}

void tst_NxSkinStyle::whoComesWhileOthersAreToldHearsOfTheNextSkin()
{
    std::unique_ptr<SkinListener> newcomer;
    const SkinListener host([&] {
        if (!newcomer)
            newcomer = std::make_unique<SkinListener>();
    });
    style().setSkin(NxSkin::Light);
    QVERIFY(newcomer);
    QCOMPARE(newcomer->told, 0);
    style().setSkin(NxSkin::Dark);
    QCOMPARE(newcomer->told, 1);
}

void tst_NxSkinStyle::aHandlerMayChooseAnotherSkin()
{
    const SkinListener first;
    const SkinListener stubborn([] { style().setSkin(NxSkin::Dark); });
    const SkinListener last;
    style().setSkin(NxSkin::Light);
    QCOMPARE(style().skin(), NxSkin::Dark);
    for (const SkinListener *listener : {&first, &stubborn, &last})
        QCOMPARE(listener->found, NxSkin::Dark);
    QCOMPARE(first.told, 2);
}

NX_TEST_MAIN(tst_NxSkinStyle)
#include "tst_NxSkinStyle.moc"
