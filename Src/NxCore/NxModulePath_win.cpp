// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxModulePath.h>

#include <QDir>

#include <vector>

#include <windows.h>

QString nxModulePath(const void *inside)
{
    HMODULE module = nullptr;
    const DWORD byAddress =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!GetModuleHandleExW(byAddress, static_cast<LPCWSTR>(inside), &module))
        return QString();
    std::vector<wchar_t> name(32768); // The longest path there is.
    const DWORD length = GetModuleFileNameW(module, name.data(), DWORD(name.size()));
    return QDir::fromNativeSeparators(QString::fromWCharArray(name.data(), int(length)));
}
