#!/usr/bin/env bash
# copiar-base con una base de unos dos millones de filas: memoria máxima (RSS)
# y tiempo, de SQLite a PostgreSQL (un servidor de usar y tirar de
# scripts/pg-prueba, por loopback), de vuelta de PostgreSQL a SQLite y de
# SQLite a SQLite.
#
#   bench/copia_grande.sh [NOMIRA_CLI...]
#
# Sin argumentos mide build/nomira-cli; con varios, los mide uno tras otro
# sobre la misma base (por ejemplo el de antes de un cambio y el de después).
# FILAS=n cambia las filas de habydesc (por omisión 1.800.000; con las
# personas y las explicaciones la base pasa de los dos millones).
set -euo pipefail
raiz=$(cd "$(dirname "$0")/.." && pwd)
[ $# -gt 0 ] || set -- "$raiz/build/nomira-cli"
filas=${FILAS:-1800000}
personas=$((filas / 90))
tmp=$(mktemp -d "${TMPDIR:-/tmp}/nomira-copia.XXXXXX")
pg=""
terminar() {
    [ -n "$pg" ] && "$raiz/scripts/pg-prueba" parar "$pg"
    rm -rf "$tmp"
}
trap terminar EXIT
export NOMIRA_RAIZ="$tmp"

origen="$tmp/origen.db"
"$1" --base "$origen" init >/dev/null
# Personas con su ficha y, por persona, 90 filas de habydesc repartidas en
# meses, y una explicación por persona y mes.
sqlite3 "$origen" >/dev/null <<SQL
PRAGMA journal_mode=WAL;
BEGIN;
INSERT INTO empresas (empresa, nroemp) VALUES ('ACME S.A.', 1);
WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < $personas)
INSERT INTO personal (empresa, nombre, nrofun, sueldo, fechaing, direccion)
SELECT 'ACME S.A.', printf('PERSONA %06d, NOMBRE', i), i, 20000 + i % 90000,
       '2020-01-01', printf('CALLE %d, APTO %d', i, i % 50) FROM n;
WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < $filas)
INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, cant, total)
SELECT 'ACME S.A.', printf('PERSONA %06d, NOMBRE', i / 90),
       printf('2025-%02d-01', 1 + (i % 90) / 15 * 2), 1 + i % 15, printf('CONCEPTO %d', i % 15),
       CASE WHEN i % 15 < 10 THEN 'Hab' ELSE 'Des' END, 30, round(1234.5678 * (1 + i % 97), 4)
FROM n;
WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < $personas * 6)
INSERT INTO explicaciones (empresa, nombre, fecha, tabla, codigo, texto)
SELECT 'ACME S.A.', printf('PERSONA %06d, NOMBRE', i / 6), printf('2025-%02d-01', 1 + i % 6 * 2),
       'habydesc', 1, printf('Fórmula [SUELDO] = %d', i) FROM n;
COMMIT;
SQL
total=$(sqlite3 "$origen" "SELECT (SELECT count(*) FROM personal) + (SELECT count(*) FROM habydesc) + (SELECT count(*) FROM explicaciones)")
echo "Base de origen: $total filas, $(du -m "$origen" | cut -f1) MB"

pg=$("$raiz/scripts/pg-prueba" iniciar)
cadena=$(cat "$pg/cadena")
vuelta=0

medir() {  # nombre cli desde hacia
    local salida="$tmp/time.txt"
    /usr/bin/time -v "$2" copiar-base --desde "$3" --hacia "$4" >/dev/null 2>"$salida" || {
        tail -5 "$salida"
        return 1
    }
    local rss segundos
    rss=$(sed -n 's/.*Maximum resident set size (kbytes): //p' "$salida")
    segundos=$(sed -n 's/.*Elapsed (wall clock) time (h:mm:ss or m:ss): //p' "$salida")
    printf '%-22s %-40s RSS máx %6d MB  tiempo %s\n' "$1" "$2" $((rss / 1024)) "$segundos"
}

for cli in "$@"; do
    vuelta=$((vuelta + 1))
    esquema="copia_$vuelta"
    psql -q "$cadena" -c "CREATE SCHEMA $esquema" >/dev/null
    servidor="$cadena?options=-csearch_path%3D$esquema"
    medir "SQLite -> PostgreSQL" "$cli" "$origen" "$servidor"
    rm -f "$tmp/destino.db"*
    medir "PostgreSQL -> SQLite" "$cli" "$servidor" "$tmp/destino.db"
    rm -f "$tmp/destino.db"*
    medir "SQLite -> SQLite" "$cli" "$origen" "$tmp/destino.db"
done
