# Sourced by scripts that run Windows programs. Two kinds of Wine prefixes live in build/wine:
#   null  no display at all: fast, and safe beside other prefixes
#   x11   windows on a bare X server of its own: screen pictures, drawing on the screen, the pointer's clipping
# Two programs with windows must never run at once in one prefix: they share the foreground and the input.

wine_home=$root/build/wine
wine_template=$wine_home/template
unset DISPLAY WAYLAND_DISPLAY
export WINEARCH=win32 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="

# The colours and the look of classic windows, so that pictures are the same everywhere.
wine_registry() {
  cat <<'REG'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Microsoft Sans Serif"="Tahoma"
"Arial"="Liberation Sans"
"Courier New"="Liberation Mono"
"Times New Roman"="Liberation Serif"

[HKEY_CURRENT_USER\Software\Wine\DllOverrides]
"winemenubuilder.exe"=""

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"
"Decorated"="N"

[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\ThemeManager]
"ThemeActive"="0"

[HKEY_CURRENT_USER\Control Panel\Colors]
"ActiveBorder"="192 192 192"
"ActiveTitle"="0 0 128"
"AppWorkSpace"="128 128 128"
"Background"="0 128 128"
"ButtonAlternateFace"="192 192 192"
"ButtonDkShadow"="0 0 0"
"ButtonFace"="192 192 192"
"ButtonHilight"="255 255 255"
"ButtonLight"="223 223 223"
"ButtonShadow"="128 128 128"
"ButtonText"="0 0 0"
"GradientActiveTitle"="16 132 208"
"GradientInactiveTitle"="181 181 181"
"GrayText"="128 128 128"
"Hilight"="0 0 128"
"HilightText"="255 255 255"
"InactiveBorder"="192 192 192"
"InactiveTitle"="128 128 128"
"InactiveTitleText"="192 192 192"
"InfoText"="0 0 0"
"InfoWindow"="255 255 225"
"Menu"="192 192 192"
"MenuBar"="192 192 192"
"MenuHilight"="0 0 128"
"MenuText"="0 0 0"
"Scrollbar"="192 192 192"
"TitleText"="255 255 255"
"Window"="255 255 255"
"WindowFrame"="0 0 0"
"WindowText"="0 0 0"

REG
  [ "$1" = x11 ] || printf '[HKEY_CURRENT_USER\\Software\\Wine\\Drivers]\n"Graphics"="null"\n\n'
}

# Makes the prefix of a kind, once. Its drive_c/work is where programs run.
wine_make_prefix() {
  local kind=$1 prefix=$wine_home/$1
  [ ! -f "$prefix/ready" ] || return 0
  say "making the Wine prefix for $kind"
  rm -rf "$prefix"
  mkdir -p "$wine_home"
  export WINEPREFIX=$prefix
  wineboot -i >/dev/null 2>&1 || die "wineboot failed"
  # Debian's 32-bit Wine looks for its own fonts elsewhere and then falls back to wider ones.
  ln -sf /usr/share/wine/fonts/* "$prefix/drive_c/windows/Fonts/"
  wine_registry "$kind" >"$prefix/setup.reg"
  wine regedit /S "$prefix/setup.reg" 2>/dev/null
  mkdir -p "$prefix/drive_c/work"
  wine_stop
  touch "$prefix/ready"
}

# Ends what still runs in the prefix of WINEPREFIX.
wine_stop() {
  /usr/bin/wineserver -k 2>/dev/null || true
  /usr/bin/wineserver -w 2>/dev/null || true
}

# Starts an X server of its own and sets DISPLAY; stop_display ends it.
start_display() {
  local number
  number=$(mktemp)
  Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
  display_pid=$!
  for _ in $(seq 100); do
    [ ! -s "$number" ] || break
    sleep 0.05
  done
  [ -s "$number" ] || die "Xvfb didn't start"
  DISPLAY=:$(cat "$number")
  export DISPLAY
  rm -f "$number"
}
stop_display() {
  kill "$display_pid" 2>/dev/null || true
  wait "$display_pid" 2>/dev/null || true
  unset DISPLAY
}

# wait_for COMMAND...: until a command succeeds, which it must within 20 seconds.
wait_for() {
  for _ in $(seq 400); do
    ! "$@" >/dev/null 2>&1 || return 0
    sleep 0.05
  done
  die "waited in vain for: $*"
}

# wine_run KIND PROGRAM [ARGUMENT...]: runs a program to its end, in a clean working folder of its prefix.
# WINE_PROCESSOR=N keeps the program and the server it talks to on one processor: every call between them is several
# times faster then, and times can be compared.
wine_run() {
  local kind=$1 program code=0
  program=$(realpath "$2")
  shift 2
  wine_make_prefix "$kind"
  export WINEPREFIX=$wine_home/$kind
  rm -rf "$WINEPREFIX/drive_c/work"
  mkdir -p "$WINEPREFIX/drive_c/work"
  [ "$kind" != x11 ] || start_display
  (cd "$WINEPREFIX/drive_c/work" && timeout "${WINE_TIMEOUT:-300}" ${WINE_PROCESSOR:+taskset -c "$WINE_PROCESSOR"} wine "$program" "$@" 2>/dev/null) || code=$?
  wine_stop
  [ "$kind" != x11 ] || stop_display
  return $code
}
