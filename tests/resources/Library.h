#pragma once

#include <cstddef>
#include <span>

#include <gtest/gtest.h>
#include <windows.h>

/** VantCore.dll, held for the whole run. Nothing here needs a function of it, so it is loaded by name. */
inline HMODULE Library()
{
    static const HMODULE module = LoadLibraryW(L"VantCore.dll");
    return module;
}

/** The bytes of a resource of the library; empty when it is missing. */
inline std::span<const std::byte> ResourceBytes(int id, LPCWSTR type)
{
    const HRSRC found = FindResourceW(Library(), MAKEINTRESOURCEW(id), type);
    if (!found)
        return {};
    const void* data = LockResource(LoadResource(Library(), found));
    return {static_cast<const std::byte*>(data), SizeofResource(Library(), found)};
}
