// SPDX-License-Identifier: GPL-3.0-or-later
// Win32 implementation of the platform layer. Kept free of Qt so that it can be
// compile-checked with the mingw-w64 cross compiler.
#ifdef _WIN32

#ifndef UNICODE
#define UNICODE
#endif
#include <windows.h>
#include <winioctl.h>
// The shell's file operations (removal to the Recycle Bin and permanent removal).
#include "platform/Platform.h"
#include "platform/windows/WindowsText.h"

#include <cwctype>
#include <objbase.h>
#include <shellapi.h>
#include <shobjidl.h>

namespace platform {

namespace {

    // COM for the calling thread, for as long as one shell operation takes.
    class ComScope
    {
    public:
        ComScope()
            : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))
        { }
        ~ComScope()
        {
            if (SUCCEEDED(m_result))
                CoUninitialize();
        }
        ComScope(const ComScope &) = delete;
        ComScope &operator=(const ComScope &) = delete;

    private:
        HRESULT m_result;
    };

    // Deletes through the shell's IFileOperation: to the Recycle Bin with undo allowed, or
    // for good. 0 or the failing HRESULT (or ERROR_CANCELLED when the shell aborted).
    int shellDelete(const std::wstring &path, bool toRecycleBin)
    {
        ComScope com;
        IShellItem *item = nullptr;
        HRESULT result = SHCreateItemFromParsingName(path.c_str(), nullptr, IID_PPV_ARGS(&item));
        if (FAILED(result))
            return int(result);
        IFileOperation *operation = nullptr;
        result
            = CoCreateInstance(CLSID_FileOperation, nullptr, CLSCTX_ALL, IID_PPV_ARGS(&operation));
        if (SUCCEEDED(result))
            result = operation->SetOperationFlags(toRecycleBin ? 0x454 : 0x614);
        if (SUCCEEDED(result))
            result = operation->DeleteItem(item, nullptr);
        if (SUCCEEDED(result))
            result = operation->PerformOperations();
        BOOL aborted = FALSE;
        if (SUCCEEDED(result) && SUCCEEDED(operation->GetAnyOperationsAborted(&aborted)) && aborted)
            result = HRESULT_FROM_WIN32(ERROR_CANCELLED);
        if (operation)
            operation->Release();
        item->Release();
        return SUCCEEDED(result) ? 0 : int(result);
    }

    // The shell's own "send to trash" export, where the system has it.
    int sendToTrash(const std::wstring &path)
    {
        HMODULE shell = LoadLibraryW(L"shell32.dll");
        if (!shell)
            return int(GetLastError());
        using SendToTrash = HRESULT(WINAPI *)(HWND, IShellItem *);
        const auto function = reinterpret_cast<SendToTrash>(
            reinterpret_cast<void *>(GetProcAddress(shell, "SHSendToTrash")));
        int error = function ? 0 : int(GetLastError());
        if (function) {
            ComScope com;
            IShellItem *item = nullptr;
            HRESULT result
                = SHCreateItemFromParsingName(path.c_str(), nullptr, IID_PPV_ARGS(&item));
            if (SUCCEEDED(result)) {
                result = function(nullptr, item);
                item->Release();
            }
            error = SUCCEEDED(result) ? 0 : int(result);
        }
        FreeLibrary(shell);
        return error;
    }

    // The oldest shell route: SHFileOperationW with FO_DELETE and a double-zero-terminated
    // source.
    int fileOperationDelete(const std::wstring &path, bool toRecycleBin)
    {
        std::wstring source = path;
        source.push_back(L'\0');
        source.push_back(L'\0');
        SHFILEOPSTRUCTW operation {};
        operation.wFunc = FO_DELETE;
        operation.pFrom = source.c_str();
        operation.fFlags = FILEOP_FLAGS(toRecycleBin ? 0x454 : 0x614);
        const int result = SHFileOperationW(&operation);
        if (result != 0)
            return result;
        return operation.fAnyOperationsAborted ? int(ERROR_CANCELLED) : 0;
    }

    void clearReadOnly(const std::wstring &path)
    {
        const DWORD attributes = GetFileAttributesW(path.c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY))
            SetFileAttributesW(path.c_str(), attributes & ~DWORD(FILE_ATTRIBUTE_READONLY));
    }

    class WindowsPlatform final : public Platform
    {
    public:
        std::string executableDir() const override
        {
            std::wstring buffer(MAX_PATH, L'\0');
            for (;;) {
                const DWORD length
                    = GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
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
            if (!GetVolumePathNameW(
                    toWide(path).c_str(), volume.data(), static_cast<DWORD>(volume.size())))
                return {};
            volume.resize(wcslen(volume.c_str()));
            return withForwardSlashes(toUtf8(volume));
        }

        std::string driveCacheKey(const std::string &path) const override
        {
            return drivePrefix(path);
        }

        int driveTypeOf(const std::string &path) const override
        {
            const std::string prefix = drivePrefix(path);
            if (prefix.size() != 2 || prefix[1] != ':')
                return DriveUnknown;
            const std::wstring device = L"\\\\.\\" + toWide(prefix);
            HANDLE volume = CreateFileW(device.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                nullptr, OPEN_EXISTING, 0, nullptr);
            if (volume == INVALID_HANDLE_VALUE)
                return DriveUnknown;

            STORAGE_PROPERTY_QUERY query {};
            query.PropertyId = StorageDeviceProperty;
            query.QueryType = PropertyStandardQuery;
            BYTE buffer[1024] = {};
            DWORD returned = 0;
            if (!DeviceIoControl(volume, IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof(query),
                    buffer, sizeof(buffer), &returned, nullptr)) {
                CloseHandle(volume);
                return DriveUnknown;
            }
            const auto *descriptor = reinterpret_cast<const STORAGE_DEVICE_DESCRIPTOR *>(buffer);
            switch (descriptor->BusType) {
            case BusTypeScsi:
            case BusTypeAta:
            case BusTypeSata:
            case BusTypeNvme:
                break;
            default:
                // 1394, USB, SD, MMC and every bus not known to be internal.
                CloseHandle(volume);
                return DriveExternal;
            }

            STORAGE_PROPERTY_QUERY seekQuery {};
            seekQuery.PropertyId = StorageDeviceSeekPenaltyProperty;
            seekQuery.QueryType = PropertyStandardQuery;
            BYTE seekBuffer[128] = {};
            const BOOL ok = DeviceIoControl(volume, IOCTL_STORAGE_QUERY_PROPERTY, &seekQuery,
                sizeof(seekQuery), seekBuffer, sizeof(seekBuffer), &returned, nullptr);
            CloseHandle(volume);
            if (!ok)
                return DriveUnknown;
            const auto *penalty
                = reinterpret_cast<const DEVICE_SEEK_PENALTY_DESCRIPTOR *>(seekBuffer);
            return penalty->IncursSeekPenalty ? DriveHdd : DriveSsd;
        }

        bool isHiddenOrSystem(const std::string &path) const override
        {
            const DWORD attributes = GetFileAttributesW(toWide(path).c_str());
            // A failed attribute read does not hide the entry.
            if (attributes == INVALID_FILE_ATTRIBUTES)
                return false;
            return (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
        }

        // Windows mounts no kernel tables into the folder tree.
        std::vector<unsigned long long> pseudoFileSystemDevices() const override { return {}; }

        // No one setting bounds the write-back of mapped pages here: a fixed minute, well past
        // what it takes in practice.
        long long dirtyPageDelayMs() const override { return 60000; }

        void lowerThreadPriority() const override
        {
            SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
        }

        std::vector<std::string> showItemCommand(
            const std::string &path, const std::string &uri) const override
        {
            (void)uri;
            std::string native = path;
            for (char &c : native)
                if (c == '/')
                    c = '\\';
            return {"explorer.exe", "/select," + native};
        }

        using Platform::moveToTrash;
        // Each route is tried only when the one before failed; the last failure is given.
        int moveToTrash(const std::string &path, std::string &trashedPath,
            const std::string &recordedPath, std::string &trashFolder) const override
        {
            // The Recycle Bin does not say where an item went, and makes its own folders.
            trashedPath.clear();
            trashFolder.clear();
            // It also records the place an item was sent from and has no way to name another:
            // the item takes the recorded name again first (never over one that took it
            // meanwhile), so that a restore puts it there.
            const bool renamed = !recordedPath.empty() && recordedPath != path;
            if (renamed
                && !MoveFileExW(nativePath(path).c_str(), nativePath(recordedPath).c_str(), 0))
                return int(GetLastError());
            const std::wstring native = nativePath(renamed ? recordedPath : path);
            clearReadOnly(native);
            int error = shellDelete(native, true);
            if (error != 0)
                error = sendToTrash(native);
            if (error != 0)
                error = fileOperationDelete(native, true);
            // Not trashed: the item goes back to the name the caller holds it by.
            if (error != 0 && renamed)
                MoveFileExW(native.c_str(), nativePath(path).c_str(), 0);
            return error;
        }

        std::vector<std::string> trashedCopiesOf(const std::string &) const override { return {}; }

        int restoreFromTrash(const std::string &, const std::string &) const override
        {
            return int(ERROR_NOT_SUPPORTED);
        }

        int removePermanently(const std::string &path) const override
        {
            const std::wstring native = nativePath(path);
            const DWORD attributes = GetFileAttributesW(native.c_str());
            if (attributes == INVALID_FILE_ATTRIBUTES)
                return int(GetLastError());
            if (!(attributes & FILE_ATTRIBUTE_DIRECTORY)) {
                clearReadOnly(native);
                if (DeleteFileW(native.c_str()))
                    return 0;
            }
            int error = shellDelete(native, false);
            if (error != 0)
                error = fileOperationDelete(native, false);
            return error;
        }

        int renameNoReplace(
            const std::string &from, const std::string &to, bool &crossDevice) const override
        {
            crossDevice = false;
            // Without MOVEFILE_REPLACE_EXISTING an existing target makes the call fail, and
            // without MOVEFILE_COPY_ALLOWED nothing is copied between drives.
            if (MoveFileExW(nativePath(from).c_str(), nativePath(to).c_str(), 0))
                return 0;
            const DWORD error = GetLastError();
            crossDevice = error == ERROR_NOT_SAME_DEVICE;
            return int(error);
        }

        std::string errorText(int code) const override
        {
            // An HRESULT carries the Win32 code in its low 16 bits.
            const DWORD value = code < 0 ? DWORD(code) & 0xFFFF : DWORD(code);
            wchar_t *buffer = nullptr;
            const DWORD length = FormatMessageW(
                0x1300, nullptr, value, 1024, reinterpret_cast<wchar_t *>(&buffer), 0, nullptr);
            std::wstring text = length && buffer ? std::wstring(buffer, length) : std::wstring();
            if (buffer)
                LocalFree(buffer);
            while (!text.empty() && std::iswspace(text.back()))
                text.pop_back();
            if (text.empty())
                return "Unknown error code: " + std::to_string(code);
            return toUtf8(text);
        }

    private:
        // The first two characters of the absolute path, upper-cased: the drive letter and
        // its colon.
        static std::string drivePrefix(const std::string &path)
        {
            std::wstring absolute(MAX_PATH, L'\0');
            const std::wstring wide = toWide(path);
            DWORD length = GetFullPathNameW(
                wide.c_str(), static_cast<DWORD>(absolute.size()), absolute.data(), nullptr);
            if (length >= absolute.size()) {
                absolute.resize(length + 1);
                length = GetFullPathNameW(
                    wide.c_str(), static_cast<DWORD>(absolute.size()), absolute.data(), nullptr);
            }
            if (length < 2)
                return {};
            std::wstring prefix = absolute.substr(0, 2);
            for (wchar_t &c : prefix)
                c = static_cast<wchar_t>(std::towupper(c));
            return toUtf8(prefix);
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
