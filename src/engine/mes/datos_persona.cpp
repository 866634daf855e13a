#include "engine/mes/datos_persona.h"

#include <array>

#include "common/edad.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "master/catalogos.h"
#include "store/like.h"

namespace nomira::engine {
inline namespace mes {

namespace {

bool enBlanco(const std::string& s) {
    return s.find_first_not_of(' ') == std::string::npos;
}

}  // namespace

std::optional<DatosPersona> datosPersona(const ContextoFormula& ctx) {
    const auto* fila = ctx.persona;
    if (!fila) return std::nullopt;
    const auto& f = *fila;
    DatosPersona p;
    p.tiposueldo = f.tiposueldo;
    p.vinculofun = f.vinculofun;
    p.socmedica = f.socmedica;
    p.sueldo = common::textoANumero(f.sueldo);
    p.cantbfc = common::textoANumero(f.cantbfc);
    p.porcentajeben = {f.porcentajeben, f.porcentajeben2, f.porcentajeben3};
    p.montoben = {f.montoben, f.montoben2, f.montoben3};
    p.fechadesdeben = {f.fechadesdeben, f.fechadesdeben2, f.fechadesdeben3};
    p.codigoded = {f.codigoded, f.codigoded2, f.codigoded3};
    p.categoriaded = {f.categoriaded, f.categoriaded2, f.categoriaded3};
    p.fechadesdeded = {f.fechadesdeded, f.fechadesdeded2, f.fechadesdeded3};
    p.fila = fila;
    return p;
}

Deducciones deduccionesDe(const Maestros& maestros, const DatosPersona& p,
                          const common::Mes& periodo, common::Dialogo* dialogo) {
    Deducciones d;
    const std::array<const std::string*, 3> causas = {&p.fila->causaben, &p.fila->causaben2,
                                                      &p.fila->causaben3};
    const std::array<const std::string*, 3> nacimientos = {
        &p.fila->fechanacben, &p.fila->fechanacben2, &p.fila->fechanacben3};
    for (int i = 0; i < 3; ++i) {
        auto& dep = d.dependientes[i];
        dep.causa = common::codigoDeCatalogo(*causas[i]);
        dep.porcentaje = common::codigoDeCatalogo(p.porcentajeben[i]);
        dep.multiplicador = enBlanco(p.montoben[i]) ? 1 : common::textoANumero(p.montoben[i]);
        dep.fechadesde = p.fechadesdeben[i];
        if (!enBlanco(*nacimientos[i])) {
            dep.mayor = common::EsMayorde18(*nacimientos[i], periodo, dialogo);
            if (const auto f = common::Fecha::desdeTexto(*nacimientos[i]))
                dep.mesNacimiento = f->mes;
        }
        auto& c = d.casillas[i];
        c.codigo = maestros.codigoDeduccion(p.codigoded[i]);
        if (c.codigo.empty()) c.codigo = "00";
        c.categoria = maestros.codigoCategoria(p.codigoded[i], p.categoriaded[i]);
        if (c.codigo == "03") c.valorVariable = maestros.variables.valor(p.categoriaded[i]);
        c.fechadesde = p.fechadesdeded[i];
    }
    return d;
}

}  // namespace mes
}  // namespace nomira::engine
