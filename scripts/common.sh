# shellcheck shell=bash
# What the scripts share; to be sourced. Runs from the repository's root.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# The compiler and the major version of Qt come from the environment.
compiler=${CXX:-g++}
qt=${QUILLMERE_QT:-5}

# Debian's packages for building, and those for testing and taking pictures. "a|b" is the first of the two that the
# release has.
build_packages=(
  g++ cmake ninja-build pkg-config git ca-certificates
  libarchive-dev libicu-dev libzstd-dev libfontconfig-dev
)
case $compiler in *clang*) build_packages+=(clang) ;; esac
case $qt in
  5) build_packages+=(qtbase5-dev qttools5-dev qttools5-dev-tools) ;;
  6) build_packages+=(qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools "qt6-qpa-plugins|libqt6gui6") ;;
  *) echo "QUILLMERE_QT is $qt, and neither 5 nor 6" >&2 && exit 1 ;;
esac
packages=(
  "${build_packages[@]}"
  libgtest-dev libseccomp-dev zstd python3 mount util-linux procps
  xvfb openbox xdotool x11-utils imagemagick fonts-liberation fonts-dejavu-core fonts-noto-cjk
)

say() { printf '\n\033[1m%s\033[0m\n' "$*"; }

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  exit 1
}

is_installed() { dpkg-query -W -f '${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

is_offered() { apt-cache show "$1" >/dev/null 2>&1; }

# first_that CHECK NAME...: prints the first name that passes the check.
first_that() {
  local check=$1 name
  shift
  for name; do
    ! $check "$name" || { echo "$name" && return; }
  done
  return 1
}

install_packages() {
  local missing=() names sudo=() package
  for package in "${packages[@]}"; do
    IFS='|' read -ra names <<<"$package"
    first_that is_installed "${names[@]}" >/dev/null || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  say "Installing ${missing[*]}"
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  "${sudo[@]}" apt-get update -qq
  for package in "${!missing[@]}"; do
    IFS='|' read -ra names <<<"${missing[package]}"
    missing[package]=$(first_that is_offered "${names[@]}") || fail "no package ${names[*]}"
  done
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: everything, or these targets.
build() {
  local preset=$1
  shift
  say "Building ($preset)"
  cmake --preset "$preset" -DQUILLMERE_QT="$qt" >/dev/null
  cmake --build --preset "$preset" ${1:+--target "$@"}
}

# make_bundle BUILD_DIR CLIENT_DIR BUILD_NUMBER OUTPUT
make_bundle() {
  "$1/tools/qpk/qpk" bundle --launcher "$1/launcher" --icon bundle/ico_72_quillmere.png --client "$2" --build "$3" \
    --major 1 --minor 0 --icon-overlay 1 --output "$4"
}

# wait_for SECONDS COMMAND...: polls until the command succeeds.
wait_for() {
  local end=$(($(date +%s) + $1))
  shift
  until "$@" >/dev/null 2>&1; do
    [ "$(date +%s)" -lt "$end" ] || return 1
    sleep 0.01
  done
}

# The display of this session, or one of its own, of $display_dpi dots per inch, with a window manager.
use_display() {
  if [ -n "${DISPLAY:-}" ] && xdpyinfo >/dev/null 2>&1; then
    return 0
  fi
  local number
  number=$(mktemp)
  Xvfb -displayfd 3 -noreset -screen 0 1024x768x24 -dpi "${display_dpi:-96}" 3>"$number" >/dev/null 2>&1 &
  display_pids="$!"
  wait_for 20 test -s "$number" || fail "Xvfb does not start"
  DISPLAY=":$(cat "$number")"
  export DISPLAY
  rm -f "$number"
  openbox >/dev/null 2>&1 &
  display_pids="$display_pids $!"
  wait_for 20 sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q window.id' || fail "no window manager"
}

leave_display() {
  # shellcheck disable=SC2086
  [ -z "${display_pids:-}" ] || kill $display_pids 2>/dev/null || true
}

# find_window PID: sets `window` to the visible window of the process. A search fails when another window goes meanwhile.
find_window() {
  window=$(xdotool search --onlyvisible --pid "$1" | tail -n 1)
  [ -n "$window" ]
}

# picture_of PID FILE: the visible window of the process, with its frame.
picture_of() {
  local window
  wait_for 20 find_window "$1" || return 1
  import -window "$window" -frame "$2"
}
