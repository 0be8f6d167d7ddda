#!/usr/bin/env bash
# usage: demo.sh BUILD_FOLDER OUTPUT_FOLDER
# Generates every example as Verilog and as a Tcl port list, and compiles the Verilog.
set -euo pipefail

build=$1 out=$2
lbxgen=("$build/frontend/lbxgen" --plugin "$build/examples/lbx_examples.so")

mkdir -p "$out/verilog" "$out/tcl"
"${lbxgen[@]}" list | while read -r name summary; do
  echo "$name: $summary"
  parameters=()
  [ "$name" = crc_step ] && parameters=(POLYNOMIAL=0x07) # the one parameter without a default
  "${lbxgen[@]}" generate "$name" "${parameters[@]}" -d "$out/verilog" -o "$name.v" -l verilog >/dev/null
  "${lbxgen[@]}" generate "$name" "${parameters[@]}" -d "$out/tcl" -o "$name.tcl" -l tcl >/dev/null
  # it warns about inputs with a default, which are declared tri0 or tri1 on purpose
  iverilog -g2005 -t null "$out/verilog/$name.v" 2>"$out/iverilog.log" || { cat "$out/iverilog.log"; exit 1; }
done
echo
echo "Verilog, compiled by Icarus Verilog: $out/verilog"
echo "Tcl port lists:                      $out/tcl"
