#include "engine/mes/mes_persona.h"

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/mes/escritura.h"

namespace nomira::engine {
inline namespace mes {

namespace {

constexpr const char* kSinEmpresa =
    "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.";
constexpr const char* kSinPersona =
    "El Nombre del Personal no existe en esta Empresa, deberá 1ero ingresarlo en la ventana "
    "Personal.";

}  // namespace

MesPersona mesDeLaPersona(std::shared_ptr<Lectura> lectura, PersonaDelMes& persona,
                          ContextoFormula& ctx) {
    const auto& m = lectura->maestros;
    const auto& p = persona.ficha;
    MesPersona mp;
    mp.empresa = persona.libro.empresa();
    mp.nombre = p->nombre;
    mp.mes = lectura->mes;
    mp.delMes = &persona;
    mp.persona = p;
    mp.tipoaporte = m.tipoaporte;
    mp.tiposueldo = p->tiposueldo;
    mp.vinculofun = p->vinculofun;
    mp.bpc = m.variables.valor("BPC");
    mp.consejo = m.consejo;
    mp.lectura = std::move(lectura);

    ctx.empresa = mp.empresa;
    ctx.nombre = mp.nombre;
    ctx.periodo = mp.mes;
    ctx.tipoaporte = mp.tipoaporte;
    ctx.variables = &m.variables;
    ctx.persona = p.get();
    ctx.libro = &persona.libro;
    ctx.maestros = &m;
    cargarPersona(ctx, *p);
    refrescarDesglose(mp, ctx);
    return mp;
}

std::optional<MesPersona> leerMesDeLaPersona(store::Conexion& base, const std::string& empresa,
                                             const std::string& nombre, const common::Mes& mes,
                                             ContextoFormula& ctx, common::Dialogo& dialogo,
                                             const std::optional<MesesALeer>& meses) {
    auto lectura = std::make_shared<Lectura>(
        leerCorrida(base, empresa, mes, meses ? *meses : mesesDelRenglon(mes), nombre));
    if (!lectura->maestros.empresa) {
        dialogo.avisar(common::TipoAviso::Advertencia, kSinEmpresa);
        return std::nullopt;
    }
    auto* p = lectura->persona(nombre);
    if (!p) {
        dialogo.avisar(common::TipoAviso::Advertencia, kSinPersona);
        return std::nullopt;
    }
    return mesDeLaPersona(std::move(lectura), *p, ctx);
}

bool releerBajoClave(store::Conexion& base, MesPersona& mp, ContextoFormula& ctx,
                     common::Dialogo& dialogo) {
    bloquearMes(base, mp.empresa, mp.nombre, mp.mes);
    auto nuevo = leerMesDeLaPersona(base, mp.empresa, mp.nombre, mp.mes, ctx, dialogo);
    if (!nuevo) return false;
    const auto tabla = mp.tabla;
    mp = std::move(*nuevo);
    mp.tabla = tabla;
    if (tabla != TablaLiquidacion::Habydesc) refrescarDesglose(mp, ctx);
    return true;
}

void refrescarDesglose(MesPersona& mp, ContextoFormula& ctx) {
    mp.desglose = leerDesglose(mp.libro(), mp.mes, mp.tipoaporte, mp.vinculofun, ctx.sueldo, mp.bpc,
                               mp.tabla);
    volcarEnContexto(mp.desglose, ctx);
}

FilaGenerada filaDeConcepto(const master::Concepto& c, const std::string& tipo) {
    FilaGenerada f;
    f.codigo = static_cast<long>(common::textoANumero(c.codigo));
    f.concepto = c.concepto;
    f.tipo = tipo;
    f.unidad = c.unidad;
    f.permanente = c.permanente;
    f.gravado = c.gravado;
    f.aguinaldo = c.aguinaldo;
    f.lic = c.lic;
    f.ipd = c.ipd;
    return f;
}

std::optional<std::string> sueldoNoNumerico(const master::Persona& p) {
    for (const auto* s : {&p.sueldo, &p.sueldo2, &p.sueldo3})
        if (s->find_first_not_of(' ') != std::string::npos && !common::esNumerico(*s))
            return "El sueldo de " + p.nombre + " no es un número (\"" + *s +
                   "\"): corríjalo en la ventana Personal. No se liquidó.";
    return std::nullopt;
}

common::Fallo fallaEnConcepto(const common::Fallo& f, const master::Concepto& c) {
    return common::Fallo(f.numero(), f.descripcion() + "\nEn el concepto " + c.codigo + " " +
                                         c.concepto + ", fórmula " + c.formula);
}

bool activaEnElMes(const master::Persona& p, const common::Mes& mes) {
    if (const auto ing = common::Fecha::desdeTexto(p.fechaing)) {
        if (ing->anio > mes.anio || (ing->anio == mes.anio && ing->mes > mes.mes)) return false;
    }
    if (const auto eg = common::Fecha::desdeTexto(p.fechaeg)) {
        if (eg->anio < mes.anio || (eg->anio == mes.anio && eg->mes < mes.mes)) return false;
    }
    return true;
}

}  // namespace mes
}  // namespace nomira::engine
