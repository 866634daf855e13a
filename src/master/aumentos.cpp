#include "master/aumentos.h"

#include "common/dinero.h"
#include "common/formato.h"
#include "common/numeros.h"
#include "master/catalogos.h"

namespace nomira::master {

namespace {

// El valor pasa por el formato "##,##0.00" antes de guardarse: dos decimales,
// la mitad lejos del cero.
double aDosDecimales(double x) { return common::textoANumero(common::formatear(x, "#0.00")); }

// Febrero de 29 días cuando el año es múltiplo de 4, como siempre lo contó Suma1dia.
int ultimoDia(int anio, int mes) {
    if (mes == 2) return anio % 4 == 0 ? 29 : 28;
    return common::diasDelMes(anio, mes);
}

std::string textoDeSueldo(double valor, const std::string& tiposueldo) {
    const auto dinero = common::Dinero::desdeDouble(valor);
    if (tiposueldo == "S") return std::to_string(common::enteroAgencia(dinero.aDouble()));
    return dinero.texto();
}

// ¿Egresó la actividad antes del mes de hoy? Los años van por el pivote 50; sin
// egreso cuenta el año 3900, que nunca pasó.
bool egresoAnterior(const std::string& fechaeg, const common::Fecha& hoy) {
    const auto eg = common::Fecha::desdeTexto(fechaeg);
    const int anioEg = eg ? common::anioPivote50(eg->anio % 100) : 3900;
    const int mesEg = eg ? eg->mes : 0;
    const int anioHoy = common::anioPivote50(hoy.anio % 100);
    return anioHoy > anioEg || (anioHoy == anioEg && hoy.mes > mesEg);
}

std::vector<std::string> categoriasDe(store::Conexion& base, const std::string& grupo,
                                      const std::string& subgrupo, const std::string& sector) {
    return textosCatalogo(base, "categorias",
                          {{"nombre", grupo}, {"nombre2", subgrupo}, {"nombre3", sector}});
}

}  // namespace

double porcentajeCompuesto(double recuperacion, double inflacion) {
    return ((1 + recuperacion / 100) * (1 + inflacion / 100) - 1) * 100;
}

std::pair<common::Fecha, common::Fecha> Suma1dia(const common::Fecha& fechafin) {
    common::Fecha ini{fechafin.anio, fechafin.mes + 1, 1};
    if (ini.mes > 12) ini = {ini.anio + 1, 1, 1};
    common::Fecha fin{ini.anio, ini.mes + 5, 1};
    if (fin.mes > 12) fin = {fin.anio + 1, fin.mes - 12, 1};
    fin.dia = ultimoDia(fin.anio, fin.mes);
    return {ini, fin};
}

int aumentarSueldosMinimos(store::Conexion& base, const std::string& grupo,
                           const std::string& subgrupo, const std::string& sector,
                           double porcentaje) {
    store::Transaccion t(base);
    int aumentadas = 0;
    for (const auto& categoria : categoriasDe(base, grupo, subgrupo, sector)) {
        auto ultimo = ultimoSueldoMinimo(base, {grupo, subgrupo, sector, categoria});
        if (!ultimo) continue;
        const auto [ini, fin] = Suma1dia(ultimo->fechafin);
        ultimo->fechaini = ini;
        ultimo->fechafin = fin;
        ultimo->sueldo = aDosDecimales(ultimo->sueldo + ultimo->sueldo * porcentaje / 100);
        agregarSueldoMinimo(base, *ultimo);
        ++aumentadas;
    }
    t.confirmar();
    return aumentadas;
}

int eliminarUltimoAumento(store::Conexion& base, const std::string& grupo,
                          const std::string& subgrupo, const std::string& sector) {
    store::Transaccion t(base);
    int borradas = 0;
    for (const auto& categoria : categoriasDe(base, grupo, subgrupo, sector)) {
        const CategoriaLaboral c{grupo, subgrupo, sector, categoria};
        const auto ultimo = ultimoSueldoMinimo(base, c);
        if (!ultimo) continue;
        eliminarSueldoMinimo(base, c, ultimo->fechaini, ultimo->fechafin);
        ++borradas;
    }
    t.confirmar();
    return borradas;
}

double sueldoAumentado(double sueldo, double porcentaje, const std::string& tiposueldo) {
    return common::textoANumero(
        textoDeSueldo(aDosDecimales(sueldo + sueldo * porcentaje / 100), tiposueldo));
}

double sueldoBajado(double sueldo, double porcentaje, const std::string& tiposueldo) {
    return common::textoANumero(
        textoDeSueldo(aDosDecimales(sueldo / (1 + porcentaje / 100)), tiposueldo));
}

std::optional<std::string> rechazoPorcentaje(double porcentaje) {
    if (!(porcentaje > -100 && porcentaje <= kMaxPorcentaje))
        return "El Porcentaje debe ser mayor que -100 y no pasar de 10000.";
    return std::nullopt;
}

bool confirmarPorcentaje(common::Dialogo& dialogo, double porcentaje, bool bajar) {
    if (porcentaje >= 0) return true;
    return dialogo.confirmar(
        bajar ? "Decremento de Sueldos x Empresas" : "Aumento de Sueldos x Empresas",
        std::string("El Porcentaje es negativo: los sueldos van a ") + (bajar ? "subir" : "bajar") +
            ". ¿Desea continuar?",
        false);
}

int aumentarSueldosEmpresa(store::Conexion& base, const PedidoAumento& pedido,
                           const common::Fecha& hoy) {
    std::string sql =
        "SELECT nombre, sueldo, tiposueldo, fechaeg, fechaing2, sueldo2, fechaeg2 FROM personal "
        "WHERE empresa = ?";
    std::vector<store::Valor> parametros = {pedido.empresa};
    if (!pedido.categoria.empty()) {
        sql += " AND categoria = ?";
        parametros.emplace_back(pedido.categoria);
    }
    auto nuevo = [&](const std::string& sueldo, const std::string& tipo) {
        const double base = common::textoANumero(sueldo);
        const double v = pedido.bajar ? sueldoBajado(base, pedido.porcentaje, tipo)
                                      : sueldoAumentado(base, pedido.porcentaje, tipo);
        return textoDeSueldo(v, tipo);
    };
    store::Transaccion t(base);
    int cambiados = 0;
    for (const auto& p : base.consulta(sql + " ORDER BY nombre", parametros).filas) {
        const auto nombre = p.texto("nombre");
        const auto tipo = p.texto("tiposueldo");
        if (!egresoAnterior(p.texto("fechaeg"), hoy)) {
            base.ejecuta(
                "UPDATE personal SET sueldo = ?, fechasuevig = ? WHERE empresa = ? AND nombre = ?",
                {nuevo(p.texto("sueldo"), tipo), pedido.fsuevig.iso(), pedido.empresa, nombre});
            ++cambiados;
        }
        // La segunda actividad no tiene fecha de vigencia propia: se escribe la misma.
        if (!p.texto("fechaing2").empty() && !egresoAnterior(p.texto("fechaeg2"), hoy)) {
            base.ejecuta(
                "UPDATE personal SET sueldo2 = ?, fechasuevig = ? WHERE empresa = ? AND nombre = ?",
                {nuevo(p.texto("sueldo2"), tipo), pedido.fsuevig.iso(), pedido.empresa, nombre});
            ++cambiados;
        }
    }
    t.confirmar();
    return cambiados;
}

}  // namespace nomira::master
