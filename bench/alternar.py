#!/usr/bin/env python3
"""Compara dos compilaciones de banco_liquidacion en la misma corrida.

    bench/alternar.py NUEVO VIEJO [PARES] [VUELTAS]

Corre los dos binarios uno tras otro PARES veces (7 si no se indica),
cambiando cuál va primero en cada par, cada uno con VUELTAS vueltas (3).
Toma de cada corrida la mediana de haberes_s y descuentos_s, y muestra la
mediana de todas y el cociente NUEVO/VIEJO: la máquina cambia de velocidad de
una hora a otra, y así los dos la sufren por igual.
"""
import json
import os
import statistics
import subprocess
import sys

CIFRAS = ("haberes_s", "descuentos_s")


def medir(binario, vueltas):
    env = dict(os.environ, NOMIRA_BANCO_VUELTAS=str(vueltas))
    salida = subprocess.run([binario, "--benchmark_format=json"], env=env, check=True,
                            capture_output=True, text=True).stdout
    for b in json.loads(salida)["benchmarks"]:
        if b.get("aggregate_name") == "median" or vueltas == 1:
            return {c: b[c] for c in CIFRAS}
    raise SystemExit(f"{binario}: sin mediana en la salida")


def main():
    if len(sys.argv) < 3:
        raise SystemExit(__doc__)
    nuevo, viejo = sys.argv[1], sys.argv[2]
    pares = int(sys.argv[3]) if len(sys.argv) > 3 else 7
    vueltas = int(sys.argv[4]) if len(sys.argv) > 4 else 3
    medidas = {nuevo: [], viejo: []}
    for i in range(pares):
        orden = (nuevo, viejo) if i % 2 == 0 else (viejo, nuevo)
        for b in orden:
            medidas[b].append(medir(b, vueltas))
        print(f"par {i + 1}: " + "  ".join(
            f"{'nuevo' if b == nuevo else 'viejo'} "
            + " ".join(f"{c}={medidas[b][-1][c]:.4f}" for c in CIFRAS) for b in orden),
            flush=True)
    resumen = {}
    for b, nombre in ((nuevo, "nuevo"), (viejo, "viejo")):
        resumen[nombre] = {c: statistics.median(m[c] for m in medidas[b]) for c in CIFRAS}
        resumen[nombre]["total"] = statistics.median(
            sum(m[c] for c in CIFRAS) for m in medidas[b])
    for nombre in ("nuevo", "viejo"):
        print(nombre + ": " + "  ".join(f"{c}={v:.4f}" for c, v in resumen[nombre].items()))
    print("cociente nuevo/viejo: " + "  ".join(
        f"{c}={resumen['nuevo'][c] / resumen['viejo'][c]:.2f}" for c in resumen["nuevo"]))


if __name__ == "__main__":
    main()
