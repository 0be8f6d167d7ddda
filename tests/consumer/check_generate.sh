#!/usr/bin/env bash
# usage: check_generate.sh BUILD_FOLDER SOURCE_FOLDER
# Uses lbx_generate of the installed package in a user's project: what is generated when, and what a failure leaves.
set -euo pipefail

build=$1 source=$2
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
unset LBX_PLUGIN_PATH

fail() {
  echo "$*" >&2
  exit 1
}
configure() { cmake -S "$place/consumer" -B "$place/out" -G Ninja -DCMAKE_PREFIX_PATH="$place/prefix" "$@" >/dev/null; }
up_to_date() { ninja -C "$place/out" | grep -x 'ninja: no work to do.' >/dev/null; }
# Name, date and contents of everything that is generated.
state() { (cd "$place/out" && find designs "odd designs" -type f -exec stat -c '%n %y' {} + -exec cksum {} + | sort); }

cmake --install "$build" --prefix "$place/prefix" >/dev/null
cp -r "$source/tests/consumer" "$place/consumer"
configure
ninja -C "$place/out" >"$place/log" || { cat "$place/log"; fail "the first build fails"; }

out=$place/out
diff "$out/told.txt" - <<TEXT
$out/designs/small.v
$out/designs/small.v
$out/CMakeFiles/small.generated
TEXT
echo "names are told: fine"

# Both look for a name of their cell's file at the same time, and both names begin with the same sum of characters.
for design in small:12 large:21; do
  width=${design#*:} design=${design%:*}
  [ "$(tail -n 1 "$out/designs/$design.v")" = "//VALID FILE" ] || fail "$design.v is not valid"
  [ "$(cut -f 1 "$out/CMakeFiles/$design.generated" | sort -u)" = written ] || fail "$design was not written"
  cell=$(cut -f 2 "$out/CMakeFiles/$design.generated" | grep -v "/$design.v$")
  grep -q "^	input   \[$((width - 1)):0\]  d;" "$cell" || fail "$design refers to the other design's cell"
  grep -q "^	$(basename "$cell" .v)   cell_0_" "$out/designs/$design.v" || fail "$design lacks its cell"
done
[ "$(find "$out/designs" -type f | wc -l)" = 4 ] || fail "designs: $(ls "$out/designs")"
echo "two generations in one folder: fine"

grep -qxF -- "--note: a;b \"c\" 'd' \$HOME \$\$ \`e\` \\ [f <g> * 100% #=\\" "$out/odd designs/odd_name.vhd" ||
  fail "the note is: $(grep note "$out/odd designs/odd_name.vhd")"
echo "odd parameter values: fine"

state >"$place/before"
up_to_date || fail "the second build does something"
state | diff "$place/before" - || fail "the second build writes"
echo "nothing to do: fine"

sed -i 's/bank_version\[\] = "1"/bank_version[] = "2"/' "$place/consumer/bank.cpp"
ninja -C "$out" >/dev/null
for file in "$out"/designs/*.v; do
  grep -q ' 2 ' <(sed -n 2p "$file") || fail "$file is not of the new version: $(sed -n 2p "$file")"
done
up_to_date || fail "the build after a change of the plug-in is not the last"
for touched in "$place/consumer/bank.cpp" "$place/prefix/bin/lbxgen"; do
  touch "$touched"
  ninja -C "$out" >"$place/log"
  for design in designs/small.v designs/large.v "odd designs/odd_name.vhd"; do
    grep -qF "Generating bank as $out/$design" "$place/log" || fail "$touched is newer, and nothing is generated"
  done
done
rm "$out/designs/small.v"
ninja -C "$out" >/dev/null
[ -f "$out/designs/small.v" ] || fail "a lost file does not come back"
up_to_date || fail "there is work left"
echo "changes: fine"

for copies in 2 0; do
  configure -DWITH_FAILURE=ON -DCOPIES=$copies
  if [ $copies = 2 ]; then
    ninja -C "$out" >/dev/null
    [ -f "$out/CMakeFiles/failing.generated" ] || fail "no list of what went well"
  fi
done
for attempt in first second; do
  if ninja -C "$out" >"$place/log"; then fail "the $attempt build with a failing generation goes well"; fi
  grep -qx 'error: COPIES is 0' "$place/log" || fail "no message in: $(cat "$place/log")"
  [ ! -e "$out/CMakeFiles/failing.generated" ] || fail "the failing generation leaves its list"
done
configure -DWITH_FAILURE=ON -DCOPIES=1
ninja -C "$out" >/dev/null
[ -f "$out/CMakeFiles/failing.generated" ] || fail "the mended generation leaves no list"
up_to_date || fail "there is work left after the mended generation"
echo "failures: fine"

broken() { # MESSAGE ARGUMENT...
  local message=$1
  shift
  printf 'cmake_minimum_required(VERSION 3.25)\nproject(broken LANGUAGES CXX)\nfind_package(lbx CONFIG REQUIRED)\n' >"$place/broken/CMakeLists.txt"
  echo "lbx_generate($*)" >>"$place/broken/CMakeLists.txt"
  if cmake -S "$place/broken" -B "$place/broken/out" -G Ninja -DCMAKE_PREFIX_PATH="$place/prefix" >"$place/log" 2>&1; then
    fail "no error for lbx_generate($*)"
  fi
  grep -q "lbx_generate: $message" "$place/log" || fail "no '$message' in: $(cat "$place/log")"
}
mkdir "$place/broken"
broken 'TARGET is missing'
broken 'GENERATOR is missing' TARGET t PLUGIN p.so LANGUAGE verilog
broken 'LANGUAGE is cobol, but must be verilog, vhdl, qhdl or tcl' TARGET t PLUGIN p.so GENERATOR g LANGUAGE cobol
broken 'unexpected argument "extra"' TARGET t extra
echo "wrong use: fine"
