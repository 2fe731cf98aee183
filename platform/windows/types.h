#pragma once

#include <cstdint>

// The plain types of the Windows interfaces that the module calls.

using BOOL = int;
using UINT = unsigned int;
using DWORD = std::uint32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using HANDLE = void*;
using HWND = struct CWindowOfHandle*;
using HINSTANCE = const struct CModuleResources*;
using INT_PTR = std::intptr_t;

constexpr BOOL TRUE = 1;
constexpr BOOL FALSE = 0;
constexpr int MAX_PATH = 260;
