// SPDX-License-Identifier: GPL-3.0-or-later
// The folder reader on Windows: FindFirstFileExW in large fetches, whose find data
// already carries each entry's kind, size and times, so no entry is opened while listing.
// Kept free of Qt so that it can be compile-checked with the mingw-w64 cross compiler.
#ifdef _WIN32

#include "platform/FolderReader.h"
#include "platform/windows/WindowsText.h"

#include <io.h>

namespace platform {

namespace {

    // 100-nanosecond ticks between 1601-01-01 and the Unix epoch.
    constexpr long long kEpochTicks = 116444736000000000LL;

    long long nanosecondsOf(const FILETIME &time)
    {
        const long long ticks = static_cast<long long>(
            (static_cast<unsigned long long>(time.dwHighDateTime) << 32) | time.dwLowDateTime);
        return (ticks - kEpochTicks) * 100;
    }

    EntryInfo::Kind kindOfAttributes(DWORD attributes)
    {
        // Symbolic links and junctions are reparse points; a walk never follows them unasked.
        if (attributes & FILE_ATTRIBUTE_REPARSE_POINT)
            return EntryInfo::Link;
        if (attributes & FILE_ATTRIBUTE_DIRECTORY)
            return EntryInfo::Folder;
        if (attributes & FILE_ATTRIBUTE_DEVICE)
            return EntryInfo::Other;
        return EntryInfo::File;
    }

    // Kind, size, identity, link count and times of an open handle.
    int infoOfHandle(HANDLE handle, EntryInfo &info)
    {
        BY_HANDLE_FILE_INFORMATION data {};
        if (!GetFileInformationByHandle(handle, &data))
            return static_cast<int>(GetLastError());
        info.kind = kindOfAttributes(data.dwFileAttributes);
        info.size = static_cast<long long>(
            (static_cast<unsigned long long>(data.nFileSizeHigh) << 32) | data.nFileSizeLow);
        info.device = data.dwVolumeSerialNumber;
        info.inode
            = (static_cast<unsigned long long>(data.nFileIndexHigh) << 32) | data.nFileIndexLow;
        info.links = data.nNumberOfLinks;
        info.modifiedNs = nanosecondsOf(data.ftLastWriteTime);
        info.changedNs = info.modifiedNs;
        return 0;
    }

    // A handle for reading attributes only (folders included), or INVALID_HANDLE_VALUE.
    HANDLE openForInfo(const std::wstring &path, bool followLinks)
    {
        const DWORD flags
            = FILE_FLAG_BACKUP_SEMANTICS | (followLinks ? 0 : FILE_FLAG_OPEN_REPARSE_POINT);
        return CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES,
            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, flags,
            nullptr);
    }

} // namespace

ReadAccess::ReadAccess() = default;
ReadAccess::~ReadAccess() = default;

struct FolderReader::State
{
    std::wstring folder;
    HANDLE find = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW data {};
    // The first entry comes with FindFirstFileExW; next() hands it out first.
    bool pending = false;
    bool current = false;
    int error = 0;
    std::string name;
};

FolderReader::FolderReader(const std::string &path) : m_state(std::make_unique<State>())
{
    m_state->folder = nativePath(path);
    std::wstring pattern = m_state->folder;
    if (!pattern.empty() && pattern.back() != L'\\')
        pattern += L'\\';
    pattern += L'*';
    m_state->find = FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &m_state->data,
        FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (m_state->find == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        // An empty drive root has no entries at all, not even "." and "..".
        if (error != ERROR_FILE_NOT_FOUND)
            m_state->error = static_cast<int>(error);
        return;
    }
    m_state->pending = true;
}

FolderReader::~FolderReader()
{
    if (m_state->find != INVALID_HANDLE_VALUE)
        FindClose(m_state->find);
}

int FolderReader::error() const
{
    return m_state->error;
}

int FolderReader::folderInfo(EntryInfo &info) const
{
    if (m_state->error)
        return m_state->error;
    const HANDLE handle = openForInfo(m_state->folder, false);
    if (handle == INVALID_HANDLE_VALUE)
        return static_cast<int>(GetLastError());
    const int error = infoOfHandle(handle, info);
    CloseHandle(handle);
    return error;
}

