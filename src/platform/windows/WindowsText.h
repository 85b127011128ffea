// SPDX-License-Identifier: GPL-3.0-or-later
// Text conversions between the platform layer's UTF-8 paths with forward slashes and
// the wide strings of the Win32 calls.
#pragma once
#ifdef _WIN32

#ifndef UNICODE
#define UNICODE
#endif
#include <string>
#include <windows.h>

namespace platform {

inline std::wstring toWide(const std::string &utf8)
{
    if (utf8.empty())
        return {};
    const int length
        = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(
        CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), length);
    return wide;
}

inline std::string toUtf8(const std::wstring &wide)
{
    if (wide.empty())
        return {};
    const int length = WideCharToMultiByte(
        CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(), length,
        nullptr, nullptr);
    return utf8;
}

inline std::wstring nativePath(const std::string &path)
{
    std::wstring wide = toWide(path);
    for (wchar_t &c : wide) {
        if (c == L'/')
            c = L'\\';
    }
    return wide;
}

inline std::string withForwardSlashes(std::string path)
{
    for (char &c : path) {
        if (c == '\\')
            c = '/';
    }
    return path;
}

} // namespace platform

#endif
