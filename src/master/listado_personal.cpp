#include "master/listado_personal.h"

#include "common/empaquetados.h"
#include "common/formato.h"
#include "common/numeros.h"
#include "store/like.h"

namespace nomira::master {

namespace {

struct Clave {
    const char* columna;
    bool esTexto;
};

Clave claveDe(OrdenPersonal o) {
    switch (o) {
        case OrdenPersonal::NroFun:
            return {"nrofun", false};
        case OrdenPersonal::Nombre:
            return {"nombre", true};
        case OrdenPersonal::FechaNac:
            return {"fechanac", false};
        case OrdenPersonal::Documento:
            return {"documento", true};
        case OrdenPersonal::FechaIng:
            return {"fechaing", false};
        case OrdenPersonal::Categoria:
            return {"categoria", true};
        case OrdenPersonal::TipoRem:
            return {"tiposueldo", true};
        case OrdenPersonal::FechaEg:
            return {"fechaeg", false};
        case OrdenPersonal::SegSalud:
            return {"segurosalud", true};
        case OrdenPersonal::FSueVig:
            return {"fechasuevig", false};
    }
    return {"nrofun", false};
}

// Cada persona se juzga por la actividad que imprime; sin impaclab, la primera.
constexpr const char* kActivos =
    " AND ((impaclab = '2' AND (fechaeg2 IS NULL OR fechaeg2 >= ?))"
    " OR (impaclab = '3' AND (fechaeg3 IS NULL OR fechaeg3 >= ?))"
    " OR ((impaclab IS NULL OR impaclab NOT IN ('2', '3')) AND (fechaeg IS NULL OR fechaeg >= ?)))";

std::string linea(const std::vector<std::string>& celdas) {
    static constexpr std::size_t kAnchos[] = {7, 36, 10, 10, 10, 24, 6, 10, 24, 10};
    std::string s;
    for (std::size_t i = 0; i < celdas.size(); ++i)
        s += common::alinearIzquierda(common::cortar(celdas[i], kAnchos[i]), kAnchos[i] + 1);
    while (!s.empty() && s.back() == ' ') s.pop_back();
    return s;
}

}  // namespace

std::string fechaParaPantalla(const std::string& guardada) {
    if (guardada.size() == 10 && guardada[4] == '-')
        if (auto f = common::Fecha::desdeTexto(guardada)) return f->ddmmyy();
    return guardada;
}

std::vector<Persona> consultarPersonal(store::Conexion& base, const ConsultaPersonal& consulta,
                                       const common::Fecha& hoy) {
    std::string sql = "SELECT * FROM personal WHERE empresa = ?";
    std::vector<store::Valor> parametros{consulta.empresa};
    if (consulta.soloActivos) {
        sql += kActivos;
        const auto desde = common::Mes::de(hoy).anterior().primerDia().iso();
        parametros.insert(parametros.end(), {desde, desde, desde});
    }
    const auto clave = claveDe(consulta.orden);
    if (!consulta.buscar.empty() && clave.esTexto) {
        sql += " AND " + store::condicionLike(base, clave.columna);
        parametros.emplace_back(store::patronLike(consulta.buscar + "*"));
    } else if (!consulta.buscar.empty() && consulta.orden == OrdenPersonal::NroFun &&
               common::esNumerico(consulta.buscar)) {
        sql += " AND nrofun = ?";
        parametros.emplace_back(static_cast<std::int64_t>(common::textoANumero(consulta.buscar)));
    }
    // Los vacíos primero en los dos motores.
    sql +=
        std::string(" ORDER BY ") + clave.columna + " IS NOT NULL, " + clave.columna + ", nrofun";
    std::vector<Persona> personas;
    for (const auto& f : base.consulta(sql, parametros).filas)
        personas.push_back(leerRegistro(f, camposPersona()));
    return personas;
}

std::vector<std::string> encabezadosListado() {
    return {"NroFun",    "Nombre", "Fecha Nac.", "Documento",    "Fecha Ing.",
            "Categoría", "T.Rem.", "Fecha Eg.",  "Seguro salud", "FSueVig"};
}

std::vector<std::vector<std::string>> filasListado(const std::vector<Persona>& personas) {
    std::vector<std::vector<std::string>> filas;
    for (const auto& p : personas)
        filas.push_back({p.nrofun, p.nombre, fechaParaPantalla(p.fechanac), p.documento,
                         fechaParaPantalla(p.fechaing), p.categoria, p.tiposueldo,
                         fechaParaPantalla(p.fechaeg), p.segurosalud,
                         fechaParaPantalla(p.fechasuevig)});
    return filas;
}

std::vector<std::string> lineasListado(const std::string& empresa,
                                       const std::vector<Persona>& personas) {
    std::vector<std::string> lineas = {"PERSONAL DE " + empresa, "", linea(encabezadosListado())};
    for (const auto& fila : filasListado(personas)) lineas.push_back(linea(fila));
    return lineas;
}

std::vector<std::string> lineasFichaImpresa(const Persona& p) {
    auto elegir = [](const std::string& v,
                     std::initializer_list<std::pair<const char*, const char*>> opciones) {
        for (const auto& [valor, texto] : opciones)
            if (v == valor) return std::string(texto);
        return std::string();
    };
    const auto horario = common::Horario::leer(p.horario);
    const auto f = fechaParaPantalla;
    const auto tipoSueldo = [&](const std::string& t) {
        return elegir(t, {{"S", "Sueldo      "}, {"J", "Jornal      "}, {"H", "Hora        "}});
    };
    const std::vector<std::pair<const char*, std::string>> campos = {
        {"   Empresa: ", p.empresa},
        {"    Nombre: ", p.nombre},
        {"   Nro Fun: ", p.nrofun},
        {" Dirección: ", p.direccion},
        {"  Teléfono: ", p.telefono},
        {" Fecha Nac: ", f(p.fechanac)},
        {"Lug de Nac: ", p.lugarnac},
        {"Nacionali.: ",
         elegir(p.nacionalidad,
                {{"U", "Uruguayo/a  "}, {"L", "Ciud. Legal "}, {"E", "Extranjero  "}})},
        {"      Sexo: ", elegir(p.sexo, {{"M", "Masculino   "}, {"F", "Femenino    "}})},
        {" Est Civil: ", p.estcivil},
        {"Tipo Docum: ", p.tipodedoc},
        {"País Docum: ", p.paisdeldoc},
        {"Departam. : ", p.depto},
        {"Localidad : ", p.localidad},
        {" Documento: ", p.documento},
        {"Credencial: ", p.credencial},
        {"       BSE: ", p.otrotelefono},
        {"Reg. Afaps: ", elegir(common::SocMedica::leer(p.socmedica).tafap,
                                {{"Si", "Sí          "}, {"No", "No          "}})},
        {" Fecha Ing: ", f(p.fechaing)},
        {"  Sector:   ", p.sector},
        {" Categoria: ", p.categoria},
        {"    Sueldo: ", p.sueldo},
        {"Tipo Suel.: ", tipoSueldo(p.tiposueldo)},
        {" Hor.Trab.: ", p.htrab},
        {" Fecha Eg.: ", f(p.fechaeg)},
        {"Motivo Eg.: ", p.motivoeg},
        {"Antiguedad: ", p.antiguedad},
        {"   Horario: ", horario.horario},
        {"     Banco: ", horario.banco},
        {"  Nro.Cta.: ", horario.cuenta},
        {"T rem MTSS: ", p.tiporemmtss},
        {" T rem BPS: ", p.tiporembps},
        {"Imp.Recibo: ", p.imprecibo},
        {"Seg. salud: ", p.segurosalud},
        {"V funcion.: ", p.vinculofun},
        {"Cant. BFC : ", p.cantbfc},
        {" Exonerac.: ", p.exon},
        {" H. Seman.: ", p.cesp},
        {"   Nro Suc: ", p.nrosuc},
        {"Fecha Ing2: ", f(p.fechaing2)},
        {" Sector2:   ", p.sector2},
        {"Categoria2: ", p.categoria2},
        {"   Sueldo2: ", p.sueldo2},
        {"Fecha Eg.2: ", f(p.fechaeg2)},
        {"Motivo Eg2: ", p.motivoeg2},
        {"Antigued.2: ", p.antiguedad2},
        {"  Horario2: ", p.horario2},
        {"T r MTSS 2: ", p.tiporemmtss2},
        {"T r. BPS 2: ", p.tiporembps2},
        {"Seg. sal.2: ", p.segurosalud2},
        {"V funcio.2: ", p.vinculofun2},
        {"Exonerac.2: ", p.exon2},
        {"Fecha Ing3: ", f(p.fechaing3)},
        {" Sector3:   ", p.sector3},
        {"Categoria3: ", p.categoria3},
        {"   Sueldo3: ", p.sueldo3},
        {"Fecha Eg.3: ", f(p.fechaeg3)},
        {"Motivo Eg3: ", p.motivoeg3},
        {"Antigued.3: ", p.antiguedad3},
        {"  Horario3: ", p.horario3},
        {"Tr. MTSS 3: ", p.tiporemmtss3},
        {"Tr.  BPS 3: ", p.tiporembps3},
        {"Seg. sal.3: ", p.segurosalud3},
        {"V funcio.3: ", p.vinculofun3},
        {"Exonerac.3: ", p.exon3},
    };
    std::vector<std::string> lineas = {"INFORMACION DEL PERSONAL", ""};
    for (const auto& [etiqueta, valor] : campos)
        lineas.push_back("     " + std::string(etiqueta) + common::cortar(valor, 40));
    return lineas;
}

}  // namespace nomira::master
