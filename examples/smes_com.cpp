// Ethanol and water from C++ on Windows with early binding. velor_com.h is made of velor.idl by the build.
#include <com/velor_com.h>
#include <windows.h>

#include <cmath>
#include <iostream>

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
        result = report(*smes);
        smes->Release();
    }
    CoUninitialize();
    return SUCCEEDED(result) ? 0 : 1;
}
