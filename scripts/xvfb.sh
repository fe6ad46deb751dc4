# Sourced by the scripts that need a display: starts Xvfb on a free display
# number (Xvfb picks it and says which) and exports DISPLAY; stops it on exit.
start_xvfb() {
  local size=$1 fifo
  fifo=$(mktemp -u)
  mkfifo "$fifo"
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3> "$fifo" > /dev/null 2>&1 &
  xvfb=$!
  read -r number < "$fifo"
  rm -f "$fifo"
  export DISPLAY=:$number
  trap 'kill $xvfb 2>/dev/null || true' EXIT
}
