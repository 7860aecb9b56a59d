# shellcheck shell=bash
# Un écran simulé de 1920 x 1080 avec son gestionnaire de fenêtres, fermé à la sortie du script.

fermer_ecran() {
    local pid
    for pid in ${pid_fenetres:-} ${pid_ecran:-}; do
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    rm -rf "${dossier_ecran:?}"
}

# attendre FICHIER PID : que FICHIER ne soit plus vide, tant que PID vit, dix secondes au plus.
attendre() {
    local essai
    for ((essai = 0; essai < 200; essai++)); do
        [ ! -s "$1" ] || return 0
        kill -0 "$2" 2>/dev/null || break
        sleep 0.05
    done
    return 1
}

# Exporte DISPLAY. Xvfb choisit lui-même un numéro libre.
ouvrir_ecran() {
    dossier_ecran=$(mktemp -d)
    trap fermer_ecran EXIT
    export XDG_RUNTIME_DIR=$dossier_ecran
    Xvfb -displayfd 3 -screen 0 1920x1080x24 -nolisten tcp 3>"$dossier_ecran/numero" \
        </dev/null >"$dossier_ecran/journal" 2>&1 &
    pid_ecran=$!
    attendre "$dossier_ecran/numero" "$pid_ecran" || echouer "Xvfb ne démarre pas : $(cat "$dossier_ecran/journal")"
    DISPLAY=:$(cat "$dossier_ecran/numero")
    export DISPLAY
    openbox --startup "sh -c 'echo ouvert >$dossier_ecran/pret'" </dev/null >>"$dossier_ecran/journal" 2>&1 &
    pid_fenetres=$!
    attendre "$dossier_ecran/pret" "$pid_fenetres" || echouer "openbox ne démarre pas : $(cat "$dossier_ecran/journal")"
}
