#include "engine/calculos/calculo_licencia.h"

#include <map>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/licencia_dias.h"
#include "engine/mes/libro.h"
#include "engine/mes/maestros.h"
#include "master/catalogos.h"
#include "master/empresas.h"
#include "master/personal.h"
#include "store/like.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

bool en(const std::string& c, std::initializer_list<const char*> nombres) {
    for (const char* x : nombres)
        if (c == x) return true;
    return false;
}

std::string blancoNada(const std::string& s) {
    return s.find_first_not_of(' ') == std::string::npos ? "NADA" : s;
}

common::Mes mesDe(const FechaCorta& f) {
    return common::Mes{common::anioPivote50(f.yy), f.mm};
}

}  // namespace

ConsejoSalarios consejoDeLaEmpresa(store::Conexion& base, const std::string& empresa) {
    const auto e = master::leerEmpresa(base, empresa);
    return consejoDeLaEmpresa(base, e ? *e : master::Empresa{});
}

ConsejoSalarios consejoDeLaEmpresa(store::Conexion& base, const master::Empresa& e) {
    ConsejoSalarios c;
    c.textoGrupo = blancoNada(e.grupoconsal);
    c.textoSubgrupo = blancoNada(e.subgrupoconsal);
    c.codigoGrupo = master::codigoEnCatalogo(base, "grupoconsal", c.textoGrupo);
    const auto r = base.consulta("SELECT nombre2 FROM subgrupoconsal WHERE " +
                                     store::condicionLike(base, "nombre") + " AND " +
                                     store::condicionLike(base, "nombre2") +
                                     master::ordenDeCarga(base) + " LIMIT 1",
                                 {store::patronLike(common::patronCatalogo(c.textoGrupo)),
                                  store::patronLike(common::patronCatalogo(c.textoSubgrupo))});
    if (!r.vacio()) c.codigoSubgrupo = common::codigoDeCatalogo(r.primera().texto("nombre2"));
    c.grupo = static_cast<int>(common::textoANumero(c.codigoGrupo));
    c.subgrupo = static_cast<int>(common::textoANumero(c.codigoSubgrupo));
    return c;
}

int divisorLicencia(int grupo, int subgrupo) {
    if (grupo == 12 || grupo == 14 || (grupo == 8 && subgrupo == 5)) return 25;
    if (grupo == 19 && subgrupo == 10) return 24;
    return 30;
}

common::Dinero sueldoConLicencia(double total, const std::vector<double>& cantLicencias, int grupo,
                                 int subgrupo, std::string* explicacion) {
    const int d = divisorLicencia(grupo, subgrupo);
    std::string texto = "SUELDO " + pesos(total);
    for (const double cant : cantLicencias) {
        total = total / d * (d - cant);
        texto += " / " + std::to_string(d) + " x (" + std::to_string(d) + " - " + numero(cant) +
                 " días de licencia) = " + pesos(total);
    }
    if (explicacion) *explicacion = texto;
    return common::Dinero::desdeDouble(total);
}

double jornalLicencia(const std::string& tiposueldo, double sueldos, double ant, double htrab,
                      int grupo, int subgrupo) {
    if (tiposueldo == "S") return (sueldos + ant) / divisorLicencia(grupo, subgrupo);
    if (tiposueldo == "J") return sueldos + ant / 25;
    if (tiposueldo == "H") return (sueldos + ant / 200) * htrab;
    return 0;
}

TramoLicencia tramoLicencia(const common::Mes& periodo, const common::Mes& ingreso) {
    TramoLicencia t;
    if (ingreso == periodo) t.diasmesInicial = 1;
    common::Mes m = periodo.anterior();
    for (int i = 0; i < 12 && m >= ingreso; ++i, m = m.anterior()) t.meses.push_back(m);
    return t;
}

bool cuentaEnDiasmes(const std::string& c, const std::string& tiposueldo) {
    if (tiposueldo == "H"
            ? en(c, {"JORNADAS EN EL MES", "JORNADAS EN EL MES 2DA ACT", "JORNADAS EN SUBSIDIO"})
            : en(c, {"JORNALES", "JORNALES 2DA ACT", "JORNALES A DISPOSICION", "MINIMO ASEGURADO"}))
        return true;
    return en(c, {"LICENCIA", "FERIADO PAGO", "FERIADO PAGO 2DA ACT", "FERIADO PAGO TRABAJADO",
                  "FERIADO PAGO TRABAJADO 2DA ACT"});
}

