#!/bin/sh
# run_client.sh LAST COMMAND...: a host that ends well and with the given last line. Script hosts under Wine exit with 0
# and say nothing when a script breaks off, so neither is enough alone.
last=$1
shift
output=$("$@") || { status=$?; echo "$output"; echo "exit code $status"; exit 1; }
echo "$output"
printf '%s\n' "$output" | tr -d '\r' | grep -qx -- "$last"
