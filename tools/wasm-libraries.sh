# shellcheck shell=bash
# Sourced by scripts that compile for a page, after last-word.sh and progress.sh. What Debian's compiler
# lacks for that is made once of Debian's sources: a C++ library with exceptions, libxml2. It is kept in
# the user's cache folder; another version of a package makes another.

wasm_cache="${XDG_CACHE_HOME:-$HOME/.cache}/awizo-wasm"
wasm_llvm=19
# To be counted up by a change below that makes other libraries of the same versions.
wasm_recipe=2

version_of() { dpkg-query -W -f '${source:Version}' "$1"; }

# wasm_libraries_folder: the name changes with all that the content hangs on.
wasm_libraries_folder() {
  local name versions="$wasm_recipe"
  for name in "clang-$wasm_llvm" wasi-libc libxml2-dev nlohmann-json3-dev; do
    versions+=" $(version_of "$name")"
  done
  echo "$wasm_cache/$(sha256sum <<<"$versions" | cut -c -16)"
}

# source_apt COMMAND...: apt-get with lists of its own, of the sources of this machine's Debian, so that
# the machine's lists stay as they are and no right is needed.
source_apt() {
  local apt="$wasm_work/apt"
  mkdir -p "$apt/lists/partial" "$apt/cache/archives/partial"
  if [[ ! -f $apt/sources.list ]]; then
    apt-get indextargets --format "\$(REPO_URI) \$(RELEASE) \$(COMPONENT)" 'Created-By: Packages' 'Origin: Debian' |
      sort -u | sed 's/^/deb-src /' >"$apt/sources.list"
  fi
  apt-get -q -o Dir::Etc::sourcelist="$apt/sources.list" -o Dir::Etc::sourceparts=/dev/null \
    -o Dir::State::lists="$apt/lists" -o Dir::Cache="$apt/cache" -o APT::Sandbox::User="$(id -un)" "$@"
}

# fetch_source PACKAGE PATTERN...: those files of the package's source that the patterns name.
fetch_source() (
  local package="$1" archive
  shift
  mkdir -p "$wasm_work/$package" &&
    cd "$wasm_work/$package" &&
    source_apt source --download-only "$package" &&
    archive=("$package"_*.orig.tar.*) &&
    tar -x --strip-components=1 -f "${archive[0]}" --wildcards --exclude='*/test/*' "$@" &&
    rm "${archive[@]}"
)

fetch_sources() {
  source_apt update &&
    fetch_source "llvm-toolchain-$wasm_llvm" '*/libcxx/*' '*/libcxxabi/*' '*/libunwind/*' '*/runtimes/*' \
      '*/cmake/*' '*/libc/src/__support/*' &&
    fetch_source libxml2 '*'
}

wasm_cmake() {
  cmake -G Ninja -Wno-dev -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/wasm.cmake" -DCMAKE_INSTALL_PREFIX="$wasm_new" "$@"
}

# Debian's own is built without exceptions. Its compiler's own library asks for a stack guard, which
# nothing else has.
build_cxx_library() {
  local source="$wasm_work/llvm-toolchain-$wasm_llvm" build="$wasm_work/build-cxx"
  local flags="-fwasm-exceptions -fno-stack-protector -I$source/libunwind/include"
  local off=() on=() option
  for option in LLVM_INCLUDE_TESTS LLVM_INCLUDE_DOCS LIBCXX_INCLUDE_TESTS LIBCXX_INCLUDE_BENCHMARKS \
    LIBCXX_ENABLE_SHARED LIBCXX_ENABLE_FILESYSTEM LIBCXX_ENABLE_THREADS LIBCXX_HAS_PTHREAD_API \
    LIBCXX_ENABLE_STATIC_ABI_LIBRARY LIBCXXABI_INCLUDE_TESTS LIBCXXABI_ENABLE_SHARED \
    LIBCXXABI_ENABLE_THREADS LIBCXXABI_HAS_PTHREAD_API LIBCXXABI_USE_LLVM_UNWINDER; do
    off+=("-D$option=OFF")
  done
  for option in LLVM_COMPILER_CHECKED LIBCXX_USE_COMPILER_RT LIBCXX_HAS_MUSL_LIBC LIBCXX_ENABLE_EXCEPTIONS \
    LIBCXXABI_USE_COMPILER_RT LIBCXXABI_ENABLE_EXCEPTIONS LIBCXXABI_SILENT_TERMINATE; do
    on+=("-D$option=ON")
  done
  wasm_cmake -S "$source/runtimes" -B "$build" -DCMAKE_BUILD_TYPE=MinSizeRel \
    -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" -DLLVM_ENABLE_RUNTIMES="libcxxabi;libcxx" \
    -DLIBCXX_CXX_ABI=libcxxabi -DLIBCXX_ABI_VERSION=2 "${off[@]}" "${on[@]}" &&
    ninja -C "$build" cxx cxxabi &&
    ninja -C "$build" install-cxx install-cxxabi &&
    "clang-$wasm_llvm" --target=wasm32-wasi -O2 -fwasm-exceptions -D_LIBUNWIND_HIDE_SYMBOLS -DNDEBUG \
      -I"$source/libunwind/include" -c "$source/libunwind/src/Unwind-wasm.c" -o "$wasm_new/lib/unwind.o" &&
    "clang-$wasm_llvm" --target=wasm32-wasi -Os -fno-stack-protector -x c -c - -o "$wasm_new/lib/stack_guard.o" \
      <<<'unsigned long __stack_chk_guard = 0x5bd1e995; void __stack_chk_fail(void) { __builtin_trap(); }'
}

