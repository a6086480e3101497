#include "support/NoLargeBlocks.h"

#include <cstdlib>
#include <cstring>

namespace vant::test
{

namespace
{

using Malloc = void*(__cdecl*)(std::size_t);
Malloc original;

void* __cdecl SmallBlocksOnly(std::size_t size)
{
    constexpr std::size_t large = std::size_t{1} << 20;
    return size < large ? original(size) : nullptr;
}

/** The place in a module's import table that holds the address of a function; null if it imports none. */
ULONG_PTR* FindImport(HMODULE module, const char* function)
{
    auto* const base = reinterpret_cast<BYTE*>(module);
    if (!base)
        return nullptr;
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& directory = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    if (directory.VirtualAddress == 0)
        return nullptr;
    const auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
    for (; dll->FirstThunk != 0; ++dll) {
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + dll->OriginalFirstThunk);
        auto* address = reinterpret_cast<IMAGE_THUNK_DATA*>(base + dll->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++address) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto* entry = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(entry->Name), function) == 0)
                return reinterpret_cast<ULONG_PTR*>(&address->u1.Function);
        }
    }
    return nullptr;
}

void Write(ULONG_PTR* place, ULONG_PTR value) noexcept
{
    DWORD protection = 0;
    ::VirtualProtect(place, sizeof *place, PAGE_READWRITE, &protection);
    *static_cast<volatile ULONG_PTR*>(place) = value;
    ::VirtualProtect(place, sizeof *place, protection, &protection);
}

} // namespace

NoLargeBlocks::NoLargeBlocks(LPCWSTR module)
    : m_import(FindImport(::GetModuleHandleW(module), "malloc"))
{
    if (!m_import)
        return;
    original = reinterpret_cast<Malloc>(*m_import);
    Write(m_import, reinterpret_cast<ULONG_PTR>(&SmallBlocksOnly));
}

void NoLargeBlocks::Release() noexcept
{
    if (m_import)
        Write(m_import, reinterpret_cast<ULONG_PTR>(original));
    m_import = nullptr;
}

} // namespace vant::test
