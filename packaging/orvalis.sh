#!/bin/sh
# Starts Orvalis in a program folder of the user's own: the program writes its settings beside
# itself, which a folder of the system does not allow. May run several times at once.
# shellcheck disable=SC3013  # "-ef" is not in every standard, but in every Debian shell.
set -u

prefix=$(dirname "$(dirname "$(readlink -f "$0")")")
package=$prefix/lib/orvalis/orvalis
world=$prefix/share/orvalis

fail() {
  case ${LC_ALL:-${LC_MESSAGES:-${LANG:-}}} in
    de*) text="Orvalis kann seinen Ordner nicht anlegen: $1" ;;
    fr*) text="Orvalis ne peut pas créer son dossier : $1" ;;
    *) text="Orvalis cannot make its folder: $1" ;;
  esac
  echo "$text" >&2
  # Whoever starts from a menu sees no terminal.
  if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    if command -v zenity >/dev/null; then
      zenity --error --no-markup --title=Orvalis --text="$text"
    elif command -v kdialog >/dev/null; then
      kdialog --title Orvalis --error "$text"
    elif command -v xmessage >/dev/null; then
      xmessage "$text"
    fi
  fi
  exit 1
}

case ${XDG_DATA_HOME:-} in
  /*) folder=$XDG_DATA_HOME/orvalis ;;
  *) folder=${HOME:-}/.local/share/orvalis ;;
esac

# A copy takes its name in one step, so that no other start ever sees half of it.
copy() {
  new=$folder/.new-$$
  cp -p "$1" "$new" 2>/dev/null && mv "$3" "$new" "$2" 2>/dev/null
  copied=$?
  rm -f "$new"
  [ "$copied" -eq 0 ] || fail "$2"
}

# Links to what the package has; what the user put in its place stays.
link() {
  [ -e "$1" ] || return
  [ "$2" -ef "$1" ] && return
  [ -e "$2" ] && [ ! -L "$2" ] && return
  ln -sfn "$1" "$2" 2>/dev/null || [ -e "$2" ] || fail "$2"
}

# A folder's links whose files the package has no more.
drop_dead_links() {
  for entry in "$1"/*; do
    if [ -L "$entry" ] && [ ! -e "$entry" ]; then
      case $(readlink "$entry") in "$world"/*) rm -f "$entry" ;; esac
    fi
  done
}

mkdir -p "$folder" 2>/dev/null || fail "$folder"
cmp -s "$package" "$folder/orvalis" || copy "$package" "$folder/orvalis" -f
drop_dead_links "$folder"
for file in "$world"/*; do
  own=$folder/${file##*/}
  if [ "${file##*/}" = orvalis.ini ]; then
    [ -e "$own" ] || copy "$file" "$own" -n
  elif [ -d "$file" ] && [ ! -L "$own" ]; then
    mkdir -p "$own" 2>/dev/null || fail "$own"
    drop_dead_links "$own"
    for inner in "$file"/*; do
      link "$inner" "$own/${inner##*/}"
    done
  elif [ ! -d "$file" ]; then
    link "$file" "$own"
  fi
done

[ -x "$folder/orvalis" ] || fail "$folder/orvalis"
exec "$folder/orvalis" "$@"
