// Runs a program and answers the boxes that it shows: attended.exe PROGRAM ARGUMENT... The exit code is the program's.
#include <string>

#include "com/box_watcher.h"

int wmain(int argc, wchar_t** argv) {
    std::wstring command;
    for (int i = 1; i < argc; ++i) command += (i > 1 ? L" \"" : L"\"") + std::wstring(argv[i]) + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start, &process))
        return 1;
    const velor::test::BoxWatcher watcher(process.dwProcessId);
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
}
