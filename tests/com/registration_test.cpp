// The registration below a key of the test's own, as the per-user fallback writes it.
#include "com/registration.h"

#include "com/com_client.h"

namespace velor::test {
namespace {

std::size_t subkeyCount(HKEY key) {
    DWORD count = 0;
    EXPECT_EQ(RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr, nullptr,
                               nullptr, nullptr),
              ERROR_SUCCESS);
    return count;
}

std::wstring defaultValue(HKEY root, const std::wstring& path) {
    wchar_t text[300] = L"";
    DWORD size = sizeof text;
    RegGetValueW(root, path.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
}

TEST(Registration, writesAllAndRemovesAll) {
    HKEY created = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\VELOR test", 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &created, nullptr),
              ERROR_SUCCESS);
    const com::RegistryKey root(created);
    const std::wstring platforms = L"TypeLib\\{4889691D-8C79-4EA2-A2FB-847438922BD4}\\1.0\\0\\";
    EXPECT_EQ(com::writeEntries(created), ERROR_SUCCESS);
    EXPECT_EQ(defaultValue(created, L"VELOR.Smes\\CurVer"), L"VELOR.Smes.1");
    EXPECT_TRUE(defaultValue(created, platforms + L"win64").ends_with(L"com_test.exe"));
    // With the 32-bit DLL registered, too, what both share stays.
    HKEY other = nullptr;
    RegCreateKeyExW(created, (platforms + L"win32").c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &other, nullptr);
    com::RegistryKey{other};
    EXPECT_EQ(com::removeEntries(created), ERROR_SUCCESS);
    EXPECT_EQ(defaultValue(created, L"VELOR.Smes\\CurVer"), L"VELOR.Smes.1");
    EXPECT_EQ(defaultValue(created, platforms + L"win64"), L"");
    RegDeleteTreeW(created, (platforms + L"win32").c_str());
    for (int time = 1; time <= 2; ++time) EXPECT_EQ(com::removeEntries(created), ERROR_SUCCESS);
    for (const wchar_t* folder : {L"CLSID", L"TypeLib", L"Interface"}) {
        HKEY opened = nullptr;
        ASSERT_EQ(RegOpenKeyExW(created, folder, 0, KEY_READ, &opened), ERROR_SUCCESS);
        EXPECT_EQ(subkeyCount(com::RegistryKey(opened).get()), 0U);
    }
    EXPECT_EQ(subkeyCount(created), 3U);
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VELOR test");
}

}  // namespace
}  // namespace velor::test
