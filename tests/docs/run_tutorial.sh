#!/usr/bin/env bash
# usage: run_tutorial.sh BUILD_FOLDER SOURCE_FOLDER
# Does what docs/tutorial.md says, in an empty folder and against a fresh installation: a block "file=NAME" becomes that
# file, a block "sh" is run, and a block "output" must be what the command before it printed.
set -euo pipefail

build=$1 source=$2
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT

cmake --install "$build" --prefix "$place/prefix" >/dev/null
export PATH=$place/prefix/bin:$PATH CMAKE_PREFIX_PATH=$place/prefix CMAKE_GENERATOR=Ninja
unset LBX_PLUGIN_PATH
mkdir "$place/work" "$place/blocks"
awk -v blocks="$place/blocks" '
  /^```/ && inside { inside = 0; close(target); next }
  /^```/ { inside = 1; target = sprintf("%s/%03d", blocks, ++count); print substr($0, 4) >target; next }
  inside { print >target }' "$source/docs/tutorial.md"

cd "$place/work"
commands=0
for block in "$place"/blocks/*; do
  kind=$(head -n 1 "$block")
  tail -n +2 "$block" >"$place/body"
  case $kind in
    *file=*)
      file=${kind#*file=}
      mkdir -p "$(dirname "$file")"
      cp "$place/body" "$file"
      ;;
    sh)
      echo "\$ $(cat "$place/body")"
      bash -euo pipefail "$place/body" >"$place/printed" 2>&1 || { cat "$place/printed"; exit 1; }
      commands=$((commands + 1))
      ;;
    output) diff "$place/body" "$place/printed" || { echo "the tutorial shows another output"; exit 1; } ;;
  esac
done
[ "$commands" -gt 0 ] || { echo "the tutorial has no commands"; exit 1; }
