#!/usr/bin/env bash
# Makes the pictures of docs/manuale.md: an operator's session on a virtual screen, by keys alone.
# usage: scripts/schermate.sh [FOLDER OF THE BUILT PROGRAMS [FOLDER OF THE PICTURES]]
# SCHERMO=2732x1536 SCALA=2 scripts/schermate.sh BIN DIR   shows the forms at double scale.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/pacchetti.sh schermate
. scripts/schermo.sh
programmi=${1:-build/release/bin}
immagini=${2:-$PWD/docs/immagini}
lavoro=$(mktemp -d /tmp/torvi.XXXX)
cartella=$lavoro/TorviEditor
pulisci() {
  spegni
  rm -rf "$lavoro"
}
trap pulisci EXIT

mkdir -p "$cartella" "$immagini" "$lavoro/operatore"
export HOME=$lavoro/operatore
cp "$programmi/TorviEditor" "$programmi/torvi" "$cartella/"
scripts/prepara.sh "$cartella"
echo "Questo file non è un archivio." >"$cartella/mdb/appunti.mdb"
accendi "$lavoro"

principale="Editore Torvi"
aperto="Torvi Editor ($cartella/mdb/A01.MDB)"
documento="$aperto - [Documento]"

scatta() { immagine "$immagini/$1.png"; }

# ritratto NOME TITOLO TASTI [COPIONE [FINE]]: the keys open that form; its picture is taken after
# the script was typed in it; the keys of the end, Escape unless told, leave it.
ritratto() {
  batti "$3"
  finestra "$2"
  [ -z "${4:-}" ] || batti "$4"
  immagine_finestra "$immagini/$1.png"
  batti "${5:-{Escape\}}"
}

consegna_nuova() {
  finestra "$principale"
  xdotool getactivewindow windowsize --sync $((900 * SCALA)) $((560 * SCALA))
  ferma
  scatta avvio
  batti '{alt+f}'
  scatta menu_file
  batti n
  finestra "Nuovo archivio"
  batti 'b01{Return}'
  finestra "Nuovo archivio"
  scatta nuovo_conferma
  batti '{Return}'
  ritratto informazione "Informazione consegna" '' 'A{Tab}{Down}{Down}{Tab}b01{Tab}1' '{Return}'
  finestra "$principale"
}

apertura() {
  batti '{alt+f}a'
  finestra "Apri archivio"
  scatta apri
  batti 'A01.MDB{Return}'
  finestra "$aperto"
}

esportazione() {
  batti '{alt+e}f'
  scatta aperto
  batti i
  finestra "Esportazione per ISIS"
  scatta controllo_fonti
  batti s
  finestra "Esportazione"
  scatta accoda
  batti n
  finestra "TorviEditor"
  scatta fine_esportazione
  batti '{Return}'
  finestra "$aperto"
  ritratto errori "Visualizzazione errori" '{alt+e}eg'
  finestra "$aperto"
}

stampe() {
  batti '{alt+s}'
  scatta menu_stampa
  batti p
  finestra "TorviEditor"
  batti n
  finestra "TorviEditor"
  batti '{Return}'
  finestra "$aperto"
  batti '{alt+s}c'
  finestra "TorviEditor"
  batti '{Return}'
  finestra "$aperto"
  scatta stampa_fatta
}

accodamento() {
  batti '{alt+e}fc'
  finestra "Esportazione per ISIS"
  batti n
  finestra "Esportazione"
  ritratto scelta_file "Scelta file di uscita" s '{Down}{space}' '{alt+a}'
  finestra "TorviEditor"
  batti '{Return}'
  finestra "$aperto"
  batti '{alt+e}fc'
  finestra "Esportazione per ISIS"
  batti n
  finestra "Esportazione"
  batti s
  finestra "Scelta file di uscita"
  batti '{alt+a}'
  finestra "TorviEditor"
  scatta errore_runtime
  batti '{Return}'
  finestra "$aperto"
}

# volte N COPIONE: the script so many times.
volte() { printf "%.0s$2" $(seq "$1"); }

# scegli N: opens the document at that place of the list.
scegli() {
  batti '{alt+a}e'
  finestra "Scegli documento"
  batti "$(volte $(($1 - 1)) '{Down}')"
}

