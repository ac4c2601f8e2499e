#!/usr/bin/env bash
# Installs the build tree into a fresh prefix and builds a C program against the installed
# files twice, through the CMake package and through pkg-config, then runs both on the MIB's
# transport block of the sample cell; the installed sibdump decodes the sample cycle.
#
#   install_test.sh BUILD_DIR SOURCE_DIR WORK_DIR LIBDIR C_COMPILER ["C_FLAGS" ["LINK_FLAGS"]]
set -euo pipefail
build=$1 source=$2 work=$3 libdir=$4 cc=$5 cflags=${6:-} ldflags=${7:-}
prefix=$work/prefix

fail() { echo "install_test: $*" >&2; exit 1; }

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$prefix" >"$work/install.log" || { cat "$work/install.log"; fail "cmake --install failed"; }

# The files in place: a versioned library with its SONAME, headers of their own, sibdump,
# the CMake package and the pkg-config file.
lib=$prefix/$libdir/libsibdecoder_umts.so
version=$(sed -n 's/^Version: //p' "$prefix/$libdir/pkgconfig/sibdecoder_umts.pc")
major=${version%%.*}
[ -f "$lib.$version" ] && [ ! -L "$lib.$version" ] || fail "no $lib.$version"
[ "$(readlink "$lib.$major")" = "libsibdecoder_umts.so.$version" ] || fail "$lib.$major is not a link to the library"
[ "$(readlink "$lib")" = "libsibdecoder_umts.so.$major" ] || fail "$lib is not a link to the SONAME"
soname=$(objdump -p "$lib.$version" | awk '$1 == "SONAME" { print $2 }')
[ "$soname" = "libsibdecoder_umts.so.$major" ] || fail "SONAME is '$soname'"
for f in include/sibdecoder_umts/umts_sib_decoder.h include/sibdecoder_umts/umts_rrc.h \
         include/sibdecoder_umts/umts_rrc_rt.h bin/sibdump \
         "$libdir/cmake/sibdecoder_umts/sibdecoder_umtsConfig.cmake" \
         "$libdir/cmake/sibdecoder_umts/sibdecoder_umtsConfigVersion.cmake"; do
  [ -e "$prefix/$f" ] || fail "$f is not installed"
done
! [ -e "$prefix/include/sibdecoder_umts/umts_rrc_codec_internal.h" ] || fail "the codec's internal header is installed"

# The MIB's transport block: the first block of the sample cycle.
block=$(grep -v -e '^#' -e '^[[:space:]]*$' "$source/samples/fdd_cell.bch" | head -n 1)
expected="mib: mcc 262 mnc 01 value tag 3"
check_run() { # name program
  local out
  out=$("$2" "$block") || fail "$1: the program failed: $out"
  grep -qxF "$expected" <<<"$out" || fail "$1: expected '$expected', got: $(tail -n 3 <<<"$out")"
  echo "install_test: $1: $expected"
}

# 1. The CMake package (the consumer project, compiled as C).
cmake -S "$source/tests/install/consumer" -B "$work/cmake-build" \
  -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_C_COMPILER="$cc" -DCMAKE_C_FLAGS="$cflags" \
  -DCMAKE_EXE_LINKER_FLAGS="$ldflags" \
  -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF -DCMAKE_BUILD_TYPE=Release >"$work/cmake.log" 2>&1 ||
  { cat "$work/cmake.log"; fail "the consumer project does not configure"; }
grep -q "$prefix" "$work/cmake-build/CMakeCache.txt" || fail "the package was not found in the prefix"
cmake --build "$work/cmake-build" >"$work/cmake-build.log" 2>&1 ||
  { cat "$work/cmake-build.log"; fail "the consumer project does not build"; }
check_run "find_package(sibdecoder_umts)" "$work/cmake-build/use_library"

# 2. pkg-config.
export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
pc_cflags=$(pkg-config --cflags sibdecoder_umts) && pc_libs=$(pkg-config --libs sibdecoder_umts) ||
  fail "pkg-config does not know sibdecoder_umts"
# shellcheck disable=SC2086
"$cc" -std=c99 -Wall -Wextra -Werror $cflags $pc_cflags -o "$work/use_library_pc" \
  "$source/tests/install/consumer/use_library.c" $pc_libs -Wl,-rpath,"$prefix/$libdir" $ldflags ||
  fail "the C program does not build with pkg-config's flags ($pc_cflags $pc_libs)"
check_run "pkg-config sibdecoder_umts" "$work/use_library_pc"

# 3. The summary library through pkg-config: its flags bring the decoder library too.
pc_summary=$(pkg-config --cflags --libs sibdecoder_umts_summary) ||
  fail "pkg-config does not know sibdecoder_umts_summary"
grep -qw -- -lsibdecoder_umts_summary <<<"$pc_summary" && grep -qw -- -lsibdecoder_umts <<<"$pc_summary" ||
  fail "pkg-config's flags for sibdecoder_umts_summary lack a library: $pc_summary"
printf '%s\n' '#include "umts_sib_summary.h"' \
  'int main(void) { umts_summary* s = umts_summary_new(); umts_summary_free(s); return s == 0; }' \
  >"$work/use_summary.c"
# shellcheck disable=SC2086
"$cc" -std=c99 -Wall -Wextra -Werror $cflags -o "$work/use_summary" "$work/use_summary.c" $pc_summary \
  -Wl,-rpath,"$prefix/$libdir" $ldflags || fail "a C program does not build with sibdecoder_umts_summary's flags"
"$work/use_summary" || fail "the summary library does not run"
echo "install_test: pkg-config sibdecoder_umts_summary: $pc_summary"

# 4. The installed sibdump finds its library.
records=$("$prefix/bin/sibdump" "$source/samples/fdd_cell.bch" 2>"$work/sibdump.err") ||
  { cat "$work/sibdump.err"; fail "the installed sibdump failed"; }
grep -q '"block":"mib"' <<<"$records" || fail "the installed sibdump wrote no MIB"
echo "install_test: installed sibdump: $(wc -l <<<"$records") records"
