#ifndef MEMORY_PLATFORM_H_
#define MEMORY_PLATFORM_H_

#include <map>
#include <string>
#include <tuple>

#include <fittings/base/export.h>

/// All stored values, by file, section and key. The default store has an empty file name.
using MemoryStore = std::map<std::tuple<std::wstring, std::wstring, std::wstring>, std::wstring>;

FITTINGS_API const MemoryStore& GetMemoryStore();

#endif
