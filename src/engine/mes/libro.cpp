#include "engine/mes/libro.h"

#include <algorithm>

#include "common/fallo.h"

namespace nomira::engine {
inline namespace mes {

namespace {

bool porCodigoEnLaTabla(TablaLiquidacion t) {
    return t == TablaLiquidacion::Habydesc || t == TablaLiquidacion::Egresos;
}

// Después de las de código menor o igual: en un mismo código, en el orden en
// que llegan.
void insertarPorCodigo(std::vector<FilaMes>& filas, FilaMes f) {
    const auto pos =
        std::upper_bound(filas.begin(), filas.end(), f.codigo,
                         [](long codigo, const FilaMes& x) { return codigo < x.codigo; });
    filas.insert(pos, std::move(f));
}

const std::vector<FilaMes>& ninguna() {
    static const std::vector<FilaMes> vacia;
    return vacia;
}

}  // namespace

void LibroPersona::leidos(TablaLiquidacion t, const common::Mes& desde, const common::Mes& hasta) {
    auto& l = leidos_[static_cast<std::size_t>(t)];
    if (!l)
        l.emplace(desde, hasta);
    else
        l.emplace(std::min(l->first, desde), std::max(l->second, hasta));
}

bool LibroPersona::fueLeido(TablaLiquidacion t, const common::Mes& mes) const {
    const auto& l = leidos_[static_cast<std::size_t>(t)];
    return l && l->first <= mes && mes <= l->second;
}

void LibroPersona::agregarLeida(TablaLiquidacion t, const common::Mes& mes, FilaMes f) {
    auto& filas = filas_[{t, mes}];
    if (porCodigoEnLaTabla(t))
        insertarPorCodigo(filas, std::move(f));
    else
        filas.push_back(std::move(f));
}

void LibroPersona::explicacionLeida(TablaLiquidacion t, const common::Mes& mes, long codigo,
                                    const std::string& texto) {
    const auto it = filas_.find({t, mes});
    if (it == filas_.end()) return;
    for (auto& f : it->second)
        if (f.codigo == codigo) f.explicacion = texto;
}

const std::vector<FilaMes>& LibroPersona::filas(TablaLiquidacion t, const common::Mes& mes) const {
    if (!fueLeido(t, mes))
        throw common::Fallo(5, std::string("No se leyeron las filas de ") + nombreTabla(t) +
                                   " del " + mes.texto() + " de " + nombre_);
    const auto it = filas_.find({t, mes});
    return it == filas_.end() ? ninguna() : it->second;
}

std::vector<FilaMes> LibroPersona::filas(TablaLiquidacion t, const common::Mes& desde,
                                         const common::Mes& hasta) const {
    std::vector<FilaMes> todas;
    for (auto m = desde; m <= hasta; m = m.siguiente()) {
        const auto& delMes = filas(t, m);
        todas.insert(todas.end(), delMes.begin(), delMes.end());
    }
    if (porCodigoEnLaTabla(t))
        std::stable_sort(todas.begin(), todas.end(),
                         [](const FilaMes& a, const FilaMes& b) { return a.codigo < b.codigo; });
    return todas;
}

const FilaMes* LibroPersona::porCodigo(TablaLiquidacion t, const common::Mes& mes,
                                       long codigo) const {
    for (const auto& f : filas(t, mes))
        if (f.codigo == codigo) return &f;
    return nullptr;
}

const FilaMes* LibroPersona::porConcepto(TablaLiquidacion t, const common::Mes& mes,
                                         const std::string& concepto) const {
    for (const auto& f : filas(t, mes))
        if (f.concepto == concepto) return &f;
    return nullptr;
}

bool LibroPersona::tiene(TablaLiquidacion t, const common::Mes& mes,
                         const std::string& tipo) const {
    const auto& f = filas(t, mes);
    return std::any_of(f.begin(), f.end(), [&](const FilaMes& x) { return x.tipo == tipo; });
}

std::vector<FilaMes>& LibroPersona::paraCambiar(TablaLiquidacion t, const common::Mes& mes,
                                                long codigo) {
    if (t == TablaLiquidacion::Aguinaldos)
        throw common::Fallo(5, "Las filas de aguinaldos no se escriben en el mes");
    filas(t, mes);  // que se haya leído
    if (escribible_ != mes)
        throw common::Fallo(5, std::string("No se leyeron las explicaciones de ") + nombreTabla(t) +
                                   " del " + mes.texto() + " de " + nombre_);
    cambiados_[{t, mes}].insert(codigo);
    return filas_[{t, mes}];
}

void LibroPersona::escribir(TablaLiquidacion t, const common::Mes& mes, const FilaMes& f) {
    auto& filas = paraCambiar(t, mes, f.codigo);
    bool habia = false;
    for (auto& x : filas) {
        if (x.codigo != f.codigo) continue;
        habia = true;
        if (t == TablaLiquidacion::Salvacacional) {
            x = f;
            continue;
        }
        x.concepto = f.concepto;
        x.unidad = f.unidad;
        x.cant = f.cant;
        // Como se leería de vuelta de la base, que lo guarda como double.
        x.total = common::Dinero::desdeDouble(f.total.aDouble());
        if (!f.explicacion.empty()) x.explicacion = f.explicacion;
    }
    if (habia) return;
    auto nueva = f;
    nueva.total = common::Dinero::desdeDouble(f.total.aDouble());
    if (porCodigoEnLaTabla(t))
        insertarPorCodigo(filas, std::move(nueva));
    else
        filas.push_back(std::move(nueva));
}

std::size_t LibroPersona::borrar(TablaLiquidacion t, const common::Mes& mes,
                                 const std::function<bool(const FilaMes&)>& quitar) {
    filas(t, mes);  // que se haya leído
    const auto it = filas_.find({t, mes});
    if (it == filas_.end()) return 0;
    std::size_t borradas = 0;
    for (const auto& f : it->second)
        if (quitar(f)) {
            paraCambiar(t, mes, f.codigo);
            ++borradas;
        }
    std::erase_if(it->second, quitar);
    return borradas;
}

void LibroPersona::explicar(TablaLiquidacion t, const common::Mes& mes, long codigo,
                            const std::string& texto) {
    for (auto& f : paraCambiar(t, mes, codigo))
        if (f.codigo == codigo) f.explicacion = texto;
}

}  // namespace mes
}  // namespace nomira::engine
