#include "engine/mes/horas.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>

#include "common/fallo.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/filas_persona.h"
#include "engine/mes/libro.h"
#include "engine/mes/maestros.h"
#include "engine/mes/mes_persona.h"
#include "master/personal.h"

namespace nomira::engine {
inline namespace mes {

namespace fs = std::filesystem;
using common::Dinero;

namespace {

fs::path raiz() {
    if (const char* r = std::getenv("NOMIRA_RAIZ"); r && *r) return r;
    if (const char* h = std::getenv("HOME"); h && *h) return h;
    return fs::current_path();
}

std::string dosCifras(int n) {
    char b[8];
    std::snprintf(b, sizeof b, "%02d", n % 100);
    return b;
}

// El concepto de la línea: haberes del tipo de sueldo de la persona o generales;
// descuentos, cualquiera.
const master::Concepto* conceptoDeLinea(const Maestros& maestros, long codigo, bool descuentos,
                                        const std::string& tiposueldo) {
    const auto mismos = maestros.conceptos.conCodigo(codigo);
    for (const auto& c : mismos)
        if (descuentos ? c.tipo == "Des"
                       : c.tipo == "Hab" && (c.especificode == tiposueldo || c.especificode == "G"))
            return &mismos.front();
    return nullptr;
}

}  // namespace

void avisarSinArchivoDeHoras(const Maestros& maestros, common::Dialogo& dialogo) {
    if (maestros.horas) return;
    dialogo.avisar(common::TipoAviso::Informacion,
                   maestros.rutaHoras.empty()
                       ? std::string("No hay archivo de horas del mes: horas.txt no dice en qué "
                                     "carpeta buscarlo. Los jornaleros y los por hora quedan sin "
                                     "horas.")
                       : "No se encontró el archivo de horas del mes " + maestros.rutaHoras +
                             ". Los jornaleros y los por hora quedan sin horas.");
}

std::string prefijoArchivosHoras() {
    std::ifstream f(raiz() / "Software" / "Nomira" / "horas.txt");
    std::string linea;
    if (!f || !std::getline(f, linea)) return "";
    while (!linea.empty() && (linea.back() == '\r' || linea.back() == '\n')) linea.pop_back();
    return linea;
}

fs::path rutaArchivoHoras(const std::string& prefijo, const common::Mes& mes,
                          const std::string& nroemp) {
    return prefijo + dosCifras(mes.mes) + dosCifras(mes.anio) + nroemp + ".txt";
}

std::optional<LineaHoras> leerLineaHoras(const std::string& linea) {
    const auto barras = std::count(linea.begin(), linea.end(), '|');
    if (barras != 2 && barras != 3) return std::nullopt;
    std::vector<std::string> campos;
    std::size_t desde = 0;
    for (;;) {
        const auto p = linea.find('|', desde);
        campos.push_back(linea.substr(desde, p == std::string::npos ? p : p - desde));
        if (p == std::string::npos) break;
        desde = p + 1;
    }
    LineaHoras l;
    l.nrofun = common::textoANumero(campos[0]);
    l.codigo = static_cast<long>(common::textoANumero(campos[1]));
    l.cantidad = common::textoANumero(campos[2]);
    if (campos.size() == 4) l.importe = Dinero::desdeDouble(common::textoANumero(campos[3]));
    return l;
}

ArchivoHoras leerArchivoHoras(const fs::path& ruta) {
    std::ifstream f(ruta);
    if (!f) throw common::Fallo(53, "No se encontró el archivo");
    ArchivoHoras a;
    std::string linea;
    while (std::getline(f, linea)) {
        if (!linea.empty() && linea.back() == '\r') linea.pop_back();
        a.lineas.push_back(leerLineaHoras(linea));
    }
    return a;
}

namespace {

// Las filas que escribe el archivo de horas terminan su explicación con lo que
// tenían tecleado antes: así la próxima importación sabe qué reemplazar.
constexpr const char* kTecleado = "tecleado antes del archivo: ";

std::pair<double, Dinero> tecleadoAntesDelArchivo(const FilaMes& fila) {
    const auto i = fila.explicacion.rfind(kTecleado);
    if (i == std::string::npos) return {fila.cant, fila.total};
    const std::string resto = fila.explicacion.substr(i + std::string(kTecleado).size());
    const auto barra = resto.find(" / ");
    if (barra == std::string::npos) return {fila.cant, fila.total};
    return {common::textoANumero(resto.substr(0, barra)),
            Dinero::desdeDouble(common::textoANumero(resto.substr(barra + 3)))};
}

ImportacionHoras importarDelMes(ContextoFormula& ctx, bool descuentos, common::Dialogo& dialogo) {
    const auto& horas = maestrosDe(ctx).horas;
    if (!horas) return {};
    return importarHoras(ctx, *horas, descuentos, dialogo);
}

}  // namespace

ImportacionHoras CalculoCant(ContextoFormula& ctx, common::Dialogo& dialogo) {
    return importarDelMes(ctx, false, dialogo);
}

ImportacionHoras CalculoCant2(ContextoFormula& ctx, common::Dialogo& dialogo) {
    return importarDelMes(ctx, true, dialogo);
}

ImportacionHoras importarHoras(ContextoFormula& ctx, const ArchivoHoras& archivo, bool descuentos,
                               common::Dialogo& dialogo) {
    auto& libro = libroDe(ctx);
    const auto& maestros = maestrosDe(ctx);
    const auto& mes = ctx.periodo;
    const auto* persona = ctx.persona;
    const double nrofun = persona ? common::textoANumero(persona->nrofun) : 0;
    const std::string tiposueldo = persona ? persona->tiposueldo : "";

    // Los descuentos miran los haberes del mes para el SNIS del aguinaldo.
    std::vector<FilaMes> habydesc;
    int cantHab = 0;
    if (descuentos) {
        habydesc = libro.filas(TablaLiquidacion::Habydesc, mes);
        cantHab = static_cast<int>(std::count_if(habydesc.begin(), habydesc.end(),
                                                 [](auto& f) { return f.tipo == "Hab"; }));
    }

    ImportacionHoras r;
    // Lo escrito por esta importación, por código: las líneas de un mismo código
    // se suman, y cada fila recuerda lo que había tecleado antes del archivo.
    std::map<long, std::string> partes;
    std::map<long, std::pair<double, Dinero>> tecleado;
    for (const auto& l : archivo.lineas) {
        ctx.cantarchivo = 0;
        ctx.importearchivo = Dinero();
        if (!l || l->nrofun != nrofun) continue;
        const auto* concepto = conceptoDeLinea(maestros, l->codigo, descuentos, tiposueldo);
        if (!concepto) continue;

        ctx.cantarchivo = l->cantidad;
        ctx.importearchivo = l->importe;
        ctx.formula = concepto->formula;
        ctx.textoCant.clear();
        if (descuentos) ctx.psnis = 0;
        CalculoFormula3(ctx, dialogo);
        double cant = ctx.cant, total = ctx.total;
        std::string exp = concepto->concepto + ": archivo " + numero(l->cantidad) + " / " +
                          pesos(l->importe) + ", fórmula " + concepto->formula + " con cantidad " +
                          numero(cant) + ": " + pesos(total);

        if (descuentos) {
            const bool unicoHaber = (tiposueldo == "H" || tiposueldo == "J") && cantHab == 1;
            if (ctx.tipoaporte != "04" && (mes.mes == 6 || mes.mes == 12) && ctx.psnis > 3 &&
                !unicoHaber) {
                const auto& aguinaldos = libro.filas(TablaLiquidacion::Aguinaldos, mes);
                Dinero snisAg;
                for (const auto& a : aguinaldos)
                    if (empiezaCon(a.concepto, "SNIS")) {
                        snisAg = a.total;
                        break;
                    }
                ctx.montogravag = Dinero::desdeDouble(sumaHab(aguinaldos).aDouble() / 12);
                total += ctx.montogravag.aDouble() * ctx.psnis / 100 - snisAg.aDouble();
                exp += "; aguinaldo " + pesos(ctx.montogravag) + " x " + numero(ctx.psnis) +
                       "% - " + pesos(snisAg);
            }
        } else {
            // Los haberes del archivo se suman a lo que la fila tenía tecleado. Lo
            // que agregó una importación anterior se reemplaza: importar el mismo
            // archivo otra vez no lo cuenta dos veces.
            const auto* previa = libro.porCodigo(TablaLiquidacion::Habydesc, mes, l->codigo);
            if (!tecleado.count(l->codigo))
                tecleado[l->codigo] = previa ? tecleadoAntesDelArchivo(*previa)
                                             : std::pair<double, Dinero>{0, Dinero()};
            const auto& [tCant, tTotal] = tecleado[l->codigo];
            const bool estaImportacion = partes.count(l->codigo) > 0;
            cant += estaImportacion ? previa->cant : tCant;
            total += estaImportacion ? previa->total.aDouble() : tTotal.aDouble();
            auto& p = partes[l->codigo];
            p += (p.empty() ? "" : "; ") + exp;
            exp = p + "; " + kTecleado + numero(tCant) + " / " + numero(tTotal.aDouble());
        }
        ctx.cant = cant;
        ctx.total = total;
        auto fila = filaDeConcepto(*concepto, descuentos ? "Des" : "Hab");
        fila.cant = cant;
        fila.total = Dinero::desdeDouble(total);
        fila.explicacion = exp;
        libro.escribir(TablaLiquidacion::Habydesc, mes, fila);
        r.filas.push_back(fila);
        r.explicacion += exp + "\n";

        if (!descuentos && esConceptoHoras(common::mayusculas(concepto->concepto)))
            if (auto j = actualizarJornadas(
                    libro, maestros, mes, common::mayusculas(concepto->concepto), cant, ctx.htrab))
                r.filas.push_back(*j);
    }
    return r;
}

}  // namespace mes
}  // namespace nomira::engine
