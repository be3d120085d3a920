#!/usr/bin/env bash
# Builds the Debian packages (libbrenn1, libbrenn-dev, libbrenn-doc, and python3-brenn
# when pybind11 is installed) with CPack from
# the library's install rules, checks what each holds and needs, and runs lintian on
# them. Exits non-zero when a check fails or lintian reports an error; lintian's
# warnings are printed and left to the reader.
#   scripts/package.sh [--try-install] [build-dir]
#     build-dir      default build/package, configured with the `package` preset
#     --try-install  also install the packages with apt-get (as root), build the
#                    tests' two consumer programs against /usr and remove the
#                    packages again; without it apt-get only simulates the install
set -euo pipefail
cd "$(dirname "$0")/.."
source_dir=$PWD
try_install=0
if [ "${1:-}" = --try-install ]; then try_install=1; shift; fi
dir=${1:-build/package}

fail() { echo "package: $*" >&2; exit 1; }
for tool in cpack dpkg-deb dpkg-shlibdeps lintian readelf; do
    command -v "$tool" >/dev/null || fail "$tool is missing (bash scripts/install-deps.sh)"
done

cmake --preset package -B "$dir" >/dev/null
cmake --build "$dir" -j2
if command -v doxygen >/dev/null; then cmake --build "$dir" --target docs; fi
rm -f "$dir"/*.deb
(cd "$dir" && cpack -G DEB >/dev/null)

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$dir/CMakeCache.txt")
revision=$(sed -n 's/^BRENN_DEB_REVISION:STRING=//p' "$dir/CMakeCache.txt")
major=${version%%.*}
arch=$(dpkg --print-architecture)
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
runtime=$dir/libbrenn${major}_$version-${revision}_$arch.deb
dev=$dir/libbrenn-dev_$version-${revision}_$arch.deb
doc=$dir/libbrenn-doc_$version-${revision}_all.deb
for deb in "$runtime" "$dev" "$doc"; do [ -f "$deb" ] || fail "$deb was not made"; done
# The Python package comes when the build made its module (pybind11 installed).
python_deb=
if ls "$dir"/python/brenn/_brenn*.so >/dev/null 2>&1; then
    python_deb=$dir/python3-brenn_$version-${revision}_$arch.deb
    [ -f "$python_deb" ] || fail "$python_deb was not made"
fi

root=$(mktemp -d /tmp/brenn-package.XXXXXX)
trap 'rm -rf "$root"' EXIT

# What each package holds: file lists, unpacked into its own throwaway root.
holds() { # package-file path...: every path is in the package
    local deb=$1 name; shift
    name=$(basename "$deb" .deb)
    mkdir -p "$root/$name"
    dpkg -x "$deb" "$root/$name"
    for p; do [ -e "$root/$name/$p" ] || [ -L "$root/$name/$p" ] || fail "$name lacks $p"; done
}
lacks() { # package-file pattern: no path of the package matches
    dpkg-deb -c "$1" | awk '{print $6}' | grep -E "$2" && fail "$(basename "$1") holds $2"
    return 0
}
lib=usr/lib/$multiarch
holds "$runtime" $lib/libbrenn.so.1 $lib/libbrenn.so.$version \
    $lib/libbrenn_sse42.so.1 $lib/libbrenn_sse42.so.$version \
    $lib/libbrenn_core.so.1 $lib/libbrenn_core.so.$version \
    usr/share/doc/libbrenn$major/copyright usr/share/doc/libbrenn$major/changelog.Debian.gz
lacks "$runtime" '\.so$|include/|\.pc$|cmake/'
holds "$dev" $lib/libbrenn.so $lib/libbrenn_sse42.so $lib/libbrenn_core.so $lib/pkgconfig/brenn.pc \
    $lib/cmake/brenn/brennConfig.cmake $lib/cmake/brenn/brennConfigVersion.cmake \
    $lib/cmake/brenn/brennTargets.cmake usr/include/brenn/brenn_version.h \
    usr/include/brenn/brenn_vecmath.h usr/include/brenn/brenn_rng.h \
    usr/include/brenn/brenn_stats.h usr/include/brenn/brenn_fitting.h \
    usr/include/brenn/brenn.h usr/include/brenn/brenn.hpp usr/include/brenn/brenn_vm_entries.h \
    usr/share/doc/libbrenn-dev/copyright
lacks "$dev" '\.so\.[0-9]'
holds "$doc" usr/share/doc/brenn/examples/tour.cpp usr/share/doc/brenn/examples/example_vm.c \
    usr/share/doc/brenn/accuracy.md \
    usr/share/doc/libbrenn-doc/copyright
if command -v doxygen >/dev/null; then holds "$doc" usr/share/doc/brenn/api/index.html; fi
lacks "$doc" '\.so|include/'
if [ -n "$python_deb" ]; then
    pydir=usr/lib/python3/dist-packages/brenn
    holds "$python_deb" $pydir/__init__.py $pydir/vm.py $pydir/vm.pyi $pydir/rng.pyi $pydir/py.typed \
        usr/share/doc/python3-brenn/copyright usr/share/doc/python3-brenn/changelog.Debian.gz
    lacks "$python_deb" '\.so\.[0-9]|include/|__pycache__|\.pyc$'
    module=$(ls "$root/$(basename "$python_deb" .deb)/$pydir"/_brenn*.so 2>/dev/null) || fail "python3-brenn lacks the module"
    if readelf -d "$module" | grep -E '\((RUNPATH|RPATH)\)'; then fail "search path in $module"; fi
    grep -q "libbrenn$major (= $version-$revision)" <<< "$(dpkg-deb -f "$python_deb" Depends)" ||
        fail "python3-brenn does not depend on its exact runtime: $(dpkg-deb -f "$python_deb" Depends)"
    grep -q "python3-numpy" <<< "$(dpkg-deb -f "$python_deb" Depends)" || fail "python3-brenn does not depend on numpy"
fi

# The shipped libraries: versioned SONAME, no search path but $ORIGIN, stripped, and
# the exported names of the kernel library are the generated list.
for name in brenn brenn_sse42 brenn_core; do
    so=$root/$(basename "$runtime" .deb)/$lib/lib$name.so.$version
    readelf -d "$so" | grep -q "Library soname: \[lib$name.so.1\]" || fail "SONAME of $so"
    if readelf -d "$so" | grep -E '\((RUNPATH|RPATH)\)' | grep -v '\[\$ORIGIN\]'; then
        fail "search path in $so"
    fi
    readelf -S "$so" | grep -q '\.debug_' && fail "$so carries debug information"
    ! readelf -S "$so" | grep -q '\.symtab' || fail "$so is not stripped"
done
cmake -DLIB="$root/$(basename "$runtime" .deb)/$lib/libbrenn_sse42.so.1" \
    -DEXPECTED="$dir/generated/brenn_sse42.exports" -DGEN="$dir/brenn_gen_exports" \
    -DHEADER="$source_dir/include/brenn_vecmath_rows.h" -DWORK="$root" \
    -P "$source_dir/tests/frame/check_exports.cmake"
grep -qx 'prefix=/usr' "$root/$(basename "$dev" .deb)/$lib/pkgconfig/brenn.pc" ||
    fail "brenn.pc does not name /usr"

# What each package needs: the runtime package's dependencies come from
# dpkg-shlibdeps and must name the C and C++ runtimes and OpenBLAS; the others
# depend on the exact runtime release.
field() { dpkg-deb -f "$1" "$2"; }
depends=$(field "$runtime" Depends)
echo "libbrenn$major Depends: $depends"
names=$(tr ',|' '\n\n' <<< "$depends" | sed 's/^ *//; s/[ (].*//')
for need in libc6 libstdc++6 libopenblas0; do
    grep -qxF "$need" <<< "$names" || fail "libbrenn$major does not depend on $need"
done
for name in brenn brenn_sse42; do
    dpkg-deb -I "$runtime" shlibs | grep -q "^lib$name 1 libbrenn$major" || fail "no shlibs entry of lib$name"
done
dpkg-deb -I "$runtime" triggers | grep -q "activate-noawait ldconfig" || fail "no ldconfig trigger"
grep -q "libbrenn$major (= $version-$revision)" <<< "$(field "$dev" Depends)" ||
    fail "libbrenn-dev does not depend on its exact runtime: $(field "$dev" Depends)"
[ "$(field "$doc" Architecture)" = all ] || fail "libbrenn-doc is not Architecture: all"
for deb in "$runtime" "$dev" "$doc" ${python_deb:+"$python_deb"}; do
    echo "== $(basename "$deb")"
    dpkg-deb -I "$deb" | sed -n '/^ Package:/p;/^ Version:/p;/^ Depends:/p;/^ Installed-Size:/p'
done

# The packages resolve against the archive: apt simulates (or makes) the install.
if [ "$(id -u)" -eq 0 ]; then
    apt-get install --simulate -q "$(realpath "$runtime")" "$(realpath "$dev")" \
        "$(realpath "$doc")" ${python_deb:+"$(realpath "$python_deb")"} > "$root/apt.log" || { cat "$root/apt.log"; fail "apt-get cannot install the packages"; }
    if [ $try_install -eq 1 ]; then
        apt-get install -y -q "$(realpath "$runtime")" "$(realpath "$dev")" "$(realpath "$doc")"
        status=0
        (
            set -e
            cc $(pkg-config --cflags brenn) -DBRENN_HAVE_VECMATH tests/install/consumer.c \
                -o "$root/c_consumer" $(pkg-config --libs brenn) -lm
            "$root/c_consumer"
            cmake -S tests/install/consumer -B "$root/cxx" -G Ninja -DBRENN_HAVE_RNG=ON >/dev/null
            cmake --build "$root/cxx" >/dev/null
            "$root/cxx/cxx_consumer"
            for name in brenn brenn_sse42 brenn_core; do
                found=$(ldd "$root/c_consumer" | sed -n "s/.*lib$name.so.1 => \([^ ]*\).*/\1/p")
                echo "lib$name.so.1 => $found"
                [ "$(readlink -f "$found")" = "/$lib/lib$name.so.$version" ]
            done
        ) || status=$?
        apt-get remove -y -q --purge libbrenn-doc libbrenn-dev "libbrenn$major" >/dev/null
        [ $status -eq 0 ] || fail "the installed packages did not serve the consumer programs"
    fi
fi

# lintian: errors fail, warnings are shown.
set +e
lintian --tag-display-limit 0 "$runtime" "$dev" "$doc" ${python_deb:+"$python_deb"} > "$root/lintian.log" 2>&1
set -e
grep -v '^running with root privileges' "$root/lintian.log" || true
errors=$(grep -c '^E: ' "$root/lintian.log" || true)
warnings=$(grep -c '^W: ' "$root/lintian.log" || true)
echo "lintian: $errors errors, $warnings warnings"
[ "$errors" -eq 0 ] || fail "lintian reports errors"
echo "package: $(basename "$runtime") $(basename "$dev") $(basename "$doc")${python_deb:+ $(basename "$python_deb")} in $dir"
