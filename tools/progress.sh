# shellcheck shell=bash
# Sourced by scripts that have something long done.

progress_seconds=10

# follow WHAT HOW_FAR LOG COMMAND...: runs a command whose words all go into LOG. Says WHAT at once,
# and every 10 seconds how far it is: HOW_FAR is a command that reads it out of the log's text.
follow() {
  local what="$1" how_far="$2" log="$3" status=0 end ticker
  shift 3
  echo "$what"
  : >"$log"
  # The pipe into the ticker closes when the command has ended, or with this script.
  exec {end}> >(
    while read -rt "$progress_seconds" || (($? > 128)); do
      echo "$what: $("$how_far" <"$log")"
    done
  )
  ticker=$!
  "$@" >"$log" 2>&1 {end}>&- || status=$?
  exec {end}>&-
  wait "$ticker" || true
  return "$status"
}

last_line() { tail -n 1 | tr -d '\r'; }
