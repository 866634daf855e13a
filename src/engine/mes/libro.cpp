#include "engine/mes/libro.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

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

// Las de aguinaldos no tienen código: se ordenan por lo que las distingue (los
// haberes por actividad y mes del semestre, los descuentos por su texto), así
// la posición de cada una en el mes no depende del orden en que la base las
// devuelva, y con esa posición se guarda su explicación.
bool antesEnAguinaldos(const FilaMes& a, const FilaMes& b) {
    const auto clave = [](const FilaMes& f) {
        const int mes = std::atoi(f.mes.c_str());
        return std::make_tuple(f.tipo != "Hab", f.aclab, mes == 12 ? 0 : mes, f.concepto);
    };
    return clave(a) < clave(b);
}

void insertarEnAguinaldos(std::vector<FilaMes>& filas, FilaMes f) {
    filas.insert(std::upper_bound(filas.begin(), filas.end(), f, antesEnAguinaldos), std::move(f));
}

// La fila de aguinaldos que ocupa el lugar de `f`: el haber de esa actividad y
// mes, o el descuento de ese texto.
bool mismaFilaDeAguinaldo(const FilaMes& a, const FilaMes& f) {
    if (a.tipo != f.tipo) return false;
    return f.tipo == "Hab" ? a.mes == f.mes && a.aclab == f.aclab : a.concepto == f.concepto;
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
    else if (t == TablaLiquidacion::Aguinaldos)
        insertarEnAguinaldos(filas, std::move(f));
    else
        filas.push_back(std::move(f));
}

void LibroPersona::explicacionLeida(TablaLiquidacion t, const common::Mes& mes, long codigo,
                                    const std::string& texto) {
    const auto it = filas_.find({t, mes});
    if (it == filas_.end()) return;
    if (t == TablaLiquidacion::Aguinaldos) {
        if (codigo >= 0 && static_cast<std::size_t>(codigo) < it->second.size())
            it->second[static_cast<std::size_t>(codigo)].explicacion = texto;
        return;
    }
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
    filas(t, mes);  // que se haya leído
    if (escribible_ != mes)
        throw common::Fallo(5, std::string("No se leyeron las explicaciones de ") + nombreTabla(t) +
                                   " del " + mes.texto() + " de " + nombre_);
    cambiados_[{t, mes}].insert(codigo);
    return filas_[{t, mes}];
}

void LibroPersona::escribir(TablaLiquidacion t, const common::Mes& mes, const FilaMes& f) {
    if (t == TablaLiquidacion::Aguinaldos) {
        escribirAguinaldo(mes, f);
        return;
    }
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

void LibroPersona::escribirAguinaldo(const common::Mes& mes, const FilaMes& f) {
    // El escritor reescribe el mes entero de aguinaldos: el código no importa.
    auto& filas = paraCambiar(TablaLiquidacion::Aguinaldos, mes, 0);
    auto nueva = f;
    nueva.total = common::Dinero::desdeDouble(f.total.aDouble());
    const auto it = std::find_if(filas.begin(), filas.end(),
                                 [&](const FilaMes& a) { return mismaFilaDeAguinaldo(a, f); });
    if (it == filas.end()) {
        insertarEnAguinaldos(filas, std::move(nueva));
        return;
    }
    it->concepto = nueva.concepto;
    it->total = nueva.total;
    if (!f.explicacion.empty()) it->explicacion = f.explicacion;
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
