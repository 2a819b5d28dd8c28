// Ethanol and water from C++ on Windows with early binding. velor_com.h is made of velor.idl by the build.
#include <com/velor_com.h>
#include <windows.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

// The fractions as automation passes them: an array that counts from 1.
VARIANT fractions(double ethanol, double water) {
    VARIANT argument{};
    argument.vt = VT_ARRAY | VT_R8;
    argument.parray = SafeArrayCreateVector(VT_R8, 1, 2);
    LONG index = 1;
    SafeArrayPutElement(argument.parray, &index, &ethanol);
    index = 2;
    SafeArrayPutElement(argument.parray, &index, &water);
    return argument;
}

VARIANT substances(long first, long second) {
    VARIANT argument{};
    argument.vt = VT_ARRAY | VT_I4;
    argument.parray = SafeArrayCreateVector(VT_I4, 0, 2);
    LONG index = 0;
    SafeArrayPutElement(argument.parray, &index, &first);
    index = 1;
    SafeArrayPutElement(argument.parray, &index, &second);
    return argument;
}

std::wstring textOf(ISmes& smes, HRESULT (STDMETHODCALLTYPE ISmes::*property)(BSTR*)) {
    BSTR text = nullptr;
    if (FAILED((smes.*property)(&text))) return {};
    const std::wstring copy(text, SysStringLen(text));
    SysFreeString(text);
    return copy;
}

// VELOR.CFG beside velor.dll says where the database lies. Without it the first use would search every drive, and where
// the path in it leads nowhere it would ask whether to delete it.
bool databaseIsThere(ISmes& smes) {
    const std::wstring folder = textOf(smes, &ISmes::get_CFGPath);
    std::ifstream configuration(std::filesystem::path(folder + textOf(smes, &ISmes::get_CFGName)));
    if (!configuration) {
        const std::wstring beside = folder + textOf(smes, &ISmes::get_DataFileName);
        BSTR database = SysAllocString(beside.c_str());
        smes.put_AdrVELOR(database);
        SysFreeString(database);
        return std::filesystem::exists(beside);
    }
    std::string comment, path;
    std::getline(configuration, comment);
    std::getline(configuration, path);
    std::erase_if(path, [](char c) { return c == '"' || c == '\r'; });
    const UINT codePage = comment.starts_with("\xEF\xBB\xBF") ? CP_UTF8 : CP_ACP;
    std::wstring wide(path.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, path.data(), static_cast<int>(path.size()),
                                                             wide.data(), static_cast<int>(wide.size()))));
    return std::filesystem::exists(wide);
}

HRESULT report(ISmes& smes) {
    VARIANT chosen = substances(235, 1), X = fractions(0.4, 0.6), T{}, density{};
    T.vt = VT_R8;
    T.dblVal = 293.15;
    HRESULT result = smes.DefSlozky(chosen);
    if (SUCCEEDED(result)) result = smes.ROLW(T, X, &density);
    if (SUCCEEDED(result) && density.vt == VT_R8) std::cout << "hustota " << std::lround(density.dblVal) << " kg/m3\n";
    VariantClear(&chosen);
    VariantClear(&X);
    return result;
}

}  // namespace

int main() {
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    ISmes* smes = nullptr;
    HRESULT result = CoCreateInstance(__uuidof(Smes), nullptr, CLSCTX_INPROC_SERVER, __uuidof(ISmes),
                                      reinterpret_cast<void**>(&smes));
    if (SUCCEEDED(result)) {
        if (databaseIsThere(*smes)) {
            result = report(*smes);
        } else {
            std::cerr << "Chybi databaze: dejte VELOR.DRC vedle velor.dll a spustte install.cmd.\n";
            result = E_FAIL;
        }
        smes->Release();
    }
    CoUninitialize();
    return SUCCEEDED(result) ? 0 : 1;
}
