#include "master/validacion_personal.h"

#include <algorithm>
#include <initializer_list>

#include "common/edad.h"
#include "common/empaquetados.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "master/catalogos.h"

namespace nomira::master {

namespace {

bool lleno(const std::string& s) {
    return s.find_first_not_of(' ') != std::string::npos;
}

bool esUno(const std::string& codigo, std::initializer_list<const char*> lista) {
    return std::any_of(lista.begin(), lista.end(), [&](const char* c) { return codigo == c; });
}

bool algunaActividad(const CodigosSeguroSalud& c, std::initializer_list<const char*> lista) {
    return std::any_of(c.actividades.begin(), c.actividades.end(),
                       [&](const auto& a) { return esUno(a, lista); });
}

// Fecha Des. y Fecha Pres. van juntas; el nombre lleno lleva la coma.
bool parBien(const std::string& desde, const std::string& presentada) {
    return lleno(desde) == lleno(presentada);
}
bool nombreBien(const std::string& n) {
    return !lleno(n) || n.find(',') != std::string::npos;
}

std::string comprobarComunes(const Persona& p) {
    // La persona siempre lleva nombre: uno vacío tampoco tiene la coma.
    if (auto m = comprobarComa(p.nombre.empty() ? "-" : p.nombre, "Personal"); !m.empty()) return m;
    if (auto m = faltantesObligatorios(p); !m.empty()) return m;
    const bool bien =
        parBien(p.fechadesdecon, p.fechaprescon) && parBien(p.fechadesdeben, p.fechapresben) &&
        parBien(p.fechadesdeben2, p.fechapresben2) && parBien(p.fechadesdeben3, p.fechapresben3) &&
        parBien(p.fechadesdeded, p.fechapresded) && parBien(p.fechadesdeded2, p.fechapresded2) &&
        parBien(p.fechadesdeded3, p.fechapresded3) && nombreBien(p.nombrecon) &&
        nombreBien(p.nombreben) && nombreBien(p.nombreben2) && nombreBien(p.nombreben3);
    if (!bien)
        return "En Datos Cónyuge, Datos Beneficiarios o en Otras Deducciones verifique que los "
               "campos Nombres "
               "tengan la coma que separa los apellidos de los nombres y que los campos Fecha Des. "
               "y Fecha Pres. "
               "estén ambos completos.";
    if (p.tiposueldo == "H" && common::textoANumero(p.htrab) > 8)
        return "Si el Tipo de rem. es Hora entonces el campo H.Trab. debe tener como máximo 8.";
    // Cada actividad con fecha de egreso necesita su antigüedad y su motivo.
    const bool egresoBien = (!lleno(p.fechaeg) || (lleno(p.antiguedad) && lleno(p.motivoeg))) &&
                            (!lleno(p.fechaeg2) || (lleno(p.antiguedad2) && lleno(p.motivoeg2))) &&
                            (!lleno(p.fechaeg3) || (lleno(p.antiguedad3) && lleno(p.motivoeg3)));
    if (!egresoBien)
        return "En el campo FechaEg. deberá presionar Enter para que cargue la Antiguedad y además "
               "deberá "
               "completar el campo Motivo de Egreso.";
    return "";
}

}  // namespace

std::string faltantesObligatorios(const Persona& p) {
    const std::pair<const char*, const std::string*> campos[] = {
        {" NroFun.,", &p.nrofun},
        {" NroOrd.,", &p.nroord},
        {" Dirección,", &p.direccion},
        {" Fecha Nac.,", &p.fechanac},
        {" Lugar de Nacimiento,", &p.lugarnac},
        {" Tipo de Documento,", &p.tipodedoc},
        {" País del Doc.,", &p.paisdeldoc},
        {" Documento,", &p.documento},
        {" Fecha Ing.,", &p.fechaing},
        {" Sueldo,", &p.sueldo},
        {" FSueVig,", &p.fechasuevig},
        {" HTrab.,", &p.htrab},
        {" Tipo de rem B.P.S.,", &p.tiporembps},
        {" Seguro salud,", &p.segurosalud},
        {" Vínculo funcional,", &p.vinculofun},
        {" Exon.,", &p.exon},
        {" H.Sem.,", &p.cesp},
        {" Nro Suc.,", &p.nrosuc},
    };
    std::string faltan;
    for (const auto& [etiqueta, valor] : campos)
        if (!lleno(*valor)) faltan += etiqueta;
    if (faltan.empty()) return "";
    faltan.pop_back();
    return "Debe completar los siguientes campos obligatorios:" + faltan;
}

std::string comprobarComa(const std::string& nombre, const std::string& quien) {
    if (!lleno(nombre) || nombre.find(',') != std::string::npos) return "";
    return "El campo Nombre del " + quien +
           " no tiene la coma que separa los apellidos de los nombres.";
}

std::string comprobarAlAgregar(const Persona& p) {
    return comprobarComunes(p);
}

std::string comprobarAlModificar(const Persona& p) {
    if (auto m = comprobarComunes(p); !m.empty()) return m;
    auto completa = [](std::initializer_list<const std::string*> campos) {
        return std::all_of(campos.begin(), campos.end(),
                           [](const std::string* c) { return lleno(*c); });
    };
    if (p.impaclab == "2" &&
        !completa({&p.fechaing2, &p.categoria2, &p.sueldo2, &p.tiporemmtss2, &p.tiporembps2,
                   &p.segurosalud2, &p.vinculofun2, &p.exon2, &p.cesp2}))
        return "Si Ac.Lab está en 2 entonces en D.Lab. 2da Act. deberá completar todos los campos.";
    if (p.impaclab == "3" &&
        !completa({&p.fechaing3, &p.categoria3, &p.sueldo3, &p.tiporemmtss3, &p.tiporembps3,
                   &p.segurosalud3, &p.vinculofun3, &p.exon3, &p.cesp3}))
        return "Si Ac.Lab está en 3 entonces en D.Lab. 3ra Act. deberá completar todos los campos.";
    if (!lleno(p.fechanac) || !lleno(p.fechaing))
        return "Debe completar los campos Fecha Nac. y Fecha Ing.";
    return "";
}

bool pideFormularioGafi(const std::string& vinculofun) {
    return esUno(vinculofun, {"Director sin remuneración", "Director con remuneración",
                              "Conyuge colaborador con actividad", "Socio cooperativista",
                              "Socio sin actividad", "Socio con actividad"});
}

std::vector<std::string> advertenciasSeguroSalud(const CodigosSeguroSalud& c) {
    std::vector<std::string> avisos;
    const bool sinHijos =
        std::all_of(c.causas.begin(), c.causas.end(), [](const auto& x) { return x.empty(); });
    const bool conCausa = std::any_of(c.causas.begin(), c.causas.end(), [](const auto& x) {
        return esUno(x, {"01", "02", "03", "04"});
    });
    const std::string faltanHijos =
        "Deberá completar los campos en Datos Beneficiarios con al menos 1 hijo ya que el código "
        "de Seguro de "
        "salud es ";
    if (sinHijos && algunaActividad(c, {"01", "16"})) avisos.push_back(faltanHijos + "1.");
    if (sinHijos && algunaActividad(c, {"02"})) avisos.push_back(faltanHijos + "2.");
    if (sinHijos && algunaActividad(c, {"21"})) avisos.push_back(faltanHijos + "21.");
    for (const char* codigo : {"15", "18", "22", "25", "28"})
        if (conCausa && algunaActividad(c, {codigo}))
            avisos.push_back(
                "En Datos Beneficiarios los campos deberán estar vacíos ya que el código de Seguro "
                "de salud es " +
                std::string(codigo) + ".");
    if (c.ingresaSns == "Si" && algunaActividad(c, {"09"}))
        avisos.push_back(
            "Si el código de Seguro de salud es 9 entonces en Datos Cónyuge en Ingresa al SNS "
            "deberá estar en No.");
    const auto& primera = c.actividades[0];
    if ((c.ingresaSns == "No" && esUno(primera, {"16", "17", "26", "27", "29", "30"})) ||
        (c.ingresaSns == "Si" && !esUno(primera, {"06", "08", "16", "17", "26", "27", "29", "30"})))
        avisos.push_back(
            "El código de Seguro de salud no está en concordancia con la opción seleccionada en "
            "Ingresa al SNS.");
    return avisos;
}

CodigosSeguroSalud codigosSeguroSalud(store::Conexion& base, const Persona& p,
                                      common::Dialogo* dialogo) {
    CodigosSeguroSalud c;
    c.actividades = {codigoEnCatalogo(base, "segurosalud", p.segurosalud),
                     codigoEnCatalogo(base, "segurosalud", p.segurosalud2),
                     codigoEnCatalogo(base, "segurosalud", p.segurosalud3)};
    const auto referencia = common::mesDeReferencia("");
    const std::pair<const std::string*, const std::string*> hijos[] = {
        {&p.causaben, &p.fechanacben},
        {&p.causaben2, &p.fechanacben2},
        {&p.causaben3, &p.fechanacben3}};
    for (int i = 0; i < 3; ++i) {
        const auto& [causa, nacimiento] = hijos[i];
        // Sin fecha de nacimiento no hay edad que mirar: cuenta la causa.
        const bool mayor =
            lleno(*nacimiento) && common::EsMayorde18(*nacimiento, referencia, dialogo);
        c.causas[i] = mayor ? "" : common::codigoDeCatalogo(*causa);
    }
    c.ingresaSns = common::SexoCon::leer(p.sexocon).ingresaSns;
    return c;
}

void ValidarSeguroSalud(store::Conexion& base, const Persona& p, common::Dialogo& dialogo) {
    for (const auto& aviso : advertenciasSeguroSalud(codigosSeguroSalud(base, p, &dialogo)))
        dialogo.avisar(common::TipoAviso::Advertencia, aviso);
}

}  // namespace nomira::master
