#include "frame/menu.h"

namespace nomira::frame {

namespace {

using G = Grupo;
using A = Accion;

EntradaMenu p(const char* menu, const char* padre, const char* nombre, const char* titulo, Grupo g,
              const char* pantalla) {
    return {menu, padre, nombre, titulo, g, A::Pantalla, pantalla};
}
EntradaMenu sub(const char* menu, const char* nombre, const char* titulo, Grupo g) {
    return {menu, "", nombre, titulo, g, A::Submenu, ""};
}
EntradaMenu orden(const char* menu, const char* nombre, const char* titulo, Accion a, Grupo g) {
    return {menu, "", nombre, titulo, g, a, ""};
}

std::vector<EntradaMenu> construirArbol() {
    const char* E = "Empresas";
    const char* P = "Personal";
    const char* L = "Liquidaciones";
    const char* I = "Informes";
    const char* U = "Utilidades";
    return {
        p("Entrar", "", "Entraralprograma", "Entrar al programa", G::Ninguno, "Form14"),
        p("Configuracion", "", "FBasicasConfiguracion", "Configuración", G::Configuracion, "Form13"),

        p(E, "", "FBasicasEmpresas", "Empresas", G::Empresas, "Form2"),
        p(E, "", "FBasicasObras", "Obras", G::Empresas, "Form291"),
        sub(E, "TablasEmpresas", "Tablas de empresas", G::Empresas),
        p(E, "TablasEmpresas", "TipoContribuyente", "Tipo de contribuyente", G::Empresas, "Form22"),
        p(E, "TablasEmpresas", "TipoAportacion", "Tipo de aportación", G::Empresas, "Form23"),
        p(E, "TablasEmpresas", "GrupoActividades", "Grupo de actividades", G::Empresas, "Form24"),
        p(E, "TablasEmpresas", "SubGrupoActividades", "Subgrupo de actividades", G::Empresas, "Form25"),
        p(E, "TablasEmpresas", "GrupoConSalarios", "Grupo de Consejos de Salarios", G::Empresas, "Form29"),
        p(E, "TablasEmpresas", "SubGrupoConSalarios", "Subgrupo de Consejos de Salarios", G::Empresas,
          "Form290"),
        p(E, "TablasEmpresas", "Departamentos", "Departamentos", G::Empresas, "Form26"),
        p(E, "TablasEmpresas", "Localidades", "Localidades", G::Empresas, "Form27"),
        p(E, "TablasEmpresas", "CausalesPresentación", "Causales de presentación", G::Empresas, "Form28"),
        p(E, "TablasEmpresas", "ActividadPrincipal", "Actividad principal", G::Empresas, "Form293"),

        p(P, "", "FBasicasPersonal", "Personal", G::Personal, "Form3"),
        sub(P, "TablasPersonal", "Tablas de personal", G::Personal),
        p(P, "TablasPersonal", "Paises", "Países", G::Personal, "Form32"),
        p(P, "TablasPersonal", "Sectores", "Sectores", G::Personal, "Form39"),
        p(P, "TablasPersonal", "Categorias", "Categorías", G::Personal, "Form390"),
        p(P, "TablasPersonal", "TipoRemMTSS", "Tipo de remuneración MTSS", G::Personal, "Form33"),
        p(P, "TablasPersonal", "TipoRemBPS", "Tipo de remuneración BPS", G::Personal, "Form34"),
        p(P, "TablasPersonal", "SeguroSalud", "Seguro de salud", G::Personal, "Form35"),
        p(P, "TablasPersonal", "VínculoFuncional", "Vínculo funcional", G::Personal, "Form36"),
        p(P, "TablasPersonal", "SocMedica", "Sociedad médica", G::Personal, "Form37"),
        p(P, "TablasPersonal", "MotivodeEgreso", "Motivo de egreso", G::Personal, "Form38"),

        sub(L, "ConceptosyFórmulas", "Conceptos y fórmulas", G::Liquidaciones),
        p(L, "ConceptosyFórmulas", "FBasicasConceptosyFórmulas", "Conceptos y fórmulas",
          G::Liquidaciones, "Form4"),
        p(L, "ConceptosyFórmulas", "ConceptosPermanentesxPersonal", "Conceptos permanentes por personal",
          G::Liquidaciones, "Form40"),
        sub(L, "DefinicióndeVariables", "Definición de variables", G::Liquidaciones),
        p(L, "DefinicióndeVariables", "BPC", "BPC", G::Liquidaciones, "Form401"),
        p(L, "DefinicióndeVariables", "BFC", "BFC", G::Liquidaciones, "Form402"),
        p(L, "DefinicióndeVariables", "SALMIN", "SALMIN", G::Liquidaciones, "Form409"),
        p(L, "DefinicióndeVariables", "CUOTAMUTUALIC", "CUOTAMUTUALIC", G::Liquidaciones, "Form403"),
        p(L, "DefinicióndeVariables", "EXCLUSIONIRPF", "EXCLUSIONIRPF", G::Liquidaciones, "Form410"),
        p(L, "DefinicióndeVariables", "CUOTAMUTUALCO", "CUOTAMUTUALCO", G::Liquidaciones, "Form404"),
        p(L, "DefinicióndeVariables", "UR", "UR", G::Liquidaciones, "Form405"),
        p(L, "DefinicióndeVariables", "OTROS", "OTROS", G::Liquidaciones, "Form400"),
        p(L, "", "FranjasIRPF", "Franjas IRPF", G::Liquidaciones, "Form406"),
        p(L, "", "SueldosMínimosxCategoría", "Sueldos mínimos por categoría", G::Liquidaciones, "Form407"),
        p(L, "", "HaberesyDescuentos", "Haberes y descuentos", G::Liquidaciones, "Form42"),
        p(L, "", "Aguinaldos", "Aguinaldos", G::Liquidaciones, "Form43"),
        p(L, "", "SalarioVacacional", "Salario vacacional", G::Liquidaciones, "Form44"),
        p(L, "", "Egresos", "Egresos", G::Liquidaciones, "Form45"),

        p(I, "", "HistoriaLaboralBPS", "Historia Laboral BPS", G::Informes, "Form5"),
        p(I, "", "DeduccionesBPS", "Deducciones BPS", G::Informes, "Form50"),
        p(I, "", "RectificativasBPS", "Rectificativas BPS", G::Informes, "Form501"),
        p(I, "", "PlanilladeTrabajoUnificadaBPS", "Planilla de trabajo unificada BPS", G::Informes,
          "Form502"),
        p(I, "", "Focer", "FOCER", G::Informes, "Form72"),
        sub(I, "Bancos", "Bancos", G::Informes),
        p(I, "Bancos", "BROU", "BROU", G::Informes, "Form78"),
        p(I, "", "DetalleAportesPatronalesConstrucción", "Detalle de aportes patronales de construcción",
          G::Informes, "Form74"),
        p(I, "", "PlanilladeLiquidaciónHabyDes", "Planilla de liquidación de haberes y descuentos",
          G::Informes, "Form51"),
        p(I, "", "PlanilladeLiquidaciónAguinaldos", "Planilla de liquidación de aguinaldos", G::Informes,
          "Form512"),
        p(I, "", "PlanilladeLiquidaciónSalVacacional", "Planilla de liquidación de salario vacacional",
          G::Informes, "Form511"),
        p(I, "", "PlanilladeLiquidaciónEgresos", "Planilla de liquidación de egresos", G::Informes,
          "Form510"),
        p(I, "", "ResúmendeLiquidaciónHabyDes", "Resumen de liquidación de haberes y descuentos",
          G::Informes, "Form513"),
        p(I, "", "LíquidosaCobrarHabyDes", "Líquidos a cobrar de haberes y descuentos", G::Informes,
          "Form514"),
        p(I, "", "FormulariosdeGafi", "Formularios de GAFI", G::Informes, "Form52"),
        p(I, "", "ComunicadodeLicencias", "Comunicado de licencias", G::Informes, "Form53"),
        p(I, "", "ConveniodeFraccionamientodeLicencia", "Convenio de fraccionamiento de licencia",
          G::Informes, "Form530"),
        p(I, "", "IncidenciasdelaLicencia", "Incidencias de la licencia", G::Informes, "Form76"),
        p(I, "", "IncidenciasdelIpd", "Incidencias del IPD", G::Informes, "Form70"),
        p(I, "", "AsientosContables", "Asientos contables", G::Informes, "Form54"),
        p(I, "", "PlanilladeTrabajo", "Planilla de trabajo", G::Informes, "Form55"),
        p(I, "", "HistorialdeConceptosporPersona", "Historial de conceptos por persona", G::Informes,
          "Form56"),
        p(I, "", "HistorialdeConceptosporEmpresa", "Historial de conceptos por empresa", G::Informes,
          "Form64"),
        sub(I, "ContratosdeTrabajo", "Contratos de trabajo", G::Informes),
        p(I, "ContratosdeTrabajo", "ContratodePrueba", "Contrato de prueba", G::Informes, "Form57"),
        p(I, "ContratosdeTrabajo", "ContratoaTérmino", "Contrato a término", G::Informes, "Form58"),
        p(I, "ContratosdeTrabajo", "ContratodeTrabajadoraSuplente", "Contrato de trabajadora suplente",
          G::Informes, "Form73"),
        p(I, "", "SolicituddePrestaciones", "Solicitud de prestaciones", G::Informes, "Form59"),
        p(I, "", "Resolución501porPersona", "Resolución 501 por persona", G::Informes, "Form65"),
        p(I, "", "Resolución501porEmpresa", "Resolución 501 por empresa", G::Informes, "Form651"),
        p(I, "", "BSE", "BSE", G::Informes, "Form66"),
        p(I, "", "DetalleMontoaPagarBPS", "Detalle del monto a pagar al BPS", G::Informes, "Form71"),
        p(I, "", "FacturaMontoaPagarBPS", "Factura del monto a pagar al BPS", G::Informes, "Form75"),
        p(I, "", "MontosaPagarBPS", "Montos a pagar al BPS", G::Informes, "Form77"),

        p(U, "", "MigracióndeDatosPersonal", "Migración de datos de personal", G::Utilidades, "Form6"),
        p(U, "", "RespaldarBasedeDatos", "Respaldar base de datos", G::Utilidades, "Form61"),
        p(U, "", "ReemplazarEmpresa", "Reemplazar empresa", G::Utilidades, "Form63"),
        p(U, "", "ReemplazarNombredelPersonal", "Reemplazar nombre del personal", G::Utilidades, "Form62"),
        p(U, "", "ReingresarPersonal", "Reingresar personal", G::Utilidades, "Form68"),
        orden(U, "RepararBase", "Reparar base", A::Reparar, G::Ninguno),
        orden(U, "CompactarBase", "Compactar base", A::Compactar, G::Ninguno),
        p(U, "", "CopiarEmpresa", "Copiar empresa", G::Utilidades, "Form67"),
        p(U, "", "LimpiarcamposNulldePersonal", "Limpiar campos Null de personal", G::Utilidades, "Form69"),
        p(U, "", "EliminarLiquidaciones", "Eliminar liquidaciones", G::Utilidades, "Form7"),

        orden("Ayuda", "Contenido", "Contenido", A::Ayuda, G::Ninguno),
        orden("Salir", "Salirdelprograma", "Salir del programa", A::Salir, G::Ninguno),
    };
}

}  // namespace

const std::vector<MenuPrincipal>& menusPrincipales() {
    static const std::vector<MenuPrincipal> m = {
        {"Entrar", "Entrar"},         {"Configuracion", "Configuración"},
        {"Empresas", "Empresas"},     {"Personal", "Personal"},
        {"Liquidaciones", "Liquidaciones"}, {"Informes", "Informes"},
        {"Utilidades", "Utilidades"}, {"Ayuda", "Ayuda"},
        {"Salir", "Salir"},
    };
    return m;
}

const std::vector<EntradaMenu>& arbolMenu() {
    static const std::vector<EntradaMenu> arbol = construirArbol();
    return arbol;
}

const EntradaMenu* buscarEntrada(const std::string& nombre) {
    for (const auto& e : arbolMenu())
        if (e.nombre == nombre) return &e;
    return nullptr;
}

const std::vector<TeclaBarra>& teclasBarra() {
    static const std::vector<TeclaBarra> t = {
        {"Empresas", "FBasicasEmpresas"},
        {"Personal", "FBasicasPersonal"},
        {"Con.yFórm.", "FBasicasConceptosyFórmulas"},
        {"Hab.yDesc.", "HaberesyDescuentos"},
        {"Hist.Laboral", "HistoriaLaboralBPS"},
        {"RepBase", "RepararBase"},
        {"Ayuda", "Contenido"},
        {"Salir", "Salirdelprograma"},
    };
    return t;
}

}  // namespace nomira::frame
