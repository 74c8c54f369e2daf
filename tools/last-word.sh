# shellcheck shell=bash
# Sourced by the project's shell scripts, so that none ends without a word: whatever fails, the last
# line on stderr says what it was and what to do.

set -Eeuo pipefail

# fail WORDS...: ends the script with this last line.
fail() {
  trap - ERR
  printf '%s: %s\n' "$0" "$*" >&2
  exit 1
}

# What nobody foresaw.
trap 'fail "line $LINENO failed (status $?): $BASH_COMMAND. Called by \"bash -x $0\" it shows all its steps."' ERR

# part COMMAND...: calls another script of the project. One that fails has said its last line itself,
# unless it was killed.
part() {
  local status=0
  "$@" || status=$?
  ((status)) || return 0
  ((status <= 128)) || fail "$1 was ended by signal $((status - 128)); call again."
  exit "$status"
}

# fail_for_room LOG: says so when a command, whose words lie in LOG, failed because a disk is full.
fail_for_room() {
  local place
  for place in "$PWD/build" "${TMPDIR:-/tmp}"; do
    if [[ -d $place ]] && (($(df --output=avail --block-size=1M "$place" | tail -n 1) < 10)); then
      fail "the disk of $place is full; make room (building takes 1 GB), then call again."
    fi
  done
  if grep -qs 'No space left on device' "$1"; then
    fail "a disk is full; make room (building takes 1 GB), then call again."
  fi
}
