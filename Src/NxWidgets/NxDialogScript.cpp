// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxDialogScript.h>

#include <utility>

namespace {

INxDialogAnswerer *g_answerer = nullptr;

} // namespace

INxDialogAnswerer::~INxDialogAnswerer() = default;

NxDialogScript::NxDialogScript(INxDialogAnswerer *answerer)
    : m_outer(std::exchange(g_answerer, answerer))
{
}

NxDialogScript::~NxDialogScript()
{
    g_answerer = m_outer;
}

INxDialogAnswerer *NxDialogScript::current()
{
    return g_answerer;
}
