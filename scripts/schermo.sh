# A virtual screen with a window manager, keys pressed on it, pictures taken of it. To be sourced.
# SCHERMO is its size, SCALA the scale of the program; both may come from the environment.

SCHERMO=${SCHERMO:-1366x768}
SCALA=${SCALA:-1}
processi=()

# accendi CARTELLA: starts screen and window manager; the folder takes what they need.
accendi() {
  mkfifo "$1/schermo"
  Xvfb -displayfd 1 -screen 0 "${SCHERMO}x24" >"$1/schermo" 2>/dev/null &
  processi+=($!)
  local numero
  read -r numero <"$1/schermo"
  export DISPLAY=:$numero LANG=C.UTF-8 QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=$SCALA
  openbox >/dev/null 2>&1 &
  processi+=($!)
  setxkbmap it  # accented letters have keys of their own
  until xdotool get_desktop >/dev/null 2>&1; do sleep 0.1; done
}

spegni() {
  local processo
  for processo in "${processi[@]}"; do kill "$processo" 2>/dev/null || true; done
}

impronta() { import -window root rgb:- | cksum; }

# Waits until nothing moves on the screen any more.
ferma() {
  local prima='' ora
  for _ in $(seq 40); do
    ora=$(impronta)
    [ "$ora" != "$prima" ] || return 0
    prima=$ora
  done
}

# finestra TITOLO: waits until that window has the focus.
finestra() {
  local attiva=''
  for _ in $(seq 100); do
    attiva=$(xdotool getactivewindow getwindowname 2>/dev/null || true)
    if [ "$attiva" = "$1" ]; then
      ferma
      return
    fi
    sleep 0.1
  done
  echo "schermo: attendevo la finestra \"$1\", c'è \"$attiva\"" >&2
  exit 1
}

# batti COPIONE: characters as they stand, keys by name in braces: 'Rossi{Tab}{alt+e}'.
batti() {
  local resto=$1
  while [ -n "$resto" ]; do
    if [[ $resto =~ ^\{([^}]+)\} ]]; then
      xdotool key --delay 80 "${BASH_REMATCH[1]}"
    else
      [[ $resto =~ ^[^{]+ ]]
      xdotool type --delay 40 -- "${BASH_REMATCH[0]}"
    fi
    resto=${resto:${#BASH_REMATCH[0]}}
  done
  ferma
}

# The border tells the bare screen, which goes, from the grey of a window, which stays.
riduci() {
  convert - -bordercolor black -border 1 -trim +repage +dither -colors 256 "PNG8:$1"
}

# immagine FILE: all that is on the screen.
immagine() { import -window root png:- | riduci "$1"; }

# immagine_finestra FILE: the window that has the focus, with its frame.
immagine_finestra() {
  import -frame -window "$(xdotool getactivewindow)" png:- | riduci "$1"
}
