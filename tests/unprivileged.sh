#!/bin/sh
# Runs a test program as an ordinary user: permission bits do not stop the superuser, so
# tests of unreadable folders and files mean something only without its rights. As an
# ordinary user already, or where that user cannot reach the program (a build inside a
# private folder), the program simply runs and skips what needs the ordinary user.
run_as_nobody="setpriv --reuid=65534 --regid=65534 --clear-groups env HOME=/tmp"
if [ "$(id -u)" = 0 ] && $run_as_nobody test -x "$1" 2>/dev/null; then
    exec $run_as_nobody "$@"
fi
exec "$@"
