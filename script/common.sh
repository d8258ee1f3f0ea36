# Every script here reads this first. It goes to the project's top folder and answers --help.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# A script's help is the comment at its head.
help() {
    sed -n '2,/^$/s/^# \{0,1\}//p' "$1"
}

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

case "${1:-}" in
-h | --help)
    help "script/$(basename "$0")"
    exit 0
    ;;
esac

# ccache keeps compiled objects between builds, if it is installed. Paths are made relative, so that one
# preset finds what another has compiled.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
    # Precompiled headers are large. A file whose inode has not changed is not read again.
    export CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_INODECACHE=1
fi

cxx_files() {
    find src tests demo $([[ ! -d bench ]] || echo bench) -name '*.h' -o -name '*.cpp' | sort
}
