#include "engine/egreso/liquidacion_egreso.h"

#include <cmath>
#include <set>

#include "common/antiguedad.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "engine/aguinaldo/aguinaldo.h"
#include "engine/calculos/aguinaldo.h"
#include "engine/calculos/aportes.h"
#include "engine/calculos/base_irpf.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/calculos/egreso.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/licencia_dias.h"
#include "engine/calculos/liquido.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/licencia_lector.h"
#include "engine/mes/una_persona.h"

namespace nomira::engine {
inline namespace egreso {

using common::Dinero;

namespace {

// Los conceptos que escribe una pasada, con el sufijo de la actividad.
std::set<std::string> conceptosDeLaPasada(const std::string& sufijo) {
    std::set<std::string> c;
    for (const char* base : {"SUELDO", "AGUINALDO", "LICENCIA NO GOZ AÑO ANTERIOR",
                             "LICENCIA NO GOZ AÑO ACTUAL", "SALARIO VACACIONAL", "IPD"})
        c.insert(base + sufijo);
    return c;
}

// Escribe en egresos la fila del concepto de ese nombre, si está en conceptos.
std::optional<FilaLiquidada> escribirHaber(MesPersona& mp, const std::string& concepto, double cant,
                                           Dinero total, std::string explicacion) {
    const auto* c = mp.maestros().conceptos.porNombre(concepto, "Hab");
    if (!c) return std::nullopt;
    auto fila = filaDeConcepto(*c, "Hab");
    fila.cant = cant;
    fila.total = total;
    fila.explicacion = explicacion;
    mp.libro().escribir(TablaLiquidacion::Egresos, mp.mes, fila);
    return FilaLiquidada{fila, std::move(explicacion)};
}

// Lo del mes del egreso que ya entra en el aguinaldo: sus haberes en egresos
// con aguinaldo "Si" y de la actividad.
Dinero haberesDelMesConAguinaldo(const MesPersona& mp, int actividad) {
    Dinero suma;
    for (const auto& f : mp.libro().filas(TablaLiquidacion::Egresos, mp.mes))
        if (f.tipo == "Hab" && f.aguinaldo == "Si" && esDeLaActividad(f.concepto, actividad))
            suma += f.total;
    return suma;
}

// CalculoAguinaldo: el semestre que corre al egreso, sus meses antes del egreso
// y lo del mes del egreso, dividido 12.
std::pair<Dinero, std::string> aguinaldoHastaElEgreso(const MesPersona& mp,
                                                      const EgresoDeLaActividad& act) {
    const auto mes = mp.mes;
    const common::Mes pago = mes.mes <= 5    ? common::Mes{mes.anio, 6}
                             : mes.mes <= 11 ? common::Mes{mes.anio, 12}
                                             : common::Mes{mes.anio + 1, 6};
    const bool convenio = grupoConConvenio(mp.consejo.codigoGrupo, mp.consejo.codigoSubgrupo);
    Dinero suma;
    std::string detalle;
    for (const auto& m : mesesDelSemestre(pago, act.ingreso)) {
        if (!(m < mes)) continue;
        const auto f =
            aguinaldoGeneradoEnElMes(mp.libro(), mp.maestros().conceptos, m, act.numero, convenio);
        suma += f.total;
        detalle += m.texto() + " " + pesos(f.total) + ", ";
    }
    const auto delMes = haberesDelMesConAguinaldo(mp, act.numero);
    suma += delMes;
    const auto total = Dinero::desdeDouble(suma.aDouble() / 12);
    return {total, "meses del semestre: " + detalle + mes.texto() + " (egreso) " + pesos(delMes) +
                       "; " + pesos(suma) + " / 12 = " + pesos(total)};
}

// La persona con la actividad del egreso como la de sus fechas de licencia.
master::Persona conActividad(const master::Persona& p, int actividad) {
    auto copia = p;
    copia.impaclab = std::to_string(actividad);
    return copia;
}

// Suma `cant` de las filas de habydesc del año del egreso, hasta su mes, que cumplen `cuenta`.
template <class Cuenta>
double cantDelAnio(const MesPersona& mp, const Cuenta& cuenta) {
    double suma = 0;
    for (const auto& f :
         mp.libro().filas(TablaLiquidacion::Habydesc, common::Mes{mp.mes.anio, 1}, mp.mes))
        if (cuenta(common::mayusculas(f.concepto))) suma += f.cant;
    return suma;
}

struct DiasNoGozados {
    double anterior = 0, actual = 0;
    std::string explicacionAnterior, explicacionActual;
};

// Los días de licencia no gozados del año anterior y los generados en el del egreso.
DiasNoGozados diasNoGozados(const MesPersona& mp, const EgresoDeLaActividad& act,
                            common::Dialogo& dialogo) {
    DiasNoGozados d;
    const auto persona = conActividad(*mp.persona, act.numero);
    const int anio = mp.mes.anio;
    const auto licencia = actividadDeLicencia(persona);
    int diasextras = 0;
    if (correspondeLicencia(licencia, anio)) {
        if (const auto r =
                CalculoDiasaGozar(persona, mp.libro(), anio, dialogo, PantallaLicencia::Form76)) {
            const double tomadas =
                cantDelAnio(mp, [&](const std::string& c) { return c == "LICENCIA" + act.sufijo; });
            d.anterior = std::max(0.0, r->cantdiaspendientes - tomadas);
            diasextras = r->diasextras;
            d.explicacionAnterior = "pendientes del año anterior " + numero(r->cantdiaspendientes) +
                                    " - " + numero(tomadas) +
                                    " de licencia en el año = " + numero(d.anterior) + " días";
        }
    } else {
        d.explicacionAnterior = "no le corresponde licencia del año anterior";
    }
    EntradaLicenciaEgreso e;
    e.tiposueldo = mp.tiposueldo;
    e.ingreso = common::Fecha{common::anioPivote50(licencia.ingreso.yy), licencia.ingreso.mm,
                              licencia.ingreso.dd};
    e.egreso = *act.egreso;
    e.diasextras = diasextras;
    if (mp.tiposueldo == "J" || mp.tiposueldo == "H") {
        e.diasTrabajados =
            cantDelAnio(mp, [&](const std::string& c) { return esDiaTrabajado(c, e.tiposueldo); });
    } else {
        e.faltas = static_cast<long>(std::floor(cantDelAnio(mp, esAusencia) / 15));
    }
    const auto actual = licenciaDelAnioDelEgreso(e);
    d.actual = actual.dias;
    d.explicacionActual = actual.explicacion;
    return d;
}

}  // namespace

namespace {

// Los meses de la pasada según las fechas de la ficha (si la persona existe).
MesesALeer mesesDeLaPersona(store::Conexion& base, const std::string& empresa,
                            const std::string& nombre, const common::Mes& mes, int actividad) {
    const auto ficha = master::leerPersona(base, empresa, nombre);
    if (!ficha) return mesesDelEgreso(mes, {}, {});
    const auto a = egresoDe(*ficha, actividad);
    return mesesDelEgreso(mes, a.ingreso, a.egreso);
}

}  // namespace

std::string mensajeFaltaConceptoPermanente(const std::string& concepto) {
    return "Deberá agregar antes el concepto " + concepto +
           " o sino eliminarlo de ConceptosPermanentesxPersonal.";
}

MesesALeer mesesDelEgreso(const common::Mes& mes, const std::optional<common::Fecha>& ingreso,
                          const std::optional<common::Fecha>& egreso) {
    MesesALeer m;
    m.escrito = mes;
    const common::Mes enero{mes.anio, 1}, diciembre{mes.anio, 12};
    for (auto& t : m.tramos) t = {enero, diciembre};
    for (const auto t : {TablaLiquidacion::Habydesc, TablaLiquidacion::Salvacacional})
        m.tramos[static_cast<std::size_t>(t)] = {common::Mes{mes.anio - 1, 1}, diciembre};
    if (!ingreso || !egreso || common::Mes::de(*egreso) != mes) return m;
    // Lo que mira el IPD, que puede empezar antes (los períodos desde el ingreso).
    const auto ipd = mesesDelIpd(*ingreso, *egreso);
    for (std::size_t i = 0; i < m.tramos.size(); ++i) {
        m.tramos[i].first = std::min(m.tramos[i].first, ipd.tramos[i].first);
        m.tramos[i].second = std::max(m.tramos[i].second, ipd.tramos[i].second);
    }
    return m;
}

ResultadoPersona haberesDelEgreso(MesPersona& mp, ContextoFormula& ctx,
                                  const OpcionesEgreso& opciones, common::Dialogo& dialogo) {
    ResultadoPersona r;
    r.empresa = mp.empresa;
    r.nombre = mp.nombre;
    r.mes = mp.mes;
    const auto avisar = [&](const std::string& aviso) {
        r.aviso = aviso;
        dialogo.avisar(common::TipoAviso::Advertencia, aviso);
        return r;
    };
    auto& libro = mp.libro();
    const auto act = egresoDe(*mp.persona, opciones.actividad);
    if (!act.ingreso || !act.egreso || act.motivoeg.empty() || act.antiguedad == 0)
        return avisar(kFaltanDatosEgreso);
    if (common::Mes::de(*act.egreso) != mp.mes) return avisar(kMesDistintoDelEgreso);
    if (!libro.filas(TablaLiquidacion::Habydesc, mp.mes).empty()) return avisar(kConHaberesDelMes);
    if (const auto it = mp.maestros().propios.find(mp.nombre); it != mp.maestros().propios.end())
        for (const auto& propio : it->second)
            if (!mp.maestros().conceptos.porCodigo(propio.codigo))
                return avisar(mensajeFaltaConceptoPermanente(propio.concepto));

    const auto deLaPasada = conceptosDeLaPasada(act.sufijo);
    libro.borrar(TablaLiquidacion::Egresos, mp.mes,
                 [&](const FilaMes& f) { return deLaPasada.count(f.concepto) > 0; });
    const auto agregar = [&](std::optional<FilaLiquidada> f) {
        if (f) r.filas.push_back(std::move(*f));
    };

    // Los días del último mes.
    if (mp.tiposueldo == "J") {
        dialogo.avisar(common::TipoAviso::Informacion, kJornalesManual);
    } else if (mp.tiposueldo == "H") {
        dialogo.avisar(common::TipoAviso::Informacion, kHorasManual);
    } else {
        const int dias = diasDelUltimoMes(*act.egreso, act.ingreso);
        const double sueldos = ctx.sueldo + ctx.sueldo2 + ctx.sueldo3;
        const auto total = Dinero::desdeDouble(sueldos / 30 * dias);
        agregar(escribirHaber(mp, "SUELDO" + act.sufijo, dias, total,
                              "(" + pesos(sueldos) + " / 30) x " + std::to_string(dias) +
                                  " días del mes del egreso = " + pesos(total)));
    }

    // El aguinaldo hasta el egreso; quien cesa por mala conducta lo pierde.
    if (act.motivoeg != kCeseMalaConducta) {
        auto [aguinaldo, exp] = aguinaldoHastaElEgreso(mp, act);
        agregar(escribirHaber(mp, "AGUINALDO" + act.sufijo, 1, aguinaldo, exp));
    }

    // La licencia no gozada y su salario vacacional sobre el neto.
    const auto dias = diasNoGozados(mp, act, dialogo);
    const auto valor = CalculoLicencia(ctx, "1", mp.consejo.grupo, mp.consejo.subgrupo, dialogo);
    const auto anterior = Dinero::desdeDouble(dias.anterior * valor.total.aDouble());
    const auto actual = Dinero::desdeDouble(dias.actual * valor.total.aDouble());
    const auto porDia = "; el día vale " + pesos(valor.total);
    agregar(escribirHaber(mp, "LICENCIA NO GOZ AÑO ANTERIOR" + act.sufijo, dias.anterior, anterior,
                          dias.explicacionAnterior + porDia + " = " + pesos(anterior)));
    agregar(escribirHaber(mp, "LICENCIA NO GOZ AÑO ACTUAL" + act.sufijo, dias.actual, actual,
                          dias.explicacionActual + porDia + " = " + pesos(actual)));
    const double tasas = CalculoTasasDesNewAguinaldo(ctx, dialogo);
    const auto vacacional =
        CalculoDtosobreHaberesNew(anterior, tasas) + CalculoDtosobreHaberesNew(actual, tasas);
    agregar(escribirHaber(mp, "SALARIO VACACIONAL" + act.sufijo, dias.anterior + dias.actual,
                          vacacional,
                          "(" + pesos(anterior) + " + " + pesos(actual) + ") x (1 - " +
                              numero(tasas) + "% de aportes) = " + pesos(vacacional)));

    // El despido: la indemnización con sus incidencias.
    if (common::mayusculas(act.motivoeg) == "DESPIDO") {
        OpcionesIpd op;
        op.actividad = act.numero;
        op.incidencias = opciones.incidencias;
        if (opciones.licencia) op.licencia = anterior + actual;
        if (opciones.vacacional) op.salVacacional = vacacional;
        const auto ipd = CalculoIpd(*mp.persona, libro, mp.maestros(), *act.egreso, op, dialogo);
        if (!ipd.aviso.empty()) {
            // El mensaje ya se dijo; lo que la pasada cambió en memoria no se escribe.
            r.filas.clear();
            r.aviso = ipd.aviso;
            r.detenido = true;
            return r;
        }
        if (ipd.resultado)
            agregar(escribirHaber(mp, "IPD" + act.sufijo, ipd.resultado->cant.cant,
                                  ipd.resultado->totalIpd, ipd.traza()));
    }
    r.hecho = true;
    return r;
}

ResultadoPersona descuentosDelEgreso(MesPersona& mp, ContextoFormula& ctx,
                                     common::Dialogo& dialogo) {
    ResultadoPersona r;
    r.empresa = mp.empresa;
    r.nombre = mp.nombre;
    r.mes = mp.mes;
    auto& libro = mp.libro();
    libro.borrarTipo(TablaLiquidacion::Egresos, mp.mes, "Des");
    mp.tabla = TablaLiquidacion::Egresos;
    refrescarDesglose(mp, ctx);
    const auto opciones = opcionesAportesForm45();
    for (const long codigo : codigosDescuento(mp, ctx.cantbfc)) {
        const auto* c = mp.maestros().conceptos.porCodigo(codigo);
        if (!c) continue;
        const auto nombre = common::mayusculas(c->concepto);
        if (nombre != "IRP" && nombre != "IRPF") {
            r.filas.push_back(descuentoDeConcepto(ctx, *c, opciones, dialogo));
            continue;
        }
        const auto liquido =
            liquidoNeto(libro.filas(TablaLiquidacion::Egresos, mp.mes), opcionesLiquidoForm45());
        ctx.liquidoneto = liquido.liquidoneto;
        ctx.liquidonetograv = liquido.liquidonetograv;
        ctx.montogravalim = liquido.montogravalim;
        ctx.textoCant.clear();
        const auto imp = calcularImpuesto(mp, ctx, nombre, dialogo, TablaLiquidacion::Egresos);
        auto fila = filaDeConcepto(*c, "Des");
        fila.concepto = imp.concepto;
        fila.cant = imp.cant;
        fila.total = imp.total;
        fila.explicacion = imp.explicacion;
        libro.escribir(TablaLiquidacion::Egresos, mp.mes, fila);
        FilaLiquidada hecha{fila, imp.explicacion};
        hecha.irpfMes = imp.irpfMes;
        hecha.irpfDiciembre = imp.irpfDiciembre;
        r.filas.push_back(std::move(hecha));
    }
    r.hecho = true;
    return r;
}

ResultadoPersona egresoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                    const std::string& nombre, const common::Mes& mes,
                                    const OpcionesEgreso& opciones, bool conDescuentos,
                                    common::Dialogo& dialogo) {
    return liquidarUnaPersona(
        base, empresa, nombre, mes,
        mesesDeLaPersona(base, empresa, nombre, mes, opciones.actividad),
        kFaltanCamposHaberesAguinaldo, dialogo, [&](MesPersona& mp, ContextoFormula& ctx) {
            auto r = haberesDelEgreso(mp, ctx, opciones, dialogo);
            if (!r.hecho || !conDescuentos) return r;
            auto d = descuentosDelEgreso(mp, ctx, dialogo);
            r.filas.insert(r.filas.end(), std::make_move_iterator(d.filas.begin()),
                           std::make_move_iterator(d.filas.end()));
            return r;
        });
}

ResultadoPersona descuentosEgresoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                              const std::string& nombre, const common::Mes& mes,
                                              common::Dialogo& dialogo) {
    return liquidarUnaPersona(base, empresa, nombre, mes, mesesDelEgreso(mes, {}, {}),
                              kFaltanCamposDescuentosAguinaldo, dialogo,
                              [&](MesPersona& mp, ContextoFormula& ctx) {
                                  return descuentosDelEgreso(mp, ctx, dialogo);
                              });
}

CifrasEgreso cifrasDelEgreso(const std::vector<FilaMes>& filas) {
    CifrasEgreso c;
    for (const auto& f : filas) {
        if (f.tipo == "Hab") c.haberes += f.total;
        if (f.tipo == "Des") c.descuentos += f.total;
    }
    c.liquido = c.haberes - c.descuentos;
    c.aCobrar = c.liquido < Dinero() ? Dinero() : c.liquido;
    return c;
}

}  // namespace egreso
}  // namespace nomira::engine
