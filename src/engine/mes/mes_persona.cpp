#include "engine/mes/mes_persona.h"

#include "common/numeros.h"
#include "common/texto.h"
#include "store/recordada.h"

namespace nomira::engine {

namespace {

constexpr const char* kSinEmpresa =
    "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.";
constexpr const char* kSinPersona =
    "El Nombre del Personal no existe en esta Empresa, deberá 1ero ingresarlo en la ventana "
    "Personal.";

}  // namespace

std::optional<EmpresaDelMes> leerEmpresaDelMes(store::Conexion& base, const std::string& empresa) {
    const auto e = master::leerEmpresa(base, empresa);
    if (!e) return std::nullopt;
    return EmpresaDelMes{empresa, master::tipoaporteDe(base, *e), consejoDeLaEmpresa(base, *e)};
}

std::optional<MesPersona> BuscarVerif(store::Conexion& base, master::LectorVariables& variables,
                                      const std::string& empresa, const std::string& nombre,
                                      const common::Mes& mes, ContextoFormula& ctx,
                                      common::Dialogo& dialogo, const EmpresaDelMes* leida) {
    std::optional<EmpresaDelMes> e;
    if (leida && leida->empresa == empresa)
        e = *leida;
    else
        e = leerEmpresaDelMes(base, empresa);
    if (!e) {
        dialogo.avisar(common::TipoAviso::Advertencia, kSinEmpresa);
        return std::nullopt;
    }
    // La persona que el contexto ya trae (la corrida de la empresa la leyó con
    // todas las demás) no se vuelve a leer.
    ctx.empresa = empresa;
    ctx.nombre = nombre;
    ctx.base = &base;
    ctx.variables = &variables;
    const auto& p = personaDelContexto(ctx);
    if (!p) {
        dialogo.avisar(common::TipoAviso::Advertencia, kSinPersona);
        return std::nullopt;
    }

    MesPersona mp;
    mp.empresa = empresa;
    mp.nombre = nombre;
    mp.mes = mes;
    mp.tipoaporte = std::move(e->tipoaporte);
    mp.persona = p;
    mp.tiposueldo = p->tiposueldo;
    mp.vinculofun = p->vinculofun;
    mp.bpc = variables.valor("BPC");
    mp.consejo = std::move(e->consejo);

    ctx.periodo = mes;
    ctx.tipoaporte = mp.tipoaporte;
    cargarPersona(ctx, *mp.persona);
    refrescarDesglose(base, mp, ctx);
    return mp;
}

void refrescarDesglose(store::Conexion& base, MesPersona& mp, ContextoFormula& ctx) {
    mp.desglose = leerDesglose(base, mp.empresa, mp.nombre, mp.mes, mp.tipoaporte, mp.vinculofun,
                               ctx.sueldo, mp.bpc);
    volcarEnContexto(mp.desglose, ctx);
}

bool tieneConceptosPropios(store::Conexion& base, const MesPersona& mp, const char* tipo) {
    return store::puedeEstar(
        base, "SELECT DISTINCT nombre FROM concpermxpers WHERE empresa = ? AND tipo = ?",
        {mp.empresa, std::string(tipo)}, mp.nombre);
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

bool activaEnElMes(const master::Persona& p, const common::Mes& mes) {
    if (const auto ing = common::Fecha::desdeTexto(p.fechaing)) {
        if (ing->anio > mes.anio || (ing->anio == mes.anio && ing->mes > mes.mes)) return false;
    }
    if (const auto eg = common::Fecha::desdeTexto(p.fechaeg)) {
        if (eg->anio < mes.anio || (eg->anio == mes.anio && eg->mes < mes.mes)) return false;
    }
    return true;
}

}  // namespace nomira::engine
