#include "screens/catalogos/catalogos_del_sistema.h"

#include "frame/ventana/registro_pantallas.h"

namespace nomira::pantallas {

namespace {

// Las pantallas de una sola columna difieren sólo en tabla, etiqueta y mensajes.
ListaCatalogo simple(const char* tabla, const char* etiqueta, const char* vacio,
                     const char* sinGuion) {
    return {tabla, "", {{etiqueta}}, vacio, sinGuion};
}

const char* const kGrupoConSal = "grupoconsal";

}  // namespace

const std::vector<ConfiguracionCatalogo>& catalogosDelSistema() {
    static const std::vector<ConfiguracionCatalogo> c = {
        {"Form22",
         "Tipo de Contribuyente",
         {{"tipocontrib",
           "B.P.S.",
           {{"Tipo de Contribuyente BPS"}},
           "Debe completar el campo Tipo de Contribuyente BPS.",
           "El campo Tipo de Contribuyente BPS debe tener un código seguido de un guión seguido "
           "del texto."},
          {"tipocontrib2",
           "M.T.S.S.",
           {{"Tipo de Contribuyente MTSS"}},
           "Debe completar el campo Tipo de Contribuyente MTSS.",
           "El campo Tipo de Contribuyente MTSS debe tener un código seguido de un guión seguido "
           "del texto."}},
         true},
        {"Form23",
         "Tipo de Aportación",
         {simple("tipoaport", "Tipo de Aportación", "Debe completar el campo Tipo de Aportación.",
                 "El campo Tipo de Aportación deberá tener un código seguido de un guión seguido "
                 "del texto.")},
         true},
        {"Form24",
         "Grupo de Actividades M.T.S.S.",
         {simple("grupoact", "Grupo de Actividades",
                 "Debe completar el campo Grupo de Actividades.",
                 "El campo Grupo de Actividades deberá tener un código seguido de un guión seguido "
                 "del texto.")},
         true},
        {"Form25",
         "SubGrupo de Actividades M.T.S.S.",
         {{"subgrupoact",
           "",
           {{"Grupo", "grupoact"}, {"SubGrupo"}},
           "Debe completar los campos Grupo y SubGrupo de Actividades.",
           "Los campos Grupo y SubGrupo de Actividades deberán tener un código seguido de un guión "
           "seguido del "
           "texto."}},
         true},
        {"Form26",
         "Departamentos",
         {simple("depto", "Departamento", "Debe completar el campo Departamento.",
                 "El campo Departamento deberá tener un código seguido de un guión seguido del "
                 "texto.")}},
        {"Form27",
         "Localidades",
         {{"local",
           "Localidades CORREO",
           {{"Departamento", "depto"}, {"Localidades CORREO"}, {"Cod.Postal", "", true}},
           "Debe completar los campos Departamento y Localidades CORREO.",
           "Los campos Departamento y Localidades CORREO deberán tener un código seguido de un "
           "guión seguido del "
           "texto."},
          {"localmtss",
           "Localidades MTSS",
           {{"Departamento", "depto"}, {"Localidades MTSS"}},
           "Debe completar los campos Departamento y Localidades MTSS.",
           "Los campos Departamento y Localidades MTSS deberán tener un código seguido de un guión "
           "seguido del "
           "texto."}}},
        {"Form28",
         "Causales de Presentación (Plan.Trab.)",
         {simple("causpresplantrab", "Causales Presentación",
                 "Debe completar el campo Causales Presentación.",
                 "El campo Causales Presentación deberá tener un código seguido de un guión "
                 "seguido del texto.")}},
        {"Form29",
         "Grupo Con. Salarios",
         {simple(kGrupoConSal, "Grupo Con. Salarios",
                 "Debe completar el campo Grupo Con. Salarios.",
                 "El campo Grupo Con. Salarios deberá tener un código seguido de un guión seguido "
                 "del texto.")},
         true},
        {"Form290",
         "SubGrupo Con. Salarios",
         {{"subgrupoconsal",
           "",
           {{"Grupo", kGrupoConSal}, {"SubGrupo"}},
           "Debe completar los campos Grupo y SubGrupo Con. Salarios.",
           "Los campos Grupo y SubGrupo Con. Salarios deberán tener un código seguido de un guión "
           "seguido del "
           "texto."}},
         true},
        {"Form293",
         "Actividad Principal (Construcción)",
         {simple("actividadprincipal", "Actividad Principal",
                 "Debe completar el campo Actividad Principal.",
                 "El campo Actividad Principal deberá tener un código seguido de un guión seguido "
                 "del texto.")},
         true},
        {"Form32",
         "Paises",
         {simple("paises", "País", "Debe completar el campo País.",
                 "El campo País deberá tener un código seguido de un guión seguido del texto.")}},
        {"Form33",
         "Tipo de Rem. M.T.S.S.",
         {simple("tiporemmtss", "Tipo Rem. M.T.S.S.", "Debe completar el campo Tipo Rem. M.T.S.S.",
                 "El campo Tipo Rem. M.T.S.S. deberá tener un código seguido de un guión seguido "
                 "del texto.")},
         true,
         true},
        {"Form34",
         "Tipo de Rem. B.P.S.",
         {simple("tiporembps", "Tipo Rem. B.P.S.", "Debe completar el campo Tipo Rem. B.P.S.",
                 "El campo Tipo Rem. B.P.S. deberá tener un código seguido de un guión seguido del "
                 "texto.")},
         true,
         true},
        {"Form35",
         "Seguros de Salud",
         {simple("segurosalud", "Seguro Salud", "Debe completar el campo Seguro Salud.",
                 "El campo Seguro Salud deberá tener un código seguido de un guión seguido del "
                 "texto.")},
         true,
         true},
        {"Form36",
         "Vínculos Funcionales",
         {simple("vinculofuncional", "Vínculo Funcional",
                 "Debe completar el campo Vínculo Funcional.",
                 "El campo Vínculo Funcional deberá tener un código seguido de un guión seguido "
                 "del texto.")},
         true,
         true},
        {"Form37",
         "Soc. Médicas",
         {simple("socmedica", "Soc. Médica", "Debe completar el campo Soc. Médica.",
                 "El campo Soc. Médica deberá tener un código seguido de un guión seguido del "
                 "texto.")}},
        {"Form38",
         "Motivos de Egreso",
         {simple("motivodeegreso", "Motivo de Egreso", "Debe completar el campo Motivo de Egreso.",
                 "El campo Motivo de Egreso deberá tener un código seguido de un guión seguido del "
                 "texto.")},
         true,
         true},
        {"Form39",
         "Sectores",
         {{"sectores",
           "",
           {{"Grupo", kGrupoConSal}, {"SubGrupo Con. Salarios", "subgrupoconsal"}, {"Sector"}},
           "Debe completar los campos Grupo, SubGrupo Con. Salarios y Sector.",
           "Los campos Grupo, SubGrupo Con. Salarios y Sector deberán tener un código seguido de "
           "un guión seguido "
           "del texto."}},
         true,
         true},
        {"Form390",
         "Categorías",
         {{"categorias",
           "",
           {{"Grupo", kGrupoConSal},
            {"SubGrupo Con. Salarios", "subgrupoconsal"},
            {"Sector", "sectores"},
            {"Categoría"}},
           "Debe completar los campos Grupo, SubGrupo Con. Salarios, Sector y Categoría.",
           "Los campos Grupo, SubGrupo Con. Salarios, Sector y Categoría deberán tener un código "
           "seguido de un "
           "guión seguido del texto."}},
         true,
         true},
    };
    return c;
}

const ConfiguracionCatalogo* configuracionCatalogo(const std::string& formulario) {
    for (const auto& c : catalogosDelSistema())
        if (formulario == c.formulario) return &c;
    return nullptr;
}

}  // namespace nomira::pantallas
