#!/usr/bin/env bash
# usage: table.sh FOLDER_OF_THE_PROGRAMS [WORKLOAD...]
# The benchmark table: medians of RUNS (5) runs, each in a process of its own.
set -euo pipefail

bin=$1
shift
runs=${RUNS:-5}
workloads=("$@")
[ ${#workloads[@]} -gt 0 ] || workloads=(W1 W2a W2b W2f W2s W2r W3 W4 W5 W5s)

sizes() {
  case $1 in
    W1) echo 1000 10000 100000 1000000 ;;
    W2a | W2b | W2s) echo 100 1000 10000 100000 ;;
    W2f) echo 100 1000 10000 ;;
    W2r) echo 100 1000 ;;
    W3) echo 100 1000 10000 100000 ;;
    W4) echo 100 1000 10000 ;;
    W5) echo 6 12 18 ;;
    W5s) echo 1000 10000 100000 ;;
  esac
}

# The other languages that a workload is measured in.
languages() {
  case $1 in
    W1 | W2a | W2b | W2f | W3 | W4) echo vhd tdf ;;
  esac
}

# program workload n: the run of median time, as "build write kilobytes bytes text_seconds text_bytes"
median() {
  for _ in $(seq "$runs"); do "$1" "$2" "$3"; done | awk '{print $3 + $4, $3, $4, $5, $6, $7, $8}' | sort -n |
    awk -v m=$(((runs + 1) / 2)) 'NR == m {print $2, $3, $4, $5, $6, $7}'
}

# workload and language, and two sizes with the seconds that each took
growth() {
  awk -v w="$1" -v n="$2" -v t="$3" -v m="$4" -v u="$5" \
    'BEGIN {printf "%-4s growth exponent from %d to %d: %.2f\n", w, n, m, log(u / t) / log(m / n)}'
}

empty=$("$bin/lbx_bench" empty 0 | awk '{print $5}')
printf '%-4s %8s %9s %9s %10s %9s %11s %7s %7s %7s %6s %6s\n' \
  load N build_s write_s ns/object B/object bytes MB/s text floors vhdl qhdl
for workload in "${workloads[@]}"; do
  declare -A before=() last=()
  for n in $(sizes "$workload"); do
    read -r build write kilobytes bytes text_seconds text_bytes < <(median "$bin/lbx_bench" "$workload" "$n")
    read -r floor_build floor_write _ < <(median "$bin/lbx_bench_floor" "$workload" "$n")
    ratios=()
    total=$(awk -v b="$build" -v s="$write" 'BEGIN {print b + s}')
    before[v]=${last[v]:-}
    last[v]="$n $total"
    for language in $(languages "$workload"); do
      read -r other_build other_write _ < <(median "$bin/lbx_bench" "$workload:$language" "$n")
      other=$(awk -v b="$other_build" -v s="$other_write" 'BEGIN {print b + s}')
      ratios+=("$(awk -v o="$other" -v t="$total" 'BEGIN {printf "%.2f", o / t}')")
      before[$language]=${last[$language]:-}
      last[$language]="$n $other"
    done
    awk -v w="$workload" -v n="$n" -v b="$build" -v s="$write" -v k="$kilobytes" -v e="$empty" -v y="$bytes" \
      -v ts="$text_seconds" -v ty="$text_bytes" \
      -v fb="$floor_build" -v fs="$floor_write" -v vhdl="${ratios[0]:--}" -v qhdl="${ratios[1]:--}" 'BEGIN {
        t = b + s; f = fb + fs
        printf "%-4s %8d %9.4f %9.4f %10.0f %9.0f %11d %7.0f %7s %7.1f %6s %6s\n", w, n, b, s, t / n * 1e9,
          (k - e) * 1024 / n, y, (s > 0 ? y / s / 1e6 : 0), (ts > 0 ? sprintf("%.0f", ty / ts / 1e6) : "-"), (f > 0 ? t / f : 0), vhdl, qhdl }'
  done
  for language in v $(languages "$workload"); do
    read -r n t m u <<<"${before[$language]} ${last[$language]}"
    growth "$workload$([ "$language" = v ] || echo ":$language")" "$n" "$t" "$m" "$u"
  done
done

# What a user waits for with a small design: the whole process, the mean of many.
TIMEFORMAT=%R
count=$((20 * runs))
seconds=$({ time for _ in $(seq "$count"); do "$bin/lbx_bench" W1 10 >/dev/null; done; } 2>&1)
awk -v s="$seconds" -v n="$count" 'BEGIN {printf "a small design, whole process: %.1f ms\n", s / n * 1000}'
