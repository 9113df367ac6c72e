# What the scripts that run Windows programs share, beside lib.sh. Sourced, not run.
#
# Installs the cross-compiler and Wine, has Qt for Windows built if it is not, and gives Wine a drive and a registry
# that nobody else sees and of which nothing is left at the end.

need_to_test
need g++-mingw-w64-x86-64-posix wine64
CLCONFIGUI_WINDOWS_QT=$(scripts/qt-for-windows)
export CLCONFIGUI_WINDOWS_QT

WINEPREFIX=$(mktemp -d)
export WINEPREFIX
end_wine() {
    /usr/lib/wine/wineserver64 --kill --wait 2>/dev/null || true
    rm -rf "$WINEPREFIX"
}
trap end_wine EXIT
/usr/lib/wine/wineserver64 --persistent # starting it takes longer than most tests
cmake/toolchains/run-in-wine wineboot --init >/dev/null 2>&1

# build_windows [TARGET...]: configures in any case, for a Qt that is another one than the last time.
build_windows() {
    configure_again=yes
    build windows "$@"
}
