#pragma once
// Las filas liquidadas de una persona que conoce una corrida: las que el lector
// trajo de la base para los meses que los cálculos necesitan, llevadas al día
// en memoria a medida que se calcula, así un concepto ve los netos de los
// anteriores. Nada de aquí va a la base: el escritor lleva después los meses
// que cambiaron.
#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "common/fechas.h"
#include "engine/mes/filas_mes.h"

namespace nomira::engine {
inline namespace mes {

class LibroPersona {
  public:
    LibroPersona() = default;
    LibroPersona(std::string empresa, std::string nombre)
        : empresa_(std::move(empresa)), nombre_(std::move(nombre)) {}

    const std::string& empresa() const { return empresa_; }
    const std::string& nombre() const { return nombre_; }

    // --- Lo que trae el lector ---
    // Los meses de la tabla que se leyeron (con filas o sin ellas). Pedir un mes
    // que no se leyó es un error del programa, no un mes vacío.
    void leidos(TablaLiquidacion t, const common::Mes& desde, const common::Mes& hasta);
    bool fueLeido(TablaLiquidacion t, const common::Mes& mes) const;
    // El mes del que se leyeron las explicaciones: el único que se puede
    // escribir, porque el escritor lo reescribe con ellas.
    void explicacionesLeidas(const common::Mes& mes) { escribible_ = mes; }
    // Una fila leída, en el orden de la tabla; habydesc y egresos quedan por
    // código (en un mismo código, en el orden en que llegan).
    void agregarLeida(TablaLiquidacion t, const common::Mes& mes, FilaMes f);
    // La explicación guardada de las filas del mes con ese código (en
    // aguinaldos, de la fila en esa posición del mes).
    void explicacionLeida(TablaLiquidacion t, const common::Mes& mes, long codigo,
                          const std::string& texto);

    // --- Lectura ---
    const std::vector<FilaMes>& filas(TablaLiquidacion t, const common::Mes& mes) const;
    // Las de un tramo de meses; habydesc y egresos, por código.
    std::vector<FilaMes> filas(TablaLiquidacion t, const common::Mes& desde,
                               const common::Mes& hasta) const;
    // La primera fila del mes con ese código, o con ese texto (por código).
    const FilaMes* porCodigo(TablaLiquidacion t, const common::Mes& mes, long codigo) const;
    const FilaMes* porConcepto(TablaLiquidacion t, const common::Mes& mes,
                               const std::string& concepto) const;
    bool hayEgresos(const common::Mes& mes) const {
        return !filas(TablaLiquidacion::Egresos, mes).empty();
    }
    bool tiene(TablaLiquidacion t, const common::Mes& mes, const std::string& tipo) const;

    // --- Escritura, en memoria ---
    // Por código: si el mes ya tiene filas de ese código, cambian su concepto,
    // unidad, cant y total (y su explicación, si `f` trae una); si no, `f` entra
    // en su lugar por código. En salvacacional reemplaza la fila entera. En
    // aguinaldos, que no tiene código, el haber se busca por actividad y mes
    // (aclab y mes) y el descuento por su texto; cambian concepto y total.
    void escribir(TablaLiquidacion t, const common::Mes& mes, const FilaMes& f);
    // Borra las filas del mes que cumplen `quitar`; devuelve cuántas.
    std::size_t borrar(TablaLiquidacion t, const common::Mes& mes,
                       const std::function<bool(const FilaMes&)>& quitar);
    std::size_t borrarTipo(TablaLiquidacion t, const common::Mes& mes, const std::string& tipo) {
        return borrar(t, mes, [&](const FilaMes& f) { return f.tipo == tipo; });
    }
    std::size_t borrarCodigo(TablaLiquidacion t, const common::Mes& mes, long codigo) {
        return borrar(t, mes, [&](const FilaMes& f) { return f.codigo == codigo; });
    }
    // La explicación de las filas del mes con ese código.
    void explicar(TablaLiquidacion t, const common::Mes& mes, long codigo,
                  const std::string& texto);

    // Los códigos que cambiaron en cada mes de cada tabla desde la última vez que
    // se escribió (escritos, borrados o explicados).
    using MesDeTabla = std::pair<TablaLiquidacion, common::Mes>;
    const std::map<MesDeTabla, std::set<long>>& cambiados() const { return cambiados_; }
    void escritos() { cambiados_.clear(); }

  private:
    void escribirAguinaldo(const common::Mes& mes, const FilaMes& f);
    std::vector<FilaMes>& paraCambiar(TablaLiquidacion t, const common::Mes& mes, long codigo);

    std::string empresa_, nombre_;
    std::map<MesDeTabla, std::vector<FilaMes>> filas_;
    std::array<std::optional<std::pair<common::Mes, common::Mes>>, kCantTablas> leidos_;
    std::map<MesDeTabla, std::set<long>> cambiados_;
    std::optional<common::Mes> escribible_;
};

}  // namespace mes
}  // namespace nomira::engine
