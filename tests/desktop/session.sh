# shellcheck shell=bash
# For scripts to source: a screen of their own with a window manager, and a Wine whose windows appear
# there. Everything that was started ends with the script.
#
# Wine's desktop lives where its first program found a display, so it takes a prefix and a server of
# its own; the files of the usual prefix serve it.

wine=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../scripts" && pwd)/wine
session_started=()

end_session() {
  local code=$?
  # What the screen shows tells why a test failed.
  if [ "$code" != 0 ] && [ -n "${DISPLAY:-}" ] && [ -n "${failure_picture:-}" ]; then
    import -window root "$failure_picture" || true
    xwininfo -root -tree || true
    cat "$work"/*.log || true
    ps -o pid,stat,wchan:20,args -p "$(IFS=,; echo "${session_started[*]}")" || true
  fi
  KW_CACHE=$session "$wine" "$bitness" --stop >/dev/null 2>&1 || true
  local process
  for process in "${session_started[@]}"; do kill "$process" 2>/dev/null || true; done
  for process in "${session_started[@]}"; do wait "$process" 2>/dev/null || true; done
  rm -rf "$session" "$work"
}

# Waits until a command succeeds, for a minute at most.
await() {
  for _ in {1..600}; do
    if "$@" >/dev/null 2>&1; then return 0; fi
    sleep 0.1
  done
  echo "waited in vain for: $*" >&2
  return 1
}

# Sets `work`, an empty folder that goes with the session, and KW_CACHE for scripts/wine.
private_prefix() { # x64|x86
  bitness=$1
  local cache=${KW_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/kwutils}
  local prefixes=${KW_CACHE:-$(dirname "$wine")/../build}
  # The usual prefix is made where it does not exist yet.
  "$wine" "$bitness" cmd.exe /c ver >/dev/null
  session=$(mktemp -d "$(realpath "$prefixes")/session.XXXXXX")
  work=$(mktemp -d)
  trap end_session EXIT
  trap 'exit 1' INT TERM
  ln -s "$cache/i386-root" "$session/i386-root"
  local usual=$prefixes/wine-$bitness own=$session/wine-$bitness
  mkdir "$own"
  cp -al "$usual/drive_c" "$own/"
  cp -a "$usual"/{dosdevices,.update-timestamp,system.reg,user.reg,userdef.reg} "$own/"
  export KW_CACHE=$session
}

# A screen of 800 by 600 pixels, named by DISPLAY and KW_DISPLAY.
own_screen() {
  # Without -noreset the server starts anew whenever its last client leaves, and refuses whoever
  # comes just then.
  Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp -noreset \
    3>"$work/display" >"$work/screen.log" 2>&1 &
  session_started+=($!)
  await test -s "$work/display"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY KW_DISPLAY=$DISPLAY
  openbox >"$work/windows.log" 2>&1 &
  session_started+=($!)
  await sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'
}
