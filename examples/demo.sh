#!/usr/bin/env bash
# usage: demo.sh BUILD_FOLDER OUTPUT_FOLDER
# Generates every example in all languages, compiles Verilog and VHDL, and proves that they mean the same.
set -euo pipefail

build=$1 out=$2
lbxgen=("$build/frontend/lbxgen" --plugin "$build/examples/lbx_examples.so")

# language ending: the example's file goes to a folder of its language
write() {
  mkdir -p "$out/$1"
  "${lbxgen[@]}" generate "$name" "${parameters[@]}" -d "$out/$1" -o "$name.$2" -l "$1" >/dev/null
}

mkdir -p "$out/library"
"${lbxgen[@]}" list | while read -r name summary; do
  echo "$name: $summary"
  parameters=()
  [ "$name" = crc_step ] && parameters=(POLYNOMIAL=0x07) # the one parameter without a default
  write verilog v
  write vhdl vhd
  write qhdl tdf
  write tcl tcl
  # it warns about inputs with a default, which are declared tri0 or tri1 on purpose
  iverilog -g2005 -t null "$out/verilog/$name.v" 2>"$out/tools.log" || { cat "$out/tools.log"; exit 1; }
  ghdl -a --std=93c --workdir="$out/library" "$out/vhdl/$name.vhd" 2>"$out/tools.log" || { cat "$out/tools.log"; exit 1; }
  # 2: nothing can be proven of bidirectional ports
  "${lbxgen[@]}" check "$name" "${parameters[@]}" 2>/dev/null | sed 's/^[^:]*:/ /' || [ "${PIPESTATUS[0]}" = 2 ]
done
echo
echo "Verilog, compiled by Icarus Verilog: $out/verilog"
echo "VHDL, analysed by GHDL:              $out/vhdl"
echo "QHDL, a file for each design:        $out/qhdl"
echo "Tcl port lists:                      $out/tcl"
