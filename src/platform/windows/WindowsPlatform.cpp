// SPDX-License-Identifier: GPL-3.0-or-later
// Win32 implementation of the platform layer. Kept free of Qt so that it can be
// compile-checked with the mingw-w64 cross compiler.
#ifdef _WIN32

#ifndef UNICODE
#define UNICODE
#endif
#include <windows.h>

#include "platform/Platform.h"

namespace platform {

namespace {

std::wstring toWide(const std::string &utf8)
{
    if (utf8.empty())
        return {};
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()),
                                           nullptr, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(),
                        length);
    return wide;
}

std::string toUtf8(const std::wstring &wide)
{
    if (wide.empty())
        return {};
    const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()),
                                           nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(),
                        length, nullptr, nullptr);
    return utf8;
}

std::string withForwardSlashes(std::string path)
{
    for (char &c : path) {
        if (c == '\\')
            c = '/';
    }
    return path;
}

class WindowsPlatform final : public Platform
{
public:
    std::string executableDir() const override
    {
        std::wstring buffer(MAX_PATH, L'\0');
        for (;;) {
            const DWORD length = GetModuleFileNameW(nullptr, buffer.data(),
                                                    static_cast<DWORD>(buffer.size()));
            if (length == 0)
                return {};
            if (length < buffer.size()) {
                buffer.resize(length);
                break;
            }
            buffer.resize(buffer.size() * 2);
        }
        const std::string path = withForwardSlashes(toUtf8(buffer));
        return path.substr(0, path.rfind('/'));
    }

    std::vector<std::string> fixedDiskRoots() const override
    {
        std::vector<std::string> roots;
        const DWORD drives = GetLogicalDrives();
        for (int letter = 0; letter < 26; ++letter) {
            if (!(drives & (1u << letter)))
                continue;
            const wchar_t root[] = {static_cast<wchar_t>(L'A' + letter), L':', L'\\', L'\0'};
            if (GetDriveTypeW(root) == DRIVE_FIXED)
                roots.push_back(std::string(1, static_cast<char>('A' + letter)) + ":/");
        }
        return roots;
    }

    std::string diskRootOf(const std::string &path) const override
    {
        std::wstring volume(MAX_PATH + 1, L'\0');
        if (!GetVolumePathNameW(toWide(path).c_str(), volume.data(),
                                static_cast<DWORD>(volume.size())))
            return {};
        volume.resize(wcslen(volume.c_str()));
        return withForwardSlashes(toUtf8(volume));
    }
};

} // namespace

const Platform &current()
{
    static const WindowsPlatform instance;
    return instance;
}

} // namespace platform

#endif
