#include "engine/validacion/validacion.h"

#include <algorithm>
#include <functional>
#include <set>
#include <tuple>

#include "common/edad.h"
#include "common/empaquetados.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/aportes.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/licencia_dias.h"
#include "engine/calculos/vinculos.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/lectura.h"
#include "engine/mes/mes_en_pantalla.h"
#include "engine/mes/mes_persona.h"
#include "master/catalogos.h"

namespace nomira::engine {
inline namespace validacion {

using common::Dinero;

namespace {

// Lo que los controles miran de cada persona activa en el mes.
struct Revisada {
    const master::Persona* ficha = nullptr;
    const LibroPersona* libro = nullptr;
    Dinero montograv;  // haberes gravados del mes
};

class Serie {
  public:
    Serie(common::Dialogo& dialogo, bool unoPorUno) : dialogo_(dialogo), unoPorUno_(unoPorUno) {}

    void hallar(int control, const std::string& nombre, const std::string& texto,
                common::TipoAviso tipo = common::TipoAviso::Advertencia) {
        Hallazgo h{control, nombre, common::tituloAviso(tipo), texto};
        if (unoPorUno_) dialogo_.avisar(tipo, h.titulo, h.texto);
        hallazgos_.push_back(std::move(h));
    }
    std::vector<Hallazgo> terminar() {
        if (unoPorUno_) dialogo_.avisar(common::TipoAviso::Confirmacion, kValidacionTerminada);
        return std::move(hallazgos_);
    }

  private:
    common::Dialogo& dialogo_;
    bool unoPorUno_;
    std::vector<Hallazgo> hallazgos_;
};

// El seguro de salud principal: "01", "15", "16" o "17".
bool seguroPrincipal(const std::string& codigo) {
    return codigo == "01" || codigo == "15" || codigo == "16" || codigo == "17";
}

// 1: seguro de salud principal con menos de 13 días y gravado bajo 1,25 BPC,
// salvo quien ingresó en el mes.
void seguroDeMesesCortos(store::Conexion& base, const std::vector<Revisada>& personas,
                         const common::Mes& mes, double bpc, Serie& serie) {
    static const char* const kPrimerosSeis[] = {"Patron Unipersonal",
                                                "Socio con actividad",
                                                "Socio sin actividad",
                                                "Socio cooperativista",
                                                "Conyuge colaborador con actividad",
                                                "Director con remuneración"};
    for (const auto& p : personas) {
        const auto& f = *p.ficha;
        if (std::any_of(std::begin(kPrimerosSeis), std::end(kPrimerosSeis),
                        [&](const char* n) { return f.vinculofun == n; }))
            continue;
        double dias = f.tiposueldo == "S" ? 30 : 0;
        for (const auto& r : p.libro->filas(TablaLiquidacion::Habydesc, mes)) {
            const auto c = common::mayusculas(r.concepto);
            if (f.tiposueldo == "S" && (esAusencia(c) || c.starts_with("LICENCIA"))) dias -= r.cant;
            if ((f.tiposueldo == "J" && c == "JORNALES") ||
                (f.tiposueldo == "H" && c == "JORNADAS EN EL MES"))
                dias += r.cant;
        }
        const auto ingreso = common::Fecha::desdeTexto(f.fechaing);
        const bool ingresoEnElMes = ingreso && common::Mes::de(*ingreso) == mes;
        if (dias < 13 && p.montograv.aDouble() < 1.25 * bpc && !ingresoEnElMes &&
            seguroPrincipal(master::codigoEnCatalogo(base, "segurosalud", f.segurosalud)))
            serie.hallar(1, f.nombre,
                         "El código seguro de salud de " + f.nombre +
                             " es 1 o 15 (siendo la cantdiastrab < 13 y el montograv < 1.25 * "
                             "BPC).");
    }
}

// 5: el seguro principal en más de una actividad activa.
void unSoloSeguroPrincipal(store::Conexion& base, const std::vector<Revisada>& personas,
                           const common::Mes& mes, Serie& serie) {
    auto porNrofun = personas;
    std::stable_sort(porNrofun.begin(), porNrofun.end(), [](const Revisada& a, const Revisada& b) {
        return common::textoANumero(a.ficha->nrofun) < common::textoANumero(b.ficha->nrofun);
    });
    for (const auto& p : porNrofun) {
        const auto& f = *p.ficha;
        if (f.cantbfc.find_first_not_of(' ') != std::string::npos) continue;
        int principales = 0;
        const std::tuple<const std::string*, const std::string*, const std::string*> act[] = {
            {&f.fechaing, &f.fechaeg, &f.segurosalud},
            {&f.fechaing2, &f.fechaeg2, &f.segurosalud2},
            {&f.fechaing3, &f.fechaeg3, &f.segurosalud3}};
        for (const auto& [ing, eg, seguro] : act) {
            if (ing->empty()) continue;
            auto otra = f;
            otra.fechaing = *ing;
            otra.fechaeg = *eg;
            if (activaEnElMes(otra, mes) &&
                seguroPrincipal(master::codigoEnCatalogo(base, "segurosalud", *seguro)))
                ++principales;
        }
        if (principales >= 2)
            serie.hallar(5, f.nombre,
                         "El código seguro de salud de " + f.nombre +
                             " es 1 o 15 en más de una ac.laboral, deberá corregirlo.");
    }
}

// 7: jornaleros y por hora sin FERIADO PAGO en un mes con feriado pago.
void feriadosPagos(const std::vector<Revisada>& personas, const common::Mes& mes, const Maestros& m,
                   Serie& serie) {
    bool conFeriado = mes.mes == 1 || mes.mes == 5 || mes.mes == 7 || mes.mes == 8 || mes.mes == 12;
    if (m.empresa)
        for (const auto* fecha : {&m.empresa->fechainiact2, &m.empresa->fechainiact3})
            if (const auto f = common::Fecha::desdeTexto(*fecha); f && f->mes == mes.mes)
                conFeriado = true;
    if (!conFeriado) return;
    for (const auto& p : personas) {
        const auto& f = *p.ficha;
        if (f.tiposueldo != "J" && f.tiposueldo != "H") continue;
        if (p.libro->porConcepto(TablaLiquidacion::Habydesc, mes, "FERIADO PAGO")) continue;
        serie.hallar(7, f.nombre,
                     "El funcionario " + f.nombre +
                         " no tiene liquidado el concepto FERIADO PAGO, siendo J o H y estando en "
                         "el mes de cargo " +
                         mes.texto() + ".");
    }
}

// 2: dueños y socios con menos gravado que el mayor sueldo del personal.
void duenosContraPersonal(const std::vector<Revisada>& personas, Serie& serie) {
    const Revisada* mayor = nullptr;
    for (const auto& p : personas)
        if (cobraSueldoReal(p.ficha->vinculofun) && (!mayor || mayor->montograv < p.montograv))
            mayor = &p;
    if (!mayor) return;
    for (const auto& p : personas) {
        const auto& v = p.ficha->vinculofun;
        if (v != "Patron Unipersonal" && v != "Socio con actividad" && v != "Socio cooperativista")
            continue;
        if (p.montograv < mayor->montograv)
            serie.hallar(2, p.ficha->nombre,
                         "El montogravado de " + p.ficha->nombre +
                             " está por debajo del sueldo de " + mayor->ficha->nombre +
                             " (que es el mayor sueldo de todos los empleados).");
    }
}

// 3: sueldo, jornal u hora por debajo del SALMIN de sus horas.
void salarioMinimo(const std::vector<Revisada>& personas, double salmin, Serie& serie) {
    for (const auto& p : personas) {
        const auto& f = *p.ficha;
        if (!cobraSueldoReal(f.vinculofun)) continue;
        double horas =
            f.htrab.find_first_not_of(' ') == std::string::npos ? 8 : common::textoANumero(f.htrab);
        horas = std::min(horas, 8.0);
        const double minimo = salmin * horas / 8;
        const double sueldo = common::textoANumero(f.sueldo);
        if (f.tiposueldo == "S" && sueldo < minimo)
            serie.hallar(3, f.nombre, "El Sueldo de " + f.nombre + " está por debajo del SALMIN.");
        if (f.tiposueldo == "J" && sueldo < minimo / 25)
            serie.hallar(3, f.nombre, "El Jornal de " + f.nombre + " está por debajo del SALMIN.");
        if (f.tiposueldo == "H" && sueldo < minimo / 200)
            serie.hallar(3, f.nombre, "La Hora de " + f.nombre + " está por debajo del SALMIN.");
    }
}

// 8: una actividad que egresa en el mes con filas en habydesc y en egresos.
void egresosYMes(const std::vector<Revisada>& personas, const common::Mes& mes, Serie& serie) {
    for (const auto& p : personas) {
        const auto& f = *p.ficha;
        if (!cobraSueldoReal(f.vinculofun)) continue;
        const bool ambas =
            !p.libro->filas(TablaLiquidacion::Habydesc, mes).empty() && p.libro->hayEgresos(mes);
        for (const auto* eg : {&f.fechaeg, &f.fechaeg2, &f.fechaeg3}) {
            const auto fecha = common::Fecha::desdeTexto(*eg);
            if (ambas && fecha && common::Mes::de(*fecha) == mes)
                serie.hallar(8, f.nombre,
                             "El funcionario " + f.nombre +
                                 " tiene liquidado conceptos en los formularios HabyDesc y "
                                 "Egresos.");
        }
    }
}

// 9: el tope de AFAP según la edad al 01/04/96.
void topeAfapPorEdad(const std::vector<Revisada>& personas, const Maestros& m, Serie& serie) {
    for (const auto& p : personas) {
        const auto& f = *p.ficha;
        const auto nac = common::Fecha::desdeTexto(f.fechanac);
        if (!nac) continue;
        // Años de dos cifras: 19yy de 30 a 99.
        const int anio = f.fechanac.size() <= 8 ? common::anioPivote30(nac->anio % 100) : nac->anio;
        const bool mayor40 = anio < 1956 || (anio == 1956 && nac->mes < 4);
        const bool tafap = common::SocMedica::leer(f.socmedica).tafap == "Si";
        if (mayor40 && m.tipoaporte != "04" && p.montograv.aDouble() > topeAfap(m, f.socmedica))
            serie.hallar(9, f.nombre,
                         "El funcionario " + f.nombre +
                             " tenía más de 40 años al 01/04/96 y el montogravado es mayor al "
                             "topeafap.");
        if (!mayor40 && m.tipoaporte != "04" && !tafap)
            serie.hallar(9, f.nombre,
                         "El funcionario " + f.nombre +
                             " tenía menos de 40 años al 01/04/96 y Topea Afap está en No.",
                         common::TipoAviso::Error);
    }
}

// 10: el patrón unipersonal con cinco empleados o menos no lleva seguro de
// salud 09 ni la empresa tipo de contribuyente 01.
void patronUnipersonal(store::Conexion& base, const std::vector<Revisada>& personas,
                       const Maestros& m, Serie& serie) {
    const auto cantidad = std::count_if(personas.begin(), personas.end(), [](const Revisada& p) {
        return p.ficha->vinculofun != "Patron Unipersonal";
    });
    if (cantidad > 5) return;
    const std::string siendo = " siendo " + std::to_string(cantidad) + " la cant. de empleados.";
    const auto tipocontrib =
        m.empresa ? master::codigoEnCatalogo(base, "tipocontrib", m.empresa->tipocontrib) : "";
    for (const auto& p : personas) {
        const auto& f = *p.ficha;
        if (f.vinculofun != "Patron Unipersonal") continue;
        if (master::codigoEnCatalogo(base, "segurosalud", f.segurosalud) == "09")
            serie.hallar(
                10, f.nombre,
                f.nombre + " es Patron Unipersonal y en Personal tiene Seguro salud 09" + siendo,
                common::TipoAviso::Error);
        if (tipocontrib == "01")
            serie.hallar(10, f.nombre,
                         f.nombre +
                             " es Patron Unipersonal y en Empresas tiene Tipo Contribuyente 01" +
                             siendo,
                         common::TipoAviso::Error);
    }
}

// 11: el líquido a cobrar contra el mínimo intangible.
void minimoIntangible(const std::vector<Revisada>& personas, const common::Mes& mes, Serie& serie) {
    for (const auto& p : personas) {
        const auto& f = *p.ficha;
        if (!cobraSueldoReal(f.vinculofun)) continue;
        Dinero grav, beneficios, haberes, legales, descuentos;
        for (const auto& r : p.libro->filas(TablaLiquidacion::Habydesc, mes)) {
            if (r.tipo == "Hab") {
                haberes += r.total;
                if (r.gravado == "Si") grav += r.total;
                if (r.concepto == "HOGAR CONSTITUIDO" || r.concepto == "ASIGNACION FAMILIAR" ||
                    r.concepto == "SEGURO DE SALUD G." || r.concepto == "SEGURO DE SALUD N.G.")
                    beneficios += r.total;
            } else if (r.tipo == "Des") {
                descuentos += r.total;
                if (esAporteLegal(r.concepto) || empiezaCon(r.concepto, "IRPF") ||
                    r.concepto == "ADELANTOS LICENCIA" || r.concepto == "ADELANTOS QUINCENA")
                    legales += r.total;
            }
        }
        const auto minimo = Dinero::desdeDouble((grav - legales).aDouble() * 35 / 100) + beneficios;
        if (haberes - descuentos < minimo)
            serie.hallar(11, f.nombre,
                         "El Líquido a Cobrar de " + f.nombre +
                             " está por debajo del mínimo intangible que es " +
                             common::numeroATexto(minimo.aDouble()) + ".");
    }
}

}  // namespace

std::vector<Hallazgo> validarMes(store::Conexion& base, const std::string& empresa,
                                 const common::Mes& mes, common::Dialogo& dialogo, bool unoPorUno) {
    if (empresa.empty()) {
        dialogo.avisar(common::TipoAviso::Advertencia, kFaltanCamposValidacion);
        return {};
    }
    const auto lectura = leerCorrida(base, empresa, mes, mesesDelMes(mes), std::nullopt, false);
    std::vector<Revisada> personas;
    for (const auto& p : lectura.personas) {
        if (!activaEnAlgunaActividad(*p.ficha, mes)) continue;
        Revisada r{p.ficha.get(), &p.libro, {}};
        for (const auto& f : p.libro.filas(TablaLiquidacion::Habydesc, mes))
            if (f.tipo == "Hab" && f.gravado == "Si") r.montograv += f.total;
        personas.push_back(r);
    }
    // En el orden de las filas de la base: por nombre.
    std::sort(personas.begin(), personas.end(), [](const Revisada& a, const Revisada& b) {
        return a.ficha->nombre < b.ficha->nombre;
    });
    const auto& m = lectura.maestros;
    Serie serie(dialogo, unoPorUno);
    seguroDeMesesCortos(base, personas, mes, m.variables.valor("BPC"), serie);
    duenosContraPersonal(personas, serie);
    salarioMinimo(personas, m.variables.valor("SALMIN"), serie);
    for (const auto& p : personas)
        if (p.ficha->nrosuc.find_first_not_of(' ') == std::string::npos)
            serie.hallar(4, p.ficha->nombre,
                         "El funcionario " + p.ficha->nombre +
                             " no tiene asignado el nrosuc donde trabaja.");
    unSoloSeguroPrincipal(base, personas, mes, serie);
    feriadosPagos(personas, mes, m, serie);
    egresosYMes(personas, mes, serie);
    topeAfapPorEdad(personas, m, serie);
    patronUnipersonal(base, personas, m, serie);
    minimoIntangible(personas, mes, serie);
    return serie.terminar();
}

std::vector<std::string> validarSeguroSalud(store::Conexion& base, const master::Persona& p,
                                            const common::Mes& mes, common::Dialogo& dialogo) {
    std::set<std::string> codigos;
    for (const auto* s : {&p.segurosalud, &p.segurosalud2, &p.segurosalud3})
        codigos.insert(master::codigoEnCatalogo(base, "segurosalud", *s));
    std::vector<std::string> causas;
    const std::pair<const std::string*, const std::string*> beneficiarios[] = {
        {&p.causaben, &p.fechanacben},
        {&p.causaben2, &p.fechanacben2},
        {&p.causaben3, &p.fechanacben3}};
    for (const auto& [causa, nacimiento] : beneficiarios) {
        const bool mayor = !nacimiento->empty() && common::EsMayorde18(*nacimiento, mes, nullptr);
        causas.push_back(mayor ? "" : common::codigoDeCatalogo(*causa));
    }
    const bool sinCausas =
        std::all_of(causas.begin(), causas.end(), [](const std::string& c) { return c.empty(); });
    const bool conHijos = std::any_of(causas.begin(), causas.end(), [](const std::string& c) {
        return c == "01" || c == "02" || c == "03" || c == "04";
    });
    const auto hay = [&](const char* c) { return codigos.count(c) > 0; };
    std::vector<std::string> avisos;
    const auto completar = [&](const char* es) {
        avisos.push_back("Deberá completar los campos en Datos Beneficiarios de " + p.nombre +
                         " con al menos 1 hijo ya que el código de Seguro de salud es " + es + ".");
    };
    const auto vaciar = [&](const char* es) {
        avisos.push_back(
            "En Datos Beneficiarios los campos deberán estar vacíos ya que el código de Seguro de "
            "salud es " +
            std::string(es) + ".");
    };
    if ((hay("01") || hay("16")) && sinCausas) completar("1");
    if (hay("02") && sinCausas) completar("2");
    if (hay("21") && sinCausas) completar("21");
    if (hay("15") && conHijos) vaciar("15");
    if (hay("18") && conHijos) vaciar("18");
    for (const auto& a : avisos) dialogo.avisar(common::TipoAviso::Advertencia, a);
    return avisos;
}

}  // namespace validacion
}  // namespace nomira::engine
