#!/usr/bin/env bash
# Refait les enregistrements et les transcriptions de demo/, et l'enregistrement que la visite importe.
# Les voix sont de synthèse et les temps des extraits viennent de la durée de chaque phrase : deux passages
# avec les mêmes versions d'espeak-ng, de sox et de lame donnent les mêmes octets.
set -euo pipefail
racine=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=outils/commun.sh
source "$racine/outils/commun.sh"
export LC_ALL=C.UTF-8

textes=$racine/outils/entretiens
demo=$racine/demo
importer=$racine/visite/donnees
travail=$(mktemp -d)
trap 'rm -rf "$travail"' EXIT

# dire VOIX TEXTE FICHIER : une phrase, 22 050 Hz, 16 bits, mono, sans blanc autour.
dire() {
    local voix=$1 texte=$2 fichier=$3
    local nom=${voix%%/*} reste=${voix#*/}
    espeak-ng -v "$nom" -s "${reste%%/*}" -p "${reste#*/}" -w "$travail/brut.wav" "$texte"
    sox -R -D "$travail/brut.wav" -r 22050 "$fichier" silence 1 0.02 0.3% reverse silence 1 0.02 0.3% reverse
}

# phrases ENTRETIEN VOIX_Q VOIX_R : assemble les phrases en stéréo (l'une à gauche, l'autre à droite) dans
# $travail/ENTRETIEN.wav et écrit les extraits, avec leurs temps, dans $travail/ENTRETIEN.extraits.
phrases() {
    local entretien=$1 voixQ=$2 voixR=$3
    local n=0 position=13230 ouvert="" finPrecedente=0 qui code silence texte
    local liste=("$travail/debut.wav")
    sox -R -D -n -r 22050 -b 16 -c 2 "$travail/debut.wav" trim 0 0.6
    : >"$travail/$entretien.extraits"
    while IFS='|' read -r qui code silence texte; do
        n=$((n + 1))
        local phrase=$travail/p$n.wav duree pause
        if [ "$qui" = Q ]; then
            dire "$voixQ" "$texte" "$travail/mono.wav"
            sox -R -D "$travail/mono.wav" "$phrase" remix 1v0.80 1v0.35 pad 0 "$silence"
        else
            dire "$voixR" "$texte" "$travail/mono.wav"
            sox -R -D "$travail/mono.wav" "$phrase" remix 1v0.35 1v0.95 pad 0 "$silence"
        fi
        liste+=("$phrase")
        duree=$(soxi -s "$travail/mono.wav")
        pause=$(($(soxi -s "$phrase") - duree))
        if [ -n "$ouvert" ] && [ "$code" != + ]; then
            printf '::%s::\n' "$finPrecedente" >>"$travail/$entretien.extraits"
            ouvert=""
        fi
        if [ "$code" != - ] && [ "$code" != + ]; then
            printf '::%s::%s\n' "$(secondes $((position - 2205)))" "$code" >>"$travail/$entretien.extraits"
            ouvert=oui
        fi
        if [ -n "$ouvert" ]; then
            if [ "$qui" = Q ]; then texte="- $texte"; fi
            printf '%s\n' "$texte" >>"$travail/$entretien.extraits"
        fi
        finPrecedente=$(secondes $((position + duree + 3308)))
        position=$((position + duree + pause))
    done < <(grep -v '^#' "$textes/$entretien.txt")
    if [ -n "$ouvert" ]; then printf '::%s::\n' "$finPrecedente" >>"$travail/$entretien.extraits"; fi
    sox -R -D "${liste[@]}" "$travail/$entretien.wav" gain -n -2
}

# secondes ÉCHANTILLONS : deux décimales, avec un point.
secondes() { awk -v e="$1" 'BEGIN { printf "%.2f", e / 22050 }'; }

# ligne par ligne en CP1252, fins de ligne CR LF.
ecrire() { sed 's/$/\r/' | iconv -f UTF-8 -t CP1252 >"$1"; }

