#!/bin/sh
# check_dll.sh OBJDUMP DLL: what can be said of a DLL without running it: exports, imports, resources.
set -eu
listing=$("$1" -p "$2")
exports=$(printf '%s\n' "$listing" | sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] //p' | sort | tr '\n' ' ')
[ "$exports" = 'DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer ' ] ||
    { echo "exports: $exports"; exit 1; }
foreign=$(printf '%s\n' "$listing" | sed -n 's/.*DLL Name: //p' |
    grep -viE '^(advapi32|comctl32|gdi32|kernel32|msvcrt|ole32|oleaut32|user32)\.dll$' || true)
[ -z "$foreign" ] || { echo "imports: $foreign"; exit 1; }
printf '%s\n' "$listing" | grep -q TYPELIB && grep -aq 'MSFT' "$2" || { echo "no type library"; exit 1; }
printf '%s\n' "$listing" | grep -q DYNAMIC_BASE && printf '%s\n' "$listing" | grep -q NX_COMPAT || { echo "not hardened"; exit 1; }
printf '%s\n' "$listing" | grep -q 'Entry: ID: 0x000010' || { echo "no version"; exit 1; }