# No network, no compressed files, only the code pages that adapters/libxml2 brings, and of all ways to
# read and to check a document only those that it uses: pages fetch what is built here.
build_libxml2() {
  local off=() option
  for option in PYTHON LZMA ZLIB ICONV ICU THREADS HTTP FTP HTML CATALOG DEBUG DOCB MODULES TESTS PROGRAMS \
    LEGACY C14N PATTERN PUSH READER REGEXPS SAX1 SCHEMAS SCHEMATRON VALID WRITER XINCLUDE XPTR; do
    off+=("-DLIBXML2_WITH_$option=OFF")
  done
  wasm_cmake -S "$wasm_work/libxml2" -B "$wasm_work/build-xml" -DCMAKE_BUILD_TYPE=MinSizeRel \
    -DCMAKE_C_FLAGS_MINSIZEREL="-Oz -DNDEBUG" \
    -DCMAKE_C_FLAGS="-fno-stack-protector -fwasm-exceptions -Wno-everything" \
    -DBUILD_SHARED_LIBS=OFF -DHAVE_PTHREAD_H=0 "${off[@]}" &&
    ninja -C "$wasm_work/build-xml" install
}

# The compiler may not look into the machine's own folder of headers.
copy_json_library() {
  mkdir -p "$wasm_new/include" "$wasm_new/share/cmake" &&
    cp -r /usr/include/nlohmann "$wasm_new/include/" &&
    cp -r /usr/share/cmake/nlohmann_json "$wasm_new/share/cmake/"
}

# make_wasm_libraries: sets wasm_libraries to their folder, making it where it isn't there.
make_wasm_libraries() {
  local log="$wasm_cache/last-build.log" step
  wasm_libraries="$(wasm_libraries_folder)"
  export AWIZO_WASM_LIBRARIES="$wasm_libraries"
  [[ ! -d $wasm_libraries ]] || return 0
  mkdir -p "$wasm_cache" || fail "nothing can be written to $wasm_cache; make it a folder of yours, then call again."
  wasm_work="$(mktemp -d "$wasm_cache/work-XXXXXX")"
  wasm_new="$wasm_work/made"
  mkdir "$wasm_new"
  local -A words=(
    [fetch_sources]="Fetching the sources of the C++ library and libxml2, 170 MB, once"
    [build_cxx_library]="Building the C++ library for pages, once"
    [build_libxml2]="Building libxml2 for pages, once"
    [copy_json_library]="Copying the JSON library"
  )
  for step in fetch_sources build_cxx_library build_libxml2 copy_json_library; do
    if ! follow "${words[$step]}" last_line "$log" "$step"; then
      tail -n 20 "$log" >&2
      rm -rf "$wasm_work"
      fail_for_room "$log"
      fail "${words[$step]}: this failed; the lines above say why (all of them: $log)." \
        "Mend that, or the network, then call again."
    fi
  done
  mv "$wasm_new" "$wasm_libraries"
  rm -rf "$wasm_work"
}