# transcription ENTRETIEN DURÉE OBSERVATIONS ATTRIBUTS
transcription() {
    local entretien=$1 duree=$2 observations=$3 attributs=$4
    {
        awk -v d="$duree" 'BEGIN { printf " %.7g \n", d }'
        printf '<|OBS|\n%s\n>|OBS|\n<|ATTR|\n%s\n>|ATTR|\n' "$observations" "$attributs"
        cat "$travail/$entretien.extraits"
    } | ecrire "$demo/$entretien.Rtr"
}

installer "la fabrication de la démonstration" espeak-ng sox libsox-fmt-mp3 lame ffmpeg
mkdir -p "$demo" "$importer"

dire_etape "Entretien 1 : WAV 8 bits mono"
phrases "Claire infirmière" fr+m3/150/40 fr+f3/148/55
sox -R -D "$travail/Claire infirmière.wav" -r 11025 -b 8 -c 1 "$demo/Claire infirmière.wav" remix 1,2 gain -n -2
transcription "Claire infirmière" "$(soxi -D "$demo/Claire infirmière.wav")" \
    $'Entretien réalisé au domicile de Claire, le 12 mars.\nElle a préparé du café ; le chat traverse deux fois la pièce.\nTrès à l\'aise, sauf sur la question de la santé.' \
    $'1,1\n2,2\n3,1\n4,1'

dire_etape "Entretien 2 : WAV 16 bits stéréo"
phrases "Henri menuisier" fr+f2/145/50 fr+m7/122/30
sox -R -D "$travail/Henri menuisier.wav" -r 16000 -b 16 -c 2 "$demo/Henri menuisier.wav"
transcription "Henri menuisier" "$(soxi -D "$demo/Henri menuisier.wav")" \
    $'Dans l\'atelier, machines arrêtées.\nHenri montre ses outils en parlant.' \
    $'1,2\n2,3\n3,2\n4,2'

dire_etape "Entretien 3 : MP3"
phrases "Nadia éducatrice" fr+m3/150/40 fr+f5/152/60
sox -R -D "$travail/Nadia éducatrice.wav" -c 1 "$travail/mono.wav" remix 1,2 gain -n -2
lame --quiet --cbr -b 48 -m m "$travail/mono.wav" "$demo/Nadia éducatrice.mp3"
transcription "Nadia éducatrice" \
    "$(ffprobe -v error -show_entries format=duration -of csv=p=0 "$demo/Nadia éducatrice.mp3")" \
    $'Entretien interrompu par le travail, à reprendre.' \
    $'1,1\n2,1\n3,3\n4,2'

dire_etape "Enregistrement à importer : WAV 8 bits mono"
phrases "Entretien à importer" fr+f2/145/50 fr+m2/138/45
sox -R -D "$travail/Entretien à importer.wav" -r 11025 -b 8 -c 1 "$importer/Entretien à importer.wav" remix 1,2 gain -n -2

dire_etape "Corpus"
ecrire "$demo/Métiers.Crp" <<'CORPUS'
Projet crée le 12/03/2024 à 14:30
<|THEM|
000,&H0, Pas de thématique
001,13395507, Parcours
002,3308264, Gestes du métier
003,12874308, Horaires
004,5287936, Collègues
005,4474076, Fatigue et santé
006,2662628, Fierté
007,10263620, Transmission
008,11034812, Avenir
>|THEM|
<|POS|
1,Sexe
2,Âge
3,Secteur
4,Lieu de l'entretien
>|POS|
<|DIC|
1,1,Femme
1,2,Homme
2,1,Moins de 30 ans
2,2,De 30 à 50 ans
2,3,Plus de 50 ans
3,1,Santé
3,2,Artisanat
3,3,Éducation, action sociale
4,1,Domicile
4,2,Lieu de travail
>|DIC|
<|ENTR|
Claire infirmière.wav
Henri menuisier.wav
Nadia éducatrice.mp3
>|ENTR|
CORPUS
dire_etape "Fait : $(du -bc "$demo"/* | awk 'END { printf "%.1f", $1 / 1e6 }') Mo dans demo/"
