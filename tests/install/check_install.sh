#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks it as a user would meet it:
# the installed libraries' dynamic sections and exported names, the package files,
# then a C program built through pkg-config and a C++ program built through
# find_package, both outside the source tree and run with nothing of the build tree
# on any search path.
# Arguments are key=value: build, source, cmake, cc, cxx, sanitize, subsystems
# (comma-separated), expected (the generated export list), gen (the generator).
set -euo pipefail
for arg; do declare "$arg"; done
here=$source/tests/install

work=$(mktemp -d /tmp/brenn-install.XXXXXX)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
fail() { echo "install check: $*" >&2; exit 1; }

# Nothing that a developer's shell might carry may help the programs find anything.
unset LD_LIBRARY_PATH LD_PRELOAD PKG_CONFIG_PATH CMAKE_PREFIX_PATH

"$cmake" --install "$build" --prefix "$prefix" > "$work/install.log"

pc=$(find "$prefix" -name brenn.pc)
[ -n "$pc" ] || fail "brenn.pc not installed"
libdir=$(dirname "$(dirname "$pc")")
case $libdir in "$prefix"/lib*) ;; *) fail "brenn.pc outside the prefix's lib: $pc" ;; esac

# The front-end (libbrenn), the kernel library and the service library.
for name in brenn brenn_sse42 brenn_core; do
    lib=$libdir/lib$name.so
    [ -L "$lib" ] && [ -L "$lib.1" ] || fail "lib$name.so or .so.1 is not a link"
    [ "$(readlink "$lib")" = lib$name.so.1 ] || fail "lib$name.so points to $(readlink "$lib")"
    real=$(readlink -f "$lib")
    case $real in *.so.1.*.*) ;; *) fail "lib$name.so.1 points to $real" ;; esac
    dynamic=$(readelf -d "$real")
    grep -q "Library soname: \[lib$name.so.1\]" <<< "$dynamic" ||
        fail "SONAME of $real: $(grep SONAME <<< "$dynamic")"
    # Only $ORIGIN may stand in a search path of an installed library.
    paths=$(grep -E '\((RUNPATH|RPATH)\)' <<< "$dynamic" | sed 's/.*\[\(.*\)\]/\1/' || true)
    for p in ${paths//:/ }; do
        [ "$p" = '$ORIGIN' ] || fail "search path $p in $real"
    done
done

# The package files must not point back into the build or the source tree.
if grep -rl -e "$build" -e "$source" "$prefix/include" "$libdir/cmake" "$libdir/pkgconfig"; then
    fail "installed files above name the build or the source tree"
fi

# The installed kernel library exports exactly the generated list.
"$cmake" -DLIB="$libdir/libbrenn_sse42.so.1" -DEXPECTED="$expected" -DGEN="$gen" \
    -DHEADER="$source/include/brenn_vecmath_rows.h" -DWORK="$work" \
    -P "$source/tests/frame/check_exports.cmake"

flags=()
case $sanitize in
    address) flags=(-fsanitize=address,undefined -fno-omit-frame-pointer) ;;
    thread) flags=(-fsanitize=thread) ;;
esac
have() { [[ ",$subsystems," == *",$1,"* ]]; }

# C through pkg-config. The program's RUNPATH names the prefix only; the kernel
# library must find the service library by itself ($ORIGIN), since a program's
# RUNPATH does not serve its libraries' own dependencies.
export PKG_CONFIG_PATH=$libdir/pkgconfig
[ "$(pkg-config --modversion brenn)" = "$(sed -n 's/^Version: //p' "$pc")" ] || fail "pkg-config"
defs=()
have vecmath && defs+=(-DBRENN_HAVE_VECMATH)
# shellcheck disable=SC2046
"$cc" -std=c99 -Wall -Werror "${flags[@]}" "${defs[@]}" $(pkg-config --cflags brenn) \
    "$here/consumer.c" -o "$work/c_consumer" $(pkg-config --libs brenn) -lm \
    -Wl,-rpath,"$(pkg-config --variable=libdir brenn)"
unset PKG_CONFIG_PATH

# C++ through find_package, configured and built in the temporary directory.
cxx_flags="${flags[*]}"
"$cmake" -S "$here/consumer" -B "$work/cxx" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_CXX_FLAGS="$cxx_flags" -DCMAKE_EXE_LINKER_FLAGS="$cxx_flags" \
    -DBRENN_HAVE_RNG="$(have rng && echo ON || echo OFF)" > "$work/cxx-configure.log" ||
    { cat "$work/cxx-configure.log"; fail "configuring the find_package consumer"; }
"$cmake" --build "$work/cxx" > "$work/cxx-build.log" ||
    { cat "$work/cxx-build.log"; fail "building the find_package consumer"; }

for program in "$work/c_consumer" "$work/cxx/cxx_consumer"; do
    if readelf -d "$program" | grep -E '\((RUNPATH|RPATH)\)' | grep -q -e "$build" -e "$source"; then
        fail "$program has a search path into the build or source tree"
    fi
    resolved=$(ldd "$program")
    for name in brenn brenn_sse42 brenn_core; do
        line=$(grep "lib$name.so.1 =>" <<< "$resolved") || fail "$program: no lib$name"
        [[ $line == *"=> $libdir/lib$name.so.1 "* ]] || fail "$program: $line"
    done
    grep -q "not found" <<< "$resolved" && fail "$program: $resolved"
    "$program"
done
echo "install check: passed in $prefix"