void sumarIncidencia(std::map<long, IncidenciaLicencia>& porCodigo, const FilaMes& f) {
    auto& inc = porCodigo[f.codigo];
    if (inc.concepto.empty()) {
        inc.codigo = f.codigo;
        inc.concepto = f.concepto;
        inc.unidad = f.unidad;
    }
    if (inc.unidad == "T")
        inc.cant += f.cant;
    else
        inc.total += f.total;
}

ImporteLicencia calcularLicencia(const EntradaLicencia& e, const EvaluarIncidencia& evaluar) {
    ImporteLicencia r;
    r.diasmes = e.diasmes;
    r.jornal = jornalLicencia(e.tiposueldo, e.sueldos, e.ant, e.htrab, e.grupo, e.subgrupo);
    std::string detalle;
    for (std::size_t i = 0; i < e.incidencias.size() && i < kMaxIncidenciasLicencia; ++i) {
        const auto& inc = e.incidencias[i];
        const double monto = inc.unidad == "T" ? evaluar(inc) : inc.total.aDouble();
        if (e.diasmes == 0) throw common::Fallo(11, "División por cero");
        const double dia = monto / e.diasmes;
        r.porDia += dia;
        detalle += " + " + inc.concepto + " " + pesos(monto) + " / " + numero(e.diasmes) + " días";
    }
    r.total = common::Dinero::desdeDouble((r.porDia + r.jornal) * e.dias);
    r.explicacion = "Licencia: (jornal " + pesos(r.jornal) + detalle + ") x " + numero(e.dias) +
                    " días = " + pesos(r.total);
    return r;
}

ImporteLicencia CalculoLicencia(const ContextoFormula& ctx, const std::string& textoDias, int grupo,
                                int subgrupo, common::Dialogo& dialogo) {
    const auto* persona = ctx.persona;
    if (!persona) return {};
    const auto& libro = libroDe(ctx);
    EntradaLicencia e;
    e.tiposueldo = persona->tiposueldo;
    e.grupo = grupo;
    e.subgrupo = subgrupo;
    e.sueldos = ctx.sueldo + ctx.sueldo2 + ctx.sueldo3;
    e.htrab = ctx.htrab;
    e.dias = textoDias.empty() ? 1 : common::textoANumero(textoDias);

    const auto mes = [&](const common::Mes& m) -> const std::vector<FilaMes>& {
        return libro.filas(TablaLiquidacion::Habydesc, m);
    };
    for (const auto& f : mes(ctx.periodo)) {
        const auto c = common::mayusculas(f.concepto);
        for (const std::string raiz : {"ANTIGUEDAD", "ALIMENTACION"})
            if (c == raiz || c == raiz + " 2DA ACT" || c == raiz + " 3RA ACT")
                e.ant += f.total.aDouble();
    }

    const auto tramo = tramoLicencia(ctx.periodo, mesDe(actividadDeLicencia(*persona).ingreso));
    e.diasmes = tramo.diasmesInicial;
    // Por código, en orden: lo sumado en el tramo de las filas con licencia.
    std::map<long, IncidenciaLicencia> porCodigo;
    for (const auto& m : tramo.meses) {
        for (const auto& f : mes(m)) {
            const auto c = common::mayusculas(f.concepto);
            if (e.tiposueldo != "S" && cuentaEnDiasmes(c, e.tiposueldo)) e.diasmes += f.cant;
            if (f.lic == "Si") sumarIncidencia(porCodigo, f);
        }
        if (e.tiposueldo == "S") e.diasmes += 30;
    }
    for (auto& [codigo, inc] : porCodigo) {
        if (e.incidencias.size() == kMaxIncidenciasLicencia) break;
        if (const auto* c = maestrosDe(ctx).conceptos.porCodigo(codigo)) inc.formula = c->formula;
        e.incidencias.push_back(inc);
    }

    const auto evaluar = [&](const IncidenciaLicencia& inc) {
        ContextoFormula copia = ctx;
        copia.formula = inc.formula;
        copia.cant = inc.cant;
        auto op = opcionesForm42();
        op.pasoCantidad = false;
        calcularFormula(copia, op, dialogo);
        return copia.total;
    };
    return calcularLicencia(e, evaluar);
}

}  // namespace calculos
}  // namespace nomira::engine
