// register.exe [/s] [/u] DLL: registers a component, or with /u takes that back; ends with the HRESULT of its entry
// point, or the system's error. It takes the place of the system's own tool, which on Windows on ARM loads no DLL for
// x64: a program for x64 runs there by emulation, and so does the component in it.
#include <windows.h>

#include <cwchar>

int wmain(int argc, wchar_t** argv) {
    if (argc < 2) return ERROR_INVALID_PARAMETER;
    bool isRemoval = false;
    for (int i = 1; i < argc - 1; ++i) isRemoval = isRemoval || std::wcscmp(argv[i], L"/u") == 0;
    const HMODULE library = LoadLibraryExW(argv[argc - 1], nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr) return static_cast<int>(GetLastError());
    const FARPROC found = GetProcAddress(library, isRemoval ? "DllUnregisterServer" : "DllRegisterServer");
    if (found == nullptr) return static_cast<int>(GetLastError());
    return reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(reinterpret_cast<void*>(found))();
}
