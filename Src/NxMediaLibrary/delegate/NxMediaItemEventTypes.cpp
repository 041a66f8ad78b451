// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaItemEventTypes.h>

#include <QStyleOptionViewItem>

#include <array>

NxMediaItemEventCondition mediaItemEventCondition(NxMediaItemMouseEvent event)
{
    static constexpr std::array conditions{
        mecNone, // mmeNone
        mecNone, // mmeMove
        mecPress, // mmeLeftPress
        mecPress, // mmeOtherPress
        mecRelease, // mmeLeftRelease
        mecRelease, // mmeOtherRelease
        mecDoubleClick, // mmeDoubleClick
    };
    const bool isKnown = event >= 0 && size_t(event) < conditions.size();
    return isKnown ? conditions.at(size_t(event)) : mecNone;
}

NxMediaItemState mediaItemState(const QStyleOptionViewItem &option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return misDisabled;
    const bool isHovered = option.state.testFlag(QStyle::State_MouseOver);
    if (option.state.testFlag(QStyle::State_Selected))
        return isHovered ? misSelectedHovered : misSelected;
    return isHovered ? misHovered : misNormal;
}
