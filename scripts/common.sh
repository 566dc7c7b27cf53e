# Shared by the scripts beside this file, which source it. It knows the tree, how to become root, and what to install.
# After sourcing, `tree` is the checkout and the working folder.
set -euo pipefail
tree=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
cd "$tree"

# The i386 Debian root in which Windows programs run. It is outside the tree, since all checkouts share it and `git
# clean` must not delete it.
win32_root=${ZULG_WIN32_ROOT:-/var/cache/zulgenpx/win32-root}
# The one in which packages are installed and used.
package_root=${ZULG_PACKAGE_ROOT:-/var/cache/zulgenpx/package-root}

# What the library and the generator are configured and built with.
packages_library=(g++ cmake ninja-build googletest libboost-dev python3 binutils ca-certificates qemu-user pkg-config)
packages_native=("${packages_library[@]}" libsndfile1-dev libflac-dev libcli11-dev libpng-dev nlohmann-json3-dev
    python3-numpy python3-scipy python3-venv python3-pip)
packages_demo=(alsa-utils)
# For zulspectrum-mpi and its tests, which check the files for clusters as well.
packages_cluster=(libopenmpi-dev openmpi-bin procps python3-jsonschema python3-yaml)
packages_abi=(abigail-tools)                            # what tests compare binary interfaces with
packages_pages=(groff-base man-db mandoc python3-markdown)  # what tests read manual pages with, and make the site with
packages_languages=(mono-mcs mono-runtime fp-compiler)  # what tests compile the declarations for other languages with
packages_release=(git)                                  # what the checks before a release look at the tree with
packages_packages=(dpkg-dev gzip lintian)               # what packages are made and checked with
packages_site=(clang lld wasi-libc libc++-14-dev-wasm32 libclang-rt-14-dev-wasm32 nodejs python3-markdown)
packages_browser=(chromium chromium-driver python3-selenium python3-pil npm)  # what opens the pages of the site
packages_win32=(g++-mingw-w64-i686-posix llvm clang lld debootstrap util-linux)
packages_win64=(g++-mingw-w64-x86-64-posix llvm clang lld wine64 util-linux)
packages_aarch64=(g++-aarch64-linux-gnu libc6-dev-arm64-cross qemu-user)

say() { printf '%s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

# Runs a command as root: directly, or through sudo where that asks no question.
as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo -n -- "$@"; fi
}
can_be_root() { [ "$(id -u)" = 0 ] || sudo -n true 2>/dev/null; }

# need_packages NAME ...: installs those that are missing, or says the one command that does and stops.
need_packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f '${Status}\n' "$name" 2>/dev/null | grep -q 'ok installed$' || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    can_be_root || fail "Packages are missing. Run this as root, then start again:" \
        "apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
    say "Installing ${missing[*]} ..."
    local log
    log=$(mktemp)
    { as_root apt-get -qq update && as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq install -y --no-install-recommends "${missing[@]}"; } </dev/null >"$log" 2>&1 ||
        { tail -n 20 "$log" >&2; fail "the packages could not be installed; the whole log: $log"; }
    rm -f "$log"
}

