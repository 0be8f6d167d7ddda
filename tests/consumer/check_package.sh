#!/usr/bin/env bash
# usage: check_package.sh BUILD_FOLDER SOURCE_FOLDER
# Installs the library into a fresh folder and builds a user's project against it: once with find_package and once with
# pkg-config. Each header must also compile alone.
set -euo pipefail

build=$1 source=$2
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
prefix=$place/prefix

cmake --install "$build" --prefix "$prefix" >/dev/null

cmake -S "$source/tests/consumer" -B "$place/with-cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$place/with-cmake" >/dev/null
(cd "$place" && with-cmake/consumer && grep -q '//VALID FILE' half_adder.v && rm half_adder.v)
echo "find_package: fine"

pc=$(dirname "$(find "$prefix" -name lbx-gnl.pc)")
# shellcheck disable=SC2046
PKG_CONFIG_PATH=$pc g++ -std=c++20 "$source/tests/consumer/consumer.cpp" -o "$place/with-pkg-config" \
  $(PKG_CONFIG_PATH=$pc pkg-config --cflags --libs lbx-gnl)
(cd "$place" && LD_LIBRARY_PATH=$(dirname "$pc") ./with-pkg-config && grep -q '//VALID FILE' half_adder.v)
echo "pkg-config: fine"

for header in "$prefix"/include/lbx/gnl/*.h; do
  g++ -std=c++20 -fsyntax-only -x c++ -I"$prefix/include/lbx/gnl" "$header" -Wno-pragma-once-outside-header
done
echo "headers alone: fine"
