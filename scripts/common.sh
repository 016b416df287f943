# What the scripts share; they source it from their own directory.
# shellcheck shell=sh

cd "$(dirname "$0")/.."
jobs=$(nproc)

# A compiler cache takes what includes a precompiled header only if told that this is meant.
export CCACHE_SLOPPINESS="${CCACHE_SLOPPINESS:-pch_defines,time_macros,include_file_mtime,include_file_ctime}"

# configure PRESET [OPTION...]: with a compiler cache if there is one.
configure()
{
    preset=$1
    shift
    if [ -z "${CCACHE_DISABLE:-}" ] && command -v ccache >/dev/null; then
        set -- -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"
    fi
    cmake --preset "$preset" "$@" >"$(log_of "$preset-configure")" 2>&1 || {
        cat "$(log_of "$preset-configure")" >&2
        return 1
    }
}

# build NAME WHAT...: silently, unless it fails; its log has the name.
build()
{
    log=$(log_of "$1-build")
    shift
    cmake --build "$@" -j "$jobs" >"$log" 2>&1 || {
        cat "$log" >&2
        return 1
    }
}

# build_targets PRESET TARGET...: in the preset's tree, which is configured first.
build_targets()
{
    configure "$1"
    name=$1
    shift
    build "$name" "build/$name" --target "$@"
}

log_of()
{
    mkdir -p build/logs
    echo "build/logs/$1.log"
}
