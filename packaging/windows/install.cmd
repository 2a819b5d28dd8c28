@echo off
rem Registers velor.dll of this folder in each bitness that the system can run; with /u takes everything back. With /q it
rem does not wait for a key. Its texts are in code page 852, the one of Czech consoles; in UTF-8 cmd loses its place.
setlocal
for /f "tokens=2 delims=:." %%p in ('chcp') do set "codepage=%%p"
chcp 852 >nul
set "folder=%~dp0"
set "class=CLSID\{CB16B798-B41A-4330-91F2-915361599D19}"
set "remove="
set "quiet="
:options
if "%~1"=="" goto begin
if /i "%~1"=="/u" set "remove=/u"
if /i "%~1"=="/q" set "quiet=/q"
shift
goto options

:begin
set "tool64="
set "tool32="
rem The system's own 64-bit tool is not used: on ARM it loads no DLL for x64. Ours runs there by emulation.
for %%a in (AMD64 ARM64) do if "%PROCESSOR_ARCHITECTURE%"=="%%a" set "tool64=%folder%x64\register.exe"
for %%a in (AMD64 ARM64) do if "%PROCESSOR_ARCHITEW6432%"=="%%a" set "tool64=%folder%x64\register.exe"
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" set "tool32=%SystemRoot%\SysWOW64\regsvr32.exe"
if "%PROCESSOR_ARCHITECTURE%%PROCESSOR_ARCHITEW6432%"=="x86" set "tool32=%SystemRoot%\System32\regsvr32.exe"

set "status=0"
set "done="
echo VELOR @PROJECT_VERSION@
call :version x64 64 "%tool64%"
call :version x86 32 "%tool32%"
if "%status%%done%"=="0" set "status=1"
if not "%status%"=="0" echo Nedokončeno.
if "%status%"=="0" echo Hotovo.
if not defined quiet pause
chcp %codepage% >nul
exit /b %status%

:version
if "%~3"=="" goto unsuitable
set "dll=%folder%%1\velor.dll"
set "missing="
if not exist "%dll%" set "missing=%dll%"
if not defined remove if not exist "%folder%%1\VELOR.DRC" set "missing=%folder%%1\VELOR.DRC"
if not exist "%~3" set "missing=%~3"
if defined missing goto missing
rem Where the folder was moved, the old path would mislead.
if exist "%folder%%1\VELOR.CFG" del "%folder%%1\VELOR.CFG"
"%~3" /s %remove% "%dll%"
if not "%errorlevel%"=="0" goto refused
set "done=1"
if defined remove goto removed
if not exist "%folder%%1\VELOR.CFG" goto readonly
set "users=pro všechny uživatele"
rem A registration for all users leaves none of the user's own.
reg query "HKCU\Software\Classes\%class%" /reg:%2 >nul 2>&1
if "%errorlevel%"=="0" set "users=jen pro uživatele %USERNAME% (pro všechny spusťte install.cmd jako správce)"
echo %2bitová verze je zaregistrována %users%:
echo   "%dll%"
exit /b

:removed
if exist "%folder%%1\SEZNAM.DAT" del "%folder%%1\SEZNAM.DAT"
echo %2bitová verze už není zaregistrována; soubory balíčku zůstaly, složku můžete smazat:
echo   "%folder%%1"
exit /b

:unsuitable
echo %2bitová verze: tento systém takové programy nespouští, nic se nezměnilo.
exit /b

:missing
echo %2bitová verze: chybí soubor
echo   "%missing%"
echo   Rozbalte celý balíček do složky a spusťte příkaz z ní.
set "status=1"
exit /b

:refused
echo %2bitová verze: systém změnu registrace odmítl (kód %errorlevel%).
echo   Je-li zaregistrována pro všechny uživatele, spusťte příkaz jako správce.
set "status=1"
exit /b

:readonly
"%~3" /s /u "%dll%"
echo %2bitová verze: do složky nelze zapisovat, proto není zaregistrována:
echo   "%folder%%1"
echo   Rozbalte balíček jinam nebo spusťte install.cmd jako správce.
set "status=1"
exit /b
