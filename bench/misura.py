#!/usr/bin/env python3
"""Measures export, prints, batch and conversion against public tools, in alternating pairs.

usage: bench/misura.py [--torvi build/release/bin/torvi] [--coppie 5] [--jet FILE.mdb]

Run by hand on a quiet machine; scripts/pacchetti.sh misure installs what it calls.
"""

import argparse
import os
import pathlib
import shutil
import statistics
import subprocess
import tempfile
import time


class Prova:
    """One run of a process: seconds by the clock and by the processor, peak memory in MB.

    No run finds the files of an earlier one: to cut a file of 60 MB down takes the system as long as
    a tenth of a dump.
    """

    def __init__(self, comando, uscita=os.devnull):
        if uscita != os.devnull:
            pathlib.Path(uscita).unlink(missing_ok=True)
        inizio = time.perf_counter()
        with open(uscita, "wb") as file:
            processo = subprocess.Popen(comando, stdout=file, stderr=subprocess.DEVNULL)
            _, esito, uso = os.wait4(processo.pid, 0)
        self.secondi = time.perf_counter() - inizio
        self.processore = uso.ru_utime + uso.ru_stime
        self.memoria = uso.ru_maxrss / 1024
        if esito != 0:
            raise SystemExit(f"fallito: {' '.join(map(str, comando))}")


def mediane(prove):
    return (
        statistics.median(p.secondi for p in prove),
        statistics.median(p.processore for p in prove),
        max(p.memoria for p in prove),
    )


def stampa(nome, prove):
    secondi, processore, memoria = mediane(prove)
    print(f"  {nome:<28} {secondi:7.3f} s  {processore:7.3f} s cpu  {memoria:6.1f} MB")
    return secondi


class Cartella:
    """An application folder with sample deliveries in it."""

    def __init__(self, torvi, radice):
        self.torvi = torvi
        self.radice = radice
        for nome in ("mdb", "dump"):
            (radice / nome).mkdir()
        risorse = pathlib.Path(__file__).resolve().parent.parent / "risorse"
        for testata in risorse.glob("testata*.rtf"):
            shutil.copy(testata, radice)
        self.fai("catalogo", radice / "mdb" / "catalogo norme.mdb")

    def fai(self, *argomenti):
        for vecchio in (self.radice / "dump").iterdir():
            vecchio.unlink()
        return Prova([self.torvi, "--cartella", self.radice, *argomenti])

    def esempio(self, documenti):
        archivio = self.radice / "mdb" / f"{documenti}.mdb"
        if archivio.exists():
            return archivio
        prova = self.fai("esempio", archivio, "--documenti", str(documenti))
        print(f"  esempio {documenti:<20} {prova.secondi:7.3f} s  {archivio.stat().st_size >> 20} MB")
        return archivio


def esportazione(cartella, coppie):
    print("Esportazione (isis) e sqlite3 .dump")
    grande, piccolo, uno = map(cartella.esempio, (20000, 2000, 1))
    prove = {"dump": [], "grande": [], "piccolo": [], "uno": []}
    for _ in range(coppie):
        testo = cartella.radice / "dump.sql"
        prove["dump"].append(Prova(["sqlite3", grande, ".dump"], testo))
        prove["grande"].append(cartella.fai("esporta", "isis", grande))
        prove["piccolo"].append(cartella.fai("esporta", "isis", piccolo))
        prove["uno"].append(cartella.fai("esporta", "isis", uno))
    dump = stampa("sqlite3 .dump, 20.000", prove["dump"])
    venti = stampa("torvi esporta, 20.000", prove["grande"])
    due = stampa("torvi esporta, 2.000", prove["piccolo"])
    avvio = stampa("torvi esporta, 1", prove["uno"])
    print(f"  torvi / .dump                {venti / dump:6.2f}   (al più 2)")
    # What a run costs before its first document does not grow with them.
    rapporto = (venti - avvio) / (due - avvio) / 10
    print(f"  per documento 20.000 / 2.000 {rapporto:6.2f}   (tra 0,8 e 1,2)")
    return grande


