// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxEffectInteractionEvent.h>

namespace {

struct Field
{
    const char *key;
    QVariant NxEffectInteractionEvent::*value;
};

// In the order in which they are sent.
constexpr Field Fields[] = {
    {"effect_name", &NxEffectInteractionEvent::effectName},
    {"res_id", &NxEffectInteractionEvent::resId},
    {"rank_id", &NxEffectInteractionEvent::rankId},
    {"current_sort_name", &NxEffectInteractionEvent::currentSortName},
    {"current_sort_by", &NxEffectInteractionEvent::currentSortBy},
    {"effect_type", &NxEffectInteractionEvent::effectType},
    {"effect_category", &NxEffectInteractionEvent::effectCategory},
    {"search_session_id", &NxEffectInteractionEvent::searchSessionId},
    {"current_keyword", &NxEffectInteractionEvent::currentKeyword},
    {"algorithm", &NxEffectInteractionEvent::algorithm},
    {"catalog_name_path", &NxEffectInteractionEvent::catalogNamePath},
    {"catalog_id_path", &NxEffectInteractionEvent::catalogIdPath},
    {"effect_payment_attri", &NxEffectInteractionEvent::effectPaymentAttri},
    {"interaction_type", &NxEffectInteractionEvent::interactionType},
    {"effect_type_filter", &NxEffectInteractionEvent::effectTypeFilter},
    {"effect_pay_filter", &NxEffectInteractionEvent::effectPayFilter},
    {"similar_session_id", &NxEffectInteractionEvent::similarSessionId},
    {"project_template_name", &NxEffectInteractionEvent::projectTemplateName},
    {"text_border_count", &NxEffectInteractionEvent::textBorderCount},
    {"text_shadow_count", &NxEffectInteractionEvent::textShadowCount},
};

} // namespace

NxEffectInteractionEvent::NxEffectInteractionEvent()
    : NxTrackEvent(QStringLiteral("effect_interaction"))
{
}

NxEffectInteractionEvent::~NxEffectInteractionEvent() = default;

void NxEffectInteractionEvent::setFields(const QVariantMap &properties)
{
    for (const Field &field : Fields) {
        const auto given = properties.constFind(QLatin1String(field.key));
        if (given != properties.constEnd())
            this->*field.value = *given;
    }
}

void NxEffectInteractionEvent::sendEvent()
{
    // An event may be sent again with other fields: what was written before goes first.
    for (const Field &field : Fields)
        removeProperty(QLatin1String(field.key));
    for (const Field &field : Fields) {
        if ((this->*field.value).isValid())
            setProperty(QLatin1String(field.key), this->*field.value);
    }
    NxTrackEvent::sendEvent();
}
