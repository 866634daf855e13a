#include "master/franjas.h"

#include <cmath>

#include "common/dinero.h"
#include "common/formato.h"

namespace nomira::master {

namespace {

Franja leer(const store::Fila& f) {
    return {static_cast<long>(f.entero("franja")), f.real("min"), f.real("max"), f.real("tasa")};
}

}  // namespace

std::optional<std::string> rechazoFranja(double numero, double min, double max, double tasa) {
    // Las comparaciones están escritas para que un NaN también falle.
    if (!(numero >= 1 && numero <= kMaxNumeroFranja && numero == std::trunc(numero)))
        return "La Franja debe ser un número entero entre 1 y 999999.";
    if (!(min >= 0 && min <= kMaxLimiteFranja && max >= 0 && max <= kMaxLimiteFranja))
        return "Min y Max deben ser números entre 0 y 9999999 (BPC).";
    if (min > max) return "Min no puede ser mayor que Max.";
    if (!(tasa >= 0 && tasa <= 100)) return "La Tasa debe ser un número entre 0 y 100.";
    return std::nullopt;
}

void agregarFranja(store::Conexion& base, const Franja& f) {
    base.ejecuta("INSERT INTO franjasirp (franja, min, max, tasa) VALUES (?, ?, ?, ?)",
                 {std::int64_t{f.franja}, f.min, f.max,
                  common::Dinero::desdeDouble(f.tasa).aDouble()});
}

void reemplazarFranja(store::Conexion& base, const Franja& f) {
    store::Transaccion t(base);
    eliminarFranja(base, f.franja);
    agregarFranja(base, f);
    t.confirmar();
}

std::optional<Franja> buscarFranja(store::Conexion& base, long franja) {
    const auto r = base.consulta("SELECT * FROM franjasirp WHERE franja = ?", {std::int64_t{franja}});
    if (r.vacio()) return std::nullopt;
    return leer(r.primera());
}

std::int64_t eliminarFranja(store::Conexion& base, long franja) {
    return base.ejecuta("DELETE FROM franjasirp WHERE franja = ?", {std::int64_t{franja}});
}

std::vector<Franja> listarFranjas(store::Conexion& base) {
    std::vector<Franja> lista;
    for (const auto& f : base.consulta("SELECT * FROM franjasirp ORDER BY franja").filas)
        lista.push_back(leer(f));
    return lista;
}

std::vector<std::string> lineasListaFranjas(const std::vector<Franja>& franjas) {
    std::vector<std::string> lineas = {"", "Franjas IRP", "",
                                       "    Franja         Min         Max        Tasa"};
    for (const auto& f : franjas) {
        std::string linea = common::alinearDerecha(std::to_string(f.franja), 10);
        for (double v : {f.min, f.max, f.tasa})
            linea += common::alinearDerecha(common::formatear(v, "##,##0.00"), 12);
        lineas.push_back(linea);
    }
    return lineas;
}

}  // namespace nomira::master