STAMPE = {"completa": 2, "testi": 2, "prospetto-rtf": 1, "prospetto-html": 1, "consistenza": 1}


def stampe(cartella, archivio, coppie):
    print("Stampe e sqlite3 .dump, 20.000 documenti")
    prove = {nome: [] for nome in ("dump", *STAMPE)}
    for _ in range(coppie):
        prove["dump"].append(
            Prova(["sqlite3", archivio, ".dump"], cartella.radice / "dump.sql"))
        for nome in STAMPE:
            prove[nome].append(cartella.fai("stampa", nome, archivio))
    dump = stampa("sqlite3 .dump", prove["dump"])
    for nome, limite in STAMPE.items():
        secondi = stampa(f"torvi stampa {nome}", prove[nome])
        print(f"  {nome + ' / .dump':<28} {secondi / dump:6.2f}   (al più {limite})")


def lotto(cartella, coppie, consegne=200, documenti=300):
    print(f"Lotto (isis) di {consegne} consegne di {documenti} documenti")
    sola, grande, uno = map(cartella.esempio, (documenti, 20000, 1))
    mdb = cartella.radice / "mdb"
    sigle = [f"L{i:03}" for i in range(consegne)]
    for sigla in sigle:
        shutil.copy(sola, mdb / f"{sigla}.mdb")
    liste = {"lotto": mdb / "sigle.300", "vuoto": mdb / "sigle.001"}
    liste["lotto"].write_text("".join(f"{sigla}\n" for sigla in sigle))
    liste["vuoto"].write_text(f"{uno.stem}\n" * consegne)
    prove = {"grande": [], "lotto": [], "vuoto": []}
    for _ in range(coppie):
        prove["grande"].append(cartella.fai("esporta", "isis", grande))
        for nome, lista in liste.items():
            prove[nome].append(cartella.fai("lotto", "isis", lista))
    venti = stampa("torvi esporta, 20.000", prove["grande"])
    tutte = stampa(f"torvi lotto, {consegne} x {documenti}", prove["lotto"])
    vuote = stampa(f"torvi lotto, {consegne} x 1", prove["vuoto"])
    per_documento = tutte / (consegne * documenti)
    print(f"  per documento, lotto / 20.000 {per_documento / (venti / 20000):5.2f}   (al più 1,2)")
    print(f"  di cui aprire e chiudere     {vuote / tutte:6.2f}")


def conversione(cartella, jet, coppie):
    print(f"Conversione di {jet.name} e mdb-export di tutte le tabelle")
    tabelle = subprocess.run(["mdb-tables", "-1", jet], check=True, capture_output=True, text=True)
    leggi = "".join(f'mdb-export "$0" "{nome}"\n' for nome in tabelle.stdout.splitlines())
    prove = {"torvi": [], "mdb": []}
    for i in range(coppie):
        prove["mdb"].append(Prova(["sh", "-c", leggi, jet], cartella.radice / "tabelle.csv"))
        prove["torvi"].append(cartella.fai("converti", jet, cartella.radice / f"nuovo{i}.mdb"))
    mdb = stampa("mdb-export", prove["mdb"])
    torvi = stampa("torvi converti", prove["torvi"])
    print(f"  mdb-export / torvi           {mdb / torvi:6.2f}   (almeno 0,25)")


def main():
    radice = pathlib.Path(__file__).resolve().parent.parent
    argomenti = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    argomenti.add_argument("--torvi", type=pathlib.Path, default=radice / "build/release/bin/torvi")
    argomenti.add_argument("--coppie", type=int, default=5)
    argomenti.add_argument("--jet", type=pathlib.Path,
                           default=radice / "../shared/jet/consegna.mdb")
    scelte = argomenti.parse_args()
    with tempfile.TemporaryDirectory(dir=scelte.torvi.parent) as temporanea:
        cartella = Cartella(scelte.torvi, pathlib.Path(temporanea))
        grande = esportazione(cartella, scelte.coppie)
        stampe(cartella, grande, scelte.coppie)
        lotto(cartella, scelte.coppie)
        if scelte.jet.exists():
            conversione(cartella, scelte.jet, scelte.coppie)


if __name__ == "__main__":
    main()
