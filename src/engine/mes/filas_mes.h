#pragma once
// Las filas ya liquidadas de una persona que leen los aportes y el IRPF:
// habydesc, egresos y aguinaldos por mes o por tramo de meses, y salvacacional.
// También la escritura de una fila generada (UPDATE por código o INSERT).
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "common/dinero.h"
#include "common/fechas.h"
#include "store/conexion.h"

namespace nomira::engine {

// La tabla de filas de cada pantalla: Form42 habydesc, Form43 aguinaldos,
// Form45 egresos.
enum class TablaLiquidacion { Habydesc, Aguinaldos, Egresos };
const char* nombreTabla(TablaLiquidacion t);

// Una fila tal como la leen los cálculos. En aguinaldos no hay código, gravado
// ni ipd: quedan en 0 y "".
struct FilaMes {
    long codigo = 0;
    std::string concepto, tipo, gravado, ipd;
    common::Dinero total;
    double cant = 0;
};

// Filas leídas y compartidas: en una corrida, las de una misma lectura se
// convierten una vez y todos los cálculos de la persona recorren las mismas.
template <class F>
class FilasCompartidas {
  public:
    FilasCompartidas() : filas_(ninguna()) {}
    explicit FilasCompartidas(std::shared_ptr<const std::vector<F>> filas)
        : filas_(std::move(filas)) {}
    operator const std::vector<F>&() const { return *filas_; }
    auto begin() const { return filas_->begin(); }
    auto end() const { return filas_->end(); }
    std::size_t size() const { return filas_->size(); }
    bool empty() const { return filas_->empty(); }

  private:
    static const std::shared_ptr<const std::vector<F>>& ninguna() {
        static const auto vacia = std::make_shared<const std::vector<F>>();
        return vacia;
    }
    std::shared_ptr<const std::vector<F>> filas_;
};
using FilasLeidas = FilasCompartidas<FilaMes>;

// Las filas de la persona con fecha del primer día de `desde` al de `hasta`,
// por código (aguinaldos, en el orden de la tabla).
FilasLeidas leerFilas(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                      const std::string& nombre, const common::Mes& desde,
                      const common::Mes& hasta);
inline FilasLeidas leerFilasDelMes(store::Conexion& base, TablaLiquidacion tabla,
                                   const std::string& empresa, const std::string& nombre,
                                   const common::Mes& mes) {
    return leerFilas(base, tabla, empresa, nombre, mes, mes);
}

struct FilaSalVac {
    long codigo = 0;
    std::string concepto;
    common::Dinero total;
};
FilasCompartidas<FilaSalVac> leerSalvacacional(store::Conexion& base, const std::string& empresa,
                                               const std::string& nombre, const common::Mes& desde,
                                               const common::Mes& hasta);

// ¿Tiene la persona filas de egreso en el mes? Entonces no se escribe nada en
// habydesc.
bool hayEgresos(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                const common::Mes& mes);

// Una fila generada, con las banderas del concepto.
struct FilaGenerada {
    long codigo = 0;
    std::string concepto, tipo, unidad, permanente, gravado, aguinaldo, lic, ipd;
    double cant = 0;
    common::Dinero total;
};

// habydesc o egresos: si ya hay una fila del código en el mes, reescribe
// concepto, unidad, cant y total; si no, la inserta con las catorce columnas.
void escribirFila(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                  const std::string& nombre, const common::Mes& mes, const FilaGenerada& fila);

// Lo mismo sabiendo qué códigos tiene ya el mes (leídos una vez con
// codigosDelMes y llevados al día aquí): un código nuevo va directo al INSERT.
std::set<long> codigosDelMes(store::Conexion& base, TablaLiquidacion tabla,
                             const std::string& empresa, const std::string& nombre,
                             const common::Mes& mes);
void escribirFila(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                  const std::string& nombre, const common::Mes& mes, const FilaGenerada& fila,
                  std::set<long>& codigos);

// Borra las filas del mes de ese tipo ("Hab" o "Des") y devuelve cuántas.
std::int64_t borrarTipoDelMes(store::Conexion& base, TablaLiquidacion tabla,
                              const std::string& empresa, const std::string& nombre,
                              const common::Mes& mes, const std::string& tipo);

// --- Sumas por prefijo del texto de la fila ---

// Las filas llevan su porcentaje en el texto ("MONTEPIO 15%"): se reconocen
// por el comienzo.
bool esAporteLegal(const std::string& concepto);  // MONTEPIO, SNIS, FRL
bool empiezaCon(const std::string& texto, const char* prefijo);

common::Dinero sumaHab(const std::vector<FilaMes>& filas);
// Las filas de tipo `tipo` cuyo texto empieza con `prefijo`.
common::Dinero sumaPrefijo(const std::vector<FilaMes>& filas, const char* tipo,
                           const char* prefijo);
common::Dinero sumaAportes(const std::vector<FilaMes>& filas);  // Des MONTEPIO/SNIS/FRL

}  // namespace nomira::engine