bool FolderReader::next()
{
    State &state = *m_state;
    state.current = false;
    if (state.find == INVALID_HANDLE_VALUE)
        return false;
    for (;;) {
        if (state.pending)
            state.pending = false;
        else if (!FindNextFileW(state.find, &state.data))
            return false;
        const wchar_t *name = state.data.cFileName;
        if (name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0')))
            continue;
        state.name = toUtf8(name);
        state.current = true;
        return true;
    }
}

const char *FolderReader::name() const
{
    return m_state->current ? m_state->name.c_str() : "";
}

std::size_t FolderReader::nameLength() const
{
    return m_state->current ? m_state->name.size() : 0;
}

EntryInfo::Kind FolderReader::listedKind() const
{
    return m_state->current ? kindOfAttributes(m_state->data.dwFileAttributes) : EntryInfo::Unknown;
}

int FolderReader::stat(EntryInfo &info)
{
    if (!m_state->current)
        return ERROR_FILE_NOT_FOUND;
    // The find data has all a walk needs but the identity, which would cost an open per
    // file; hard links are then told apart by the content comparison instead.
    const WIN32_FIND_DATAW &data = m_state->data;
    info = EntryInfo {};
    info.kind = kindOfAttributes(data.dwFileAttributes);
    info.size = static_cast<long long>(
        (static_cast<unsigned long long>(data.nFileSizeHigh) << 32) | data.nFileSizeLow);
    info.modifiedNs = nanosecondsOf(data.ftLastWriteTime);
    info.changedNs = info.modifiedNs;
    return 0;
}

bool FolderReader::mayRead(const ReadAccess &) const
{
    // Access lists decide on Windows; a file that cannot be opened is reported by the
    // reads that follow.
    return m_state->current;
}

int entryInfoOf(const std::string &path, bool followLinks, EntryInfo &info)
{
    const HANDLE handle = openForInfo(nativePath(path), followLinks);
    if (handle == INVALID_HANDLE_VALUE)
        return static_cast<int>(GetLastError());
    const int error = infoOfHandle(handle, info);
    CloseHandle(handle);
    return error;
}

int entryInfoOfOpenFile(int fd, EntryInfo &info)
{
    const HANDLE handle = reinterpret_cast<HANDLE>(_get_osfhandle(fd));
    if (handle == INVALID_HANDLE_VALUE)
        return ERROR_INVALID_HANDLE;
    return infoOfHandle(handle, info);
}

std::string realPathOf(const std::string &path, int &error)
{
    error = 0;
    const HANDLE handle = openForInfo(nativePath(path), true);
    if (handle == INVALID_HANDLE_VALUE) {
        error = static_cast<int>(GetLastError());
        return {};
    }
    std::wstring buffer(MAX_PATH, L'\0');
    DWORD length = GetFinalPathNameByHandleW(
        handle, buffer.data(), static_cast<DWORD>(buffer.size()), FILE_NAME_NORMALIZED);
    if (length >= buffer.size()) {
        buffer.resize(length + 1);
        length = GetFinalPathNameByHandleW(
            handle, buffer.data(), static_cast<DWORD>(buffer.size()), FILE_NAME_NORMALIZED);
    }
    if (length == 0)
        error = static_cast<int>(GetLastError());
    CloseHandle(handle);
    if (length == 0)
        return {};
    buffer.resize(length);
    // "\\?\C:\x" -> "C:/x"; "\\?\UNC\server\share" -> "//server/share".
    if (buffer.rfind(L"\\\\?\\UNC\\", 0) == 0)
        buffer = L"\\\\" + buffer.substr(8);
    else if (buffer.rfind(L"\\\\?\\", 0) == 0)
        buffer = buffer.substr(4);
    return withForwardSlashes(toUtf8(buffer));
}

bool isNotFoundError(int error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

int accessDeniedError()
{
    return ERROR_ACCESS_DENIED;
}

} // namespace platform

#endif