# The document form fills the main window, which fills the screen.
documento() {
  batti '{alt+space}x'
  scegli 5
  ritratto frmSceltaDoc "Scegli documento" '' '' '{Return}'
  finestra "$documento"
  scatta frmDocumento
  ritratto frmHelpTastiFunzione "Help su tasti funzione" '{F1}'
  finestra "$documento"
  ritratto frmResponsabilita "Responsabilità" '{F7}' "D'Amico{Tab}Lucia"
  finestra "$documento"
}

classificazione() {
  batti '{F8}'
  finestra "Classificazione"
  batti 'AB001{Tab}00002{Return}00009{Return}'
  ritratto frmClassificazione "Classificazione" '' '' '{alt+l}'
  ritratto frmAsteriscati "Lista asteriscati con i sistematici" ''
  finestra "Classificazione"
  batti '{Escape}'
  finestra "$documento"
}

riassunto() {
  batti '{F10}'
  finestra "Testo riassunto"
  batti "{ctrl+a}Il comento distingue fra nullità ed  annullabilità. Ci si chiede qual'è il termine per agire e perchè la corte non lo dica"
  ritratto frmRiassunto "Testo riassunto" '' '' '{alt+o}'
  ritratto frmCorrezione_ortografia "Controllo ortografico: italiano" ''
  finestra "TorviEditor"
  batti '{Return}{alt+g}'
  ritratto frmCorrezione_grammatica "Controllo grammaticale: italiano" ''
  finestra "TorviEditor"
  batti '{Return}{alt+a}'
  finestra "$documento"
}

testi_brevi() {
  ritratto frmTraduzione "Testo traduzione" "$(volte 11 '{shift+Tab}'){space}"
  finestra "$documento"
  ritratto frmNotaAmb "Campo nota" '{Tab}{space}' 'Vedi anche il documento precedente' \
    '{Tab}{Tab}{space}'
  finestra "$documento"
  ritratto frmNota "Testo nota al documento" '{Tab}{space}' \
    'Controllare la classificazione\chiedere la data alla redazione' '{Tab}{Tab}{space}'
  finestra "$documento"
  batti "$(volte 9 '{Tab}')"
}

# A page of a form with tabs: its kind and its fields are typed, the preview follows.
scheda() {
  batti "$2"
  immagine_finestra "$immagini/$1.png"
  batti "${3:-{ctrl+Tab\}}"
}

fonti_interne() {
  ritratto frmSceltaTipoFonte "Tipo di fonte" '{F9}' '' '{Return}'
  finestra "Fonte di diritto interno"
  scheda frmTabInterna_costituzione 'cost.{Tab}3{Tab}{Tab}2'
  scheda frmTabInterna_codificazioni 'c.c.{Tab}2043'
  scheda frmTabInterna_giurisprudenza \
    '{ctrl+Tab}ordinaria{Tab}{Down}{Tab}roma{Tab}{Tab}I{Tab}{Tab}{Tab}5{Tab}mag{Tab}1999' \
    '{ctrl+shift+Tab}'
  scheda frmTabInterna_normativa \
    'governativi{Tab}{Down}{Tab}giust{Tab}{Down}{Return}5{Tab}lug{Tab}2003{Tab}12' \
    "$(volte 10 '{Tab}'){space}"
  ritratto frmTabInterna_catalogo "Fonte di diritto interno" '' \
    "$(volte 5 '{Tab}')tutela{Tab}{Right}{Tab}{Tab}{space}{Down}" '{Escape}'
  batti '{Escape}'
  finestra "$documento"
}

fonti_altre() {
  batti '{F9}'
  finestra "Tipo di fonte"
  batti '{Down}{Return}'
  finestra "Tipi di diritto diverso da quello interno"
  scheda frmTabAltraFonte_trattati 'nit{Tab}{Tab}{Tab}{Tab}{Down}{Down}' '{Escape}'
  scheda frmTabAltraFonte_internazionale '{ctrl+a}gei{Tab}{Down}{Tab}3{Tab}mar{Tab}1995'
  scheda frmTabAltraFonte_comunitario 'derivato{Tab}reg. ue{Tab}{Tab}{Tab}2016{Tab}679{Tab}5'
  scheda frmTabAltraFonte_straniero \
    "ns$(volte 5 '{Tab}')1382$(volte 7 '{Tab}')c. civ.{Tab}Francia" '{Tab}{space}'
  ritratto frmLista "Lista" ''
  finestra "Tipi di diritto diverso da quello interno"
  batti '{ctrl+Tab}'
  scheda frmTabAltraFonte_canonico 'fcg{Tab}{Down}{Tab}{Tab}{Tab}1999'
  scheda frmTabAltraFonte_storiche 'fsr{Tab}{Down}{Tab}D. 1.1.1' '{Escape}'
  finestra "$documento"
}

