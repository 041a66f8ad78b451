// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxSkinStyle.h>

#include <NxWidgets/INxSkinEvent.h>
#include <NxWidgets/INxSkinEventHandler.h>

#include <QFile>

#include <iterator>

namespace {

struct ColoursOfKey
{
    NxSkinColor key;
    QRgb dark;
    QRgb light;
};

/// In the order of their keys.
constexpr ColoursOfKey Colours[] = {
    {NxSkinColor::Text_Icon_Primary, 0xffe8eaed, 0xff1d2126},
    {NxSkinColor::Text_Icon_Secondary, 0xffaab0b9, 0xff4a525c},
    {NxSkinColor::Text_Icon_Disabled, 0xff6b727d, 0xff8d949e},
    {NxSkinColor::Component_Divider_Primary, 0xff444b56, 0xffb3bac4},
    {NxSkinColor::State_Hover, 0xff323944, 0xffdce2e9},
    {NxSkinColor::State_Selected, 0xff254267, 0xffbcd9f9},
    {NxSkinColor::Background_Panel, 0xff1e2228, 0xfff4f5f7},
    {NxSkinColor::Background_Tree, 0xff191c21, 0xffe9ebee},
    {NxSkinColor::Background_Cover, 0xff101216, 0xffd5d9de},
    {NxSkinColor::Accent, 0xff4d9ff5, 0xff0b5fb8},
    {NxSkinColor::Badge_Background, 0xff0d0f12, 0xffffffff},
    {NxSkinColor::Badge_Text, 0xfff2f4f7, 0xff1d2126},
    {NxSkinColor::Progress_Back, 0xff3a404a, 0xffcfd4db},
    {NxSkinColor::Progress_Done, 0xff4cc38a, 0xff13794f},
    {NxSkinColor::Warning, 0xfff2b450, 0xff9a4a00},
    {NxSkinColor::Licence_Standard, 0xff6fc3a8, 0xff0d6e55},
    {NxSkinColor::Licence_Premium, 0xffe9b949, 0xff7d5200},
    {NxSkinColor::Control_Background, 0xff15181c, 0xffffffff},
    {NxSkinColor::Control_Border, 0xff6f7783, 0xff7f8792},
    {NxSkinColor::Control_Focus, 0xff4d9ff5, 0xff0b5fb8},
};

constexpr bool standInTheirOrder()
{
    for (size_t i = 0; i < std::size(Colours); ++i) {
        if (size_t(Colours[i].key) != i)
            return false;
    }
    return true;
}
static_assert(standInTheirOrder(), "GetColor() finds a key's colours by its number");

struct RoleOfColour
{
    QPalette::ColorRole role;
    NxSkinColor colour;
};

constexpr RoleOfColour Roles[] = {
    {QPalette::Window, NxSkinColor::Background_Panel},
    {QPalette::WindowText, NxSkinColor::Text_Icon_Primary},
    {QPalette::Base, NxSkinColor::Control_Background},
    {QPalette::AlternateBase, NxSkinColor::Background_Tree},
    {QPalette::Text, NxSkinColor::Text_Icon_Primary},
    {QPalette::PlaceholderText, NxSkinColor::Text_Icon_Secondary},
    {QPalette::Button, NxSkinColor::State_Hover},
    {QPalette::ButtonText, NxSkinColor::Text_Icon_Primary},
    {QPalette::BrightText, NxSkinColor::Warning},
    {QPalette::ToolTipBase, NxSkinColor::Badge_Background},
    {QPalette::ToolTipText, NxSkinColor::Badge_Text},
    {QPalette::Highlight, NxSkinColor::State_Selected},
    {QPalette::HighlightedText, NxSkinColor::Text_Icon_Primary},
    {QPalette::Link, NxSkinColor::Accent},
    {QPalette::LinkVisited, NxSkinColor::Accent},
};

constexpr RoleOfColour DisabledRoles[] = {
    {QPalette::WindowText, NxSkinColor::Text_Icon_Disabled},
    {QPalette::Text, NxSkinColor::Text_Icon_Disabled},
    {QPalette::PlaceholderText, NxSkinColor::Text_Icon_Disabled},
    {QPalette::ButtonText, NxSkinColor::Text_Icon_Disabled},
    {QPalette::Highlight, NxSkinColor::State_Hover},
    {QPalette::HighlightedText, NxSkinColor::Text_Icon_Disabled},
};

QLatin1String folderOf(NxSkin skin)
{
    return QLatin1String(skin == NxSkin::Light ? "Light/" : "Dark/");
}

class SkinChanged final : public INxSkinEvent
{
public:
    [[nodiscard]] bool isSkinChanged() const override { return true; }
};

} // namespace

NxSkinStyle *NxSkinStyle::instance()
{
    static NxSkinStyle style;
    return &style;
}

NxSkin NxSkinStyle::skin() const
{
    return m_skin;
}

void NxSkinStyle::setSkin(NxSkin skin)
{
    if (skin == m_skin)
        return;
    m_skin = skin;
    SkinChanged event;
    const QVector<INxSkinEventHandler *> handlers = m_handlers;
    for (INxSkinEventHandler *handler : handlers) {
        if (m_handlers.contains(handler)) // It may be dead otherwise.
            handler->OnSkinChangedEvent(&event);
    }
}

QColor NxSkinStyle::GetColor(NxSkinColor colour) const
{
    const auto row = size_t(colour);
    if (row >= std::size(Colours))
        return {};
    return QColor::fromRgb(m_skin == NxSkin::Light ? Colours[row].light : Colours[row].dark);
}

QString NxSkinStyle::FormatResourceFile(const QString &path) const
{
    static const QLatin1String pictures(":/Resource/");
    if (!path.startsWith(pictures))
        return path;
    const QString ofSkin = pictures + folderOf(m_skin) + path.mid(pictures.size());
    return QFile::exists(ofSkin) ? ofSkin : path;
}

QPalette NxSkinStyle::palette() const
{
    // Bevels and shadows follow from these two.
    QPalette colours(GetColor(NxSkinColor::State_Hover), GetColor(NxSkinColor::Background_Panel));
    for (const RoleOfColour &it : Roles)
        colours.setColor(it.role, GetColor(it.colour));
    for (const RoleOfColour &it : DisabledRoles)
        colours.setColor(QPalette::Disabled, it.role, GetColor(it.colour));
    return colours;
}

void NxSkinStyle::Attach(INxSkinEventHandler *handler)
{
    Q_ASSERT(handler);
    if (!m_handlers.contains(handler))
        m_handlers.append(handler);
}

void NxSkinStyle::Detach(INxSkinEventHandler *handler)
{
    m_handlers.removeOne(handler);
}
