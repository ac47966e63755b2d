#!/bin/sh
# Downloads the packages of the probing library and its tables and unpacks them into the folder $1 without installing
# them. Without them the tests that need them are skipped, so a failure here is only told.
set -u
destino=$1
[ -e "$destino/completo" ] && exit 0
mkdir -p "$destino" && cd "$destino" || exit 1
if apt-get -q download libgaviotatb1 gaviotatb; then
    for paquete in *.deb; do dpkg -x "$paquete" . || exit 1; done
    mkdir -p biblioteca && cp -L "$(find usr -name libgaviotatb.so.1)" biblioteca/ && touch completo
else
    echo "The packages libgaviotatb1 and gaviotatb cannot be downloaded: the tests that need them are skipped."
fi
