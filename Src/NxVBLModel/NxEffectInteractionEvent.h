// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxTrackEvent.h>

#include <QVariantMap>

/// Tells how the user met an effect, a title or another resource of the library.
///
/// One field per property. An invalid field is one that is not known, and is not sent. The fields
/// become properties when the event is sent, always in the order in which they stand here.
class NXVBLMODEL_EXPORT NxEffectInteractionEvent : public NxTrackEvent
{
public:
    NxEffectInteractionEvent();
    ~NxEffectInteractionEvent() override;

    /// Fills the fields from a prepared map whose keys are the names that are sent
    /// ("effect_name"). Fields that the map does not name stay; other keys are ignored.
    void setFields(const QVariantMap &properties);
    /// Writes the fields into the properties and hands the event to the installed engine.
    void sendEvent() override;

    QVariant effectName; ///< "effect_name"
    QVariant resId; ///< "res_id"
    QVariant rankId; ///< "rank_id"
    QVariant currentSortName; ///< "current_sort_name"
    QVariant currentSortBy; ///< "current_sort_by"
    QVariant effectType; ///< "effect_type"
    QVariant effectCategory; ///< "effect_category"
    QVariant searchSessionId; ///< "search_session_id"
    QVariant currentKeyword; ///< "current_keyword"
    QVariant algorithm; ///< "algorithm"
    QVariant catalogNamePath; ///< "catalog_name_path"
    QVariant catalogIdPath; ///< "catalog_id_path"
    QVariant effectPaymentAttri; ///< "effect_payment_attri": "free" or "paid".
    QVariant interactionType; ///< "interaction_type"
    QVariant effectTypeFilter; ///< "effect_type_filter"; project templates have none.
    QVariant effectPayFilter; ///< "effect_pay_filter"
    QVariant similarSessionId; ///< "similar_session_id"
    QVariant projectTemplateName; ///< "project_template_name"
    QVariant textBorderCount; ///< "text_border_count"
    QVariant textShadowCount; ///< "text_shadow_count"
};
