#include "com/registration.h"

#include <initguid.h>  // the identifiers are defined here
#include <olectl.h>

#include <array>
#include <string>
#include <vector>

#include "com/holders.h"
#include "com/velor_com.h"
#include "object/configuration_file.h"
#include "platform/file_system.h"
#include "platform/system.h"
#include "platform/windows/library_file.h"
#include "platform/windows/wide_text.h"
#include "velor/run_time_error.h"

namespace velor::com {

namespace {

constexpr const wchar_t* kClasses = L"Software\\Classes";
constexpr const wchar_t* kProgId = L"VELOR.Smes";
constexpr const wchar_t* kVersionedProgId = L"VELOR.Smes.1";
constexpr const wchar_t* kDescription = L"VELOR - směs látek";
constexpr const wchar_t* kLibraryVersion = L"1.0";
constexpr const wchar_t* kAutomationMarshaler = L"{00020424-0000-0000-C000-000000000046}";
// Where a type library tells its file. The other architecture's DLL may be registered, too.
constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr const wchar_t* kOtherPlatform = sizeof(void*) == 8 ? L"win32" : L"win64";

std::wstring textOf(const GUID& guid) {
    std::array<wchar_t, 39> text{};
    StringFromGUID2(guid, text.data(), static_cast<int>(text.size()));
    return text.data();
}

std::wstring classKey() { return L"CLSID\\" + textOf(__uuidof(::Smes)); }
std::wstring interfaceKey() { return L"Interface\\" + textOf(__uuidof(ISmes)); }
std::wstring libraryId() { return textOf(LIBID_VELOR); }
std::wstring libraryKey() { return L"TypeLib\\" + libraryId(); }
std::wstring libraryPlatforms() { return libraryKey() + L"\\" + kLibraryVersion + L"\\0"; }

struct Entry {
    std::wstring key;
    const wchar_t* name;  // null for the key's own value
    std::wstring value;
};

std::vector<Entry> entries() {
    const std::wstring classId = textOf(__uuidof(::Smes));
    const std::wstring file = platform::toWide(platform::libraryFile());
    const std::wstring server = classKey() + L"\\InprocServer32";
    const std::wstring version = libraryKey() + L"\\" + kLibraryVersion;
    const std::wstring prog = kProgId, versioned = kVersionedProgId;
    return {
        {prog, nullptr, kDescription},
        {prog + L"\\CLSID", nullptr, classId},
        {prog + L"\\CurVer", nullptr, kVersionedProgId},
        {versioned, nullptr, kDescription},
        {versioned + L"\\CLSID", nullptr, classId},
        {classKey(), nullptr, kDescription},
        {server, nullptr, file},
        {server, L"ThreadingModel", L"Apartment"},
        {classKey() + L"\\ProgID", nullptr, kVersionedProgId},
        {classKey() + L"\\VersionIndependentProgID", nullptr, kProgId},
        {classKey() + L"\\Programmable", nullptr, L""},
        {classKey() + L"\\TypeLib", nullptr, libraryId()},
        {classKey() + L"\\Version", nullptr, kLibraryVersion},
        {version, nullptr, L"VELOR - vlastnosti látek a směsí"},
        {version + L"\\FLAGS", nullptr, L"0"},
        {version + L"\\HELPDIR", nullptr, platform::toWide(platform::libraryFolder())},
        {libraryPlatforms() + L"\\" + kPlatform, nullptr, file},
        {interfaceKey(), nullptr, L"ISmes"},
        {interfaceKey() + L"\\ProxyStubClsid32", nullptr, kAutomationMarshaler},
        {interfaceKey() + L"\\TypeLib", nullptr, libraryId()},
        {interfaceKey() + L"\\TypeLib", L"Version", kLibraryVersion},
    };
}

LSTATUS write(HKEY root, const Entry& entry) {
    HKEY created = nullptr;
    LSTATUS status = RegCreateKeyExW(root, entry.key.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &created, nullptr);
    if (status != ERROR_SUCCESS) return status;
    const RegistryKey key(created);
    return RegSetValueExW(created, entry.name, 0, REG_SZ, reinterpret_cast<const BYTE*>(entry.value.c_str()),
                          static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t)));
}

bool exists(HKEY root, const std::wstring& path) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
    const RegistryKey closing(opened);
    return true;
}

LSTATUS remove(HKEY root, const std::wstring& path) {
    const LSTATUS status = RegDeleteTreeW(root, path.c_str());
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

RegistryKey classesOf(HKEY hive, REGSAM access) {
    HKEY opened = nullptr;
    if (RegCreateKeyExW(hive, kClasses, 0, nullptr, 0, access, nullptr, &opened, nullptr) != ERROR_SUCCESS) return {};
    return RegistryKey(opened);
}

LSTATUS removeFrom(HKEY hive) {
    const RegistryKey readable = classesOf(hive, KEY_READ);
    const RegistryKey root = classesOf(hive, KEY_ALL_ACCESS);
    if (root) return removeEntries(root.get());
    // Without the right to change anything there is no failure where nothing is registered.
    return readable && exists(readable.get(), classKey()) ? ERROR_ACCESS_DENIED : ERROR_SUCCESS;
}

bool writeTo(HKEY hive) {
    const RegistryKey root = classesOf(hive, KEY_ALL_ACCESS);
    if (!root) return false;
    if (writeEntries(root.get()) == ERROR_SUCCESS) return true;
    removeEntries(root.get());
    return false;
}

// A convenience: without the file the database is searched for, so its failure is none of the registration.
void configureDatabaseBesideLibrary() {
    const std::string folder = platform::libraryFolder();
    const std::string database = folder + "VELOR.DRC", configuration = folder + "VELOR.CFG";
    if (platform::fileName(database).empty() || !platform::fileName(configuration).empty()) return;
    try {
        writeConfiguredPath(configuration, database);
    } catch (const RunTimeError&) {
    }
}

}  // namespace

LSTATUS writeEntries(HKEY root) {
    for (const Entry& entry : entries())
        if (const LSTATUS status = write(root, entry); status != ERROR_SUCCESS) return status;
    return ERROR_SUCCESS;
}

LSTATUS removeEntries(HKEY root) {
    LSTATUS first = ERROR_SUCCESS;
    // Windows keeps classes and interfaces for each architecture; programs' names and type libraries are shared.
    std::vector<std::wstring> keys{classKey(), interfaceKey()};
    if (exists(root, libraryPlatforms() + L"\\" + kOtherPlatform)) {
        keys.push_back(libraryPlatforms() + L"\\" + kPlatform);
    } else {
        keys.insert(keys.end(), {kProgId, kVersionedProgId, libraryKey()});
    }
    for (const std::wstring& key : keys) {
        const LSTATUS status = remove(root, key);
        if (first == ERROR_SUCCESS) first = status;
    }
    return first;
}

HRESULT registerServer() {
    // An entry of the user's own would hide the machine's.
    if (writeTo(HKEY_LOCAL_MACHINE)) {
        removeFrom(HKEY_CURRENT_USER);
    } else if (!writeTo(HKEY_CURRENT_USER)) {
        return SELFREG_E_CLASS;
    }
    configureDatabaseBesideLibrary();
    return S_OK;
}

HRESULT unregisterServer() {
    const LSTATUS machine = removeFrom(HKEY_LOCAL_MACHINE);
    const LSTATUS user = removeFrom(HKEY_CURRENT_USER);
    return machine == ERROR_SUCCESS && user == ERROR_SUCCESS ? S_OK : SELFREG_E_CLASS;
}

}  // namespace velor::com
