# What the scripts of this folder share. Sourced, not run.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

fail() {
    echo "scripts/$(basename "$0"): $*" >&2
    exit 1
}

project_version() {
    sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt
}

# need PACKAGE...: installs those of the distribution's packages that are missing. What is new is found when the next
# preset is built.
configure_again=
need() {
    local missing=() package
    for package in "$@"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    if [ ${#missing[@]} -gt 0 ]; then
        echo "Installing ${missing[*]}" >&2
        as_root env DEBIAN_FRONTEND=noninteractive sh -c \
            'apt-get update -qq && apt-get install -y -qq --no-install-recommends "$@" >/dev/null' sh "${missing[@]}" >&2
        configure_again=yes
    fi
}

need_to_build() {
    need g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools libqcustomplot-dev libcli11-dev \
        rapidjson-dev libvalijson-dev libgtest-dev libgmock-dev
}

need_to_edit() {
    need_to_build
    need libqscintilla2-qt6-dev libqscintilla2-qt6-l10n libcsv-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools \
        qt6-l10n-tools qt6-translations-l10n fonts-dejavu-core
}

need_to_test() {
    need_to_edit
    need clang-format python3 python3-clang-14 doxygen graphviz xvfb xdotool
}

need_to_sanitize() {
    need_to_test
    need clang llvm libclang-rt-14-dev
}

# Whether PRESET is configured with all that is installed now, as the presets stand now.
is_configured() {
    [ -z "$configure_again" ] && [ "build/$1/build.ninja" -nt CMakePresets.json ]
}

# build PRESET [TARGET...]: configures the preset if it is not, and builds it; what went wrong is shown, and only that.
build() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! {
        { is_configured "$preset" || cmake --preset "$preset"; } &&
            cmake --build "build/$preset" ${1:+--target "$@"}
    } >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
