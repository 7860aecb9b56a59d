#!/usr/bin/env bash
# Refait « Vermo de Vermo.mp3 », le son qui sert à régler le volume : trois notes, puis l'accord.
set -euo pipefail
# shellcheck source=outils/commun.sh
source "$(dirname "${BASH_SOURCE[0]}")/commun.sh"

installer "la fabrication du son" sox lame
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT
mkdir -p "$racine/resources/son"

dire_etape "Son d'essai"
sox -R -D -n -r 44100 -b 16 -c 1 "$travail/son.wav" synth 3 sine 261.63 sine 329.63 sine 392.00 sine 523.25 \
    delay 0 0.25 0.5 0.75 remix 1-4 fade q 0.05 3 1.8 gain -n -6
lame --quiet --cbr -b 64 -m m "$travail/son.wav" "$racine/resources/son/Vermo de Vermo.mp3"
dire_etape "Fait : resources/son/Vermo de Vermo.mp3"
