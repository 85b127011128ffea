// SPDX-License-Identifier: GPL-3.0-or-later
// Links on Windows: hard links and symbolic links of NTFS, block cloning where ReFS offers
// it. Kept free of Qt so that it can be compile-checked with the mingw-w64 cross compiler.
#ifdef _WIN32

#include "platform/FileLinks.h"
#include "platform/windows/WindowsText.h"

#include <winioctl.h>

namespace platform {

namespace {

    // Not every SDK declares the block-cloning control code and its data.
    constexpr DWORD kDuplicateExtents = 0x00098344;
    constexpr DWORD kSupportsBlockRefcounting = 0x08000000;
    struct DuplicateExtents
    {
        HANDLE fileHandle;
        LARGE_INTEGER sourceOffset;
        LARGE_INTEGER targetOffset;
        LARGE_INTEGER byteCount;
    };
    constexpr DWORD kGetIntegrityInformation = 0x0009027C;
    struct IntegrityInformation
    {
        WORD checksumAlgorithm;
        WORD reserved;
        DWORD flags;
        DWORD checksumChunkSize;
        DWORD clusterSize;
    };
    // One request may not cover 4 GiB or more.
    constexpr long long kCloneStep = 1LL << 30;

    class Handle
    {
    public:
        explicit Handle(HANDLE handle) : m_handle(handle) { }
        ~Handle()
        {
            if (valid())
                CloseHandle(m_handle);
        }
        Handle(const Handle &) = delete;
        Handle &operator=(const Handle &) = delete;
        bool valid() const { return m_handle != INVALID_HANDLE_VALUE; }
        HANDLE get() const { return m_handle; }

    private:
        HANDLE m_handle;
    };

    // Clones the open source's blocks into the open, empty clone: 0 or a Win32 error.
    int cloneBlocks(HANDLE source, HANDLE clone)
    {
        DWORD flags = 0;
        if (!GetVolumeInformationByHandleW(
                source, nullptr, 0, nullptr, nullptr, &flags, nullptr, 0))
            return int(GetLastError());
        if (!(flags & kSupportsBlockRefcounting))
            return int(ERROR_NOT_SUPPORTED);
        LARGE_INTEGER size {};
        IntegrityInformation integrity {};
        DWORD returned = 0;
        if (!GetFileSizeEx(source, &size)
            || !DeviceIoControl(source, kGetIntegrityInformation, nullptr, 0, &integrity,
                sizeof(integrity), &returned, nullptr))
            return int(GetLastError());
        FILE_END_OF_FILE_INFO end {};
        end.EndOfFile = size;
        if (!SetFileInformationByHandle(clone, FileEndOfFileInfo, &end, sizeof(end)))
            return int(GetLastError());
        // Regions are whole clusters: the last one reaches past the end of the file.
        const long long cluster
            = integrity.clusterSize > 0 ? (long long)integrity.clusterSize : 4096;
        const long long whole = (size.QuadPart + cluster - 1) / cluster * cluster;
        for (long long offset = 0; offset < whole; offset += kCloneStep) {
            DuplicateExtents data {};
            data.fileHandle = source;
            data.sourceOffset.QuadPart = offset;
            data.targetOffset.QuadPart = offset;
            data.byteCount.QuadPart = whole - offset < kCloneStep ? whole - offset : kCloneStep;
            if (!DeviceIoControl(
                    clone, kDuplicateExtents, &data, sizeof(data), nullptr, 0, &returned, nullptr))
                return int(GetLastError());
        }
        return 0;
    }

} // namespace

int makeHardLink(const std::string &target, const std::string &link)
{
    return CreateHardLinkW(nativePath(link).c_str(), nativePath(target).c_str(), nullptr)
        ? 0
        : int(GetLastError());
}

int makeSymbolicLink(const std::string &target, const std::string &link)
{
    // Developer mode lets an ordinary user make links with this flag; without it only an
    // administrator can.
    return CreateSymbolicLinkW(nativePath(link).c_str(), nativePath(target).c_str(),
               SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE)
        ? 0
        : int(GetLastError());
}

int cloneFile(const std::string &source, const std::string &clone)
{
    const Handle in(CreateFileW(nativePath(source).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
        OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!in.valid())
        return int(GetLastError());
    const std::wstring target = nativePath(clone);
    int error = 0;
    {
        const Handle out(CreateFileW(target.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
            CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!out.valid())
            return int(GetLastError());
        error = cloneBlocks(in.get(), out.get());
    }
    if (error != 0)
        DeleteFileW(target.c_str());
    return error;
}

int exchangeEntries(const std::string &a, const std::string &b)
{
    // The system has no swap of two names: ReplaceFileW puts b at a and keeps a under a
    // backup name, which then takes b's place.
    const std::wstring first = nativePath(a);
    const std::wstring second = nativePath(b);
    const std::wstring backup = second + L".exchange";
    if (!ReplaceFileW(first.c_str(), second.c_str(), backup.c_str(),
            REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS, nullptr, nullptr))
        return int(GetLastError());
    return MoveFileExW(backup.c_str(), second.c_str(), 0) ? 0 : int(GetLastError());
}

int readSymbolicLink(const std::string &path, std::string &target)
{
    const Handle link(CreateFileW(nativePath(path).c_str(), 0,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!link.valid())
        return int(GetLastError());
    std::wstring buffer(32768, L'\0');
    const DWORD length = GetFinalPathNameByHandleW(
        link.get(), buffer.data(), DWORD(buffer.size()), FILE_NAME_NORMALIZED);
    if (length == 0 || length >= buffer.size())
        return int(GetLastError());
    buffer.resize(length);
    // "\\?\C:\..." is how the system names a path; the caller compares "C:/...".
    if (buffer.compare(0, 4, L"\\\\?\\") == 0)
        buffer.erase(0, 4);
    target = withForwardSlashes(toUtf8(buffer));
    return 0;
}

bool isCrossDeviceError(int error)
{
    return error == int(ERROR_NOT_SAME_DEVICE);
}

bool cloneUnsupported(int error)
{
    return error == int(ERROR_NOT_SUPPORTED) || error == int(ERROR_INVALID_FUNCTION)
        || error == int(ERROR_NOT_SAME_DEVICE);
}

bool exchangeUnsupported(int error)
{
    return error == int(ERROR_NOT_SUPPORTED) || error == int(ERROR_INVALID_FUNCTION);
}

} // namespace platform

#endif