# debian_root FOLDER ARCHITECTURE PACKAGE ...: a Debian root with these packages, made once for the machine. Prints
# nothing when it exists already.
debian_root() {
    local root=$1 architecture=$2
    shift 2
    [ ! -e "$root/ready" ] || return 0
    need_packages debootstrap util-linux
    can_be_root || fail "The root $root is missing. Run this as root, then start again: $0"

    # The first mirror that the machine itself uses, since that can be reached.
    local mirror
    mirror=$(cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources 2>/dev/null |
        grep -oE '(https?|file):/[^ ]*debian/?( |$)' | grep -v security | head -n 1 | tr -d ' ' || true)
    mirror=${mirror:-http://deb.debian.org/debian}

    as_root mkdir -p "$(dirname "$root")"
    exec 9>"/tmp/zulgenpx-$(basename "$root").lock"
    flock 9
    [ ! -e "$root/ready" ] || return 0

    say "Making the root $root (about a minute) ..."
    local log
    log=$(mktemp)
    fill_root "$root" "$architecture" "$mirror" "$@" </dev/null >"$log" 2>&1 ||
        { tail -n 20 "$log" >&2; fail "The root $root could not be made; the whole log: $log"; }
    rm -f "$log"
    exec 9>&-
}
fill_root() {
    local root=$1 architecture=$2 mirror=$3
    shift 3
    # Package scripts of the root must not start services.
    as_root rm -rf --one-file-system "$root" &&
        as_root debootstrap "--arch=$architecture" --variant=minbase bookworm "$root" "$mirror" &&
        as_root sh -c "printf '#!/bin/sh\nexit 101\n' > '$root/usr/sbin/policy-rc.d'" &&
        as_root chmod 755 "$root/usr/sbin/policy-rc.d" &&
        { as_root cp /etc/resolv.conf "$root/etc/resolv.conf" || true; } &&
        as_root env DEBIAN_FRONTEND=noninteractive chroot "$root" apt-get -qq install -y --no-install-recommends "$@" &&
        as_root chroot "$root" apt-get clean &&
        as_root touch "$root/ready"
}

# build_preset NAME [OPTION ...]: configures and builds, quietly; on failure prints the end of the log.
build_preset() {
    local name=$1 log=build/$1/build.log
    shift
    mkdir -p "build/$name"
    { cmake --preset "$name" && cmake --build --preset "$name" "$@"; } </dev/null >"$log" 2>&1 && return
    grep -nE 'error|FAILED' "$log" | head -n 20 >&2 || true
    tail -n 30 "$log" >&2
    fail "the build of $name failed; the whole log: $log"
}

# How long an input of a harness may get: calls are short, and a sound file needs its headers.
longest_input() { if [ "$1" = readers ]; then echo 5000; else echo 600; fi; }

# fuzz_build NAME ...: builds harnesses of tests/fuzz with clang's libFuzzer and sanitizers into build/fuzz, against the
# libraries of the native build. One that is newer than all sources is kept.
fuzz_build() {
    need_packages "${packages_native[@]}" clang
    build_preset native --target zulgenpx zulgenpx_batch zulcore fake_core
    local name source object gtest=/usr/src/googletest/googletest
    local shared=(tests/platform.cpp tests/reference.cpp tests/transforms/transform.cpp tests/batch/batches.cpp
        tests/fakes/substituted_core.cpp "$gtest/src/gtest-all.cc")
    local tool=(tools/{byte_stream,container,family,flac_source,input,numbers,sound_source,spectra_file}.cpp
        tools/{text_source,user_error}.cpp)
    local flags=(-std=c++20 -O1 -g1 -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        -fno-sanitize=alignment)
    mkdir -p build/fuzz/objects
    for name in "$@"; do
        local sources=("tests/fuzz/${name}_fuzz.cpp" "${shared[@]}") objects=()
        [ "$name" != readers ] || sources=("tests/fuzz/${name}_fuzz.cpp" "${tool[@]}")
        if [ -e "build/fuzz/${name}_fuzz" ] && [ -z "$(find include batch dct4 tests tools -name '*.[ch]*' \
            -newer "build/fuzz/${name}_fuzz")" ]; then continue; fi
        say "Building the harness $name ..."
        for source in "${sources[@]}"; do
            object=build/fuzz/objects/$(basename "$source").o
            objects+=("$object")
            clang++ "${flags[@]}" -I. -Iinclude -Itargets/x86_64 -I"$gtest/include" -I"$gtest" \
                "-DZULG_LIBRARY=\"$tree/build/native/libzulgenpx-7.0.so\"" "-DZULG_FAKE_CORE=\"none\"" \
                "-DZULG_BATCH_LIBRARY=\"$tree/build/native/libzulgenpx-batch-7.0.so\"" -c "$source" -o "$object"
        done
        clang++ -fsanitize=fuzzer,address,undefined "${objects[@]}" -Lbuild/native -lzulgenpx-batch-7.0 \
            -lzulgenpx-7.0 "-Wl,-rpath,$tree/build/native" -lsndfile -lFLAC -ldl -lpthread \
            -o "build/fuzz/${name}_fuzz"
    done
    export LSAN_OPTIONS=suppressions=$tree/tests/fuzz/leaks.txt:print_suppressions=0
}