# A ministry that the archive does not know.
ente_nuovo() {
  batti '{F9}'
  finestra "Tipo di fonte"
  batti '{Return}'
  finestra "Fonte di diritto interno"
  batti "{ctrl+Tab}{ctrl+Tab}governativi{Tab}{Down}{Tab}Mare e pesca$(volte 4 '{Tab}')2003{alt+e}"
  finestra "$documento"
  batti '{F4}'
  finestra "Attenzione"
  ritratto frmImmissioneTesto "Immissione testo" s 'Ministero del mare e della pesca' '{Tab}{Return}'
  finestra "TorviEditor"
  batti '{Return}'
  finestra "$documento"
}

correzione_fonte() {
  batti '{F6}{F5}'
  ritratto frmModificaFonte "Modifica fonte" "$(volte 20 '{shift+Tab}'){Down}{Down}{Tab}{Tab}{space}"
  finestra "$documento"
  batti "$(volte 18 '{Tab}')"
}

combo_e_periodico() {
  batti '{F6}'
  batti "$(volte 14 '{Tab}')nota"
  scatta frmDocumento_combo
  batti '{Escape}'
  batti "$(volte 13 '{shift+Tab}')"
  batti 'XXXX{Tab}'
  finestra "Attenzione!"
  scatta frmDocumento_periodico
  batti '{Return}{F3}'
  finestra "$aperto"
}

ante_2000() {
  scegli 21
  batti '{Return}'
  finestra "$documento"
  ritratto frmClassificazione1999 "Classifcazione ante 2000" '{F8}' 'A121{Tab}'
  finestra "$documento"
  batti '{F3}'
  finestra "$aperto"
}

cancellazione() {
  batti '{alt+a}c{Return}'
  finestra "Scegli documento"
  batti '{Down}{shift+Down}{Tab}{space}'
  finestra "Attenzione!"
  scatta frmSceltaDoc_cancella
  batti n
  finestra "Scegli documento"
  batti '{Escape}'
  finestra "$aperto"
}

ricerca() {
  ritratto frmRicerca "Ricerca documento" '{alt+a}r' \
    "$(volte 8 '{Down}'){Tab}tutela{Tab}{Right}{Tab}{Tab}{space}" '{alt+i}'
  finestra "$documento"
  batti '{F3}'
  finestra "$aperto"
}

riservata() {
  ritratto frmLogin "Login per accesso alla parte riservata" '{alt+u}{Up}{Return}' 'supervisore{Tab}password'
  finestra "TorviEditor"
  batti '{Return}'
  finestra "$aperto"
}

lista_sigle() {
  printf 'A01\r\nB01\r\n' >"$cartella/mdb/sigle.A03"
  batti '{alt+u}am'
  finestra "Composizione file sigle"
  batti '{Tab}{space}'
  finestra "Apri file sigle"
  batti 'sigle.A03{Return}'
  finestra "Composizione file sigle"
  ritratto frmFileSigle "Composizione file sigle" '' '{Tab}{Down}'
  finestra "$aperto"
}

uscita() {
  batti '{alt+f}c{alt+f}a'
  finestra "Apri archivio"
  batti 'appunti.mdb{Return}'
  finestra "TorviEditor"
  scatta non_archivio
  batti '{Return}'
  finestra "$aperto"
  batti '{alt+f}e'
  finestra "TorviEditor"
  scatta esci
  batti '{Return}'
}

"$cartella/TorviEditor" 2>"$lavoro/messaggi" &
processi+=($!)
for passo in consegna_nuova apertura esportazione stampe accodamento documento classificazione \
  riassunto testi_brevi fonti_interne fonti_altre ente_nuovo correzione_fonte combo_e_periodico \
  ante_2000 cancellazione ricerca riservata lista_sigle uscita; do
  "$passo"
done
ls "$immagini"
