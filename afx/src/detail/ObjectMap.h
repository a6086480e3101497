#pragma once

#include <afx.h>

#include <unordered_map>
#include <vector>

/** The objects and classes that an archive has met, numbered together from 1. */
struct CArchive::ObjectMap {
    struct Entry {
        CObject* object;
        CRuntimeClass* runtimeClass;
        UINT schema; // of a class
    };

    std::unordered_map<const void*, DWORD> stored;
    DWORD storedCount = 1;
    std::vector<Entry> loaded{Entry{nullptr, nullptr, 0}};
    UINT depth = 0; // objects that are being read inside one another
};
