// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// What the skin paints in one colour of its own. All of them are opaque.
enum class NxSkinColor : int {
    Text_Icon_Primary, ///< Names, what is read first.
    Text_Icon_Secondary, ///< Headers of groups, counts, lengths, placeholders.
    Text_Icon_Disabled, ///< What cannot be used now.
    Component_Divider_Primary, ///< Lines between parts.
    State_Hover, ///< Behind what the mouse points at.
    State_Selected, ///< Behind what is selected.
    Background_Panel, ///< Behind the media.
    Background_Tree, ///< Behind the folders.
    Background_Cover, ///< Around a cover that does not fill its box.
    Accent, ///< Frame of selected media, links.
    Badge_Background, ///< Behind short texts and marks that lie on a cover.
    Badge_Text,
    Progress_Back, ///< The part of a bar that is still to be done.
    Progress_Done,
    Warning, ///< Missing and unreadable media.
    Licence_Standard, ///< Mark of media that come with every licence.
    Licence_Premium, ///< Mark of media that need the better licence.
    Control_Background, ///< Inside fields and boxes.
    Control_Border,
    Control_Focus, ///< Border of the field that has the keyboard.
};
