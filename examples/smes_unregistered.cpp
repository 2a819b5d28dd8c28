// The vapour pressure of water from a Windows program that carries velor.dll beside itself and registers nothing. Links
// with velor.lib of the package; the argument is the path of VELOR.DRC.
#include <com/velor_com.h>
#include <windows.h>

#include <cmath>
#include <iostream>

namespace {

HRESULT createSmes(ISmes** smes) {
    IClassFactory* factory = nullptr;
    HRESULT result = DllGetClassObject(__uuidof(Smes), __uuidof(IClassFactory), reinterpret_cast<void**>(&factory));
    if (FAILED(result)) return result;
    result = factory->CreateInstance(nullptr, __uuidof(ISmes), reinterpret_cast<void**>(smes));
    factory->Release();
    return result;
}

HRESULT report(ISmes& smes, const wchar_t* database) {
    constexpr short kVapourPressure = 9;
    BSTR path = SysAllocString(database);
    VARIANT count{}, temperature{}, loaded{}, pressure{};
    count.vt = VT_I2;
    count.iVal = 1;
    temperature.vt = VT_R8;
    temperature.dblVal = 373.15;
    HRESULT result = smes.put_AdrVELOR(path);
    if (SUCCEEDED(result)) result = smes.ZapisNslozky(1, 1);
    if (SUCCEEDED(result)) result = smes.put_Nsloz(count);
    if (SUCCEEDED(result)) result = smes.Inivlr(&loaded);
    if (SUCCEEDED(result)) result = smes.FFce(temperature, 1, kVapourPressure, &pressure);
    if (SUCCEEDED(result) && pressure.vt == VT_R8) std::cout << std::lround(pressure.dblVal / 1000) << " kPa\n";
    SysFreeString(path);
    return result;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc < 2 || GetFileAttributesW(argv[1]) == INVALID_FILE_ATTRIBUTES) {
        std::cerr << "Chybi databaze: prvni argument je cesta k VELOR.DRC.\n";
        return 1;
    }
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    ISmes* smes = nullptr;
    HRESULT result = createSmes(&smes);
    if (SUCCEEDED(result)) {
        result = report(*smes, argv[1]);
        smes->Release();
    }
    CoUninitialize();
    return SUCCEEDED(result) ? 0 : 1;
}
