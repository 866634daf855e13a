#include "screens/personal/pagina_otra_actividad.h"

#include "screens/personal/rejilla.h"

namespace nomira::pantallas {

using P = master::Persona;

namespace {

// Las columnas de una actividad que se repiten en la segunda y en la tercera.
struct ColumnasActividad {
    std::string P::*fechaing, P::*sector, P::*categoria, P::*sueldo, P::*fechaeg, P::*motivoeg,
        P::*antiguedad, P::*horario, P::*tiporemmtss, P::*tiporembps, P::*segurosalud,
        P::*vinculofun, P::*exon, P::*cesp;
};

const ColumnasActividad kActividades[] = {
    {&P::fechaing2, &P::sector2, &P::categoria2, &P::sueldo2, &P::fechaeg2, &P::motivoeg2,
     &P::antiguedad2, &P::horario2, &P::tiporemmtss2, &P::tiporembps2, &P::segurosalud2,
     &P::vinculofun2, &P::exon2, &P::cesp2},
    {&P::fechaing3, &P::sector3, &P::categoria3, &P::sueldo3, &P::fechaeg3, &P::motivoeg3,
     &P::antiguedad3, &P::horario3, &P::tiporemmtss3, &P::tiporembps3, &P::segurosalud3,
     &P::vinculofun3, &P::exon3, &P::cesp3}};

}  // namespace

PaginaOtraActividad::PaginaOtraActividad(CamposFicha& campos, int n,
                                         std::function<std::string()> referencias) {
    const auto& c = kActividades[n - 2];
    const std::string k = std::to_string(n);
    auto nombre = [&](const char* base) { return std::string(base) + k; };
    auto& f = campos;
    auto& a = actividad;
    Rejilla r(this, 3);
    a.fechaing = f.fecha(c.fechaing, nombre("fechaing").c_str());
    r.campo("Fecha Ing.", a.fechaing);
    a.sector = f.catalogo(c.sector, nombre("sector").c_str(), "Form39", "sectores");
    r.campo("Sector", a.sector);
    a.categoria = f.catalogo(c.categoria, nombre("categoria").c_str(), "Form390", "categorias");
    r.campo("Categoría", a.categoria);
    r.campo("Sueldo", f.numero(c.sueldo, nombre("sueldo").c_str(), 120));
    r.campo("NroOrd.", f.texto(c.cesp, nombre("cesp").c_str(), 80));
    r.saltar();
    a.fechaeg = f.fecha(c.fechaeg, nombre("fechaeg").c_str());
    r.campo("Fecha Eg.", a.fechaeg);
    a.motivoeg = f.catalogo(c.motivoeg, nombre("motivoeg").c_str(), "Form38", "motivodeegreso");
    r.campo("Motivo de Egreso", a.motivoeg);
    a.antiguedad =
        f.numero(c.antiguedad, nombre("antiguedad").c_str(), 60, ventana::ClaseNumero::Entero);
    r.campo("Antiguedad", a.antiguedad);
    r.campo("Horario de Trabajo", f.texto(c.horario, nombre("horario").c_str()), 2);
    r.saltar();
    r.campo("Tipo de rem. M.T.S.S.",
            f.catalogo(c.tiporemmtss, nombre("tiporemmtss").c_str(), "Form33", "tiporemmtss"));
    r.campo("Tipo de rem. B.P.S.",
            f.catalogo(c.tiporembps, nombre("tiporembps").c_str(), "Form34", "tiporembps"));
    r.campo("Seguro salud",
            f.catalogo(c.segurosalud, nombre("segurosalud").c_str(), "Form35", "segurosalud"));
    r.campo("Vínculo funcional",
            f.catalogo(c.vinculofun, nombre("vinculofun").c_str(), "Form36", "vinculofuncional"));
    r.campo("Exon.", f.texto(c.exon, nombre("exon").c_str(), 60));
    r.terminar();
    a.enlazar(f, std::move(referencias));
}

}  // namespace nomira::pantallas
